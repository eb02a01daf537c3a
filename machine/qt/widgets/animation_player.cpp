#include "machine/qt/widgets/animation_player.h"

#include "platform/formats/avi_file.h"

#include <QByteArray>
#include <QPainter>
#include <algorithm>
#include <string_view>

namespace machine::qt {

using platform::AviFile;

namespace {

/// A frame with its pixels' fourth bytes as opacity, or opacity 0 for a film of three bytes a pixel.
QImage read_frame(const AviFile& film, std::size_t frame) {
    const int pixel_size = film.bits_per_pixel / 8;
    QImage image(film.width, film.height, QImage::Format_ARGB32);
    for (int y = 0; y < film.height; ++y) {
        const auto* from = reinterpret_cast<const uchar*>(film.row(frame, y).data());
        auto* to = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < film.width; ++x, from += pixel_size)
            to[x] = qRgba(from[2], from[1], from[0], pixel_size == 4 ? from[3] : 0);
    }
    return image;
}

template <class Change>
void change_pixels(QImage& image, Change change) {
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(row, row + image.width(), row, change);
    }
}

bool is_blank(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (std::any_of(row, row + image.width(), [](QRgb pixel) { return qAlpha(pixel) != 0; }))
            return false;
    }
    return true;
}

/// The frames ready to be painted. In a film without opacity the colour of the first frame's top left pixel
/// is transparent, so that older films of an installation fit the window's colour too.
QList<QImage> read_frames(const AviFile& film) {
    QList<QImage> frames;
    for (std::size_t frame = 0; frame < film.frames.size(); ++frame) frames.append(read_frame(film, frame));
    if (std::all_of(frames.cbegin(), frames.cend(), is_blank)) {
        const QRgb transparent = frames.first().pixel(0, 0);
        for (QImage& frame : frames)
            change_pixels(frame, [transparent](QRgb pixel) {
                return pixel == transparent ? 0U : (pixel | 0xFF00'0000U);
            });
    }
    for (QImage& frame : frames) frame.convertTo(QImage::Format_ARGB32_Premultiplied);
    return frames;
}

}  // namespace

AnimationPlayer::AnimationPlayer(QWidget* parent) : QWidget(parent) {
    setAccessibleName(QStringLiteral("진행 그림"));
    connect(&timer_, &QTimer::timeout, this, &AnimationPlayer::show_next_frame);
}

bool AnimationPlayer::open(const QByteArray& bytes) {
    close();
    const auto film =
        platform::read_avi(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (!film) return false;
    frames_ = read_frames(*film);
    timer_.setInterval(film->frame_microseconds / 1000);
    updateGeometry();
    return true;
}

void AnimationPlayer::play() {
    playing_ = !frames_.isEmpty();
    if (playing_ && isVisible()) timer_.start();
}

void AnimationPlayer::stop() {
    playing_ = false;
    timer_.stop();
}

void AnimationPlayer::close() {
    stop();
    frames_.clear();
    present_ = 0;
    updateGeometry();
    update();
}

QSize AnimationPlayer::sizeHint() const { return frames_.isEmpty() ? QSize() : frames_.first().size(); }

void AnimationPlayer::paintEvent(QPaintEvent* /*event*/) {
    if (frames_.isEmpty()) return;
    const QImage& frame = frames_.at(present_);
    // A small widget shrinks the film; a large one shows it in the middle at its own size.
    const QSize shown = frame.size().boundedTo(frame.size().scaled(size(), Qt::KeepAspectRatio));
    const QPoint corner((width() - shown.width()) / 2, (height() - shown.height()) / 2);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(corner, shown), frame);
}

void AnimationPlayer::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (playing_) timer_.start();
}

void AnimationPlayer::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    timer_.stop();
}

void AnimationPlayer::show_next_frame() {
    present_ = (present_ + 1) % frames_.size();
    update();
}

}  // namespace machine::qt
