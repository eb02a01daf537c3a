#include "compose/personal/preview.h"

#include "compose/message_kinds.h"
#include "core/byte_length.h"
#include "core/personal_text.h"

namespace compose {

using platform::Text;

PersonalPreview::PersonalPreview(platform::Form& form, TextPanel& text, RecipientList& recipients)
    : Room(form), text_(text), recipients_(recipients) {
    const auto show_now = [this] { show(); };
    text.Check1.Click.connect(show_now);
    text.mText1.Change.connect(show_now);
    recipients.Counted.connect(show_now);
    recipients.ListView1.KeyUp.connect([this](platform::KeyPressed&) { show(); });
    recipients.ListView1.MouseUp.connect([this](platform::MouseButton) { show(); });
    Longest.Click.connect([this] { go_to_longest(); });
    show();
}

void PersonalPreview::show() {
    const bool personal = text_.Check1.checked() && text_.Frame1.visible();
    show_all({&PreviewHead, &Preview, &Longest}, personal);
    if (!personal) return;
    const platform::ListView& list = recipients_.ListView1;
    Longest.set_enabled(list.row_count() > 1);
    if (list.row_count() > 0) return show_row(list.selected_item().value_or(0));
    PreviewHead.set_caption(u"받는사람을 추가하면 받을 내용이 보입니다.");
    Preview.set_text(u"");
}

void PersonalPreview::show_row(std::size_t row) {
    const platform::ListView& list = recipients_.ListView1;
    const auto text = core::personal_text(platform::right_trim(text_.mText1.text()), list, row);
    PreviewHead.set_caption(list.row(row).sub_item(RECIPIENT_NAME) + Text(platform::CRLF) +
                            (text ? platform::decimal(core::BYTE_LEN(*text)) + u"Bytes, " +
                                        platform::decimal(core::count_pieces(*text, TEXT_LIMIT)) + u"건"
                                  : u"이름이 없어 발송되지 않습니다."));
    Preview.set_text(text.value_or(Text()));
}

void PersonalPreview::go_to_longest() {
    platform::ListView& list = recipients_.ListView1;
    const Text draft = platform::right_trim(text_.mText1.text());
    std::size_t longest = 0;
    std::size_t most_bytes = 0;
    for (std::size_t row = 0; row < list.row_count(); ++row) {
        const auto text = core::personal_text(draft, list, row);
        if (!text || core::BYTE_LEN(*text) <= most_bytes) continue;
        most_bytes = core::BYTE_LEN(*text);
        longest = row;
    }
    list.deselect_item();
    list.make_visible(longest);
    list.select_item(longest);
    show();
}

}  // namespace compose
