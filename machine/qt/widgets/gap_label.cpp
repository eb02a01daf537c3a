#include "machine/qt/widgets/gap_label.h"

#include <QEvent>
#include <QLayout>
#include <QPainter>
#include <QStyle>

namespace machine::qt {

namespace {

constexpr int AIR = 8;

}  // namespace

QSize GapLabel::sizeHint() const {
    return layout() != nullptr ? layout()->totalSizeHint() : QLabel::sizeHint();
}

bool GapLabel::event(QEvent* event) {
    // Text and font are known at that time, and the layout has not placed anything yet.
    if (event->type() == QEvent::Polish || event->type() == QEvent::FontChange) make_room();
    return QLabel::event(event);
}

void GapLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto [before, behind] = parts();
    style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), before,
                          foregroundRole());
    style()->drawItemText(&painter, rect(), Qt::AlignRight | Qt::AlignVCenter, palette(), isEnabled(), behind,
                          foregroundRole());
}

std::pair<QString, QString> GapLabel::parts() const {
    const QString all = text();
    const qsizetype gap = all.indexOf(QStringLiteral("  "));
    return {all.left(gap).trimmed(), gap < 0 ? QString() : all.mid(gap).trimmed()};
}

void GapLabel::make_room() {
    if (layout() == nullptr) return;
    const auto [before, behind] = parts();
    layout()->setContentsMargins(fontMetrics().horizontalAdvance(before) + AIR, 0,
                                 fontMetrics().horizontalAdvance(behind) + AIR, 0);
}

}  // namespace machine::qt
