#pragma once

#include "platform/controls/list_view.h"
#include "platform/text/text.h"

#include <optional>

namespace send {

/// Whether the text has a place for the recipient's name or title.
bool has_placeholder(const platform::Text& text);

/// The text with the recipient's name and title in their places; nothing when it has a place for the name and
/// there is none.
std::optional<platform::Text> fill_placeholders(platform::Text text, const platform::Text& name,
                                                const platform::Text& title);

/// The recipient as the carrier takes it: name, ":", number, ";". Nothing for a row without a number.
std::optional<platform::Text> address_of(const platform::ListItem& recipient);

}  // namespace send
