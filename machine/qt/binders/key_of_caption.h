#pragma once

#include <QString>

class QWidget;

namespace machine::qt {

/// The caption as the widget shows it. A caption without a key of its own gets the one that the screen gives
/// in the widget's property `mnemonic`: "이름:" and "N" make "이름(&N):".
QString caption_with_key(const QWidget& widget, const QString& caption);

}  // namespace machine::qt
