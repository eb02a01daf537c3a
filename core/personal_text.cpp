#include "core/personal_text.h"

#include "platform/controls/list_columns.h"

namespace core {

using platform::Text;
using platform::TextView;

namespace {

constexpr TextView NAME_PLACEHOLDER = u"{이름}";
constexpr TextView TITLE_PLACEHOLDER = u"{직위}";

}  // namespace

bool has_placeholder(const Text& text) {
    return platform::contains(text, NAME_PLACEHOLDER) || platform::contains(text, TITLE_PLACEHOLDER);
}

std::optional<Text> personal_text(Text text, const platform::ListView& recipients, std::size_t row) {
    const auto under = [&](TextView caption) {
        return recipients.row(row).sub_item(platform::FIND_COLUMN(caption, recipients) - 1);
    };
    if (platform::contains(text, NAME_PLACEHOLDER)) {
        const Text& name = under(u"이름");
        if (name.empty() || name == NO_NAME) return std::nullopt;
        text = platform::replace_all(text, NAME_PLACEHOLDER, name);
    }
    // Deliberately no failure for an empty title, unlike the name: most cards have none, and the people on
    // them still get the message.
    return platform::replace_all(text, TITLE_PLACEHOLDER, under(u"직위"));
}

}  // namespace core
