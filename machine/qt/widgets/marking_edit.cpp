#include "machine/qt/widgets/marking_edit.h"

#include "machine/qt/look/colours.h"
#include "machine/qt/typing/conversion.h"
#include "platform/text/cp949.h"

#include <QPainter>
#include <QStyleOptionFrame>

namespace machine::qt {

void MarkingEdit::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    const auto lost = platform::lost_in_cp949(to_text(text()));
    if (lost.empty()) return;
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    painter.setClipRect(style()->subElementRect(QStyle::SE_LineEditContents, &frame, this));
    painter.setPen(QPen(colours_of(palette()).failure, 2));
    // The line may be scrolled; the caret is the one place that the field tells.
    const QRect caret = cursorRect();
    const auto width_to = [this](qsizetype end) { return fontMetrics().horizontalAdvance(text().left(end)); };
    const int start = caret.center().x() - width_to(cursorPosition());
    for (const platform::TextRange& range : lost) {
        const auto first = static_cast<qsizetype>(range.start);
        const auto end = static_cast<qsizetype>(range.start + range.length);
        painter.drawLine(start + width_to(first), caret.bottom() - 1, start + width_to(end),
                         caret.bottom() - 1);
    }
}

}  // namespace machine::qt
