#include "machine/qt/look/late_icon.h"

#include "machine/qt/look/colours.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QVariant>
#include <optional>
#include <utility>

namespace machine::qt {

namespace {

class LateIconEngine : public QIconEngine {
  public:
    /// With a mode, the icon is drawn in that one alone.
    explicit LateIconEngine(std::function<QIcon()> make, std::optional<QIcon::Mode> mode = std::nullopt)
        : make_(std::move(make)), mode_(mode) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, place, Qt::AlignCenter, mode_.value_or(mode), state);
    }

    /// The size is in the screen's own pixels.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, 1.0, mode_.value_or(mode), state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode_.value_or(mode), state);
    }

    QIconEngine* clone() const override { return new LateIconEngine(*this); }

  private:
    const QIcon& icon() {
        if (make_) icon_ = std::exchange(make_, nullptr)();
        return icon_;
    }

    std::function<QIcon()> make_;
    std::optional<QIcon::Mode> mode_;
    QIcon icon_;
};

/// The two colours in which the pictures' lines are drawn. Others say something, and stay.
constexpr const char* ACCENT_LINES = "#2F6FDE";
constexpr const char* PLAIN_LINES = "#737D8C";

/// A picture of the program: its lines take the colours that can be seen on the desktop's windows, light or
/// dark, or on a selected row.
class PictureEngine : public QIconEngine {
  public:
    explicit PictureEngine(QString name) : name_(std::move(name)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        const double scale = painter->device()->devicePixelRatioF();
        const QPixmap picture = pixmap(place.size() * scale, mode, state);
        painter->drawPixmap(place, picture);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QGuiApplication::palette();
        const QString key = QStringLiteral("%1 %2 %3x%4 %5")
                                .arg(name_)
                                .arg(mode)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(palette.cacheKey());
        QPixmap picture;
        if (QPixmapCache::find(key, &picture)) return picture;
        picture = QPixmap(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        if (mode == QIcon::Disabled) painter.setOpacity(FADED);
        QSvgRenderer drawing(coloured(mode, palette));
        drawing.setAspectRatioMode(Qt::KeepAspectRatio);
        drawing.render(&painter);
        painter.end();
        QPixmapCache::insert(key, picture);
        return picture;
    }

    QIconEngine* clone() const override { return new PictureEngine(*this); }

  private:
    static constexpr double FADED = 0.45;

    QByteArray coloured(QIcon::Mode mode, const QPalette& palette) const {
        QFile file(QStringLiteral(":/icons/%1.svg").arg(name_));
        if (!file.open(QIODevice::ReadOnly)) return {};
        QByteArray drawing = file.readAll();
        const auto draw_in = [&drawing](const char* lines, const QColor& colour) {
            drawing.replace(lines, colour.name().toLatin1());
        };
        if (mode == QIcon::Selected) {
            draw_in(ACCENT_LINES, palette.color(QPalette::Active, QPalette::HighlightedText));
            draw_in(PLAIN_LINES, palette.color(QPalette::Active, QPalette::HighlightedText));
        } else if (is_dark(palette) || is_high_contrast(palette)) {
            draw_in(ACCENT_LINES, palette.color(QPalette::Active, QPalette::Link));
            draw_in(PLAIN_LINES, colours_of(palette).muted);
        }
        return drawing;
    }

    QString name_;
};

}  // namespace

QIcon late_icon(std::function<QIcon()> make) { return QIcon(new LateIconEngine(std::move(make))); }

QIcon late_icon(const QString& name) { return QIcon(new PictureEngine(name)); }

QIcon icon_in_mode(const QIcon& icon, QIcon::Mode mode) {
    return QIcon(new LateIconEngine([icon] { return icon; }, mode));
}

QList<QIcon> pictures_of(const QObject& widget) {
    QList<QIcon> pictures;
    for (const QString& name : widget.property("pictures").toStringList())
        pictures.append(name.isEmpty() ? QIcon() : late_icon(name));
    return pictures;
}

}  // namespace machine::qt
