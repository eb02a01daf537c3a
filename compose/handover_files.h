#pragma once

#include "platform/ports/platform.h"

namespace compose {

/// The two files by which the card manager hands something over. The first says what and is the signal: the
/// second, the recipients, is complete when the first appears.
inline platform::Text isend_text(const platform::Platform& platform) {
    return platform.files.application_directory() + u"\\temp\\isend.text";
}
inline platform::Text tmpman_txt(const platform::Platform& platform) {
    return platform.files.application_directory() + u"\\temp\\tmpman.txt";
}

}  // namespace compose
