#include "compose/questions.h"

#include "core/boxes.h"

#include <algorithm>

namespace compose {

using platform::BoxIcon;
using platform::Text;

bool ask_for_long_text(platform::Desktop& desktop, platform::TextView yes) {
    return core::ask(desktop,
                     u"[장문메시지 알림] 80Byte이상 입력하시겠습니까?\r\n\r\n" + Text(yes) +
                         u" 입력된 전체 메시지를 80Byte씩 나누어서 전송하게 됩니다.",
                     u"장문메시지 확인", BoxIcon::question);
}

void show_text_is_cut(platform::Desktop& desktop) {
    core::warn(desktop, u"입력하신 문자가 80Byte를 넘었습니다.\r\n한 번에 80Byte까지만 전송이 가능합니다.",
               u"입력 초과");
}

bool ask_to_check_again(platform::Desktop& desktop, std::size_t recipients) {
    return core::ask(
        desktop,
        u"이미 등록되었거나(등록성공) 등록되었을 수 있는(확인필요) 받는사람이 " +
            platform::decimal(recipients) +
            u"명 있습니다.\r\n\r\n이 받는사람에게도 다시 보내도록 선택하시겠습니까?\r\n\r\n[아니오]를 "
            u"선택하시면 나머지 받는사람만 선택합니다.",
        u"선택 확인", BoxIcon::question, platform::BoxAnswer::no);
}

platform::TakenRows remove_selected_rows(platform::Desktop& desktop, platform::ListView& list) {
    if (!list.selected_item()) return {};
    if (!core::ask(desktop, u"선택한 목록을 삭제하시겠습니까?", u"삭제 확인", BoxIcon::exclamation))
        return {};
    platform::TakenRows removed = list.take_rows(&platform::ListItem::selected);
    if (!removed.empty() && list.row_count() > 0)
        list.go_to(std::min(removed.front().first, list.row_count() - 1));
    return removed;
}

}  // namespace compose
