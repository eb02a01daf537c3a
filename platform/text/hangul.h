#pragma once

#include "platform/text/text.h"

namespace platform {

/// Makes one character of each Hangul syllable that is spelled in conjoining letters: some systems keep file
/// names so, but keyboards and code page 949 have whole syllables. Everything else stays.
Text compose_hangul(TextView text);

/// The reverse: spells every Hangul syllable in its two or three conjoining letters.
Text decompose_hangul(TextView text);

}  // namespace platform
