#pragma once

#include "standin/settings.h"

#include <cstdint>
#include <string_view>

namespace standin::site {

/// The kind of message for a data type, in the subscriber's words.
std::string_view kind_name(std::int64_t data_type);

/// The price of one recipient for a data type, in won.
std::int32_t price(const Prices& prices, std::int64_t data_type);

/// Why a registration with that result was refused.
std::string_view reason(std::int64_t result);

}  // namespace standin::site
