#pragma once

#include "machine/posix/file_descriptor.h"
#include "machine/posix/paths.h"
#include "platform/ports/shell.h"

#include <string>

namespace machine::posix {

/// The user's desktop programs, and the instances of this user in this application directory.
class PosixShell : public platform::Shell {
  public:
    /// `opener` is the program that knows which program opens a file.
    explicit PosixShell(Paths paths, std::string opener = "xdg-open");

    void open(const platform::Text& path) override;
    void open_page(const platform::Text& address) override;
    [[noreturn]] void end_process() override;
    bool another_instance_runs() override;

  private:
    Paths paths_;
    std::string opener_;
    FileDescriptor instance_;
};

}  // namespace machine::posix
