#include "machine/qt/desktop/message_box.h"

#include "machine/qt/typing/text_conversion.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace machine::qt {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using platform::MessageBox;

namespace {

struct Answer {
    BoxAnswer answer;
    QMessageBox::StandardButton button;
    const char* caption;
};
constexpr Answer ANSWERS[] = {
    {BoxAnswer::ok, QMessageBox::Ok, "확인"},
    {BoxAnswer::yes, QMessageBox::Yes, "예(&Y)"},
    {BoxAnswer::no, QMessageBox::No, "아니오(&N)"},
    {BoxAnswer::cancel, QMessageBox::Cancel, "취소"},
};

QMessageBox::StandardButtons buttons_of(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::yes_no:
            return QMessageBox::Yes | QMessageBox::No;
        case BoxButtons::yes_no_cancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case BoxButtons::ok:
            break;
    }
    return QMessageBox::Ok;
}

BoxAnswer cautious_answer(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::yes_no:
            return BoxAnswer::no;
        case BoxButtons::yes_no_cancel:
            return BoxAnswer::cancel;
        case BoxButtons::ok:
            break;
    }
    return BoxAnswer::ok;
}

QMessageBox::Icon icon_of(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::information:
            return QMessageBox::Information;
        case BoxIcon::question:
            return QMessageBox::Question;
        case BoxIcon::exclamation:
            return QMessageBox::Warning;
        case BoxIcon::critical:
            return QMessageBox::Critical;
        case BoxIcon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

/// Keeps keys with Ctrl from answering. For some input methods Ctrl alone ends the syllable, and the question
/// that this brings up would be answered by the rest of the shortcut.
class ShortcutsAreNoAnswers : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        return (static_cast<QKeyEvent&>(*event).modifiers() & Qt::ControlModifier) != 0;
    }
};

}  // namespace

BoxAnswer ask(const MessageBox& box, const QString& application_title, QWidget* parent) {
    QMessageBox shown(parent);
    shown.setObjectName(QStringLiteral("messageBox"));
    // Texts hold what users have typed, and "<" is theirs.
    shown.setTextFormat(Qt::PlainText);
    shown.setIcon(icon_of(box.icon));
    shown.setWindowTitle(box.title.empty() ? application_title : to_qstring(box.title));
    shown.setText(shown_text(box.text));
    shown.setStandardButtons(buttons_of(box.buttons));
    auto* shortcuts = new ShortcutsAreNoAnswers(&shown);
    for (const Answer& answer : ANSWERS) {
        QAbstractButton* button = shown.button(answer.button);
        if (button == nullptr) continue;
        button->installEventFilter(shortcuts);
        button->setText(QString::fromUtf8(answer.caption));
        if (answer.answer == box.default_answer) shown.setDefaultButton(answer.button);
        if (answer.answer == cautious_answer(box.buttons)) shown.setEscapeButton(answer.button);
    }
    const int pressed = shown.exec();
    for (const Answer& answer : ANSWERS) {
        if (answer.button == pressed) return answer.answer;
    }
    return cautious_answer(box.buttons);
}

}  // namespace machine::qt
