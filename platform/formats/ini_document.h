#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Settings files of the kind
///
///     [SECTION]
///     key=value
///     ; a comment
///
/// as bytes of code page 949. Names match in any ASCII case, blanks around names and values do not count, and
/// of several sections or keys with one name the first counts. Any bytes are a document: what cannot be
/// understood is skipped when reading and kept when writing.
namespace platform::ini {

/// The value of a key, without one pair of quotation marks around it; nothing when section or key is missing.
std::optional<std::string> read(std::string_view bytes, std::string_view section, std::string_view key);

/// The document with the key's value replaced, or with the key added after the last line of its section that
/// is not blank, or with section and key added at the end. Every other byte stays. Names and value end at
/// their first line end, so that what a user types into a field never becomes a line of its own.
std::string write(std::string_view bytes, std::string_view section, std::string_view key,
                  std::string_view value);

}  // namespace platform::ini
