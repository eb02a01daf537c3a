#pragma once

#include "platform/text/text.h"

namespace platform {

/// Other programs of the machine, and other instances of this one.
class Shell {
  public:
    virtual ~Shell() = default;

    /// Opens a file with the program that the machine has for it; a program of its own, by the name's ending
    /// ".exe", is started. A failure is silent.
    virtual void open(const Text& path) = 0;
    /// Opens a page of the web in the user's own browser, which stays open, or "about:blank" there. A failure
    /// is silent, and so is an address of anything else; one without a scheme is of the web.
    virtual void open_page(const Text& address) = 0;
    /// Ends this process at once: no window is asked, nothing is kept and no handler runs.
    [[noreturn]] virtual void end_process() = 0;
    /// Whether another instance is running already. From the first call on, this one counts as running.
    virtual bool another_instance_runs() = 0;
};

}  // namespace platform
