#include "machine/qt/widgets/path_edit.h"

#include "machine/qt/typing/conversion.h"
#include "platform/formats/shown_path.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace machine::qt {

bool PathEdit::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || text().isEmpty()) return QLineEdit::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shown(), this);
    return true;
}

void PathEdit::paintEvent(QPaintEvent* event) {
    if (hasFocus() || text().isEmpty()) return QLineEdit::paintEvent(event);
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);
    const QRect place = text_place();
    style()->drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          fontMetrics().elidedText(shown(), Qt::ElideMiddle, place.width()), QPalette::Text);
}

QRect PathEdit::text_place() const {
    // Qt's own distance between frame and text.
    constexpr int MARGIN = 2;
    QStyleOptionFrame frame;
    initStyleOption(&frame);
    return style()->subElementRect(QStyle::SE_LineEditContents, &frame, this).adjusted(MARGIN, 0, -MARGIN, 0);
}

QString PathEdit::shown() const { return to_qstring(platform::shown_path(to_text(text()))); }

}  // namespace machine::qt
