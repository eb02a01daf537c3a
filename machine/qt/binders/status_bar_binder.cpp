#include "machine/qt/binders/status_bar_binder.h"

#include "machine/qt/binders/icon_list.h"
#include "machine/qt/typing/text_conversion.h"

#include <QMouseEvent>
#include <QStatusBar>
#include <QToolButton>
#include <algorithm>

namespace machine::qt {

using platform::Aspect;
using platform::MouseButton;
using platform::StatusBar;

StatusBarBinder::StatusBarBinder(BoundForm& bound, StatusBar& control, QStatusBar& bar)
    : WidgetBinder(bound, control, bar), control_(control), bar_(bar) {
    for (int number = 1; number <= control.count(); ++number) {
        auto* panel = new QToolButton(&bar);
        panel->setObjectName(QStringLiteral("%1_%2").arg(bar.objectName()).arg(number));
        panel->setAutoRaise(true);
        panel->setFocusPolicy(Qt::TabFocus);
        panel->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        panel->installEventFilter(this);
        connect(panel, &QToolButton::clicked, this, [this, number] { click(number, MouseButton::left); });
        bar.addWidget(panel);
        panels_.push_back(panel);
    }
    show_panels();
}

void StatusBarBinder::refresh(Aspect aspect) {
    switch (aspect) {
        case Aspect::text:
        case Aspect::picture:
        case Aspect::tool_tip:  // the panels'; the bar has none of its own
            return show_panels();
        default:
            return WidgetBinder::refresh(aspect);
    }
}

/// Qt's buttons know the left button alone.
bool StatusBarBinder::filter(QObject& object, QEvent& event) {
    const auto panel = std::find(panels_.begin(), panels_.end(), &object);
    if (panel == panels_.end() || event.type() != QEvent::MouseButtonRelease) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(event);
    if (mouse.button() != Qt::RightButton || !(*panel)->rect().contains(mouse.position().toPoint()))
        return false;
    click(static_cast<int>(panel - panels_.begin()) + 1, MouseButton::right);
    return true;
}

void StatusBarBinder::show_panels() {
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        const StatusBar::Panel& shown = control_.panel(number);
        QToolButton& panel = *panels_[i];
        panel.setText(to_qstring(shown.text));
        panel.setToolTip(to_qstring(shown.tool_tip));
        panel.setIcon(icon_of_list(bar_, "pictures", shown.picture));
        panel.setAccessibleName(to_qstring(shown.text.empty() ? shown.tool_tip : shown.text));
    }
}

/// The button of the mouse is told before the panel, as if by the press; a key is the left one.
void StatusBarBinder::click(int number, MouseButton button) {
    act([&] {
        control_.MouseDown.raise(button);
        control_.PanelClick.raise(number);
    });
}

}  // namespace machine::qt
