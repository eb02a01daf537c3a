#include "platform/controls/common_dialog.h"

#include "platform/error.h"

#include <utility>

namespace platform {

void CommonDialog::set_up(Text title, Text filter, Text proposal) {
    question_ = {.title = std::move(title), .filter = std::move(filter), .file_name = std::move(proposal)};
}

bool CommonDialog::choose_free_name(const Files& files) {
    while (true) {
        show_save();
        bool taken = false;
        ignore_errors([&] { taken = !file_name().empty() && files.file_exists(file_name()); });
        if (!taken) return true;
        const BoxAnswer answer = desktop_.message_box(
            {.text = file_name() + u"\r\n\r\n이미 동일한 파일이 존재합니다. 덮어쓰시겠습니까?",
             .icon = BoxIcon::exclamation,
             .buttons = BoxButtons::yes_no_cancel,
             .default_answer = BoxAnswer::yes});
        if (answer != BoxAnswer::no) return answer == BoxAnswer::yes;
    }
}

void CommonDialog::show(FileQuestion::Purpose purpose) {
    question_.purpose = purpose;
    std::optional<Text> chosen = desktop_.ask_for_file(question_);
    if (!chosen) throw RuntimeError(ErrorNumber::dialog_cancelled);
    question_.file_name = std::move(*chosen);
}

}  // namespace platform
