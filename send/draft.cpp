#include "send/draft.h"

#include "core/phone_number.h"
#include "core/work_folders.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>

namespace send {

using platform::Text;

namespace {

/// The tab of TabStrip2 where a sound file is chosen.
constexpr int SOUND_FILE_TAB = 3;

Text subject(const compose::frmZent& form) {
    Text text = platform::trim(platform::remove_all(form.subjectText.text(), platform::CRLF));
    return text.empty() ? Text(u"제목없음") : text;
}

std::int32_t reply_count(const compose::frmZent& form) {
    if (!form.Check2.checked() || !form.Check2.on_screen()) return 0;
    const long answers = platform::round_half_even(platform::leading_number(form.Combo4.text()));
    return static_cast<std::int32_t>(std::clamp(answers, 1L, 5L));
}

Text sms_text(const compose::frmZent& form) {
    return form.Frame1[1].on_screen() ? form.mText2.text() : form.mText1.text();
}

Text tts_text(const compose::frmZent& form) {
    return form.TPIC[0].on_screen() ? form.ttsText.text() : Text();
}

void attach(gateway::UmsMessage& message, const compose::frmZent& form, Content content) {
    if (content == Content::recording || content == Content::sound_file) {
        message.s_attach_file_count = 1;
        message.s_attach_file = form.TabStrip2.selected() == SOUND_FILE_TAB
                                    ? form.TTSFileTxt.text() + u";"
                                    : Text(core::SOUND_FOLDER) + u"tmp.wav;";
    } else if (content == Content::documents) {
        message.s_attach_file_count = static_cast<std::int32_t>(form.FAX1.row_count());
        message.s_attach_file = form.FAX1.tag();
    }
}

}  // namespace

void fill_empty_callback(compose::frmZent& form, const core::AppState& state) {
    if (!platform::trim(form.txtCallback.text()).empty()) return;
    form.txtCallback.set_text(gateway::CLEAN_FIXED_TEXT(state.session.gInfoCallback));
}

Text schedule_digits(const platform::DatePicker& date, const platform::ComboBox& hour,
                     const platform::ComboBox& minute) {
    return platform::format_date(date.value(), u"yyyyMMdd") + hour.text() + minute.text() + u"00";
}

gateway::UmsMessage message_of_draft(const compose::frmZent& form, const Kind* kind,
                                     platform::LocalTime now) {
    gateway::UmsMessage message;
    message.s_subject = subject(form);
    message.s_schedule_time = form.Option1.chosen() ? platform::format_date(now, u"yyyyMMddHHnn00")
                                                    : schedule_digits(form.DTP1, form.Combo1, form.Combo2);
    if (kind == nullptr) return message;
    message.SMSIndex = kind->SMSIndex;
    message.s_data_type = kind->s_data_type;
    message.s_data_sub_type = kind->s_data_sub_type;
    if (kind->callback) message.s_callback = core::DIGITS_ONLY(platform::trim(form.txtCallback.text()));
    if (kind->reply) message.s_reply_flag = reply_count(form);
    if (kind->sms) message.s_sms_content = sms_text(form);
    if (kind->tts) message.s_tts_content = tts_text(form);
    attach(message, form, kind->content);
    return message;
}

}  // namespace send
