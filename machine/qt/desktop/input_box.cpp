#include "machine/qt/desktop/input_box.h"

#include "machine/qt/desktop/screens.h"
#include "machine/qt/typing/composition.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/field_events.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace machine::qt {

using platform::Text;

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
    QDialog window(parent, DIALOG_FRAME);
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
