// The lists of categories and of messages, and what a selection in them does.

#include "core/list_columns.h"
#include "core/message_box.h"
#include "core/windows.h"
#include "platform/text/format.h"
#include "saved_texts/frmMyMsgBox.h"
#include "saved_texts/message_store.h"

namespace saved_texts {

using platform::ListView;
using platform::Text;

namespace {

constexpr int CLOSED_FOLDER = 1;
constexpr int OPEN_FOLDER = 2;

/// Two messages of one minute are told apart, and the text sorts.
constexpr platform::TextView SAVED_PATTERN = u"yyyy-MM-dd ampm hh:mm:ss";

}  // namespace

void frmMyMsgBox::CATEGORY_LIST_LOAD() {
    core::make_message_box_folders(platform_);
    const std::vector<Text> names = categories(platform_);
    ListView1.clear();
    for (const Text& name : names) ListView1.set_small_icon(ListView1.add_row(name, {}), CLOSED_FOLDER);
    select_category(0);
}

void frmMyMsgBox::select_category(std::size_t row) {
    ListView1.deselect_item();
    ListView1.select_item(row);
    ListView1.make_visible(row);
    ListView1_Click();
}

std::optional<Text> frmMyMsgBox::selected_category() const {
    const auto row = ListView1.selected_item();
    return row ? std::optional(ListView1.row(*row).text()) : std::nullopt;
}

void frmMyMsgBox::ListView1_Click() {
    const auto category = selected_category();
    if (!category) return;
    with_net([&] { MESSAGE_LIST_LOAD(*category); });
    for (std::size_t row = 0; row < ListView1.row_count(); ++row)
        ListView1.set_small_icon(row, row == ListView1.selected_item() ? OPEN_FOLDER : CLOSED_FOLDER);
}

/// Whether the rows are the category's. After a listing that failed they are those of another one, whose
/// titles may well be files in this one too: then nothing is done to them, and the category is listed anew.
bool frmMyMsgBox::lists(const Text& category) {
    if (listed_category_ == category) return true;
    ListView1_Click();
    return false;
}

void frmMyMsgBox::MESSAGE_LIST_LOAD(const Text& category) {
    listed_category_.reset();
    std::optional<platform::RuntimeError> failure;
    {
        const core::BusyPointer busy(platform_.desktop);
        CategoryContent content = read_category(platform_, category, [this] { platform_.desktop.paint(); });
        failure = std::move(content.failure);

        ListView2.clear();
        listed_category_ = category;
        for (Message& message : content.messages) {
            ListView2.add_row(std::move(message.title),
                              {platform::trim(platform::replace_all(message.body, platform::CRLF, u" ")),
                               platform::format_date(message.saved, SAVED_PATTERN), std::move(message.body)});
            platform_.desktop.paint();
        }
        // Deliberately by the text of the date: within a day 오전 and 오후 sort as words, and 12 o'clock
        // behind 11. Users know their lists so.
        ListView2.sort(MESSAGE_SAVED, ListView::SortOrder::descending);
        core::SET_SORT_ARROW(ListView2, MESSAGE_SAVED, 1, true);
        if (ListView2.row_count() > 0) ListView2.select_item(0);
    }
    if (failure) throw *failure;
}

void frmMyMsgBox::ListView2_Click() {
    empty_fields();
    const auto row = ListView2.selected_item();
    if (!row) return;
    Command5.set_enabled(true);
    Text1.set_text(ListView2.row(*row).text());
    txtText.set_text(ListView2.row(*row).sub_item(MESSAGE_BODY));
}

}  // namespace saved_texts
