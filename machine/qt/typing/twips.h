#pragma once

#include <QtGlobal>

namespace machine::qt {

/// 1440 twips to the inch and 96 of the toolkit's pixels, whatever the screen's own are.
inline constexpr int TWIPS_PER_PIXEL = 15;

inline int to_twips(int pixels) { return pixels * TWIPS_PER_PIXEL; }
inline int to_pixels(int twips) { return qRound(double(twips) / TWIPS_PER_PIXEL); }

}  // namespace machine::qt
