#include "machine/qt/desktop/typing_rest.h"

#include "machine/qt/typing/typed_text.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <algorithm>

namespace machine::qt {

TypingRest::TypingRest(QWidget& box) : QWidget(&box) {
    resize(0, 0);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, &TypingRest::give_focus_away);
}

void TypingRest::hold_focus_for(QWidget& next) {
    next_ = &next;
    setFocus();
}

void TypingRest::begin_to_wait(std::chrono::milliseconds since_key) {
    if (std::exchange(waiting_, true)) return;
    pause_.start(std::max(PAUSE - since_key, std::chrono::milliseconds(0)));
}

bool TypingRest::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            event->accept();
            return true;
        case QEvent::KeyPress: {
            const auto& key = static_cast<const QKeyEvent&>(*event);
            keep_key(key);
            // Whoever wants to be rid of the box does not type for the field behind it.
            if (key.key() != Qt::Key_Escape) wait_on();
            event->accept();
            return true;
        }
        default:
            return QWidget::event(event);
    }
}

void TypingRest::inputMethodEvent(QInputMethodEvent* event) {
    text_ += event->commitString();
    wait_on();
}

void TypingRest::keep_key(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            text_ += u'\n';
            break;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            text_ += u'\t';
            break;
        case Qt::Key_Backspace:
            text_.chop(1);
            break;
        default:
            text_ += written_by(event);
    }
}

void TypingRest::wait_on() {
    if (waiting_ && hasFocus()) pause_.start(PAUSE);
}

void TypingRest::give_focus_away() {
    next_->setFocus(Qt::OtherFocusReason);
    setFocusPolicy(Qt::NoFocus);
}

}  // namespace machine::qt
