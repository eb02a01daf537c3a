#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace standin {

/// The entries of a cp949 list in which a ";" ends each; empty entries are left out. A ";" is never the
/// second byte of a character.
std::vector<std::string> list_entries(std::string_view list);

/// True when the path names a file. `path` is cp949 as the client gives it: "c:\" is the folder drive_c in
/// the current directory, "z:\" the root, anything else without a drive is relative. Components are matched
/// exactly first and then without regard to ASCII case, since clients lower-case paths.
bool attachment_exists(std::string_view path);

}  // namespace standin
