#pragma once

#include "platform/error.h"

namespace tests {

/// The number of the RuntimeError that the step raises; 0 when it raises none.
template <class Step>
int error_number(Step&& step) {
    try {
        step();
        return 0;
    } catch (const platform::RuntimeError& error) {
        return error.number();
    }
}

}  // namespace tests
