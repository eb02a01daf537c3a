#include "compose/reply_box.h"

#include "compose/frmXTip.h"

namespace compose {

ReplyBox::ReplyBox(platform::Form& form, platform::Platform& platform, platform::Control& container)
    : Check2(form, u"Check2", u"답변받기"),
      Label3_5(form, u"Label3_5", u"답변 개수:"),
      Combo4(form, u"Combo4"),
      Command4(form, u"Command4", u"답변받기 설명"),
      Label3_4(form, u"Label3_4",
               u"작성한 메시지에서 지정한 번호를 수신자가 눌러 답변을 받으실 수 있습니다.") {
    Check2.set_container(container);
    Combo4.set_container(container);
    Command4.set_container(container);
    for (const auto* row : {u"1", u"2", u"3", u"4", u"5"}) Combo4.add_row(row);
    Combo4.set_list_index(0);
    Combo4.set_enabled(false);
    set_visible(false);
    Check2.Click.connect([this] { Combo4.set_enabled(Check2.checked()); });
    Command4.Click.connect([&platform] { frmXTip(platform).show_modal(); });
}

void ReplyBox::set_visible(bool visible) {
    Check2.set_visible(visible);
    Combo4.set_visible(visible);
    Label3_4.set_visible(visible);
    Label3_5.set_visible(visible);
    Command4.set_visible(visible);
}

}  // namespace compose
