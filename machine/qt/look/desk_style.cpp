#include "machine/qt/look/desk_style.h"

#include "machine/qt/look/late_icon.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace machine::qt {

namespace {

constexpr int ROW_AIR = 6;

/// Half way between the colours of text and background, for light and dark desktops.
QColor edge_colour(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Text);
    const QColor ground = palette.color(QPalette::Base);
    return QColor((text.red() + ground.red()) / 2, (text.green() + ground.green()) / 2,
                  (text.blue() + ground.blue()) / 2);
}

}  // namespace

QSize DeskStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                  const QWidget* widget) const {
    if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
        header != nullptr && widget != nullptr) {
        // Qt measures for bold captions, which no list has; loading that font would delay the start.
        QStyleOptionHeader plain(*header);
        plain.version = QStyleOptionHeader::Version;
        plain.fontMetrics = widget->fontMetrics();
        return QProxyStyle::sizeFromContents(type, &plain, contents, widget);
    }
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ItemViewItem) size.rheight() += ROW_AIR;
    return size;
}

/// Qt derives the edges of check boxes and radio buttons from the window's colour, so that an empty one
/// cannot be seen on a dark list.
void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool box = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if ((!box && element != PE_IndicatorRadioButton) || !(option->state & State_Enabled)) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge_colour(option->palette));
    painter->setBrush(Qt::NoBrush);
    const QRectF edge = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (box) {
        painter->drawRoundedRect(edge, 1.5, 1.5);
    } else {
        painter->drawEllipse(edge);
    }
    painter->restore();
}

/// Otherwise scrolling with the wheel over a choice would change it: another kind of message, which clears
/// the draft, another hour, another sender.
int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_TabBar_AllowWheelScrolling || hint == SH_ComboBox_AllowWheelScrolling) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

/// Every tool bar asks for the arrow of its overflow menu, which is hardly ever shown. Making that icon loads
/// all of Qt's picture formats.
QIcon DeskStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon != SP_ToolBarHorizontalExtensionButton && icon != SP_ToolBarVerticalExtensionButton)
        return QProxyStyle::standardIcon(icon, option, widget);
    return late_icon([this, icon] { return QProxyStyle::standardIcon(icon); });
}

}  // namespace machine::qt
