// The input is a file of recipients as any other program may have written it.

#include "fuzz/check.h"
#include "platform/formats/people_lines.h"
#include "platform/text/unknown_encoding.h"

#include <algorithm>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const platform::Text text = platform::with_line_feeds(
        platform::text_of_any_encoding(std::string_view(reinterpret_cast<const char*>(data), size)));
    platform::PeopleLines lines;
    platform::ListedPerson person;
    for (const platform::TextView line : platform::split(text, u'\n')) {
        if (lines.read(line, person) != platform::PeopleLines::Line::person) continue;
        fuzz::check(!person.numbers.empty(), "everybody has a number");
        for (const platform::Text& number : person.numbers) {
            fuzz::check(std::ranges::all_of(number, [](char16_t c) { return c >= u'0' && c <= u'9'; }),
                        "a number has digits alone");
            fuzz::check(number.size() >= 8 && number.size() <= 12, "a number can be dialled");
        }
        for (const auto* field : {&person.name, &person.title}) {
            fuzz::check(*field == platform::trim(*field), "blanks at the ends are nobody's");
            fuzz::check(field->size() <= line.size(), "a name comes out of its line");
        }
    }
    return 0;
}
