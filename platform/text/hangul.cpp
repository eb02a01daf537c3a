#include "platform/text/hangul.h"

namespace platform {

namespace {

constexpr char16_t FIRST_SYLLABLE = 0xAC00;
constexpr char16_t FIRST_LEAD = 0x1100;
constexpr char16_t FIRST_VOWEL = 0x1161;
/// The code before the first final consonant. It stands for a syllable without one.
constexpr char16_t NO_TAIL = 0x11A7;
constexpr int LEADS = 19;
constexpr int VOWELS = 21;
constexpr int TAILS = 28;

/// Distance of the character from the first of its sort; out of the sort's range for any other character.
int place_of(char16_t unit, char16_t first) { return unit - first; }

bool is_place(int place, int count) { return place >= 0 && place < count; }

}  // namespace

Text compose_hangul(TextView text) {
    Text out;
    out.reserve(text.size());
    for (const char16_t unit : text) {
        if (!out.empty()) {
            const int lead = place_of(out.back(), FIRST_LEAD);
            const int vowel = place_of(unit, FIRST_VOWEL);
            if (is_place(lead, LEADS) && is_place(vowel, VOWELS)) {
                out.back() = static_cast<char16_t>(FIRST_SYLLABLE + (lead * VOWELS + vowel) * TAILS);
                continue;
            }
            const int syllable = place_of(out.back(), FIRST_SYLLABLE);
            const int tail = place_of(unit, NO_TAIL);
            if (is_place(syllable, LEADS * VOWELS * TAILS) && syllable % TAILS == 0 && tail > 0 &&
                is_place(tail, TAILS)) {
                out.back() = static_cast<char16_t>(out.back() + tail);
                continue;
            }
        }
        out += unit;
    }
    return out;
}

Text decompose_hangul(TextView text) {
    Text out;
    out.reserve(text.size());
    for (const char16_t unit : text) {
        const int syllable = place_of(unit, FIRST_SYLLABLE);
        if (!is_place(syllable, LEADS * VOWELS * TAILS)) {
            out += unit;
            continue;
        }
        out += static_cast<char16_t>(FIRST_LEAD + syllable / (VOWELS * TAILS));
        out += static_cast<char16_t>(FIRST_VOWEL + syllable / TAILS % VOWELS);
        if (const int tail = syllable % TAILS; tail > 0) out += static_cast<char16_t>(NO_TAIL + tail);
    }
    return out;
}

}  // namespace platform
