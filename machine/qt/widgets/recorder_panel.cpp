#include "machine/qt/widgets/recorder_panel.h"

#include "machine/qt/typing/conversion.h"
#include "platform/controls/sound_recorder.h"
#include "ui_RecorderPanel.h"

#include <QAccessible>
#include <QEvent>

namespace machine::qt {

RecorderPanel::RecorderPanel(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::RecorderPanel>()) {
    ui_->setupUi(this);
    setFocusProxy(ui_->_record);
    make_room();
}

RecorderPanel::~RecorderPanel() = default;

void RecorderPanel::show_recorder(const platform::SoundRecorder& recorder) {
    show_buttons({{ui_->_stop, recorder.can_stop()},
                  {ui_->_play, recorder.can_play()},
                  {ui_->_record, recorder.can_record()}});
    ui_->_recordTime->setText(to_qstring(recorder.time()));
    ui_->_recordLevel->setValue(recorder.level());
    if (const QString message = to_qstring(recorder.message()); message != ui_->_recordMessage->text()) {
        ui_->_recordMessage->setText(message);
        // So that a screen reader says it while the user records.
        QAccessibleEvent said(ui_->_recordMessage, QAccessible::Alert);
        QAccessible::updateAccessibility(&said);
    }
    ui_->_recordWarning->setVisible(recorder.message_warns());
}

void RecorderPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) make_room();
}

/// Time and messages change all the time; nothing around them should move.
void RecorderPanel::make_room() {
    const QFontMetrics metrics = fontMetrics();
    ui_->_recordTime->setMinimumWidth(metrics.horizontalAdvance(ui_->_recordTime->text()));
    ui_->_recordMessage->setMinimumHeight(2 * metrics.lineSpacing());
}

/// Moves the focus from a button that becomes disabled to the first enabled one, so that the same key starts,
/// stops and plays a recording.
void RecorderPanel::show_buttons(std::initializer_list<ButtonState> buttons) {
    QPushButton* next = nullptr;
    QPushButton* with_focus = nullptr;
    for (const auto& [button, enabled] : buttons) {
        if (enabled) button->setEnabled(true);
        if (enabled && next == nullptr) next = button;
        if (!enabled && button->hasFocus()) with_focus = button;
    }
    if (with_focus != nullptr && next != nullptr) next->setFocus();
    for (const auto& [button, enabled] : buttons) button->setEnabled(enabled);
}

QAbstractButton& RecorderPanel::record_button() const { return *ui_->_record; }
QAbstractButton& RecorderPanel::stop_button() const { return *ui_->_stop; }
QAbstractButton& RecorderPanel::play_button() const { return *ui_->_play; }

}  // namespace machine::qt
