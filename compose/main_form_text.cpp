// Text entry: byte limits, long messages, the subject that follows the body, what is inserted at the caret.

#include "compose/main_form.h"
#include "core/boxes.h"
#include "core/byte_length.h"
#include "core/settings.h"

namespace compose {

using platform::CRLF;
using platform::KeyPressed;
using platform::Text;

namespace {

constexpr std::size_t SUBJECT_LENGTH = 15;

Text without_line_ends(platform::TextView text) { return platform::remove_all(text, CRLF); }

}  // namespace

void frmZent::connect_text() {
    mHLen3.hide();
    Combo3.set_enabled(false);
    Label1_4.hide();

    mText1.Change.connect([this] { mText1_Change(); });
    mText1.KeyPress.connect([this](KeyPressed& key) { mText1_KeyPress(key); });
    mText1.LostFocus.connect([this] { freeze_subject(); });
    Picture2[0].GotFocus.connect([this] { mText1.set_focus(); });
    mText2.Change.connect([this] { mText2_Change(); });
    mText2.KeyPress.connect([this](KeyPressed&) { mText2_KeyPress(); });
    mText2.LostFocus.connect([this] { freeze_subject(); });
    Picture2[1].GotFocus.connect([this] { mText2.set_focus(); });
    ttsText.Change.connect([this] { ttsText_Change(); });
    ttsText.KeyPress.connect([this](KeyPressed& key) { ttsText_KeyPress(key); });
    subjectText.Change.connect([this] { subjectText_Change(); });
    subjectText.LostFocus.connect([this] { freeze_subject(); });
    Check1.Click.connect([this] { Check1_Click(); });
    Combo3.Click.connect([this] { Combo3_Click(); });
    txtUserName.GotFocus.connect([this] { txtUserName.set_tag(u"[" + txtUserName.text() + u"]"); });
    txtUserName.LostFocus.connect([this] { txtUserName_LostFocus(); });
    txtCallback.LostFocus.connect([this] { save_callback(core::settings::SENDER_NUMBER_LEFT); });
    MySave.Click.connect([this] { MySave_Click(); });
}

void frmZent::start_text_message() {
    mText1.set_text(sender_tag());
    mText1_Change();
}

void frmZent::start_plus_message() {
    mText2.set_text(sender_tag() + u"\r\n\r\n\r\n\r\n☎통화를눌러확인하세요");
    mText2_Change();
}

void frmZent::insert_text(const Text& text) {
    platform_.desktop.set_clipboard(text);
    mText1.paste(text);
}

void frmZent::follow_subject(const Text& body, std::size_t limit) {
    if (platform::trim(subjectText.text()).size() >= SUBJECT_LENGTH || !subjectText.tag().empty()) return;
    subjectText.set_text(without_line_ends(body).substr(0, limit));
}

void frmZent::mText1_Change() {
    follow_subject(mText1.text(), SUBJECT_LENGTH);
    if (mText1.tag().empty() && !Check1.checked() && core::BYTE_LEN(mText1.text()) > TEXT_LIMIT) {
        if (core::ask(platform_.desktop,
                      u"[장문메시지 알림] 80Byte이상 입력하시겠습니까?\r\n\r\n[예]를 선택하시면 입력된 전체 "
                      u"메시지를 80Byte씩 "
                      u"나누어서 전송하게 됩니다.",
                      u"장문메시지 확인", platform::BoxIcon::question)) {
            mText1.set_tag(u"LONG");
            mText1.set_caret_to_end();
            Picture2[0].set_focus();
        } else {
            refuse_excess(mText1, Picture2[0]);
        }
    }
    const std::size_t bytes = core::BYTE_LEN(mText1.text());
    mHLen1.set_caption(platform::decimal(bytes) + u"Bytes");
    // Below the limit the question is armed again; at exactly 80 bytes the answer still holds.
    if (bytes < TEXT_LIMIT) mText1.set_tag(u"");
    mHLen3.set_visible(bytes > TEXT_LIMIT);
}

/// Tells that the field is full and cuts it. The focus goes to the box around the field, which gives it back
/// at once.
void frmZent::refuse_excess(platform::TextBox& field, platform::PictureBox& box) {
    core::warn(platform_.desktop,
               u"입력하신 문자가 80Byte를 넘었습니다.\r\n한 번에 80Byte까지만 전송이 가능합니다.",
               u"입력 초과");
    Text text = field.text();
    field.set_text(core::LLL(text, TEXT_LIMIT));
    field.set_caret_to_end();
    box.set_focus();
}

/// Enforces only: the question about a long message is the change handler's.
void frmZent::mText1_KeyPress(KeyPressed& key) {
    if (key.code == platform::KEY_BACKSPACE) return;
    if (mText1.tag().empty() && !Check1.checked() && core::BYTE_LEN(mText1.text()) > TEXT_LIMIT) {
        refuse_excess(mText1, Picture2[0]);
    }
}

void frmZent::mText2_Change() {
    // Not cut to a subject's length, unlike the other text.
    follow_subject(mText2.text(), Text::npos);
    if (core::BYTE_LEN(mText2.text()) > TEXT_LIMIT) refuse_excess(mText2, Picture2[1]);
    mHLen2.set_caption(platform::decimal(core::BYTE_LEN(mText2.text())) + u"/80Byte");
}

/// Every key, backspace too.
void frmZent::mText2_KeyPress() {
    if (core::BYTE_LEN(mText2.text()) > TEXT_LIMIT) refuse_excess(mText2, Picture2[1]);
}

void frmZent::ttsText_Change() {
    if (core::BYTE_LEN(ttsText.text()) > TTS_LIMIT) {
        const std::size_t caret = ttsText.selection_start();
        refuse_tts_excess();
        ttsText.select(caret, 0);
    }
    TTSHLen.set_caption(platform::decimal(core::BYTE_LEN(ttsText.text())) + u"/1000Byte");
}

void frmZent::ttsText_KeyPress(KeyPressed& key) {
    if (key.code == platform::KEY_BACKSPACE || core::BYTE_LEN(ttsText.text()) <= TTS_LIMIT) return;
    refuse_tts_excess();
    ttsText.set_focus();
}

void frmZent::refuse_tts_excess() {
    core::warn(platform_.desktop,
               u"입력하신 문자가 1000Byte를 넘었습니다.\r\n한 번에 1000Byte까지만 전송이 가능합니다.",
               u"입력 초과");
    Text text = ttsText.text();
    ttsText.set_text(core::LLL(text, TTS_LIMIT));
}

void frmZent::freeze_subject() {
    if (!platform::trim(subjectText.text()).empty()) subjectText.set_tag(u"END");
}

void frmZent::subjectText_Change() {
    const std::size_t length = platform::trim(subjectText.text()).size();
    if (length == 0) subjectText.set_tag(u"");
    if (length > SUBJECT_LENGTH) subjectText.set_tag(u"END");
}

void frmZent::subjectText_CHECK() {
    if (!platform::trim(subjectText.text()).empty()) return;
    if (TabStrip1.selected() == TEXT_MESSAGE) {
        const Text title = platform::trim(without_line_ends(platform::trim(mText1.text())));
        if (!title.empty()) subjectText.set_text(title.substr(0, SUBJECT_LENGTH));
    }
    if (subjectText.text().empty()) subjectText.set_text(u"제목없음");
}

void frmZent::Check1_Click() {
    Combo3.set_enabled(Check1.checked());
    if (!Check1.checked()) {
        mText1.set_tag(u"");
        mText1_Change();
    }
    Label1_4.set_visible(Combo3.enabled());
}

void frmZent::Combo3_Click() {
    if (Combo3.list_index() > 0) insert_text(Combo3.text());
}

void frmZent::txtUserName_LostFocus() {
    save_sender_name();
    if (txtUserName.text().empty() || TabStrip1.selected() != TEXT_MESSAGE) return;
    mText1.set_text(
        platform::replace_all(mText1.text(), txtUserName.tag(), u"[" + txtUserName.text() + u"]"));
}

}  // namespace compose
