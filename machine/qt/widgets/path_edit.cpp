#include "machine/qt/widgets/path_edit.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace machine::qt {

bool PathEdit::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !is_cut()) return QLineEdit::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void PathEdit::paintEvent(QPaintEvent* event) {
    if (hasFocus() || !is_cut()) return QLineEdit::paintEvent(event);
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    const QRect place = text_place();
    style()->drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideMiddle, place.width()), QPalette::Text);
}

QRect PathEdit::text_place() const {
    // Qt's own distance between frame and text.
    constexpr int MARGIN = 2;
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    return style()->subElementRect(QStyle::SE_LineEditContents, &frame, this).adjusted(MARGIN, 0, -MARGIN, 0);
}

bool PathEdit::is_cut() const { return fontMetrics().horizontalAdvance(text()) > text_place().width(); }

}  // namespace machine::qt
