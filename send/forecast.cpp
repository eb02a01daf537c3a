#include "send/forecast.h"

#include "core/byte_length.h"
#include "core/paths.h"
#include "core/personal_text.h"
#include "platform/text/cp949.h"
#include "platform/text/format.h"
#include "send/batch.h"
#include "send/pace.h"
#include "send/pieces.h"

#include <algorithm>

namespace send {

using compose::Content;
using platform::CRLF;
using platform::Text;
using std::chrono::milliseconds;

namespace {

void add_text(Forecast& forecast, const Text& text) {
    const int messages = core::count_pieces(text, compose::TEXT_LIMIT);
    if (forecast.most_messages == 0) {
        forecast.content = text;
        forecast.fewest_messages = messages;
    }
    forecast.bytes = std::max(forecast.bytes, core::BYTE_LEN(platform::right_trim(text)));
    forecast.fewest_messages = std::min(forecast.fewest_messages, messages);
    forecast.most_messages = std::max(forecast.most_messages, messages);
}

/// Every recipient has a text of his own, each piece of which is registered alone.
void add_personal_texts(Forecast& forecast, const compose::frmZent& form) {
    const platform::ListView& recipients = form.recipients.ListView1;
    forecast.one_by_one = true;
    for (std::size_t row = 0; row < recipients.row_count(); ++row) {
        if (!recipients.row(row).checked()) continue;
        const auto text = core::personal_text(form.text.mText1.text(), recipients, row);
        if (!text) {
            ++forecast.nameless;
            continue;
        }
        add_text(forecast, *text);
        forecast.submits += core::count_pieces(*text, compose::TEXT_LIMIT);
    }
    forecast.messages = static_cast<std::size_t>(forecast.submits);
}

void add_attachments(Forecast& forecast, const gateway::UmsMessage& message, Content content) {
    const auto add_line = [&](const Text& line) {
        if (!forecast.content.empty()) forecast.content += CRLF;
        forecast.content += line;
    };
    if (content == Content::speech) add_line(u"[음성] " + message.s_tts_content);
    if (content == Content::recording) add_line(u"[음성] 마이크로 녹음한 음성");
    if (content != Content::sound_file && content != Content::documents) return;
    for (const platform::TextView path : platform::split(message.s_attach_file, u';')) {
        if (path.empty()) continue;
        add_line((content == Content::documents ? u"[문서] " : u"[음성] ") + core::FILE_NAME_OF(path));
    }
}

std::size_t lost_characters(const gateway::UmsMessage& message) {
    std::size_t lost = 0;
    for (const Text* text : {&message.s_subject, &message.s_sms_content, &message.s_tts_content})
        lost += platform::lost_in_cp949(*text).size();
    return lost;
}

}  // namespace

Forecast forecast_of(const compose::frmZent& form, const gateway::UmsMessage& message) {
    const compose::KindOfMessage& kind = kind_of(form);
    const compose::CarrierKind& carrier = carrier_kind(kind, content_of(form));
    compose::Pauses pauses = kind.pauses;
    Forecast forecast;
    if (carrier.content == Content::text && form.text.Check1.checked() &&
        core::has_placeholder(message.s_sms_content)) {
        pauses = compose::PERSONAL_PAUSES;
        add_personal_texts(forecast, form);
    } else {
        if (carrier.sms) add_text(forecast, message.s_sms_content);
        const int passes = carrier.content == Content::text ? std::max(forecast.most_messages, 1) : 1;
        forecast.submits = count_batches(form.recipients.ListView1, 0) * passes;
        forecast.messages =
            form.recipients.ListView1.checked_count() * static_cast<std::size_t>(forecast.most_messages);
    }
    // Some have a part of the text, and the user is asked later whether they get the rest or all of it.
    if (!pieces_report(form.recipients.ListView1).empty()) forecast.messages = 0;
    add_attachments(forecast, message, carrier.content);
    forecast.pauses = milliseconds(pauses.after_success + pauses.before_unbind) * forecast.submits;
    forecast.lost_characters = lost_characters(message);
    return forecast;
}

Text amount_in_words(const Forecast& forecast) {
    Text words;
    if (forecast.most_messages > 0) {
        const bool differ = forecast.fewest_messages != forecast.most_messages;
        words = (forecast.one_by_one ? u"최대 " : u"") + platform::decimal(forecast.bytes) + u"Bytes" +
                Text(CRLF) + u"한 사람에 " +
                (differ ? platform::decimal(forecast.fewest_messages) + u"~" : Text()) +
                platform::decimal(forecast.most_messages) + u"건" + Text(CRLF);
        if (forecast.most_messages > 1 && forecast.messages > 0)
            words += u"모두 " + platform::counted(forecast.messages, u"건") + Text(CRLF);
    }
    words += forecast.one_by_one ? Text(u"한 사람씩 등록")
                                 : platform::decimal(forecast.submits) + u"묶음으로 등록";
    return words + Text(CRLF) + about(forecast.pauses);
}

}  // namespace send
