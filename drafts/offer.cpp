#include "drafts/offer.h"

#include "compose/message_kinds.h"
#include "gateway/gateway.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>

namespace drafts {

using platform::CRLF;
using platform::KeptDraft;
using platform::Text;

namespace {

/// The most characters of the draft's text that are shown.
constexpr std::size_t EXCERPT = 30;

/// The kind that the draft was last shown as; none when the file says nonsense.
const compose::KindOfMessage* kind_of(const KeptDraft& draft) {
    const double number = platform::leading_number(field(draft.fields, fields::KIND));
    const auto& kinds = compose::kinds_of_message();
    const auto found = std::find_if(kinds.begin(), kinds.end(), [number](const compose::KindOfMessage& kind) {
        return static_cast<double>(kind.kind) == number;
    });
    return found == kinds.end() ? nullptr : &*found;
}

/// The text without the sender's name, with which every text begins.
Text without_sender(const Text& text) {
    return text.starts_with(u'[') ? text.substr(std::min(text.find(u']'), text.size() - 1) + 1) : text;
}

/// The subject, or else the beginning of the text.
Text excerpt(const KeptDraft& draft) {
    for (const auto name : {fields::SUBJECT, fields::TEXT, fields::SPEECH, fields::PLUS_TEXT}) {
        const Text whole = without_sender(field(draft.fields, name));
        const Text text = platform::trim(platform::replace_all(whole, CRLF, u" "));
        if (!text.empty()) return text.size() > EXCERPT ? text.substr(0, EXCERPT) + u"…" : text;
    }
    return {};
}

Text count(std::size_t people) {
    return platform::format_number(static_cast<double>(people), u"#,##0") + u"명";
}

}  // namespace

void RecipientCounts::add(const platform::KeptRecipient& recipient) {
    ++all;
    if (recipient.checked) ++to_send;
    if (recipient.status == gateway::REGISTERED) ++registered;
    if (recipient.status == gateway::NO_ANSWER) ++unconfirmed;
}

Text summary(const KeptDraft& draft, const RecipientCounts& recipients) {
    Text line;
    if (const compose::KindOfMessage* kind = kind_of(draft)) line += Text(kind->caption) + u", ";
    if (const Text text = excerpt(draft); !text.empty()) line += u"'" + text + u"', ";
    line += u"받는사람 " + count(recipients.all);
    if (recipients.to_send < recipients.all) {
        line += u"(보낼 사람 " + count(recipients.to_send);
        if (recipients.registered > 0) line += u", 등록성공 " + count(recipients.registered);
        if (recipients.unconfirmed > 0) line += u", 확인필요 " + count(recipients.unconfirmed);
        line += u")";
    }
    return line + u", " + platform::format_date(draft.written, u"M월 d일 ampm h:nn");
}

Text question(const KeptDraft& draft, const RecipientCounts& recipients) {
    Text text = u"지난번에 작성하던 메시지를 되살리시겠습니까?\r\n\r\n" + summary(draft, recipients);
    if (recipients.unconfirmed > 0) text += u"\r\n\r\n" + Text(gateway::NO_ANSWER_MEANS);
    return text;
}

}  // namespace drafts
