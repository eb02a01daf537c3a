#include "machine/qt/look/shapes.h"

#include "machine/qt/look/colours.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

namespace machine::qt {

namespace {

constexpr double ROUND = 4;
constexpr double FOCUS_LINE = 2;

/// Draws without jagged edges, and leaves the painter as it was.
class Smooth {
  public:
    explicit Smooth(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    Smooth(const Smooth&) = delete;
    Smooth& operator=(const Smooth&) = delete;
    ~Smooth() { painter_.restore(); }

  private:
    QPainter& painter_;
};

void draw_box(QPainter& painter, const QRectF& place, const QBrush& ground, const QColor& edge,
              double line = 1, double round = ROUND) {
    const Smooth smooth(painter);
    painter.setBrush(ground);
    painter.setPen(QPen(edge, line));
    const double inset = line / 2;
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), round, round);
}

/// A line one pixel thick, or as many as the scale has room for: at 150 % some would be thicker than others.
void draw_thin_line(QPainter& painter, const QRectF& place, const QColor& colour) {
    const QTransform to_pixels = painter.deviceTransform();
    const QRectF pixels = to_pixels.mapRect(place);
    const auto whole = [](double size) { return std::max(1.0, std::floor(size)); };
    const QRectF line(std::round(pixels.left()), std::round(pixels.top()), whole(pixels.width()),
                      whole(pixels.height()));
    painter.fillRect(to_pixels.inverted().mapRect(line), colour);
}

bool is(const QStyleOption& option, QStyle::StateFlag state) { return option.state.testFlag(state); }

bool has_focus(const QStyleOption& option) { return is(option, QStyle::State_HasFocus); }

QColor edge_of(const QStyleOption& option) {
    const Colours colours = colours_of(option.palette);
    if (!is(option, QStyle::State_Enabled))
        return between(colours.line, option.palette.color(QPalette::Window), 0.4);
    return colours.line;
}

/// Between text and ground, so that an empty box is seen on every window and list.
QColor strong_edge(const QStyleOption& option) {
    const double paler = is_high_contrast(option.palette) ? 0.2 : 0.5;
    return between(option.palette.color(QPalette::Text), option.palette.color(QPalette::Base), paler);
}

QColor pressed_on(const QStyleOption& option, const QColor& ground) {
    const QColor accent = colours_of(option.palette).accent;
    if (!is(option, QStyle::State_Enabled)) return ground;
    if (is(option, QStyle::State_Sunken)) return between(ground, accent, 0.22);
    if (is(option, QStyle::State_On)) return between(ground, accent, 0.14);
    return is(option, QStyle::State_MouseOver) ? between(ground, accent, 0.07) : ground;
}

}  // namespace

void draw_button(QPainter& painter, const QStyleOption& option, bool filled) {
    const QColor accent = colours_of(option.palette).accent;
    if (filled && is(option, QStyle::State_Enabled)) {
        const double darker = is(option, QStyle::State_Sunken)      ? 0.25
                              : is(option, QStyle::State_MouseOver) ? 0.1
                                                                    : 0.0;
        const QColor ground = between(accent, Qt::black, darker);
        draw_box(painter, option.rect, ground, ground);
        if (has_focus(option)) {
            draw_box(painter, QRectF(option.rect).adjusted(2, 2, -2, -2), Qt::NoBrush,
                     option.palette.color(QPalette::HighlightedText), 1, ROUND - 1);
        }
        return;
    }
    const QColor ground = option.palette.color(QPalette::Button);
    draw_box(painter, option.rect, pressed_on(option, ground), has_focus(option) ? accent : edge_of(option),
             has_focus(option) ? FOCUS_LINE : 1);
}

void draw_flat_button(QPainter& painter, const QStyleOption& option) {
    const bool filled = is(option, QStyle::State_On) || is(option, QStyle::State_Sunken);
    const bool hovered = is(option, QStyle::State_MouseOver) && is(option, QStyle::State_Enabled);
    const QColor ground = pressed_on(option, option.palette.color(QPalette::Window));
    const QBrush fill = filled ? QBrush(ground) : Qt::NoBrush;
    if (has_focus(option)) {
        draw_box(painter, option.rect, fill, colours_of(option.palette).accent, FOCUS_LINE);
    } else if (filled || hovered) {
        const bool quiet = filled && !is_high_contrast(option.palette);
        draw_box(painter, option.rect, fill, quiet ? ground : edge_of(option));
    }
}

