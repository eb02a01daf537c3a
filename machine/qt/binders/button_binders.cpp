#include "machine/qt/binders/button_binders.h"

#include "machine/qt/typing/text_conversion.h"

#include <QCheckBox>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRadioButton>

namespace machine::qt {

using platform::Aspect;
using platform::CheckBox;
using platform::CommandButton;
using platform::Control;
using platform::OptionButton;
using platform::Text;

ButtonBinder::ButtonBinder(BoundForm& bound, Control& control, QAbstractButton& button, const Text& caption)
    : WidgetBinder(bound, control, button), button_(button) {
    set_caption(caption);
}

bool ButtonBinder::filter(QObject&, QEvent& event) {
    switch (event.type()) {
        case QEvent::Shortcut:
            // Its key brings the focus with it, as a click of the mouse does; the field that had it sees its
            // loss first.
            button_.setFocus(Qt::ShortcutFocusReason);
            if (static_cast<const QShortcutEvent&>(event).isAmbiguous()) return !is_bound_live();
            // The toolkit would show it pressed for a tenth of a second first, and swallow an Escape
            // meanwhile.
            if (is_bound_live()) button_.click();
            return true;
        case QEvent::MouseButtonPress:
            QMetaObject::invokeMethod(this, &ButtonBinder::let_out_if_released, Qt::QueuedConnection);
            return false;
        default:
            return false;
    }
}

/// Setting the text of a button drops the shortcut that the screen gives it.
void ButtonBinder::set_caption(const Text& caption) {
    const QKeySequence shortcut = button_.shortcut();
    button_.setText(to_qstring(caption));
    if (button_.shortcut().isEmpty()) button_.setShortcut(shortcut);
}

/// A box that opened when the press took the focus from a field has had the release.
void ButtonBinder::let_out_if_released() {
    if (button_.isDown() && !(QGuiApplication::mouseButtons() & Qt::LeftButton)) button_.setDown(false);
}

CommandButtonBinder::CommandButtonBinder(BoundForm& bound, CommandButton& control, QAbstractButton& button)
    : ButtonBinder(bound, control, button, control.caption()), control_(control) {
    connect(&button, &QAbstractButton::clicked, this, [this] { act([this] { control_.Click.raise(); }); });
}

void CommandButtonBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::caption) return set_caption(control_.caption());
    WidgetBinder::refresh(aspect);
}

CheckBoxBinder::CheckBoxBinder(BoundForm& bound, CheckBox& control, QCheckBox& box)
    : ButtonBinder(bound, control, box, control.caption()), control_(control), box_(box) {
    box.setChecked(control.checked());
    connect(&box, &QCheckBox::clicked, this,
            [this](bool checked) { act([&] { control_.set_checked(checked); }); });
}

void CheckBoxBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value) return box_.setChecked(control_.checked());
    WidgetBinder::refresh(aspect);
}

OptionButtonBinder::OptionButtonBinder(BoundForm& bound, OptionButton& control, QRadioButton& button)
    : ButtonBinder(bound, control, button, control.caption()), control_(control), button_(button) {
    // The handlers keep the others off.
    button.setAutoExclusive(false);
    button.setChecked(control.chosen());
    connect(&button, &QRadioButton::clicked, this, [this] {
        act([this] { control_.set_chosen(true); });
        button_.setChecked(!is_bound_live() || control_.chosen());
    });
}

/// The arrow keys choose the next of the group, as everywhere; the toolkit does it only where it keeps the
/// others off itself.
bool OptionButtonBinder::filter(QObject& object, QEvent& event) {
    if (event.type() != QEvent::KeyPress || &object != &button_) return ButtonBinder::filter(object, event);
    const int key = static_cast<const QKeyEvent&>(event).key();
    const bool on = key == Qt::Key_Down || key == Qt::Key_Right;
    if (!on && key != Qt::Key_Up && key != Qt::Key_Left) return ButtonBinder::filter(object, event);
    const auto group = button_.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    const qsizetype next = group.indexOf(&button_) + (on ? 1 : group.size() - 1);
    QRadioButton& chosen = *group[next % group.size()];
    chosen.setFocus(Qt::TabFocusReason);
    chosen.click();
    return true;
}

void OptionButtonBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value) return button_.setChecked(control_.chosen());
    WidgetBinder::refresh(aspect);
}

}  // namespace machine::qt
