#include "send/pieces.h"

#include "core/byte_length.h"
#include "core/personal_text.h"
#include "gateway/gateway.h"
#include "platform/text/number.h"

#include <algorithm>
#include <map>

namespace send {

using compose::RECIPIENT_PIECES;
using platform::BoxAnswer;
using platform::CRLF;
using platform::Text;
using platform::TextView;

namespace {

Text mark_of(int piece) { return u"#" + platform::decimal(piece) + u"#"; }

/// "2/3": how many of how many.
Text share_of(TextView pieces) {
    const std::size_t end = std::min(pieces.rfind(u'/'), pieces.size());
    const auto marks = std::count(pieces.begin(), pieces.begin() + static_cast<std::ptrdiff_t>(end), u'#');
    return marks < 2 ? Text() : platform::decimal(marks - 1) + Text(pieces.substr(end));
}

/// What tells the draft's text from others; empty when it goes in one message to everybody.
Text text_in_pieces(const compose::frmZent& form) {
    if (kind_of(form).kind != compose::MessageKind::text) return {};
    const Text text = platform::right_trim(form.text.mText1.text());
    if (form.text.Check1.checked() && core::has_placeholder(text)) return Text(compose::PERSONAL_TEXT) + text;
    return core::BYTE_LEN(text) > compose::TEXT_LIMIT ? text : Text();
}

void forget_pieces(platform::ListView& recipients) {
    if (recipients.tag().empty()) return;
    for (std::size_t row = 0; row < recipients.row_count(); ++row)
        recipients.set_sub_item(row, RECIPIENT_PIECES, u"");
}

}  // namespace

bool has_piece(TextView pieces, int piece) { return platform::contains(pieces, mark_of(piece)); }

Text with_piece(TextView pieces, int piece, int all) {
    Text marks(pieces.substr(0, std::min(pieces.rfind(u'/'), pieces.size())));
    if (marks.empty()) marks = u"#";
    return marks + platform::decimal(piece) + u"#/" + platform::decimal(all);
}

Text status_of_pieces(TextView pieces) {
    const Text share = share_of(pieces);
    return share.empty() ? Text() : share + Text(PIECES_REGISTERED);
}

Text pieces_report(const platform::ListView& recipients) {
    std::map<Text, int> people;
    for (std::size_t row = 0; row < recipients.row_count(); ++row) {
        const platform::ListItem& recipient = recipients.row(row);
        if (Text share = share_of(recipient.sub_item(RECIPIENT_PIECES));
            recipient.checked() && !share.empty())
            ++people[std::move(share)];
    }
    Text report;
    for (const auto& [share, count] : people) {
        const std::size_t slash = share.find(u'/');
        report += u"\r\n " + share.substr(slash + 1) + u"개로 나눈 메시지 중 " + share.substr(0, slash) +
                  u"개만 등록된 받는사람: " + platform::decimal(count) + u"명";
    }
    return report;
}

Text open_ends(const platform::ListView& recipients) {
    Text text = pieces_report(recipients);
    if (!text.empty())
        text = Text(CRLF) + text + u"\r\n 다시 보내면 등록되지 않은 나머지만 이어서 보낼 수 있습니다.";
    int unconfirmed = 0;
    for (std::size_t row = 0; row < recipients.row_count(); ++row)
        unconfirmed += recipients.row(row).sub_item(compose::RECIPIENT_STATUS) == gateway::NO_ANSWER;
    if (unconfirmed > 0)
        text += u"\r\n\r\n 확인필요: " + platform::decimal(unconfirmed) + u"건\r\n " +
                Text(gateway::NO_ANSWER_MEANS);
    return text;
}

bool settle_pieces(const platform::Platform& platform, compose::frmZent& form) {
    platform::ListView& recipients = form.recipients.ListView1;
    const Text text = text_in_pieces(form);
    const Text report = recipients.tag() == text ? pieces_report(recipients) : Text();
    if (!report.empty()) {
        const platform::StandingQuestion question(platform.desktop);
        const BoxAnswer answer = platform.desktop.message_box(
            {.text = u"이 메시지는 앞서 일부만 등록되었습니다." + report +
                     u"\r\n\r\n등록되지 않은 나머지만 이어서 "
                     u"보내시겠습니까?\r\n\r\n[아니오]를 선택하시면 선택한 받는사람에게 "
                     u"처음부터 다시 보냅니다.",
             .icon = platform::BoxIcon::question,
             .title = u"이어서 보내기",
             .buttons = platform::BoxButtons::yes_no_cancel,
             .default_answer = BoxAnswer::yes});
        if (answer == BoxAnswer::cancel) return false;
        if (answer == BoxAnswer::yes) return true;
    }
    forget_pieces(recipients);
    recipients.set_tag(text);
    return true;
}

}  // namespace send
