#pragma once

#include "platform/text/text.h"

namespace platform {

/// What no name of a file or folder may have, beside control characters.
inline constexpr TextView FORBIDDEN_IN_NAMES = u"\\/:*?\"<>|";

/// Checks the name of a new file or folder: every system to which users carry their files must accept it, and
/// no list may hide it. Raises RuntimeError 52, whose description tells the user what is wrong. Existing
/// files open under any name.
void check_file_name(TextView name);

/// The closest name to a stranger's proposal that passes `check_file_name`: without folders, forbidden
/// characters, and marks that would disguise it on screen. Short enough for an extension to follow; empty
/// when nothing is left.
Text clean_file_name(TextView proposal);

/// Whether the name matches the pattern: `*` is any run of characters and `?` any one; case does not count.
/// `*.*` means every name, as it always did, also one without a dot.
bool matches_pattern(TextView name, TextView pattern);

/// The order of names in a folder's list. Case counts only when nothing else differs.
bool name_precedes(TextView a, TextView b);

}  // namespace platform
