#pragma once

#include "platform/text/text.h"

#include <optional>
#include <vector>

namespace machine::jet {

/// A LIKE pattern by the rules of the card manager's database provider: `%` is any text, `_` any character,
/// `[a-z]` one of a set and `[!a-z]` or `[^a-z]` one outside it. The case of letters does not matter.
class LikePattern {
  public:
    /// Nothing for a set without its end or with a reversed range.
    static std::optional<LikePattern> parse(platform::TextView pattern);

    bool matches(platform::TextView text) const;

  private:
    struct Range {
        char16_t first, last;
    };
    struct Element {
        enum class Kind { any_text, any_unit, set } kind;
        bool outside = false;
        std::vector<Range> set{};

        bool matches(char16_t folded) const;
    };

    static std::optional<Element> parse_set(platform::TextView set);

    std::vector<Element> elements_;
};

}  // namespace machine::jet
