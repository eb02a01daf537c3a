#include "machine/qt/widgets/byte_bar.h"

#include "machine/qt/look/colours.h"

#include <QPainter>

namespace machine::qt {

namespace {

constexpr int BAR_HEIGHT = 4;
/// In hundredths: a few syllables more and the message is full.
constexpr int NEARLY_FULL = 90;

}  // namespace

ByteBar::ByteBar(QWidget* parent) : QProgressBar(parent) {
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ByteBar::sizeHint() const { return {10 * BAR_HEIGHT, BAR_HEIGHT}; }

void ByteBar::paintEvent(QPaintEvent*) {
    const Colours colours = colours_of(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    QRectF bar(rect());
    // In high contrast the line itself would look like the part that is full.
    const double paler = is_high_contrast(palette()) ? 0.7 : 0.0;
    painter.setBrush(between(colours.line, palette().color(QPalette::Window), paler));
    painter.drawRoundedRect(bar, BAR_HEIGHT / 2.0, BAR_HEIGHT / 2.0);
    if (value() == 0) return;
    bar.setWidth(qMax<double>(BAR_HEIGHT, bar.width() * value() / 100));
    painter.setBrush(value() >= NEARLY_FULL ? colours.warning : colours.success);
    painter.drawRoundedRect(bar, BAR_HEIGHT / 2.0, BAR_HEIGHT / 2.0);
}

}  // namespace machine::qt
