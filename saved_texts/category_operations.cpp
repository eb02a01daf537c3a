// Categories: a new one, another name, removal.

#include "core/boxes.h"
#include "core/saved_texts_folder.h"
#include "saved_texts/frmMyMsgBox.h"
#include "saved_texts/store.h"

namespace saved_texts {

using platform::BoxAnswer;
using platform::BoxIcon;
using platform::Text;
using platform::TextView;

/// Asks for a category's name. Empty when the user cancels or cleaning leaves nothing of it.
Text frmMyMsgBox::ask_for_category(TextView title, TextView first_line, const Text& name) {
    return clean_category(platform_.desktop.input_box(
        {.prompt =
             Text(first_line) + u"\r\n\r\n분류명에 다음 문자는 사용할 수 없습니다.\r\n\\ / : * ? \" < > |",
         .title = Text(title),
         .default_text = name}));
}

/// Whether no folder has the name; shows a box when one has.
bool frmMyMsgBox::is_free_category(const Text& name) {
    if (!platform_.files.folder_exists(core::category_folder(platform_, name))) return true;
    core::warn(platform_.desktop, u"'" + name + u"' 분류명은 이미 존재하고 있습니다.");
    return false;
}

void frmMyMsgBox::add_category() {
    show_failures_of([this] {
        Text name;
        do {
            name = ask_for_category(u"분류등록", u"등록할 분류명을 입력하십시오.", u"");
            if (name.empty()) return;
        } while (!is_free_category(name));
        platform_.files.make_folder(core::category_folder(platform_, name));
        select_category(ListView1.add_row(name, {}));
    });
}

void frmMyMsgBox::rename_category() {
    const auto old_name = selected_category();
    if (!old_name) return;
    if (*old_name == core::DEFAULT_CATEGORY) {
        core::warn(platform_.desktop, u"'내 모음함'은 변경할 수 없습니다!");
        return;
    }
    show_failures_of([&] {
        Text name;
        do {
            name = ask_for_category(u"분류명 수정", u"수정할 분류명을 입력하십시오!", *old_name);
            if (name.empty() || platform::equal_without_case(name, *old_name)) return;
        } while (!is_free_category(name));
        platform_.files.rename_folder(core::category_folder(platform_, *old_name),
                                      core::category_folder(platform_, name));
        if (const auto row = ListView1.selected_item()) ListView1.set_item_text(*row, name);
        if (listed_category_ == old_name) listed_category_ = name;
        if (source_ && source_->category == *old_name) source_->category = name;
    });
}

void frmMyMsgBox::remove_category() {
    const auto name = selected_category();
    if (!name) return;
    if (*name == core::DEFAULT_CATEGORY) {
        core::warn(platform_.desktop, u"'내 모음함'은 삭제할 수 없습니다!");
        return;
    }
    show_failures_of([&] {
        const Text folder = core::category_folder(platform_, *name);
        core::check_category(platform_, *name);
        const bool has_texts =
            !platform_.files.list_files(folder, u"*" + Text(core::SAVED_TEXT_EXTENSION)).empty();
        if (!core::ask(platform_.desktop, u"분류:" + *name + u"\r\n\r\n선택한 분류를 삭제하시겠습니까?",
                       u"삭제 확인", BoxIcon::exclamation, BoxAnswer::no))
            return;
        if (has_texts) platform_.files.remove_files(folder, u"*.*");
        platform_.files.remove_empty_folder(folder);
        ListView2.clear();
        search_.forget();
        CATEGORY_LIST_LOAD();
    });
}

}  // namespace saved_texts
