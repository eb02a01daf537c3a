#include "machine/jet/sql/like_pattern.h"

#include "platform/text/wild_cards.h"

#include <algorithm>

namespace machine::jet {

using platform::TextView;

namespace {

/// The small letter of a Latin, Greek, Cyrillic or full-width Latin capital; every other character unchanged.
char16_t fold(char16_t unit) {
    if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
    const bool plus_32 = (unit >= 0x00C0 && unit <= 0x00DE && unit != 0x00D7) ||
                         (unit >= 0x0391 && unit <= 0x03A9) || (unit >= 0x0410 && unit <= 0x042F) ||
                         (unit >= 0xFF21 && unit <= 0xFF3A);
    if (plus_32) return static_cast<char16_t>(unit + 32);
    if (unit >= 0x0400 && unit <= 0x040F) return static_cast<char16_t>(unit + 80);
    return unit;
}

}  // namespace

bool LikePattern::Element::matches(char16_t folded) const {
    if (kind == Kind::any_unit) return true;
    const bool inside = std::ranges::any_of(
        set, [&](const Range& range) { return folded >= range.first && folded <= range.last; });
    return inside != outside;
}

std::optional<LikePattern::Element> LikePattern::parse_set(TextView set) {
    Element element{.kind = Element::Kind::set};
    if (set.size() > 1 && (set.front() == u'!' || set.front() == u'^')) {
        element.outside = true;
        set.remove_prefix(1);
    }
    while (!set.empty()) {
        const bool is_range = set.size() >= 3 && set[1] == u'-';
        const Range range{fold(set[0]), fold(is_range ? set[2] : set[0])};
        if (range.first > range.last) return std::nullopt;
        element.set.push_back(range);
        set.remove_prefix(is_range ? 3 : 1);
    }
    return element;
}

std::optional<LikePattern> LikePattern::parse(TextView pattern) {
    LikePattern parsed;
    while (!pattern.empty()) {
        const char16_t unit = pattern.front();
        pattern.remove_prefix(1);
        if (unit == u'%') {
            parsed.elements_.push_back({.kind = Element::Kind::any_text});
        } else if (unit == u'_') {
            parsed.elements_.push_back({.kind = Element::Kind::any_unit});
        } else if (unit == u'[') {
            const auto end = pattern.find(u']');
            if (end == TextView::npos) return std::nullopt;
            // An empty set matches an empty text.
            if (end > 0) {
                auto element = parse_set(pattern.substr(0, end));
                if (!element) return std::nullopt;
                parsed.elements_.push_back(std::move(*element));
            }
            pattern.remove_prefix(end + 1);
        } else {
            const char16_t folded = fold(unit);
            parsed.elements_.push_back({.kind = Element::Kind::set, .set = {{folded, folded}}});
        }
    }
    return parsed;
}

bool LikePattern::matches(TextView text) const {
    return platform::matches_wild_cards(
        text, elements_, [](const Element& element) { return element.kind == Element::Kind::any_text; },
        [](const Element& element, char16_t unit) { return element.matches(fold(unit)); });
}

}  // namespace machine::jet
