#pragma once

#include "platform/text/text.h"

namespace platform {

/// Other programs of the machine, and other instances of this one.
class Shell {
  public:
    virtual ~Shell() = default;

    /// Opens a file with the program that the machine has for it; a failure is silent.
    virtual void open(const Text& path) = 0;
    /// Whether another instance is running already. From the first call on, this one counts as running.
    virtual bool another_instance_runs() = 0;
};

}  // namespace platform
