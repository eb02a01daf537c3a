#pragma once

#include "platform/text/text.h"

#include <optional>
#include <string_view>

namespace machine::jet {

/// The text that a text field's bytes spell: UTF-16, or, behind a mark, runs of single bytes and runs of
/// UTF-16 with a NUL at each change. Nothing when the bytes end in the middle of a character.
std::optional<platform::Text> decode_jet_text(std::string_view bytes);

}  // namespace machine::jet
