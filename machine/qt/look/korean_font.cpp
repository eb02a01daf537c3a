#include "machine/qt/look/korean_font.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontInfo>

namespace machine::qt {

void use_font_with_hangul() {
    QFont font = QApplication::font();
    const auto has_hangul = [](const QString& family) {
        return QFontDatabase::writingSystems(family).contains(QFontDatabase::Korean);
    };
    if (has_hangul(QFontInfo(font).family())) return;
    for (const char* family : {"Noto Sans CJK KR", "Noto Sans KR", "NanumGothic"}) {
        if (!has_hangul(QLatin1String(family))) continue;
        font.setFamily(QLatin1String(family));
        QApplication::setFont(font);
        return;
    }
}

}  // namespace machine::qt
