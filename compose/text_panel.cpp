#include "compose/text_panel.h"

#include "compose/message_kinds.h"
#include "compose/questions.h"
#include "core/boxes.h"
#include "core/byte_length.h"
#include "core/paths.h"
#include "core/saved_texts_folder.h"
#include "platform/error.h"

namespace compose {

using platform::KeyPressed;
using platform::Text;

namespace {

struct Emoticon {
    int index;
    platform::TextView caption;
};

/// Each is both the caption and the text that it inserts, in the order of the screen. The heart is meant to
/// be there twice.
constexpr std::array EMOTICONS = {
    Emoticon{27, u"(*_*)"},      Emoticon{26, u"(=_=;)"},
    Emoticon{25, u"(-.-)Zzz.."}, Emoticon{24, u"(^0^) (~0~)"},
    Emoticon{23, u"■"},          Emoticon{22, u"↓"},
    Emoticon{21, u"<@_@>"},      Emoticon{20, u"!(^_^)!(^_^)V"},
    Emoticon{19, u"♡"},          Emoticon{18, u"▶"},
    Emoticon{17, u"◀"},          Emoticon{16, u"♤"},
    Emoticon{15, u"♠"},          Emoticon{14, u"♣"},
    Emoticon{13, u"♩"},          Emoticon{12, u"♬"},
    Emoticon{11, u"♪"},          Emoticon{10, u"♨"},
    Emoticon{9, u"☎"},           Emoticon{8, u"☏"},
    Emoticon{7, u"◎"},           Emoticon{6, u"●"},
    Emoticon{5, u"○"},           Emoticon{4, u"☞"},
    Emoticon{3, u"☜"},           Emoticon{2, u"☆"},
    Emoticon{1, u"★"},           Emoticon{0, u"♡"},
};

/// How many names are tried for a text whose title is taken.
constexpr int MOST_NAMES = 200;

}  // namespace

TextPanel::TextPanel(platform::Form& form, platform::Platform& platform, Subject& subject, Sender& sender)
    : Room(form),
      Label1_4(
          form, u"Label1_4",
          u"수신인의 이름 또는 선택필드가 비워있는 경우 발송되지 않으니 반드시 확인하시기 바랍니다.(수신인 "
          u"이름+선택필드+메시지내용이 80Byte가 넘으면 입력된 전체 메시지를 80Byte씩 나누어 전송하게 "
          u"됩니다)"),
      recent(form, platform, Frame1, [this](const Text& text) { insert(text); }),
      platform_(platform),
      subject_(subject),
      sender_(sender) {
    for (const Emoticon& emoticon : EMOTICONS) {
        platform::CommandButton& button =
            mBttn1.emplace_back(form, u"mBttn1_" + platform::decimal(emoticon.index), Text(emoticon.caption));
        button.set_container(Frame1);
        button.set_tool_tip(u"누르면 문자 내용에 들어갑니다.");
        button.Click.connect([this, &button] {
            insert(button.caption());
            recent.add(button.caption());
        });
    }
    put_into(Frame1, {&Picture2, &MyMsgBttn, &MySave, &Check1, &Combo3});
    put_into(Picture2, {&mText1});
    mHLen3.hide();
    for (const auto* row : {u"선택해주세요.", u"{이름}", u"{직위}"}) Combo3.add_row(row);
    Combo3.set_list_index(0);
    Combo3.set_enabled(false);
    Label1_4.hide();

    mText1.Change.connect([this] { mText1_Change(); });
    mText1.KeyPress.connect([this](KeyPressed& key) { mText1_KeyPress(key); });
    mText1.LostFocus.connect([this] { subject_.freeze_behind_text(); });
    Picture2.GotFocus.connect([this] { mText1.set_focus(); });
    Check1.Click.connect([this] { switch_personal(); });
    Combo3.Click.connect([this] {
        if (Combo3.list_index() > 0) insert(Combo3.text());
    });
    MySave.Click.connect([this] { save(); });
}

void TextPanel::start() {
    recent.load();
    mText1.set_text(sender_.sender_tag());
    mText1_Change();
    mText1.set_caret_to_end();
}

void TextPanel::start_if_empty() {
    const Text text = platform::trim(mText1.text());
    if (text.empty() || text == u"[]") start();
}

void TextPanel::rename_sender(const Text& before, const Text& now) {
    mText1.set_text(platform::replace_all(mText1.text(), before, now));
}

Text TextPanel::body() const {
    return platform::trim(platform::remove_all(mText1.text(), sender_.sender_tag()));
}

void TextPanel::insert(const Text& text) {
    platform_.desktop.set_clipboard(text);
    mText1.paste(text);
    mText1.set_focus();
}

void TextPanel::mText1_Change() {
    applied_long_ = false;
    subject_.follow(mText1.text(), Subject::LENGTH);
    if (mText1.tag().empty() && !Check1.checked() && core::BYTE_LEN(mText1.text()) > TEXT_LIMIT) {
        if (ask_for_long_text(platform_.desktop, u"[예]를 선택하시면")) {
            mText1.set_tag(u"LONG");
            mText1.set_caret_to_end();
            Picture2.set_focus();
        } else {
            refuse_excess();
        }
    }
    const std::size_t bytes = core::BYTE_LEN(mText1.text());
    mHLen1.set_caption(platform::decimal(bytes) + u"Bytes");
    gauge.show(mText1.text(), TEXT_LIMIT);
    // Below the limit the user is to be asked again; at exactly 80 bytes the answer still holds.
    if (bytes < TEXT_LIMIT) mText1.set_tag(u"");
    mHLen3.set_visible(bytes > TEXT_LIMIT);
}

/// Shows that the field is full and cuts it. The focus goes to the picture box around the field, which
/// returns it at once.
void TextPanel::refuse_excess() {
    show_text_is_cut(platform_.desktop);
    Text text = mText1.text();
    mText1.set_text(core::LLL(text, TEXT_LIMIT));
    mText1.set_caret_to_end();
    Picture2.set_focus();
}

/// Only enforces the limit; the Change handler asks about a long message. The user has said yes to an applied
/// one: it stays whole until an edit makes it another text.
void TextPanel::mText1_KeyPress(KeyPressed& key) {
    if (key.code == platform::KEY_BACKSPACE || applied_long_) return;
    if (mText1.tag().empty() && !Check1.checked() && core::BYTE_LEN(mText1.text()) > TEXT_LIMIT)
        refuse_excess();
}

void TextPanel::switch_personal() {
    Combo3.set_enabled(Check1.checked());
    if (!Check1.checked()) {
        mText1.set_tag(u"");
        mText1_Change();
    }
    Label1_4.set_visible(Combo3.enabled());
}

void TextPanel::apply(Text text) {
    bool agreed = false;
    if (core::BYTE_LEN(text) > TEXT_LIMIT) {
        agreed = ask_for_long_text(platform_.desktop, u"[확인]을 하시면");
        if (agreed) {
            mText1.set_tag(u"LONG");
        } else {
            show_text_is_cut(platform_.desktop);
            text = core::LLL(text, TEXT_LIMIT);
        }
    }
    mText1.set_text(text);
    mText1.set_caret_to_end();
    // The answer was for this text only: the user is asked again at the next edit.
    mText1.set_tag(u"");
    applied_long_ = agreed;
}

void TextPanel::show_kept(const Text& text, bool agreed) {
    mText1.set_tag(u"LONG");
    mText1.set_text(text);
    if (agreed) return;
    mText1.set_tag(u"");
    applied_long_ = core::BYTE_LEN(text) > TEXT_LIMIT;
}

/// Saves the text into the box of saved texts, under the subject or, where that is taken, the subject and a
/// number.
void TextPanel::save() {
    core::make_saved_texts_folders(platform_);
    sender_.txtUserName.set_text(platform::trim(sender_.txtUserName.text()));
    const Text text = body();
    if (text.empty()) {
        core::warn(platform_.desktop, u"메시지 내용을 입력하세요!");
        mText1.set_focus();
        return;
    }
    subject_.fill_empty(mText1.text());

    const Text subject = subject_.subjectText.text();
    Text title = subject;
    try {
        // Checked first: a wildcard in the subject would match other texts below.
        core::check_saved_text_name(platform_, core::DEFAULT_CATEGORY, subject);
        for (int i = 1;
             core::FILE_EXISTS(platform_, core::saved_text_path(platform_, core::DEFAULT_CATEGORY, title));
             ++i) {
            title = subject + platform::decimal(i);
            if (i > MOST_NAMES) {
                platform_.desktop.message_box({.text = u"'" + title + u"' 제목은 이미 존재하고 있습니다."});
                return;
            }
        }
        core::write_saved_text(platform_, core::DEFAULT_CATEGORY, title, text);
    } catch (const platform::RuntimeError& error) {
        return show_not_saved(error);
    }
    platform_.desktop.message_box({.text = u"내 모음함에 '" + title + u"' 제목으로 등록 되었습니다.",
                                   .icon = platform::BoxIcon::information});
}

/// A name that cannot be is the subject, which the user may not have typed: the box says so, and the focus
/// goes there.
void TextPanel::show_not_saved(const platform::RuntimeError& error) {
    if (error.number() != static_cast<int>(platform::ErrorNumber::bad_file_name))
        return core::show_error(platform_.desktop, error, platform::BoxIcon::critical);
    core::show_error(
        platform_.desktop,
        {platform::ErrorNumber::bad_file_name,
         u"발송제목이 저장할 이름이 됩니다. 발송제목을 고쳐 주십시오.\r\n\r\n" + error.description()},
        platform::BoxIcon::critical);
    subject_.subjectText.set_focus();
}

}  // namespace compose
