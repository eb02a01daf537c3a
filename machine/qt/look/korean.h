#pragma once

#include <QFont>
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

/// Makes it the application's font. One without Hangul gives way to one that has it, of the same size;
/// otherwise every line would mix characters of two fonts. To be called when the application exists.
void use_font_with_hangul(QFont font);

}  // namespace machine::qt
