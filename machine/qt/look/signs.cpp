#include "machine/qt/look/signs.h"

#include "machine/qt/look/shapes.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyleOption>
#include <functional>

namespace machine::qt {

namespace {

using Draw = std::function<void(QPainter& painter, const QRect& place, QIcon::Mode mode)>;

/// An icon that is drawn anew each time, so that it is sharp at every scale.
class DrawnIcon : public QIconEngine {
  public:
    explicit DrawnIcon(Draw draw) : draw_(std::move(draw)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        draw_(*painter, place, mode);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        draw_(painter, picture.rect(), mode);
        return picture;
    }

    QIconEngine* clone() const override { return new DrawnIcon(*this); }

  private:
    Draw draw_;
};

/// A path in a square of the side 16, from the top left corner.
QPainterPath path_of(Sign sign) {
    QPainterPath path;
    if (sign == Sign::done) {
        path.moveTo(3, 8.5);
        path.lineTo(6.5, 12);
        path.lineTo(13, 4.5);
        return path;
    }
    path.moveTo(8, 2);
    path.lineTo(15, 14);
    path.lineTo(1, 14);
    path.closeSubpath();
    path.moveTo(8, 6.5);
    path.lineTo(8, 9.5);
    path.moveTo(8, 11.8);
    path.lineTo(8, 11.9);
    return path;
}

}  // namespace

QIcon sign_icon(Sign sign, const QColor& colour, const QColor& colour_when_selected) {
    return QIcon(new DrawnIcon([=](QPainter& painter, const QRect& place, QIcon::Mode mode) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(place.topLeft());
        painter.scale(place.width() / 16.0, place.height() / 16.0);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(mode == QIcon::Selected ? colour_when_selected : colour, 1.6, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(path_of(sign));
        painter.restore();
    }));
}

QIcon check_box_icon(Qt::CheckState state) {
    return QIcon(new DrawnIcon([state](QPainter& painter, const QRect& place, QIcon::Mode) {
        constexpr int AIR = 1;
        QStyleOption box;
        box.palette = QGuiApplication::palette();
        box.rect = place.adjusted(AIR, AIR, -AIR, -AIR);
        box.state = QStyle::State_Enabled;
        if (state == Qt::Checked) box.state |= QStyle::State_On;
        if (state == Qt::PartiallyChecked) box.state |= QStyle::State_NoChange;
        draw_check_box(painter, box);
    }));
}

}  // namespace machine::qt
