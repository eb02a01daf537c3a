#include "machine/qt/widgets/level_meter.h"

#include <QPainter>

namespace machine::qt {

namespace {

constexpr int LIGHTS = 40;
constexpr int METER_HEIGHT = 10;
constexpr int FIRST_YELLOW = LIGHTS * 80 / 100;
constexpr int FIRST_RED = LIGHTS * 95 / 100;

QColor colour_of(int light) {
    if (light >= FIRST_RED) return QColor(0xD9, 0x44, 0x3F);
    return light >= FIRST_YELLOW ? QColor(0xE0, 0xA1, 0x1B) : QColor(0x2E, 0x9E, 0x5B);
}

}  // namespace

LevelMeter::LevelMeter(QWidget* parent) : QProgressBar(parent) {
    setRange(0, 100);
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize LevelMeter::sizeHint() const { return {LIGHTS * 3, METER_HEIGHT}; }

void LevelMeter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QColor off = palette().color(QPalette::WindowText);
    off.setAlphaF(isEnabled() ? 0.15F : 0.08F);
    const double pitch = double(width()) / LIGHTS;
    const int lit = LIGHTS * value() / 100;
    for (int light = 0; light < LIGHTS; ++light) {
        painter.setBrush(light < lit ? colour_of(light) : off);
        painter.drawRoundedRect(QRectF(light * pitch, 0, pitch - 2, height()), 1.5, 1.5);
    }
}

}  // namespace machine::qt
