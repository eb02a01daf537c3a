#include "machine/qt/widgets/icon_widgets.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace machine::qt {

void IconLabel::set_picture(const QString& name) {
    name_ = name;
    icon_ = late_icon(name);
    update();
}

void IconLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    icon_.paint(&painter, contentsRect(), alignment(), isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!hasFocus()) return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

}  // namespace machine::qt
