#include "machine/qt/widgets/column_text.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QTextBlock>
#include <QtMath>

namespace machine::qt {

QSize ColumnText::sizeHint() const {
    constexpr int MOST_SYLLABLES = 36;
    const QFontMetricsF metrics(font());
    const double limit = MOST_SYLLABLES * metrics.horizontalAdvance(QStringLiteral("가"));
    double widest = 0;
    int lines = 0;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const double width = metrics.horizontalAdvance(block.text());
        widest = qMax(widest, width);
        lines += 1 + static_cast<int>(width / limit);
    }
    const double edge = 2 * (document()->documentMargin() + frameWidth()) + 1;
    return {qCeil(qMin(widest, limit) + edge), qCeil(lines * metrics.lineSpacing() + edge)};
}

void ColumnText::changeEvent(QEvent* event) {
    MultilineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) align();
}

void ColumnText::showEvent(QShowEvent* event) {
    align();
    MultilineEdit::showEvent(event);
}

void ColumnText::align() {
    QFont plain = font();
    plain.setWordSpacing(0);
    const QFontMetricsF metrics(plain);
    const double blank = metrics.horizontalAdvance(QStringLiteral("가")) / 3;
    QFont aligned = plain;
    aligned.setWordSpacing(blank - metrics.horizontalAdvance(u' '));
    if (aligned != font()) setFont(aligned);
    updateGeometry();
}

}  // namespace machine::qt
