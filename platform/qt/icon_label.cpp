#include "platform/qt/icon_label.h"

#include <QPainter>

namespace platform::qt {

void IconLabel::set_icon(const QString& name) {
    name_ = name;
    icon_ = QIcon(QStringLiteral(":/icons/%1.svg").arg(name));
    update();
}

void IconLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    QPainter painter(this);
    icon_.paint(&painter, contentsRect(), alignment(), isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

}  // namespace platform::qt
