#include "core/boxes.h"

namespace core {

using platform::BoxAnswer;
using platform::BoxButtons;
using platform::BoxIcon;
using platform::Desktop;
using platform::Text;

void show_error(Desktop& desktop, const platform::RuntimeError& error, BoxIcon icon) {
    desktop.message_box(
        {.text = u"오류번호:" + platform::decimal(error.number()) + u"\r\n\r\n" + error.description(),
         .icon = icon});
}

void warn(Desktop& desktop, Text text, Text title) {
    desktop.message_box({.text = std::move(text), .icon = BoxIcon::exclamation, .title = std::move(title)});
}

bool ask(Desktop& desktop, Text text, Text title, BoxIcon icon, BoxAnswer default_answer) {
    const platform::StandingQuestion question(desktop);
    return desktop.message_box({.text = std::move(text),
                                .icon = icon,
                                .title = std::move(title),
                                .buttons = BoxButtons::yes_no,
                                .default_answer = default_answer}) == BoxAnswer::yes;
}

}  // namespace core
