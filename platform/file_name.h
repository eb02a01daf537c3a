#pragma once

#include "platform/text/text.h"

namespace platform {

/// What no name of a file or folder may have, beside control characters.
inline constexpr TextView FORBIDDEN_IN_NAMES = u"\\/:*?\"<>|";

/// Whether a new file or folder may have the name: one that every system the user's files may be carried to
/// takes, and that no list hides. Raises RuntimeError 52, whose description tells the user what is wrong.
/// Files that are there already open under any name.
void check_file_name(TextView name);

/// The nearest to a name that a stranger proposes which `check_file_name` lets pass: without folders, without
/// what no name may have and without marks that would show it otherwise than it is. Short enough for an
/// ending behind it; empty when nothing is left.
Text clean_file_name(TextView proposal);

/// Whether the name is one of the pattern's: `*` is any run of characters and `?` any one, letters in either
/// case. `*.*` means every name, as it always did, also those without a dot.
bool matches_pattern(TextView name, TextView pattern);

/// The order of names in a folder's list: letters in either case are the same, unless nothing else differs.
bool name_precedes(TextView a, TextView b);

}  // namespace platform
