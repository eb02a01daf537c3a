#include "machine/qt/binders/sound_recorder_binder.h"

#include "machine/qt/widgets/recorder_panel.h"

#include <QAbstractButton>
#include <QEvent>
#include <utility>

namespace machine::qt {

using platform::Aspect;
using platform::SoundRecorder;

SoundRecorderBinder::SoundRecorderBinder(BoundForm& bound, SoundRecorder& control, RecorderPanel& panel)
    : WidgetBinder(bound, control, panel), control_(control), panel_(panel) {
    connect_button(panel.record_button(), [this] { control_.record(); });
    connect_button(panel.stop_button(), [this] { control_.stop(); });
    connect_button(panel.play_button(), [this] { control_.play(); });
    panel.show_recorder(control);
}

void SoundRecorderBinder::refresh(Aspect aspect) {
    if (aspect == Aspect::value || aspect == Aspect::text) return panel_.show_recorder(control_);
    WidgetBinder::refresh(aspect);
}

bool SoundRecorderBinder::filter(QObject& object, QEvent& event) {
    switch (event.type()) {
        case QEvent::Show:
            seen_ = seen_ && &object != &panel_;
            return false;
        case QEvent::Paint:
            // What sound needs takes a moment to load: once the user sees the panel, and after that.
            if (&object == &panel_ && !std::exchange(seen_, true))
                QMetaObject::invokeMethod(this, &SoundRecorderBinder::open, Qt::QueuedConnection);
            return false;
        case QEvent::FocusIn:
            bound().form.move_focus(&control_);
            return false;
        case QEvent::Shortcut:
            static_cast<QWidget&>(object).setFocus(Qt::ShortcutFocusReason);
            return !is_bound_live();
        default:
            return false;
    }
}

void SoundRecorderBinder::open() {
    if (is_bound_live()) control_.open();
}

void SoundRecorderBinder::connect_button(QAbstractButton& button, std::function<void()> press) {
    button.installEventFilter(this);
    connect(&button, &QAbstractButton::clicked, this, [this, press = std::move(press)] { act(press); });
}

}  // namespace machine::qt
