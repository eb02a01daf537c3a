#pragma once

#include "machine/jet/file/jet_header.h"
#include "machine/posix/file_descriptor.h"

#include <string>
#include <sys/stat.h>

namespace machine::jet {

/// Tells whether a file is still the one that was read: its place, length and date.
struct FileState {
    dev_t device = 0;
    ino_t number = 0;
    off_t length = 0;
    timespec changed{};

    bool operator==(const FileState& other) const;
    /// Whether any later change will show in the date. The date has the resolution of a clock tick; a date in
    /// the future proves nothing.
    bool is_settled() const;
};

/// The card manager's file, open for reading.
class CardFile {
  public:
    /// Raises RuntimeError when the file is missing or not a normal file.
    explicit CardFile(const std::string& path);

    int descriptor() const { return file_.number(); }
    FileState state() const;
    /// Raises RuntimeError when the file does not begin like a Jet file or is cut off.
    JetHeader header() const;

  private:
    posix::FileDescriptor file_;
};

}  // namespace machine::jet
