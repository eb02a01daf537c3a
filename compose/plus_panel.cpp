#include "compose/plus_panel.h"

#include "compose/message_kinds.h"
#include "compose/questions.h"
#include "core/byte_length.h"

namespace compose {

using platform::Text;

namespace {

/// Ends every new text: what the recipient does to hear the voice.
constexpr platform::TextView CALL_LINE = u"☎통화를눌러확인하세요";

}  // namespace

PlusPanel::PlusPanel(platform::Form& form, platform::Desktop& desktop, platform::Control& container,
                     Subject& subject, const Sender& sender)
    : Room(form), desktop_(desktop), subject_(subject), sender_(sender) {
    put_into(container, {&Picture2});
    put_into(Picture2, {&mText2});
    mText2.Change.connect([this] { mText2_Change(); });
    // On every key, backspace too.
    mText2.KeyPress.connect([this](platform::KeyPressed&) { refuse_excess(); });
    mText2.LostFocus.connect([this] { subject_.freeze_behind_text(); });
    Picture2.GotFocus.connect([this] { mText2.set_focus(); });
}

void PlusPanel::start() {
    const Text sender = sender_.sender_tag();
    mText2.set_text(sender + u"\r\n\r\n\r\n\r\n" + Text(CALL_LINE));
    mText2_Change();
    mText2.select(sender.size(), 0);
}

void PlusPanel::start_if_empty() {
    const Text text = platform::trim(mText2.text());
    if (text.empty() || text == u"[]") start();
}

Text PlusPanel::body() const {
    const Text text = platform::remove_all(mText2.text(), sender_.sender_tag());
    return platform::trim(platform::remove_all(platform::remove_all(text, CALL_LINE), platform::CRLF));
}

void PlusPanel::mText2_Change() {
    // Not cut to a subject's length, unlike the other text.
    subject_.follow(mText2.text());
    refuse_excess();
    mHLen2.set_caption(platform::decimal(core::BYTE_LEN(mText2.text())) + u"/80Byte");
    gauge.show(mText2.text(), TEXT_LIMIT);
}

/// Shows that the text is too long and cuts it. The focus goes to the picture box around the field, which
/// returns it at once.
void PlusPanel::refuse_excess() {
    Text text = mText2.text();
    if (core::BYTE_LEN(text) <= TEXT_LIMIT) return;
    show_text_is_cut(desktop_);
    mText2.set_text(core::LLL(text, TEXT_LIMIT));
    mText2.set_caret_to_end();
    Picture2.set_focus();
}

}  // namespace compose
