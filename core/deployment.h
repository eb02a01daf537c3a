#pragma once

#include "platform/text/text.h"

/// What differs between installations; the build decides it.
namespace core::deployment {

/// The domain name that goes to the carrier with every operation.
platform::Text service_domain();

/// The web site with the service's pages, and the folder of the maker's with the application documents,
/// without a slash at their ends.
platform::Text service_site();
platform::Text documents_site();

/// Where new members turn to, as the guidance shows it.
platform::Text contact_phone();
platform::Text contact_fax();

/// Major, minor and revision, as in "2.1.0".
platform::Text version();

}  // namespace core::deployment
