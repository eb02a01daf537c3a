#pragma once

#include <QTranslator>

namespace machine::qt {

/// The toolkit's own words where users meet them: the menus of text fields and the file dialog. To be
/// installed in the application.
class KoreanTranslator : public QTranslator {
    Q_OBJECT

  public:
    using QTranslator::QTranslator;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int number) const override;
};

}  // namespace machine::qt
