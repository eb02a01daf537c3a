// The statement as it is, and its first line as a LIKE pattern for the rest.

#include "fuzz/check.h"
#include "machine/jet/file/connection_string.h"
#include "machine/jet/sql/like_pattern.h"
#include "machine/jet/sql/statement.h"
#include "platform/error.h"

#include <algorithm>
#include <vector>

namespace {

using platform::Text;
using platform::TextView;

/// The simple way: which beginnings of the text match which beginnings of the pattern.
bool matches_plainly(TextView pattern, TextView text) {
    std::vector<char> reach(text.size() + 1, 0);
    reach[0] = 1;
    for (const char16_t unit : pattern) {
        std::vector<char> next(text.size() + 1, 0);
        for (std::size_t i = 0; i <= text.size(); ++i) {
            if (unit == u'%') {
                next[i] = static_cast<char>(reach[i] || (i > 0 && next[i - 1]));
            } else if (i > 0 && reach[i - 1]) {
                next[i] = unit == u'_' || unit == text[i - 1];
            }
        }
        reach = next;
    }
    return reach[text.size()];
}

bool is_simple(TextView text) {
    return std::ranges::all_of(text,
                               [](char16_t unit) { return unit < 0x80 && !(unit >= 'A' && unit <= '['); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Text input = fuzz::as_text(data, std::min<std::size_t>(size, 2000));
    try {
        const Text statement = machine::jet::sqlite_statement(input);
        fuzz::check(machine::jet::sqlite_statement(statement) == statement, "a rewritten statement stays");
    } catch (const platform::RuntimeError&) {
        // A faulty statement that was refused.
    }
    machine::jet::ConnectionString::parse(input);

    const auto end = std::min(input.find(u'\n'), input.size());
    const TextView pattern = TextView(input).substr(0, end), text = TextView(input).substr(end);
    const auto parsed = machine::jet::LikePattern::parse(pattern);
    const bool matches = parsed && parsed->matches(text);
    if (is_simple(pattern) && is_simple(text))
        fuzz::check(matches == matches_plainly(pattern, text), "it matches as the plain way does");
    return 0;
}
