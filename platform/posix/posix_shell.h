#pragma once

#include "platform/ports/shell.h"
#include "platform/posix/file_descriptor.h"
#include "platform/posix/paths.h"

#include <string>

namespace platform::posix {

/// The user's desktop programs, and the instances of this user in this application directory.
class PosixShell : public Shell {
  public:
    /// `opener` is the program that knows which program opens a file.
    explicit PosixShell(Paths paths, std::string opener = "xdg-open");

    void open(const Text& path) override;
    void open_page(const Text& address) override;
    [[noreturn]] void end_process() override;
    bool another_instance_runs() override;

  private:
    Paths paths_;
    std::string opener_;
    FileDescriptor instance_;
};

}  // namespace platform::posix
