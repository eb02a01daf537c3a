#pragma once

#include "platform/text/text.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace platform {

/// Whether the pattern matches the text from end to end. Of its elements those of `is_any_text(element)`
/// stand for any run of characters, each other one for a character that `matches(element, unit)`.
template <class Pattern, class IsAnyText, class Matches>
bool matches_wild_cards(TextView text, const Pattern& pattern, IsAnyText is_any_text, Matches matches) {
    std::size_t element = 0, at = 0;
    // Behind the last run passed, and where the text that it stands for ends by now. Only that run may have
    // to take in more: whatever those before it took leaves the rest the same.
    std::optional<std::size_t> behind_run;
    std::size_t run_end = 0;
    while (at < text.size()) {
        if (element < pattern.size() && is_any_text(pattern[element])) {
            behind_run = ++element;
            run_end = at;
        } else if (element < pattern.size() && matches(pattern[element], text[at])) {
            ++element;
            ++at;
        } else if (behind_run) {
            element = *behind_run;
            at = ++run_end;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(element), pattern.end(), is_any_text);
}

}  // namespace platform
