#include "platform/formats/loudness.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace platform {

namespace {

constexpr double LOUDEST = 32768;
/// The scale begins this many decibels below the loudest possible sample.
constexpr double RANGE = 60;

}  // namespace

int loudness(SampleView samples) {
    int peak = 0;
    for (const int sample : samples) peak = std::max(peak, std::abs(sample));
    if (peak == 0) return 0;
    const double decibels = 20 * std::log10(peak / LOUDEST);
    return static_cast<int>(std::lround(std::max(0.0, 100 * (1 + decibels / RANGE))));
}

}  // namespace platform