void draw_edge(QPainter& painter, const QStyleOption& option) {
    const bool focus = has_focus(option);
    draw_box(painter, option.rect, Qt::NoBrush, focus ? colours_of(option.palette).accent : edge_of(option),
             1, ROUND - 1);
}

void draw_menu_bar(QPainter& painter, const QStyleOption& option) {
    const QRect& place = option.rect;
    painter.fillRect(place, option.palette.color(QPalette::Window));
    painter.fillRect(place.left(), place.bottom(), place.width(), 1, colours_of(option.palette).line);
}

void draw_separator(QPainter& painter, const QStyleOption& option) {
    const QRectF place = option.rect;
    draw_thin_line(painter, {place.left(), std::floor(place.center().y()), place.width(), 1},
                   colours_of(option.palette).line);
}

void draw_focus(QPainter& painter, const QStyleOption& option) {
    const QColor accent = colours_of(option.palette).accent;
    const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    // On a chosen row the ground has the accent too.
    const bool on_accent = focus != nullptr && focus->backgroundColor.rgb() == accent.rgb();
    const QColor text = option.palette.color(QPalette::Active, QPalette::HighlightedText);
    draw_box(painter, option.rect, Qt::NoBrush, on_accent ? between(text, accent, 0.3) : accent, 1,
             ROUND - 1);
}

void draw_field(QPainter& painter, const QStyleOption& option) {
    const bool enabled = is(option, QStyle::State_Enabled);
    const bool focus = has_focus(option);
    draw_box(painter, option.rect, option.palette.color(enabled ? QPalette::Base : QPalette::Window),
             focus ? colours_of(option.palette).accent : edge_of(option), focus ? FOCUS_LINE : 1);
}

void draw_arrow(QPainter& painter, const QStyleOption& option, const QRect& place, Qt::ArrowType direction,
                QPalette::ColorRole text) {
    const Smooth smooth(painter);
    painter.translate(QRectF(place).center());
    painter.rotate(direction == Qt::UpArrow      ? 180
                   : direction == Qt::LeftArrow  ? 90
                   : direction == Qt::RightArrow ? -90
                                                 : 0);
    const bool enabled = is(option, QStyle::State_Enabled);
    painter.setPen(QPen(enabled ? option.palette.color(text) : strong_edge(option), 1.5, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{-4, -2}, {0, 2}, {4, -2}}));
}

void draw_branch(QPainter& painter, const QStyleOption& branch) {
    if (!branch.state.testFlag(QStyle::State_Children)) return;
    const bool chosen = branch.state.testFlags(QStyle::State_Selected | QStyle::State_Active);
    draw_arrow(painter, branch, branch.rect,
               branch.state.testFlag(QStyle::State_Open) ? Qt::DownArrow : Qt::RightArrow,
               chosen ? QPalette::HighlightedText : QPalette::Text);
}

void draw_scroll_bar(QPainter& painter, const QStyleOptionSlider& bar, const QRect& thumb) {
    const QColor text = bar.palette.color(QPalette::WindowText);
    const QColor ground = bar.palette.color(QPalette::Window);
    painter.fillRect(bar.rect, between(ground, text, 0.04));
    if (!is(bar, QStyle::State_Enabled) || bar.minimum == bar.maximum) return;
    const bool under_mouse = is(bar, QStyle::State_MouseOver) || is(bar, QStyle::State_Sunken);
    const bool darker = under_mouse && bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
    const double paler = is_high_contrast(bar.palette) ? 0.2 : 0.55;
    const QColor colour = between(text, ground, darker ? paler / 2 : paler);
    const bool upright = bar.orientation == Qt::Vertical;
    const QRectF shown =
        QRectF(thumb).adjusted(upright ? 3 : 1, upright ? 1 : 3, upright ? -3 : -1, upright ? -1 : -3);
    draw_box(painter, shown, colour, colour);
}

