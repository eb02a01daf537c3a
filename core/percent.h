#pragma once

#include <cstddef>

namespace core {

/// The whole part of so many hundredths; `of` is not 0. Above 100 when more is done than was expected.
constexpr int percent(std::size_t done, std::size_t of) { return static_cast<int>(done * 100 / of); }

}  // namespace core
