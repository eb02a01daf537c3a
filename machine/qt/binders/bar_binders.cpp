#include "machine/qt/binders/bar_binders.h"

#include "machine/qt/look/late_icon.h"
#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

namespace machine::qt {

using platform::Aspect;
using platform::MouseButton;
using platform::StatusBar;
using platform::ToolBar;

namespace {

/// The buttons that follow stand at the other end of the bar.
void add_free_room(QToolBar& bar) {
    auto* room = new QWidget(&bar);
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar.addWidget(room);
}

/// The name of the widget for one part of a bar.
QString part_name(const QObject& bar, int number) {
    return QStringLiteral("%1_%2").arg(bar.objectName()).arg(number);
}

}  // namespace

MenuBinder::MenuBinder(BoundForm& bound, platform::Menu& control, QAction& action)
    : BinderOf(bound, control, action) {
    action.setText(to_qstring(control.caption()));
    if (const QString picture = action.property("picture").toString(); !picture.isEmpty())
        action.setIcon(late_icon(picture));
    action.setSeparator(control.caption() == u"-");
    for (const Aspect aspect : {Aspect::enabled, Aspect::visible, Aspect::value}) refresh(aspect);
    if (action.menu() == nullptr) {
        connect(&action, &QAction::triggered, this, [this] { click(); });
    }
}

void MenuBinder::refresh(Aspect aspect) {
    switch (aspect) {
        case Aspect::enabled:
            return widget().setEnabled(control().enabled());
        case Aspect::visible:
            return widget().setVisible(control().visible());
        case Aspect::value:
            if (control().checked()) widget().setCheckable(true);
            return widget().setChecked(control().checked());
        default:
            return;
    }
}

void MenuBinder::click() {
    commit_composition();
    if (is_bound_live()) control().Click.raise();
    // Qt has toggled the mark already; the handler decides whether it stays.
    if (is_bound_live()) refresh(Aspect::value);
}

StatusBarBinder::StatusBarBinder(BoundForm& bound, StatusBar& control, QStatusBar& bar)
    : BinderOf(bound, control, bar) {
    const QVariant panels_at_left = bar.property("panels_at_left");
    const int at_left = panels_at_left.isValid() ? panels_at_left.toInt() : control.count();
    for (int number = 1; number <= control.count(); ++number) {
        auto* panel = new QToolButton(&bar);
        panel->setObjectName(part_name(bar, number));
        panel->setAutoRaise(true);
        panel->setFocusPolicy(Qt::TabFocus);
        panel->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        panel->installEventFilter(this);
        connect(panel, &QToolButton::clicked, this, [this, number] { click(number, MouseButton::left); });
        if (number <= at_left) {
            bar.addWidget(panel);
        } else {
            bar.addPermanentWidget(panel);
        }
        panels_.push_back(panel);
    }
    show_panels();
}

void StatusBarBinder::show(Aspect aspect) {
    if (aspect == Aspect::text || aspect == Aspect::picture) show_panels();
}

/// Qt's buttons react to the left mouse button only.
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
    const QList<QIcon> pictures = pictures_of(widget());
    for (std::size_t i = 0; i < panels_.size(); ++i) {
        const StatusBar::Panel& shown = control().panel(static_cast<int>(i) + 1);
        QToolButton& panel = *panels_[i];
        panel.setText(to_qstring(shown.text));
        panel.setToolTip(to_qstring(shown.tool_tip));
        panel.setIcon(pictures.value(shown.picture - 1));
        // A reader is told of every name that is set.
        const QString name = to_qstring(shown.text.empty() ? shown.tool_tip : shown.text);
        if (panel.accessibleName() != name) panel.setAccessibleName(name);
        panel.setVisible(!shown.text.empty() || shown.picture != 0);
        // Only the panels that lead somewhere say so in a tip.
        panel.setCursor(shown.tool_tip.empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
    }
}

/// The handlers learn the mouse button before the panel; a key counts as the left button.
void StatusBarBinder::click(int number, MouseButton button) {
    act([&] {
        control().MouseDown.raise(button);
        control().PanelClick.raise(number);
    });
}

TabStripBinder::TabStripBinder(BoundForm& bound, platform::TabStrip& control, QTabBar& bar)
    : BinderOf(bound, control, bar) {
    for (const platform::Text& caption : control.captions()) bar.addTab(to_qstring(caption));
    // A bar that is not shown yet does not tell its splitter that it has grown.
    bar.updateGeometry();
    show(Aspect::value);
    // A click counts on the chosen tab too. Its signal comes before the bar changes the tab, so a change that
    // the control does not know yet was made with a key.
    connect(&bar, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0) choose(index);
    });
    connect(&bar, &QTabBar::currentChanged, this, [this](int index) {
        if (is_bound_live() && index != this->control().selected() - 1) choose(index);
    });
    if (bar.property("turnedByCtrlTab").toBool()) turn_by_keys();
}

void TabStripBinder::turn_by_keys() {
    const int count = widget().count();
    const std::pair<Qt::KeyboardModifiers, int> ways[] = {
        {Qt::ControlModifier, 1}, {Qt::ControlModifier | Qt::ShiftModifier, count - 1}};
    for (const auto& [modifiers, step] : ways) {
        auto* shortcut = new QShortcut(QKeyCombination(modifiers, Qt::Key_Tab), &widget());
        connect(shortcut, &QShortcut::activated, this, [this, step = step, count] {
            if (is_bound_live()) choose((control().selected() - 1 + step) % count);
        });
    }
}

void TabStripBinder::show(Aspect aspect) {
    if (aspect == Aspect::value) widget().setCurrentIndex(control().selected() - 1);
}

void TabStripBinder::choose(int index) {
    act([&] { control().user_select(index + 1); });
    // Where the control has refused, the bar goes back.
    if (is_bound_live()) show(Aspect::value);
}

ToolBarBinder::ToolBarBinder(BoundForm& bound, ToolBar& control, QToolBar& bar)
    : BinderOf(bound, control, bar) {
    const QList<QIcon> pictures = pictures_of(bar);
    const QStringList keys = bar.property("shortcuts").toStringList();
    for (int number = 1; number <= control.count(); ++number) {
        const ToolBar::Button& button = control.button(number);
        if (button.caption.empty() && number > 1) add_free_room(bar);
        auto* action = new QAction(pictures.value(number - 1), to_qstring(button.caption), &bar);
        action->setObjectName(part_name(bar, number));
        action->setVisible(!button.caption.empty());
        action->setCheckable(button.in_group);
        if (const QString key = keys.value(number - 1); !key.isEmpty()) {
            action->setShortcut(QKeySequence(key));
            action->setToolTip(QStringLiteral("%1 (%2)").arg(action->text(), key));
        }
        bar.addAction(action);
        actions_.push_back(action);
        connect(action, &QAction::triggered, this, [this, number] {
            act([&] { this->control().ButtonClick.raise(number); });
            // Qt has pressed the button already; the handler decides whether it stays so.
            if (is_bound_live()) show_buttons();
        });
    }
    show_buttons();
}

void ToolBarBinder::show(Aspect aspect) {
    if (aspect == Aspect::value) show_buttons();
}

void ToolBarBinder::show_buttons() {
    for (std::size_t i = 0; i < actions_.size(); ++i)
        actions_[i]->setChecked(control().button(static_cast<int>(i) + 1).pressed);
}

}  // namespace machine::qt
