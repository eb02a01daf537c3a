#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace platform {

/// Sound as a telephone carries it: 16-bit samples of one channel, SAMPLES_A_SECOND of them.
using Samples = std::vector<std::int16_t>;
using SampleView = std::span<const std::int16_t>;

inline constexpr std::size_t SAMPLES_A_SECOND = 8000;

}  // namespace platform
