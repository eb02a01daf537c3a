#include "machine/qt/look/late_icon.h"

#include <QIconEngine>
#include <QVariant>
#include <utility>

namespace machine::qt {

namespace {

class LateIconEngine : public QIconEngine {
  public:
    explicit LateIconEngine(std::function<QIcon()> make) : make_(std::move(make)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, place, Qt::AlignCenter, mode, state);
    }

    /// The size is in the screen's own pixels.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, 1.0, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }

    QIconEngine* clone() const override { return new LateIconEngine(*this); }

  private:
    const QIcon& icon() {
        if (make_) icon_ = std::exchange(make_, nullptr)();
        return icon_;
    }

    std::function<QIcon()> make_;
    QIcon icon_;
};

}  // namespace

QIcon late_icon(std::function<QIcon()> make) { return QIcon(new LateIconEngine(std::move(make))); }

QIcon late_icon(const QString& name) {
    return late_icon([name] { return QIcon(QStringLiteral(":/icons/%1.svg").arg(name)); });
}

QList<QIcon> pictures_of(const QObject& widget) {
    QList<QIcon> pictures;
    for (const QString& name : widget.property("pictures").toStringList())
        pictures.append(name.isEmpty() ? QIcon() : late_icon(name));
    return pictures;
}

}  // namespace machine::qt
