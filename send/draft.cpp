#include "send/draft.h"

#include "core/phone_number.h"
#include "core/work_folders.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>

namespace send {

using compose::Content;
using platform::Text;

namespace {

Text subject(const compose::frmZent& form) {
    Text text = platform::trim(platform::remove_all(form.subject.subjectText.text(), platform::CRLF));
    return text.empty() ? Text(compose::NO_SUBJECT) : text;
}

std::int32_t reply_count(const compose::frmZent& form) {
    if (!form.reply.Check2.checked()) return 0;
    const long answers = platform::round_half_even(platform::leading_number(form.reply.Combo4.text()));
    return static_cast<std::int32_t>(std::clamp(answers, 1L, 5L));
}

void attach(gateway::UmsMessage& message, const compose::frmZent& form, Content content,
            const Text& documents) {
    switch (content) {
        case Content::text:
        case Content::speech:
            return;
        case Content::recording:
        case Content::sound_file:
            message.s_attach_file_count = 1;
            message.s_attach_file = compose::voice_source_of(form.voice) == Content::sound_file
                                        ? form.voice.TTSFileTxt.text() + u";"
                                        : Text(core::SOUND_FOLDER) + Text(core::RECORDING_FILE) + u";";
            return;
        case Content::documents:
            message.s_attach_file_count = static_cast<std::int32_t>(form.fax.FAX1.row_count());
            message.s_attach_file = documents;
            return;
    }
}

}  // namespace

Text schedule_digits(const platform::DatePicker& date, const platform::ComboBox& hour,
                     const platform::ComboBox& minute) {
    return platform::format_date(date.value(), u"yyyyMMdd") + hour.text() + minute.text() + u"00";
}

gateway::UmsMessage message_of_draft(const compose::frmZent& form, const compose::CarrierKind* kind,
                                     const Text& documents, platform::LocalTime now) {
    gateway::UmsMessage message;
    message.s_subject = subject(form);
    message.s_schedule_time =
        form.schedule.Option1.chosen()
            ? platform::format_date(now, u"yyyyMMddHHnn00")
            : schedule_digits(form.schedule.DTP1, form.schedule.Combo1, form.schedule.Combo2);
    if (kind == nullptr) return message;
    message.SMSIndex = kind->SMSIndex;
    message.s_data_type = kind->s_data_type;
    message.s_data_sub_type = kind->s_data_sub_type;
    if (kind->callback)
        message.s_callback = core::DIGITS_ONLY(platform::trim(form.sender.txtCallback.text()));
    if (kind->reply) message.s_reply_flag = reply_count(form);
    if (kind->sms) {
        message.s_sms_content =
            kind->content == Content::text ? form.text.mText1.text() : form.plus.mText2.text();
    }
    if (kind->tts) message.s_tts_content = form.voice.ttsText.text();
    attach(message, form, kind->content, documents);
    return message;
}

}  // namespace send
