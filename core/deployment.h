#pragma once

#include "platform/text/text.h"

/// What differs between installations; the build decides it.
namespace core::deployment {

/// The domain name that goes to the carrier with every operation.
platform::Text service_domain();

/// Major, minor and revision, as in "2.1.0".
platform::Text version();

}  // namespace core::deployment
