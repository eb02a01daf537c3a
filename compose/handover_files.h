#pragma once

#include "platform/ports/platform.h"

namespace compose {

/// The two files of the card manager's hand-over. The first is the signal and says what is handed over; the
/// second, with the recipients, is complete when the first appears.
inline platform::Text isend_text(const platform::Platform& platform) {
    return platform.files.application_directory() + u"\\temp\\isend.text";
}
inline platform::Text tmpman_txt(const platform::Platform& platform) {
    return platform.files.application_directory() + u"\\temp\\tmpman.txt";
}

}  // namespace compose
