#include "machine/qt/binders/sound_recorder_binder.h"

#include "machine/qt/widgets/recorder_panel.h"

#include <QAbstractButton>
#include <QEvent>
#include <utility>

namespace machine::qt {

using platform::Aspect;

SoundRecorderBinder::SoundRecorderBinder(BoundForm& bound, platform::SoundRecorder& control,
                                         RecorderPanel& panel)
    : BinderOf(bound, control, panel) {
    connect_button(panel.record_button(), [this] { this->control().record(); });
    connect_button(panel.stop_button(), [this] { this->control().stop(); });
    connect_button(panel.play_button(), [this] { this->control().play(); });
    panel.show_recorder(control);
}

void SoundRecorderBinder::show(Aspect aspect) {
    if (aspect == Aspect::value || aspect == Aspect::text) widget().show_recorder(control());
}

bool SoundRecorderBinder::filter(QObject& object, QEvent& event) {
    switch (event.type()) {
        case QEvent::Show:
            seen_ = seen_ && &object != &widget();
            return false;
        case QEvent::Paint:
            // The sound libraries take a moment to load, so only when the panel has been painted.
            if (&object == &widget() && !std::exchange(seen_, true))
                QMetaObject::invokeMethod(this, &SoundRecorderBinder::open, Qt::QueuedConnection);
            return false;
        case QEvent::FocusIn:
            bound().form.move_focus(&control());
            return false;
        case QEvent::Shortcut:
            static_cast<QWidget&>(object).setFocus(Qt::ShortcutFocusReason);
            return !is_bound_live();
        default:
            return false;
    }
}

void SoundRecorderBinder::open() {
    if (is_bound_live()) control().open();
}

void SoundRecorderBinder::connect_button(QAbstractButton& button, std::function<void()> press) {
    button.installEventFilter(this);
    connect(&button, &QAbstractButton::clicked, this, [this, press = std::move(press)] { act(press); });
}

}  // namespace machine::qt
