#pragma once

#include "machine/posix/instance_lock.h"
#include "machine/posix/paths.h"
#include "platform/ports/shell.h"

#include <string>

namespace machine::posix {

/// Starts the user's desktop programs and knows other instances of this user in this application directory.
class PosixShell : public platform::Shell {
  public:
    /// `opener` is the program that opens a file with the right program.
    explicit PosixShell(Paths paths, std::string opener = "xdg-open");

    void open(const platform::Text& path) override;
    void open_page(const platform::Text& address) override;
    [[noreturn]] void end_process() override;
    bool another_instance_runs() override;

  private:
    Paths paths_;
    std::string opener_;
    InstanceLock instance_;
};

}  // namespace machine::posix
