#include "compose/recipients/pasted_recipients.h"

#include "core/phone_number.h"

#include <algorithm>

namespace compose {

using platform::Text;
using platform::TextView;

PastedRecipients::PastedRecipients(RecipientList& recipients, const Text& text)
    : recipients_(recipients), text_(platform::with_line_feeds(text)), lines_(platform::split(text_, u'\n')) {
    if (lines_.back().empty()) lines_.pop_back();
}

void PastedRecipients::read(std::size_t lines) {
    for (const std::size_t end = std::min(lines_read_ + lines, lines_.size()); lines_read_ < end;)
        read_line(lines_[lines_read_++]);
}

void PastedRecipients::read_line(TextView line) {
    platform::ListedPerson person;
    switch (people_.read(line, person)) {
        case platform::PeopleLines::Line::blank:
            return;
        case platform::PeopleLines::Line::captions:
            captions_ = Text(line) + Text(platform::CRLF);
            return;
        case platform::PeopleLines::Line::person:
            return take_in(person, line);
        case platform::PeopleLines::Line::not_understood:
            ++not_understood_;
            left_over_ += Text(line) + Text(platform::CRLF);
    }
}

/// A person with several numbers is reached at the first that the kind of message can reach.
void PastedRecipients::take_in(const platform::ListedPerson& person, TextView line) {
    const KindOfMessage& kind = recipients_.kind();
    const auto number = std::ranges::find_if(
        person.numbers, [&](const Text& digits) { return fault_of_number(kind, digits).empty(); });
    if (number == person.numbers.end()) {
        ++refused_;
        left_over_ += Text(line) + Text(platform::CRLF);
    } else if (recipients_.add(platform::trim(core::without_separators(person.name)), *number,
                               person.title)) {
        ++added_;
    } else {
        ++listed_before_;
    }
}

Text PastedRecipients::left_over() const {
    Text left_over = left_over_;
    if (!at_end()) {
        const auto unread = static_cast<std::size_t>(lines_[lines_read_].data() - text_.data());
        left_over += platform::replace_all(TextView(text_).substr(unread), u"\n", platform::CRLF);
    }
    return left_over.empty() ? Text() : captions_ + left_over;
}

}  // namespace compose
