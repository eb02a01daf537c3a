#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace platform {

/// Everything the user reads or types is UTF-16 inside the program; bytes exist at the outside boundaries
/// only.
using Text = std::u16string;
using TextView = std::u16string_view;

/// The line end of texts inside the program, of message files and of what goes to the carrier.
inline constexpr TextView CRLF = u"\r\n";

/// The text without blanks (U+0020 alone) at its ends.
Text trim(TextView text);
Text right_trim(TextView text);

/// The text with every occurrence of `what` replaced; an empty `what` replaces nothing.
Text replace_all(TextView text, TextView what, TextView with);
Text remove_all(TextView text, TextView what);
/// The text with a blank for every NUL, because code that reads C strings would end the text there.
Text blanks_for_nul(Text text);

bool contains(TextView text, TextView what);

/// The pieces between the separators; one more than there are separators.
std::vector<TextView> split(TextView text, char16_t separator);

/// The text with a line feed alone at the end of each line, whichever kind of line end it came with.
Text with_line_feeds(TextView text);

/// ASCII letters in lower case, every other character as it is.
Text lower_case(TextView text);
bool equal_without_case(TextView a, TextView b);

/// ASCII only, in both directions: for keys, names of resources and test output, not for texts that the user
/// reads.
Text from_ascii(std::string_view ascii);

/// The number in decimal, with a leading minus sign when negative.
template <class Number>
Text decimal(Number number) {
    static_assert(std::is_integral_v<Number>);
    return from_ascii(std::to_string(number));
}

/// UTF-8 for file names and for the toolkit's side; a lone surrogate or a broken sequence becomes U+FFFD.
std::string to_utf8(TextView text);
Text from_utf8(std::string_view bytes);

}  // namespace platform
