#include "machine/qt/binders/button_binders.h"

#include "machine/qt/binders/key_of_caption.h"
#include "machine/qt/typing/conversion.h"

#include <QCheckBox>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRadioButton>

namespace machine::qt {

using platform::Aspect;

ButtonBinder::ButtonBinder(BoundForm& bound, platform::Control& control, QAbstractButton& button)
    : WidgetBinder(bound, control, button) {}

QAbstractButton& ButtonBinder::button() const { return static_cast<QAbstractButton&>(shown()); }

bool ButtonBinder::filter(QObject&, QEvent& event) {
    switch (event.type()) {
        case QEvent::Shortcut:
            // A button's key moves the focus to it, as a click does, so that the handlers of the field that
            // loses it run first.
            button().setFocus(Qt::ShortcutFocusReason);
            if (static_cast<const QShortcutEvent&>(event).isAmbiguous()) return !is_bound_live();
            // Qt would show the button pressed for a tenth of a second first, and an Escape in that time
            // would only let it out.
            if (is_bound_live()) button().click();
            return true;
        case QEvent::MouseButtonPress:
            QMetaObject::invokeMethod(this, &ButtonBinder::let_out_if_released, Qt::QueuedConnection);
            return false;
        default:
            return false;
    }
}

/// Keeps the shortcut that the screen gives the button: Qt drops it when the text is set.
void ButtonBinder::set_caption(const platform::Text& caption) {
    const QKeySequence shortcut = button().shortcut();
    button().setText(caption_with_key(button(), to_qstring(caption)));
    if (button().shortcut().isEmpty()) button().setShortcut(shortcut);
}

/// When the press took the focus from a field whose handlers opened a box, the box has got the release and
/// the button would stay down.
void ButtonBinder::let_out_if_released() {
    if (button().isDown() && !(QGuiApplication::mouseButtons() & Qt::LeftButton)) button().setDown(false);
}

CommandButtonBinder::CommandButtonBinder(BoundForm& bound, platform::CommandButton& control,
                                         QAbstractButton& button)
    : BinderOf(bound, control, button) {
    set_caption(control.caption());
    connect(&button, &QAbstractButton::clicked, this,
            [this] { act([this] { this->control().Click.raise(); }); });
}

void CommandButtonBinder::show(Aspect aspect) {
    if (aspect == Aspect::caption) set_caption(control().caption());
}

CheckBoxBinder::CheckBoxBinder(BoundForm& bound, platform::CheckBox& control, QCheckBox& box)
    : BinderOf(bound, control, box) {
    set_caption(control.caption());
    box.setChecked(control.checked());
    connect(&box, &QCheckBox::clicked, this, &CheckBoxBinder::take);
    // A screen reader toggles without a click.
    connect(
        &box, &QCheckBox::toggled, this,
        [this] {
            if (is_bound_live() && widget().isChecked() != this->control().checked())
                take(widget().isChecked());
        },
        Qt::QueuedConnection);
}

void CheckBoxBinder::take(bool checked) {
    act([&] { control().user_check(checked); });
    // Qt has ticked the box already; the control may have refused.
    if (is_bound_live()) show(Aspect::value);
}

void CheckBoxBinder::show(Aspect aspect) {
    if (aspect == Aspect::value) widget().setChecked(control().checked());
}

OptionButtonBinder::OptionButtonBinder(BoundForm& bound, platform::OptionButton& control,
                                       QRadioButton& button)
    : BinderOf(bound, control, button) {
    set_caption(control.caption());
    // The handlers switch the others of the group off.
    button.setAutoExclusive(false);
    button.setChecked(control.chosen());
    connect(&button, &QRadioButton::clicked, this, &OptionButtonBinder::take);
    // A screen reader toggles without a click.
    connect(
        &button, &QRadioButton::toggled, this,
        [this] {
            if (is_bound_live() && widget().isChecked() != this->control().chosen()) take();
        },
        Qt::QueuedConnection);
}

void OptionButtonBinder::take() {
    act([this] { control().user_choose(); });
    widget().setChecked(!is_bound_live() || control().chosen());
}

/// The arrow keys choose the next of the group, as everywhere. Qt does so only in groups that it switches
/// itself.
bool OptionButtonBinder::filter(QObject& object, QEvent& event) {
    if (event.type() != QEvent::KeyPress || &object != &widget()) return ButtonBinder::filter(object, event);
    const int key = static_cast<const QKeyEvent&>(event).key();
    const bool on = key == Qt::Key_Down || key == Qt::Key_Right;
    if (!on && key != Qt::Key_Up && key != Qt::Key_Left) return ButtonBinder::filter(object, event);
    const auto group = widget().parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    const qsizetype next = group.indexOf(&widget()) + (on ? 1 : group.size() - 1);
    QRadioButton& chosen = *group[next % group.size()];
    chosen.setFocus(Qt::TabFocusReason);
    chosen.click();
    return true;
}

void OptionButtonBinder::show(Aspect aspect) {
    if (aspect == Aspect::value) widget().setChecked(control().chosen());
}

}  // namespace machine::qt
