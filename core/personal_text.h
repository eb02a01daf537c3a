#pragma once

#include "platform/controls/list_view.h"
#include "platform/text/text.h"

#include <cstddef>
#include <optional>

namespace core {

/// Stands for a recipient without a name.
inline constexpr platform::TextView NO_NAME = u"이름없음";

/// Whether the text has a place for the recipient's name or title.
bool has_placeholder(const platform::Text& text);

/// The text as the row's recipient gets it, with name and title in their places; nothing when it has a place
/// for the name and there is none.
std::optional<platform::Text> personal_text(platform::Text text, const platform::ListView& recipients,
                                            std::size_t row);

}  // namespace core
