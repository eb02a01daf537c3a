#pragma once

#include <QTranslator>

namespace machine::qt {

/// Translates Qt's own words where users see them: in the menus of text fields and the file dialog. To be
/// installed in the application.
class KoreanTranslator : public QTranslator {
    Q_OBJECT

  public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int number) const override;
};

/// Chooses a font that has Hangul when the desktop's own has none; otherwise every line would mix characters
/// of two fonts. To be called when the application exists.
void use_font_with_hangul();

}  // namespace machine::qt
