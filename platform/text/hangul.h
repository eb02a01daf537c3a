#pragma once

#include "platform/text/text.h"

namespace platform {

/// Hangul syllables that are spelled out in conjoining letters, as some systems keep them in file names, each
/// made one character, as keyboards and code page 949 have them. Everything else stays.
Text compose_hangul(TextView text);

/// The other way round: every Hangul syllable in its two or three conjoining letters.
Text decompose_hangul(TextView text);

}  // namespace platform
