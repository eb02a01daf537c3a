#pragma once

#include "platform/text/text.h"

#include <cstdint>

namespace gateway {

/// What stands in a row that the carrier has registered. The send job counts successes by it.
inline constexpr platform::TextView REGISTERED = u"등록성공";

/// The carrier's result code for the user: the word of success for 1, otherwise the code with its meaning.
platform::Text GATEWAY_RESULT_TEXT(std::int32_t code);

}  // namespace gateway
