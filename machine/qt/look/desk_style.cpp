#include "machine/qt/look/desk_style.h"

#include "machine/qt/look/colours.h"
#include "machine/qt/look/edges.h"
#include "machine/qt/look/late_icon.h"
#include "machine/qt/look/shapes.h"
#include "machine/qt/look/shown_options.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QFrame>
#include <QGroupBox>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

namespace machine::qt {

namespace {

constexpr int ROW_AIR = 6;
constexpr int HEADER_AIR = 4;
/// How much nearer than Qt puts it a text stands to the picture before it.
constexpr int NEARER = 4;

QPalette::ColorRole role_of_text(const QWidget* widget) {
    return widget != nullptr ? widget->foregroundRole() : QPalette::Text;
}

bool has_picture(const QStyleOption& cell) {
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(&cell);
    return item != nullptr && item->features.testFlag(QStyleOptionViewItem::HasDecoration);
}

/// Draws what Qt has no part in. Tells whether the control is of that kind.
bool draw_whole(QStyle::ControlElement element, const QStyleOption& option, QPainter& painter) {
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&option);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    const bool is_line = (item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator) ||
                         (frame != nullptr && frame->frameShape == QFrame::HLine);
    if (element == QStyle::CE_HeaderSection && header != nullptr) {
        draw_header(painter, *header);
    } else if (element == QStyle::CE_HeaderEmptyArea) {
        painter.fillRect(option.rect, option.palette.color(QPalette::AlternateBase));
    } else if (element == QStyle::CE_TabBarTabShape) {
        draw_tab(painter, option, option.state.testFlag(QStyle::State_Selected));
    } else if (element == QStyle::CE_MenuBarEmptyArea) {
        draw_menu_bar(painter, option);
    } else if ((element == QStyle::CE_MenuItem || element == QStyle::CE_ShapedFrame) && is_line) {
        draw_separator(painter, option);
    } else if ((element == QStyle::CE_ProgressBarGroove || element == QStyle::CE_ProgressBarContents) &&
               bar != nullptr) {
        draw_bar(painter, *bar, element == QStyle::CE_ProgressBarContents);
    } else {
        return element == QStyle::CE_ToolBar;
    }
    return true;
}

/// Writes the texts larger in a widget of such a look; false for others.
bool enlarge(QWidget& widget) {
    const QString look = widget.property("look").toString();
    const double size = look == QLatin1String("heading") ? 1.25 : look == QLatin1String("large") ? 1.2 : 0;
    if (size == 0) return false;
    QFont font = widget.font();
    font.setPointSizeF(QFontInfo(QApplication::font()).pointSizeF() * size);
    widget.setFont(font);
    return true;
}

}  // namespace

void DeskStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    make_readable(palette);
}

void DeskStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    const QString look = widget->property("look").toString();
    if (look.isEmpty()) return;
    if (enlarge(*widget) && widget->parentWidget() != nullptr)
        widget->parentWidget()->installEventFilter(this);
    if (look == QLatin1String("strong") || look == QLatin1String("heading")) {
        QFont font = widget->font();
        font.setBold(true);
        widget->setFont(font);
    }
    if (look == QLatin1String("link")) widget->setForegroundRole(QPalette::Link);
    if (look == QLatin1String("muted")) widget->setForegroundRole(MUTED_TEXT);
    if (look == QLatin1String("failure")) widget->setForegroundRole(FAILURE_TEXT);
    if (look == QLatin1String("warning")) widget->setForegroundRole(WARNING_TEXT);
}

/// Large texts alone have a size of their own, which does not follow the desktop's font by itself.
bool DeskStyle::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        for (QWidget* child : object->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) enlarge(*child);
    }
    return QProxyStyle::eventFilter(object, event);
}

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
    if (type == CT_ItemViewItem) size += QSize(has_picture(*option) ? -NEARER : 0, ROW_AIR);
    return size;
}

QRect DeskStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    QRect place = QProxyStyle::subElementRect(element, option, widget);
    if (element == SE_ItemViewItemText && has_picture(*option)) place.setLeft(place.left() - NEARER);
    return place;
}

void DeskStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    switch (element) {
        case PE_PanelButtonCommand: {
            const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            return draw_button(*painter, *option, button != nullptr && is_filled(*button));
        }
        case PE_PanelButtonTool:
            return draw_flat_button(*painter, *option);
        case PE_FrameFocusRect:
            // A button shows the focus by its edge.
            if (qobject_cast<const QPushButton*>(widget) != nullptr) return;
            return draw_focus(*painter, *option);
        case PE_PanelLineEdit: {
            // The date field has a ground already, below its arrow too.
            if (widget != nullptr && qobject_cast<const QAbstractSpinBox*>(widget->parentWidget()) != nullptr)
                return;
            const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
            if (frame != nullptr && frame->lineWidth > 0) return draw_field(*painter, *option);
            break;
        }
        case PE_FrameGroupBox:
        case PE_FrameLineEdit:
        case PE_Frame: {
            QStyleOption edge(*option);
            if (shows_focus_within(widget)) edge.state |= State_HasFocus;
            if (const auto* group = qobject_cast<const QGroupBox*>(widget))
                edge.rect = edge_below_title(*group);
            return draw_edge(*painter, edge);
        }
        case PE_PanelMenu:
            painter->fillRect(option->rect, option->palette.color(QPalette::Base));
            return draw_edge(*painter, *option);
        case PE_FrameMenu:
            return draw_edge(*painter, *option);
        case PE_FrameTabBarBase:
            // The panel below has an edge.
            return;
        case PE_IndicatorCheckBox:
        case PE_IndicatorItemViewItemCheck:
            return draw_check_box(*painter, *option);
        case PE_IndicatorRadioButton:
            return draw_radio_button(*painter, *option);
        case PE_IndicatorBranch:
            return draw_branch(*painter, *option);
        case PE_IndicatorArrowDown:
            return draw_arrow(*painter, *option, option->rect, Qt::DownArrow, role_of_text(widget));
        case PE_IndicatorArrowUp:
            return draw_arrow(*painter, *option, option->rect, Qt::UpArrow, role_of_text(widget));
        case PE_IndicatorArrowLeft:
            return draw_arrow(*painter, *option, option->rect, Qt::LeftArrow, role_of_text(widget));
        case PE_IndicatorArrowRight:
            return draw_arrow(*painter, *option, option->rect, Qt::RightArrow, role_of_text(widget));
        default:
            break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void DeskStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (draw_whole(element, *option, *painter)) return;
    switch (element) {
        case CE_PushButtonLabel:
            if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
                button != nullptr && is_filled(*button) && (button->state & State_Enabled)) {
                const QStyleOptionButton shown = on_accent(*button);
                return QProxyStyle::drawControl(element, &shown, painter, widget);
            }
            break;
        case CE_MenuBarItem:
            if (!option->state.testFlags(State_Selected | State_Sunken)) {
                draw_menu_bar(*painter, *option);
                return QCommonStyle::drawControl(element, option, painter, widget);
            }
            break;
        case CE_MenuItem:
            if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
                const QStyleOptionMenuItem shown = in_menu(*item);
                return QProxyStyle::drawControl(element, &shown, painter, widget);
            }
            break;
        case CE_ProgressBarLabel:
            if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
                // The part that is done stays dark while another window is active.
                QStyleOptionProgressBar shown(*bar);
                shown.palette.setCurrentColorGroup(QPalette::Active);
                return QProxyStyle::drawControl(element, &shown, painter, widget);
            }
            break;
        case CE_ItemViewItem:
            if (const auto* view = qobject_cast<const QAbstractItemView*>(widget); view != nullptr) {
                if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
                    const QStyleOptionViewItem shown = in_view(*item, *view);
                    return QProxyStyle::drawControl(element, &shown, painter, widget);
                }
            }
            break;
        default:
            break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    const auto place_of = [&](SubControl part) {
        return proxy()->subControlRect(control, option, part, widget);
    };
    if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        control == CC_ComboBox && combo != nullptr && combo->frame) {
        draw_field(*painter, *combo);
        return draw_arrow(*painter, *combo, place_of(SC_ComboBoxArrow));
    }
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_ScrollBar && bar != nullptr) {
        const bool upright = bar->orientation == Qt::Vertical;
        draw_scroll_bar(*painter, *bar, place_of(SC_ScrollBarSlider));
        draw_arrow(*painter, *bar, place_of(SC_ScrollBarSubLine), upright ? Qt::UpArrow : Qt::LeftArrow,
                   MUTED_TEXT);
        return draw_arrow(*painter, *bar, place_of(SC_ScrollBarAddLine),
                          upright ? Qt::DownArrow : Qt::RightArrow, MUTED_TEXT);
    }
    if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option);
        control == CC_ToolButton && button != nullptr) {
        // Qt would draw the arrow of its menu on its caption.
        QStyleOptionToolButton shown(*button);
        shown.features.setFlag(QStyleOptionToolButton::HasMenu, false);
        return QProxyStyle::drawComplexControl(control, &shown, painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_TabBarTabShiftHorizontal:
        case PM_TabBarTabShiftVertical:
            return 0;
        case PM_MenuPanelWidth:
            return 1;
        case PM_HeaderMargin:
            return HEADER_AIR;
        case PM_FocusFrameHMargin:
            // Texts stand below their captions. Qt adds one pixel.
            return HEADER_AIR - 1;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

/// Otherwise the buttons of boxes would have pictures from another set than the program's, and scrolling with
/// the wheel over a choice would change it: another kind of message, which clears the draft, another hour,
/// another sender.
int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
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
