// The lists of categories and of texts, and what a selection in them does.

#include "core/busy.h"
#include "core/saved_texts_folder.h"
#include "platform/controls/list_columns.h"
#include "platform/text/format.h"
#include "saved_texts/frmMyMsgBox.h"
#include "saved_texts/store.h"

namespace saved_texts {

using platform::ListView;
using platform::Text;

namespace {

constexpr int CLOSED_FOLDER = 1;
constexpr int OPEN_FOLDER = 2;

/// With seconds, so that texts of one minute can be told apart; the dates sort as texts.
constexpr platform::TextView SAVED_PATTERN = u"yyyy-MM-dd ampm hh:mm:ss";

}  // namespace

void frmMyMsgBox::CATEGORY_LIST_LOAD() {
    core::make_saved_texts_folders(platform_);
    const std::vector<Text> names = categories(platform_);
    ListView1.clear();
    for (const Text& name : names) ListView1.set_small_icon(ListView1.add_row(name, {}), CLOSED_FOLDER);
    select_category(0);
}

void frmMyMsgBox::select_category(std::size_t row) {
    ListView1.deselect_item();
    ListView1.select_item(row);
    ListView1.make_visible(row);
    list_selected_category();
}

std::optional<Text> frmMyMsgBox::selected_category() const {
    const auto row = ListView1.selected_item();
    return row ? std::optional(ListView1.row(*row).text()) : std::nullopt;
}

void frmMyMsgBox::list_selected_category() {
    const auto category = selected_category();
    if (!category) return;
    show_failures_of([&] { MESSAGE_LIST_LOAD(*category); });
    for (std::size_t row = 0; row < ListView1.row_count(); ++row)
        ListView1.set_small_icon(row, row == ListView1.selected_item() ? OPEN_FOLDER : CLOSED_FOLDER);
}

/// Whether the rows are the category's; lists the category anew when they are not. After a listing that
/// failed they are those of another category, whose titles may be files in this one too.
bool frmMyMsgBox::lists(const Text& category) {
    if (listed_category_ == category) return true;
    list_selected_category();
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
        // Deliberately by the text of the date: within a day 오전 and 오후 sort as words, and 12 o'clock
        // behind 11. Users know their lists so.
        ListView2.sort(TEXT_SAVED, ListView::SortOrder::descending);
        platform::SET_SORT_ARROW(ListView2, TEXT_SAVED, 1, true);
        {
            const platform::FilledList filling(ListView2);
            for (SavedText& text : content.texts) {
                ListView2.add_row(std::move(text.title),
                                  {in_one_line(text.body), platform::format_date(text.saved, SAVED_PATTERN),
                                   std::move(text.body), std::move(text.file)});
                platform_.desktop.paint();
            }
        }
        if (ListView2.row_count() > 0) ListView2.select_item(0);
    }
    if (failure) throw *failure;
}

/// Takes the selected text into the fields. What has been typed over the same text stays.
void frmMyMsgBox::show_selected_text() {
    const auto row = ListView2.selected_item();
    if (row && source_ && source_of(*row) == source_) return;
    empty_fields();
    if (!row) return;
    source_ = source_of(*row);
    Command5.set_enabled(true);
    Text1.set_text(ListView2.row(*row).text());
    txtText.set_text(ListView2.row(*row).sub_item(TEXT_BODY));
}

std::optional<frmMyMsgBox::Source> frmMyMsgBox::source_of(std::size_t row) const {
    if (!listed_category_) return std::nullopt;
    return Source{*listed_category_, ListView2.row(row).sub_item(TEXT_FILE)};
}

}  // namespace saved_texts
