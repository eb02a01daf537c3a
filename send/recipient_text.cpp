#include "send/recipient_text.h"

#include "compose/main_form.h"
#include "core/phone_number.h"
#include "platform/text/number.h"

namespace send {

using platform::Text;
using platform::TextView;

namespace {

constexpr TextView NAME_PLACEHOLDER = u"{이름}";
constexpr TextView TITLE_PLACEHOLDER = u"{직위}";

}  // namespace

bool has_placeholder(const Text& text) {
    return platform::contains(text, NAME_PLACEHOLDER) || platform::contains(text, TITLE_PLACEHOLDER);
}

std::optional<Text> fill_placeholders(Text text, const Text& name, const Text& title) {
    if (platform::contains(text, NAME_PLACEHOLDER)) {
        if (name.empty() || name == compose::NO_NAME) return std::nullopt;
        text = platform::replace_all(text, NAME_PLACEHOLDER, name);
    }
    // Deliberately no failure for an empty title, unlike the name: most cards have none, and the people on
    // them still get the message.
    return platform::replace_all(text, TITLE_PLACEHOLDER, title);
}

std::optional<Text> address_of(const platform::ListItem& recipient) {
    const Text number = core::DIGITS_ONLY(recipient.sub_item(compose::RECIPIENT_NUMBER));
    if (platform::leading_number(number) == 0) return std::nullopt;
    Text name = platform::trim(core::without_separators(recipient.sub_item(compose::RECIPIENT_NAME)));
    if (name.empty()) name = compose::NO_NAME;
    return name + u":" + number + u";";
}

}  // namespace send
