#include "send/send_check.h"

#include "core/boxes.h"
#include "core/paths.h"
#include "core/phone_number.h"
#include "core/work_folders.h"
#include "platform/text/cp949.h"
#include "send/confirmation.h"
#include "send/draft.h"
#include "send/forecast.h"
#include "send/frmZentSend.h"
#include "send/pieces.h"

#include <optional>

namespace send {

using compose::CarrierKind;
using compose::Content;
using compose::frmZent;
using compose::KindOfMessage;
using core::AppState;
using platform::Platform;
using platform::Text;

namespace {

bool check_text(const Platform& platform, frmZent& form) {
    if (!form.text.body().empty()) return true;
    core::warn(platform.desktop, u"메시지 내용을 입력하십시오!");
    form.text.mText1.set_focus();
    return false;
}

bool check_speech(const Platform& platform, frmZent& form) {
    if (!platform::trim(platform::remove_all(form.voice.ttsText.text(), platform::CRLF)).empty()) return true;
    core::warn(platform.desktop, u"음성으로 변환할 TTS내용을 입력하십시오.");
    form.voice.ttsText.set_focus();
    return false;
}

bool check_sound_file(const Platform& platform, frmZent& form) {
    form.voice.translate_machine_path();
    if (core::FILE_EXISTS(platform, form.voice.TTSFileTxt.text())) return true;
    core::warn(platform.desktop, u"첨부할 WAV파일을 선택하여 주십시오.");
    form.voice.focus_source();
    return false;
}

/// The list of the documents as the carrier takes it, which also goes into the tag of `FAX1`; nothing when
/// one is missing.
std::optional<Text> check_documents(const Platform& platform, frmZent& form) {
    const platform::ListView& documents = form.fax.FAX1;
    if (documents.row_count() == 0) {
        core::warn(platform.desktop, u"보낼문서를 지정하여 주십시오.");
        form.fax.FAXBttn1.set_focus();
        return std::nullopt;
    }
    Text list;
    form.fax.FAX1.set_tag({});
    for (std::size_t row = 0; row < documents.row_count(); ++row) {
        const Text& path = documents.row(row).text();
        if (!core::FILE_EXISTS(platform, path)) {
            core::warn(platform.desktop, path + u"\r\n\r\n위 파일을 찾을 수 없습니다. 확인하여 주십시오.");
            form.fax.FAX1.set_focus();
            return std::nullopt;
        }
        list += path + u";";
        form.fax.FAX1.set_tag(list);
    }
    return list;
}

/// Whether the message holds what it must. The list of a fax's documents is returned in `documents`.
bool check_content(const Platform& platform, frmZent& form, Content content, Text& documents) {
    switch (content) {
        case Content::text:
            return check_text(platform, form);
        case Content::speech:
            return check_speech(platform, form);
        case Content::recording:
            return !form.voice.RFK1.SaveWave(Text(core::SOUND_FOLDER), Text(core::RECORDING_FILE));
        case Content::sound_file:
            return check_sound_file(platform, form);
        case Content::documents: {
            const std::optional<Text> list = check_documents(platform, form);
            documents = list.value_or(Text());
            return list.has_value();
        }
    }
    return false;
}

/// What is wrong with the number for this kind of message; empty when nothing is.
Text fault_of_recipient(const frmZent& form, const Text& number, const KindOfMessage& kind) {
    // Deliberately the caption of column 2, the name, though the number stands in column 3: support knows the
    // boxes so.
    const Text& column = form.recipients.ListView1.column(2).caption;
    const Text digits = core::DIGITS_ONLY(number);
    if (digits.empty())
        return compose::wrong_number(column, number, u"(전송할 " + column + u"을(를) 입력하여 주십시오.)");
    const platform::TextView fault = compose::fault_of_number(kind, digits);
    if (fault.empty()) return {};
    const bool by_rule = fault == kind.number.refusal && !kind.number.name_when_sent.empty();
    return compose::wrong_number(by_rule ? kind.number.name_when_sent : column, number, fault);
}

void refuse_row(const Platform& platform, frmZent& form, std::size_t row, const Text& fault) {
    form.recipients.PBar1.hide();
    platform.desktop.set_pointer(platform::Pointer::normal);
    core::warn(platform.desktop, fault);
    form.recipients.ListView1.go_to(row);
    form.recipients.ListView1.set_focus();
}

/// The checked rows, each with a number that can be sent to; nothing when one has none or no row is checked.
std::optional<Recipients> check_recipients(const Platform& platform, frmZent& form,
                                           const KindOfMessage& kind) {
    const std::size_t rows = form.recipients.ListView1.row_count();
    if (rows == 0) {
        core::warn(platform.desktop, u"받는사람을 입력하여 주십시오!");
        form.recipients.HText1[0].set_focus();
        return std::nullopt;
    }
    form.recipients.PBar1.set_value(0);
    form.recipients.PBar1.show();
    Recipients recipients;
    for (std::size_t row = 0; row < rows; ++row) {
        const platform::ListItem& recipient = form.recipients.ListView1.row(row);
        if (recipient.checked()) {
            const Text& number = recipient.sub_item(compose::RECIPIENT_NUMBER);
            if (const Text fault = fault_of_recipient(form, number, kind); !fault.empty()) {
                refuse_row(platform, form, row, fault);
                return std::nullopt;
            }
            if (++recipients.count == 1) {
                recipients.first_name = recipient.sub_item(compose::RECIPIENT_NAME);
                recipients.first_number = number;
            }
        }
        form.recipients.PBar1.set_progress(row + 1, rows);
    }
    form.recipients.PBar1.hide();
    form.recipients.RECIPIENT_COUNT_CAPTION();
    if (recipients.count > 0) return recipients;
    platform.desktop.set_pointer(platform::Pointer::normal);
    core::warn(platform.desktop, u"받는사람을 선택하여 주십시오.");
    form.recipients.ListView1.set_focus();
    return std::nullopt;
}

/// Takes the characters that the carrier cannot send out of what goes to it.
void take_out_lost_characters(frmZent& form, const CarrierKind& kind) {
    const auto take_out = [](platform::TextBox& field) {
        field.set_text(platform::without_lost_in_cp949(field.text()));
    };
    // Before the text changes, which the subject may follow.
    const Text subject = platform::without_lost_in_cp949(form.subject.subjectText.text());
    if (kind.sms) take_out(kind.content == Content::text ? form.text.mText1 : form.plus.mText2);
    if (kind.tts) take_out(form.voice.ttsText);
    form.subject.subjectText.set_text(subject);
}

bool confirmed(Platform& platform, AppState& state, frmZent& form, const CarrierKind& kind,
               const Recipients& recipients, Text& documents) {
    state.forms.gDialogConfirmed = false;
    frmSBox box(platform, state);
    const auto show_draft = [&] {
        const auto message = message_of_draft(form, &kind, documents, platform.clock.now());
        box.show_draft(form, confirmation_text(form, kind, recipients), recipients.count,
                       forecast_of(form, message));
    };
    box.load();
    box.Label1.set_caption(Text(kind.name) + u" 발송을 시작하시겠습니까?");
    show_draft();
    box.TakeOut.Click.connect([&] {
        take_out_lost_characters(form, kind);
        // Nothing may be left.
        check_content(platform, form, kind.content, documents) ? show_draft() : box.cancel();
    });
    box.show_modal();
    return state.forms.gDialogConfirmed;
}

}  // namespace

void check_and_send(Platform& platform, AppState& state, frmZent& form, drafts::DraftKeeper& drafts) {
    if (!state.session.gLoggedIn) {
        core::warn(platform.desktop, u"KT 폰디라 Login과정을 거쳐야 합니다.");
        form.session.cmdLogin_Click();
        return;
    }
    core::make_folder_when_missing(platform, Text(core::SOUND_FOLDER));
    form.subjectText_CHECK();
    form.sender.txtUserName.set_text(platform::trim(form.sender.txtUserName.text()));
    form.sender.fill_empty_callback();

    const KindOfMessage& kind = kind_of(form);
    const CarrierKind& carrier = carrier_kind(kind, content_of(form));
    Text documents;
    if (!check_content(platform, form, carrier.content, documents)) return;
    if (!form.recipients.settle_typed()) return;
    const auto recipients = check_recipients(platform, form, kind);
    if (!recipients || !schedule_is_possible(platform, form)) return;

    // No hand-over of the card manager may change the list while the user reads the box.
    form.Timer1.set_enabled(false);
    if (confirmed(platform, state, form, carrier, *recipients, documents) && settle_pieces(platform, form) &&
        drafts.ready_for_job()) {
        form.recipients.leave_draft();
        frmZentSend job(platform, state, form, drafts);
        job.load();
        job.set_caption(Text(carrier.name));
        job.Documents = documents;
        job.MSGSendCount = recipients->count;
        job.show_modal();
        form.recipients.RECIPIENT_COUNT_CAPTION();
        platform.desktop.set_pointer(platform::Pointer::normal);
        // The same text often goes to the next people.
        form.recipients.HText1[0].set_focus();
        form.recipient_outcomes.go_to_first_left();
    }
    form.Timer1.set_enabled(true);
}

}  // namespace send
