#include "compose/reply_box.h"

#include "compose/frmXTip.h"

namespace compose {

ReplyBox::ReplyBox(platform::Form& form, platform::Platform& platform, platform::Control& container)
    : Room(form),
      Label3_4(form_, u"Label3_4",
               u"작성한 메시지에서 지정한 번호를 수신자가 눌러 답변을 받으실 수 있습니다.") {
    put_into(container, {&Check2, &Combo4, &Command4});
    for (const auto* row : {u"1", u"2", u"3", u"4", u"5"}) Combo4.add_row(row);
    Combo4.set_list_index(0);
    Combo4.set_enabled(false);
    set_visible(false);
    Check2.Click.connect([this] { Combo4.set_enabled(Check2.checked()); });
    Command4.Click.connect([&platform] { frmXTip(platform).show_modal(); });
}

void ReplyBox::set_visible(bool visible) {
    show_all({&Check2, &Combo4, &Label3_4, &Label3_5, &Command4}, visible);
}

}  // namespace compose
