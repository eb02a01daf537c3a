#include "platform/controls/common_dialog.h"

#include "platform/error.h"

#include <utility>

namespace platform {

void CommonDialog::set_up(Text title, Text filter, Text proposal) {
    question_ = {.title = std::move(title), .filter = std::move(filter), .file_name = std::move(proposal)};
}

void CommonDialog::show(FileQuestion::Purpose purpose) {
    question_.purpose = purpose;
    std::optional<Text> chosen = desktop_.ask_for_file(question_);
    if (!chosen) throw RuntimeError(ErrorNumber::dialog_cancelled);
    question_.file_name = std::move(*chosen);
}

}  // namespace platform
