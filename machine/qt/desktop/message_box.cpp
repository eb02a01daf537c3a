#include "machine/qt/desktop/message_box.h"

#include "machine/qt/desktop/screens.h"
#include "machine/qt/desktop/typing_rest.h"
#include "machine/qt/look/late_icon.h"
#include "machine/qt/typing/conversion.h"
#include "machine/qt/typing/typed_text.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QStyle>
#include <algorithm>

namespace machine::qt {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;

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

/// The name of the picture; empty for none.
QString picture_of(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::information:
            return QStringLiteral("info");
        case BoxIcon::question:
            return QStringLiteral("question");
        case BoxIcon::exclamation:
            return QStringLiteral("warning");
        case BoxIcon::critical:
            return QStringLiteral("error");
        case BoxIcon::none:
            break;
    }
    return {};
}

/// Keeps keys from a button that are no answers. With some input methods Ctrl alone ends the syllable, which
/// may open a question, and the rest of the shortcut would answer it. A blank may be one more character of
/// the text that the question has interrupted.
class KeysThatAreNoAnswers : public QObject {
  public:
    KeysThatAreNoAnswers(QObject* box, bool blanks) : QObject(box), blanks_(blanks) {}

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<QKeyEvent&>(*event);
        return (key.modifiers() & Qt::ControlModifier) != 0 || (blanks_ && key.key() == Qt::Key_Space);
    }

  private:
    bool blanks_;
};

/// Not into another modal window that the handlers have opened meanwhile: it was not typed for that.
void type_later(QWidget& parent, const QString& text) {
    const auto type = [&parent, text] {
        const QWidget* modal = QApplication::activeModalWidget();
        if (modal == nullptr || modal == &parent) type_into_focus_of(parent, text);
    };
    QMetaObject::invokeMethod(&parent, type, Qt::QueuedConnection);
}

}  // namespace

MessageBox::MessageBox(const platform::MessageBox& box, const QString& application_title,
                       const LastKey& last_key, QWidget* parent)
    : QMessageBox(parent),
      buttons_(box.buttons),
      last_key_(last_key),
      about_the_text_(last_key.wrote()),
      typing_rest_(*new TypingRest(*this)) {
    setWindowFlags(DIALOG_FRAME);
    setObjectName(QStringLiteral("messageBox"));
    setWindowTitle(box.title.empty() ? application_title : to_qstring(box.title));
    // Texts contain what users have typed, and a "<" is not markup.
    setTextFormat(Qt::PlainText);
    setText(shown_text(box.text));
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (const QString picture = picture_of(box.icon); !picture.isEmpty()) {
        const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        setIconPixmap(late_icon(picture).pixmap(QSize(size, size), devicePixelRatio()));
    }
    typing_rest_.setAccessibleName(text());
    add_buttons(box);
    make_room_for_title();
}

/// Wide enough for the title beside the frame's own buttons, and never tiny. Qt fits the box to its text
/// alone and lets nobody else set its size, but respects what lies in its layout.
void MessageBox::make_room_for_title() {
    constexpr int FRAMES_BUTTONS = 96;
    constexpr int LEAST_HEIGHTS_OF_LINES = 24;
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (grid == nullptr) return;
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    const int title = QFontMetrics(font).horizontalAdvance(windowTitle()) + FRAMES_BUTTONS;
    const int width = std::max(title, LEAST_HEIGHTS_OF_LINES * fontMetrics().height());
    const QMargins margins = grid->contentsMargins();
    grid->addItem(new QSpacerItem(width - margins.left() - margins.right(), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
}

void MessageBox::add_buttons(const platform::MessageBox& box) {
    setStandardButtons(buttons_of(box.buttons));
    const bool interrupts = about_the_text_ && box.buttons != BoxButtons::ok;
    for (const Answer& answer : ANSWERS) {
        QAbstractButton* pressed = button(answer.button);
        if (pressed == nullptr) continue;
        // Whoever has led the focus to another button means to press it.
        const bool has_focus_first = answer.answer == box.default_answer;
        pressed->installEventFilter(new KeysThatAreNoAnswers(this, interrupts && has_focus_first));
        pressed->setText(QString::fromUtf8(answer.caption));
        if (answer.answer == box.default_answer) setDefaultButton(answer.button);
        if (answer.answer == cautious_answer(box.buttons)) setEscapeButton(answer.button);
    }
}

BoxAnswer MessageBox::ask() {
    QWidget* first = defaultButton() != nullptr ? defaultButton() : buttons().front();
    typing_rest_.hold_focus_for(*first);
    const int pressed = exec();
    for (const Answer& answer : ANSWERS) {
        if (answer.button == pressed) return answer.answer;
    }
    return cautious_answer(buttons_);
}

/// Without an Enter at the end, which was an early answer.
QString MessageBox::typed_ahead() const {
    QString text = typing_rest_.text();
    while (text.endsWith(u'\n')) text.chop(1);
    return text;
}

void MessageBox::paintEvent(QPaintEvent* event) {
    QMessageBox::paintEvent(event);
    typing_rest_.begin_to_wait(last_key_.age());
}

/// A letter alone presses no button: it may be the last of a word that was meant for a field.
void MessageBox::keyPressEvent(QKeyEvent* event) {
    if (written_by(*event).isEmpty()) QMessageBox::keyPressEvent(event);
}

BoxAnswer ask(const platform::MessageBox& box, const QString& application_title, const LastKey& last_key,
              QWidget* parent) {
    const QPointer<QWidget> behind(parent);
    MessageBox shown(box, application_title, last_key, parent);
    const BoxAnswer answer = shown.ask();
    const bool wanted = answer == BoxAnswer::yes || (answer == BoxAnswer::ok && !shown.is_about_the_text());
    if (wanted && behind != nullptr) type_later(*behind, shown.typed_ahead());
    return answer;
}

}  // namespace machine::qt
