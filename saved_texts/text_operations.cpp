// Texts: a new one, the edit of the selected one, its removal, its way into the draft.

#include "core/boxes.h"
#include "core/paths.h"
#include "core/saved_texts_folder.h"
#include "platform/text/cp949.h"
#include "saved_texts/frmMyMsgBox.h"
#include "saved_texts/store.h"

namespace saved_texts {

using platform::BoxAnswer;
using platform::BoxIcon;
using platform::Text;

/// Cleans the fields; false, after a box that says so, when one of them is empty then.
bool frmMyMsgBox::take_fields() {
    txtText.set_text(platform::right_trim(txtText.text()));
    Text1.set_text(clean_title(platform::trim(Text1.text())));
    if (txtText.text().empty()) {
        core::warn(platform_.desktop, u"메시지 내용을 입력하세요!");
        txtText.set_focus();
        return false;
    }
    if (platform::trim(Text1.text()).empty()) {
        core::warn(platform_.desktop, u"'제목'을 입력하여 주십시오.");
        Text1.set_focus();
        return false;
    }
    return true;
}

bool frmMyMsgBox::is_saved(const Text& category, const Text& title) const {
    return core::FILE_EXISTS(platform_, core::saved_text_path(platform_, category, title));
}

void frmMyMsgBox::empty_fields() {
    Text1.set_text(u"");
    txtText.set_text(u"");
    source_.reset();
    show_chosen();
}

void frmMyMsgBox::save_new_text() {
    const auto category = selected_category();
    if (!category || !take_fields()) return;
    const Text title = Text1.text();
    if (is_saved(*category, title)) {
        core::warn(platform_.desktop, u"'" + title + u"' 제목은 이미 존재하고 있습니다.");
        Text1.set_focus();
        return;
    }
    show_failures_of([&] {
        core::write_saved_text(platform_, *category, title, txtText.text());
        empty_fields();
        SearchText.set_text(u"");
        list_selected_category();
        platform_.desktop.message_box({.text = u"저장 되었습니다.", .icon = BoxIcon::information});
    });
}

void frmMyMsgBox::save_edited_text() {
    const auto category = selected_category();
    if (ListView2.row_count() == 0 || !category || !lists(*category)) return;
    const auto row = ListView2.selected_item();
    // The program selects rows too, and the fields keep what they held before.
    if (!row || !source_ || source_of(*row) != source_) {
        core::warn(platform_.desktop, u"수정할 자료를 먼저 선택하세요!");
        return;
    }
    if (!take_fields()) return;
    const Text old_title = ListView2.row(*row).text();
    const Text title = Text1.text();
    const Text body = txtText.text();
    // Two titles that differ by a blank alone are two texts, too.
    if (old_title != title && is_saved(*category, title)) {
        platform_.desktop.message_box({.text = u"'" + title + u"' 제목은 이미 존재하고 있습니다."});
        return;
    }
    show_failures_of([&] {
        core::check_category(platform_, *category);
        if (old_title != title) core::check_saved_text_name(platform_, *category, title);
        // Written under the old title and then renamed: whenever the program ends, there is one file, with
        // the old text or the new one.
        const Text old_path = core::category_folder(platform_, *category) + source_->file;
        platform_.files.write(old_path, platform::encode_cp949(body));
        ListView2.set_sub_item(*row, TEXT_LINE, in_one_line(body));
        ListView2.set_sub_item(*row, TEXT_BODY, body);
        taken_ = fields();
        if (old_title != title) {
            platform_.files.rename(old_path, core::saved_text_path(platform_, *category, title));
            ListView2.set_item_text(*row, title);
            ListView2.set_sub_item(*row, TEXT_FILE, title + Text(core::SAVED_TEXT_EXTENSION));
            source_ = source_of(*row);
        }
        platform_.desktop.message_box({.text = u"수정 되었습니다.", .icon = BoxIcon::information});
    });
}

void frmMyMsgBox::remove_text() {
    const auto category = selected_category();
    if (ListView2.row_count() == 0 || !category || !lists(*category)) return;
    const auto row = ListView2.selected_item();
    if (!row) {
        core::warn(platform_.desktop, u"삭제할 자료를 먼저 선택하세요!");
        return;
    }
    const Text title = ListView2.row(*row).text();
    const Text file = ListView2.row(*row).sub_item(TEXT_FILE);
    if (!core::ask(platform_.desktop, u"제목:" + title + u"\r\n\r\n선택한 자료를 삭제하시겠습니까?",
                   u"삭제 확인", BoxIcon::exclamation, BoxAnswer::no))
        return;
    show_failures_of([&] {
        core::check_category(platform_, *category);
        core::DELETE_FILE(platform_, core::category_folder(platform_, *category) + file);
        ListView2.remove_selected_rows();
        show_count();
        empty_fields();
    });
}

void frmMyMsgBox::apply_to_draft() {
    if (platform::trim(platform::remove_all(txtText.text(), platform::CRLF)).empty()) return;
    apply_(txtText.text(), Text1.text());
    Command5.set_enabled(false);
}

void frmMyMsgBox::apply_and_close() {
    if (Command5.enabled()) apply_to_draft();
    unload();
}

void frmMyMsgBox::apply_selected() {
    if (!ListView2.selected_item()) return;
    show_selected_text();
    apply_and_close();
}

}  // namespace saved_texts
