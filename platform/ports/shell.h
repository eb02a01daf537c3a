#pragma once

#include "platform/text/text.h"

namespace platform {

/// Other programs of the machine, and other instances of this one.
class Shell {
  public:
    virtual ~Shell() = default;

    /// Opens a file with the program that is registered for it; a file whose name ends with ".exe" is started
    /// as a program. Fails silently.
    virtual void open(const Text& path) = 0;
    /// Opens a web page, or "about:blank", in the user's own browser, which stays open when this program
    /// ends. An address without a scheme counts as a web page; any other address is ignored. Fails silently.
    virtual void open_page(const Text& address) = 0;
    /// Ends this process at once: no window is asked, nothing is saved and no handler runs.
    [[noreturn]] virtual void end_process() = 0;
    /// Whether another instance is running already. From the first call on, this one counts as running.
    virtual bool another_instance_runs() = 0;
};

}  // namespace platform