void draw_check_box(QPainter& painter, const QStyleOption& option) {
    const bool on = is(option, QStyle::State_On) || is(option, QStyle::State_NoChange);
    const bool enabled = is(option, QStyle::State_Enabled);
    const QColor accent = enabled ? colours_of(option.palette).accent : strong_edge(option);
    const int side = std::min(option.rect.width(), option.rect.height());
    const QRectF box = QStyle::alignedRect(option.direction, Qt::AlignCenter, {side, side}, option.rect);
    // On a chosen row the ground has the accent too.
    const bool on_accent = is(option, QStyle::State_Selected) && is(option, QStyle::State_Active);
    const QColor edge = on_accent ? option.palette.color(QPalette::Active, QPalette::HighlightedText)
                        : on      ? accent
                                  : strong_edge(option);
    draw_box(painter, box, on ? QBrush(accent) : QBrush(option.palette.color(QPalette::Base)), edge, 1, 3);
    if (!on) return;
    const Smooth smooth(painter);
    QPainterPath mark;
    if (is(option, QStyle::State_NoChange)) {
        mark.moveTo(box.topLeft() + QPointF(side * 0.25, side * 0.5));
        mark.lineTo(box.topLeft() + QPointF(side * 0.75, side * 0.5));
    } else {
        mark.moveTo(box.topLeft() + QPointF(side * 0.24, side * 0.52));
        mark.lineTo(box.topLeft() + QPointF(side * 0.42, side * 0.70));
        mark.lineTo(box.topLeft() + QPointF(side * 0.76, side * 0.30));
    }
    painter.setPen(QPen(option.palette.color(QPalette::Active, QPalette::HighlightedText), side / 7.0,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(mark);
}

void draw_radio_button(QPainter& painter, const QStyleOption& option) {
    const Smooth smooth(painter);
    const bool on = is(option, QStyle::State_On);
    const bool enabled = is(option, QStyle::State_Enabled);
    const QColor accent = enabled ? colours_of(option.palette).accent : strong_edge(option);
    const QRectF circle = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setBrush(option.palette.color(QPalette::Base));
    painter.setPen(QPen(on ? accent : strong_edge(option), 1));
    painter.drawEllipse(circle);
    if (!on) return;
    const double inset = circle.width() * 0.25;
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
}

void draw_tab(QPainter& painter, const QStyleOption& option, bool chosen) {
    const QRectF place = option.rect;
    const QColor accent = colours_of(option.palette).accent;
    if (!chosen && is(option, QStyle::State_MouseOver))
        painter.fillRect(place.adjusted(1, 2, -1, -1),
                         pressed_on(option, option.palette.color(QPalette::Window)));
    if (chosen) painter.fillRect(QRectF(place.left() + 6, place.bottom() - 3, place.width() - 12, 3), accent);
}

void draw_header(QPainter& painter, const QStyleOptionHeader& header) {
    const Colours colours = colours_of(header.palette);
    painter.fillRect(header.rect, header.palette.color(QPalette::AlternateBase));
    painter.fillRect(QRect(header.rect.bottomLeft(), QSize(header.rect.width(), 1)), colours.line);
    const bool last =
        header.position == QStyleOptionHeader::End || header.position == QStyleOptionHeader::OnlyOneSection;
    const QRectF place = header.rect.adjusted(0, 4, 0, -4);
    if (!last) draw_thin_line(painter, {place.right() - 1, place.top(), 1, place.height()}, colours.line);
}

void draw_bar(QPainter& painter, const QStyleOptionProgressBar& bar, bool done) {
    QRectF place = bar.rect;
    const double round = std::min(place.height() / 2, 4.0);
    const Colours colours = colours_of(bar.palette);
    if (done) {
        const double range = std::max(1, bar.maximum - bar.minimum);
        place.setWidth(place.width() * (bar.progress - bar.minimum) / range);
        if (place.width() <= 0) return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(done ? colours.accent : between(colours.line, bar.palette.color(QPalette::Window), 0.4));
    painter.drawRoundedRect(place, round, round);
    painter.restore();
}

}  // namespace machine::qt
