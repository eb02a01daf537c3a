#pragma once

namespace machine::qt {

/// Writes the windows in a font that has Hangul where the desktop's own has none: every line would be drawn
/// in two fonts otherwise, each character in the one or the other. To be called once the application is
/// there.
void use_font_with_hangul();

}  // namespace machine::qt
