// The input is the file of recipients as the card manager writes it, in cp949.

#include "fuzz/check.h"
#include "handover/handover_lines.h"

#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const platform::Text text =
        handover::handed_over_text(std::string_view(reinterpret_cast<const char*>(data), size));
    fuzz::check(text.find_first_of(platform::TextView(u"\r\0", 2)) == platform::Text::npos,
                "no line end but a line feed, and no NUL");
    handover::HandedOverRecipient recipient;
    std::size_t characters = 0;
    for (const platform::TextView line : platform::split(text, u'\n')) {
        characters += line.size() + 1;
        if (!recipient.read(line)) continue;
        fuzz::check(!recipient.name.empty(), "everybody has a name");
        for (const auto* field : {&recipient.name, &recipient.number, &recipient.title}) {
            fuzz::check(field->find_first_of(u"\t\n") == platform::Text::npos, "a field ends at its tab");
            fuzz::check(*field == platform::trim(*field), "blanks at the ends are nobody's");
        }
    }
    fuzz::check(characters == text.size() + 1, "no line is lost");
    const int value = handover::value_of_signal(text);
    fuzz::check(value != 0 && value >= -32768 && value <= 32767,
                "a signal of 16 bits that chooses something");
    return 0;
}
