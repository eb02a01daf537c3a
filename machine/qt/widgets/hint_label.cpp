#include "machine/qt/widgets/hint_label.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <QtMath>

namespace machine::qt {

namespace {

/// In lines, as is the most room between two points.
constexpr double EMPTY_LINE = 0.4;
constexpr double GAP = 0.5;
/// What the hint takes while nothing tells its width.
constexpr int USUAL_WIDTH = 260;

/// How much of the line stands in front of its text: blanks and the point's sign.
qsizetype length_of_sign(const QString& line) {
    qsizetype at = 0;
    const auto pass = [&](auto is_part) {
        while (at < line.size() && is_part(line[at])) ++at;
    };
    const auto is_blank = [](QChar letter) { return letter == u' '; };
    pass(is_blank);
    const qsizetype sign = at;
    pass([](QChar letter) { return letter.isDigit(); });
    const bool numbered = at > sign && at < line.size() && line[at] == u'.';
    if (!numbered && (at > sign || at == line.size() || line[at] != u'*')) return sign;
    ++at;
    pass(is_blank);
    return at;
}

}  // namespace

int HintLabel::heightForWidth(int width) const {
    const QMargins margins = contentsMargins();
    return qCeil(lay_out(width - margins.left() - margins.right(), 0, nullptr)) + margins.top() +
           margins.bottom();
}

QSize HintLabel::sizeHint() const { return {USUAL_WIDTH, heightForWidth(USUAL_WIDTH)}; }

QSize HintLabel::minimumSizeHint() const { return {USUAL_WIDTH / 2, fontMetrics().height()}; }

void HintLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.translate(contentsRect().topLeft());
    const double free = contentsRect().height() - lay_out(contentsRect().width(), 0, nullptr);
    const double gaps = qMax(text().count(u'\n'), 1);
    const double gap = qBound(0.0, free / gaps, GAP * fontMetrics().lineSpacing());
    lay_out(contentsRect().width(), gap, &painter);
}

double HintLabel::lay_out(double width, double gap, QPainter* painter) const {
    const QFontMetricsF metrics(font());
    const double step = metrics.lineSpacing();
    double y = 0;
    for (const QString& line : text().split(u'\n')) {
        const qsizetype sign = length_of_sign(line);
        const bool begins_point = !line.left(sign).trimmed().isEmpty();
        if (y > 0 && begins_point) y += gap;
        if (line.isEmpty()) {
            y += EMPTY_LINE * step;
            continue;
        }
        const double indent = metrics.horizontalAdvance(line.left(sign));
        if (painter != nullptr) painter->drawText(QPointF(0, y + metrics.ascent()), line.left(sign));
        QTextLayout layout(line.mid(sign), font());
        layout.beginLayout();
        for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
            part.setLineWidth(width - indent);
            part.setPosition({indent, y});
            y += step;
        }
        layout.endLayout();
        if (painter != nullptr) layout.draw(painter, {});
    }
    return y;
}

}  // namespace machine::qt
