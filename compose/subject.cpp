#include "compose/subject.h"

namespace compose {

using platform::Text;

namespace {

Text without_line_ends(platform::TextView text) { return platform::remove_all(text, platform::CRLF); }

}  // namespace

Subject::Subject(platform::Form& form) : Room(form) {
    subjectText.Change.connect([this] { subject_changed(); });
    subjectText.LostFocus.connect([this] { freeze(); });
}

void Subject::follow(const Text& body, std::size_t limit) {
    text_awaited_ = false;
    if (platform::trim(subjectText.text()).size() >= LENGTH || !subjectText.tag().empty()) return;
    // Deliberately first whole, then cut: what is too long a subject at its first writing fixes it, and later
    // changes of the text leave the cut one alone.
    const Text title = without_line_ends(body);
    subjectText.set_text(title);
    if (title.size() > limit) subjectText.set_text(title.substr(0, limit));
}

void Subject::freeze() {
    if (!platform::trim(subjectText.text()).empty()) fix();
}

void Subject::freeze_behind_text() {
    if (!text_awaited_) freeze();
}

void Subject::subject_changed() {
    const std::size_t length = platform::trim(subjectText.text()).size();
    if (length == 0) follow_again();
    if (length > LENGTH) fix();
}

void Subject::fill_empty(const Text& body) {
    if (!platform::trim(subjectText.text()).empty()) return;
    const Text title = platform::trim(without_line_ends(platform::trim(body)));
    if (!title.empty()) subjectText.set_text(title.substr(0, LENGTH));
    if (platform::trim(subjectText.text()).empty()) subjectText.set_text(Text(NO_SUBJECT));
}

}  // namespace compose
