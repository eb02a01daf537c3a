#include "machine/qt/desktop/boxes.h"

#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/field_events.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace machine::qt {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using platform::Text;

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

/// Ignores keys with Ctrl. With some input methods Ctrl alone ends the syllable, which may open a question,
/// and the rest of the shortcut would answer it.
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

BoxAnswer ask(const platform::MessageBox& box, const QString& application_title, QWidget* parent) {
    QMessageBox shown(parent);
    shown.setObjectName(QStringLiteral("messageBox"));
    // Texts contain what users have typed, and a "<" is not markup.
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

namespace {

constexpr int FIELD_WIDTH = 360;

/// A field that tracks an input method's unfinished syllable.
class AnswerField : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  protected:
    bool event(QEvent* event) override {
        if (handling_) return QLineEdit::event(event);
        handling_ = true;
        const bool done = filter_field_event(
            *this, *event, [](platform::KeyPressed&) {}, [](bool) {});
        handling_ = false;
        return done || QLineEdit::event(event);
    }

  private:
    bool handling_ = false;
};

}  // namespace

Text ask_for_text(const platform::InputBox& box, QWidget* parent) {
    QDialog window(parent);
    window.setObjectName(QStringLiteral("inputBox"));
    window.setWindowTitle(to_qstring(box.title));
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    // The window fits its content with every font, so that a long prompt is never cut.
    layout->setSizeConstraint(QLayout::SetFixedSize);

    auto* prompt = new QLabel(shown_text(box.prompt));
    prompt->setTextFormat(Qt::PlainText);
    auto* field = new AnswerField(to_qstring(box.default_text));
    field->setObjectName(QStringLiteral("answer"));
    field->setAccessibleName(window.windowTitle());
    field->setAccessibleDescription(prompt->text());
    field->setMinimumWidth(FIELD_WIDTH);
    field->selectAll();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("확인"));
    buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("취소"));
    layout->addWidget(prompt);
    layout->addWidget(field);
    layout->addWidget(buttons);
    field->setFocus();

    QObject::connect(buttons, &QDialogButtonBox::accepted, &window, [&window, field] {
        // A syllable that is unfinished when the button is pressed is part of the answer.
        commit_composition(*field);
        window.accept();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    return window.exec() == QDialog::Accepted ? to_text(field->text()) : Text();
}

}  // namespace machine::qt
