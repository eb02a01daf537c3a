#pragma once

#include "machine/jet/file/jet_header.h"
#include "machine/posix/file_descriptor.h"

#include <string>
#include <sys/stat.h>

namespace machine::jet {

/// By what one tells that a file is still the one read before: where it lies, its length and its date.
struct FileState {
    dev_t device = 0;
    ino_t number = 0;
    off_t length = 0;
    timespec changed{};

    bool operator==(const FileState& other) const;
    /// Whether a change from now on shows in the date, which goes by the ticks of a clock. One in the future
    /// tells nothing.
    bool is_settled() const;
};

/// The card manager's file, open for reading.
class CardFile {
  public:
    /// Raises RuntimeError when the file is missing or is no normal file.
    explicit CardFile(const std::string& path);

    int descriptor() const { return file_.number(); }
    FileState state() const;
    /// Raises RuntimeError when the file does not begin, or end, as a Jet file does.
    JetHeader header() const;

  private:
    posix::FileDescriptor file_;
};

}  // namespace machine::jet
