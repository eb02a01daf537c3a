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
        search_.forget();
        listed_category_ = category;
        // A text of another category in the fields would seem to be the one that is chosen here. What the
        // user has written stays.
        if (source_ && source_->category != category && fields() == taken_) empty_fields();
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
        show_found();
    }
    if (failure) throw *failure;
}

/// Leaves the texts that hold the words looked for, and selects the one in the fields or else the first.
void frmMyMsgBox::show_found() {
    search_.show(platform::trim(SearchText.text()));
    show_count();
    std::size_t chosen = 0;
    for (std::size_t row = 0; row < ListView2.row_count() && source_; ++row) {
        if (source_of(row) == source_) chosen = row;
    }
    ListView2.deselect_item();
    if (ListView2.row_count() > 0) ListView2.select_item(chosen);
    show_chosen();
}

void frmMyMsgBox::show_count() {
    const auto in_words = [](std::size_t texts) { return platform::counted(texts, u"개"); };
    const std::size_t found = ListView2.row_count();
    const std::size_t all = search_.all();
    ListView2.set_placeholder(
        all == 0 ? u"저장된 메시지가 없습니다.\n제목과 내용을 적고 신규 메시지 등록을 누르세요. (Ctrl+S)"
                 : u"찾는 말이 들어 있는 메시지가 없습니다.\n찾는 말을 바꾸거나 지우세요.");
    FoundCount.set_caption(found == all ? in_words(all) : in_words(all) + u" 중 " + in_words(found));
}

void frmMyMsgBox::go_to_found() {
    ListView2.set_focus();
    if (ListView2.row_count() > 0) show_selected_text();
}

/// A row looks chosen only while its text is the one in the fields.
void frmMyMsgBox::show_chosen() {
    const auto row = ListView2.selected_item();
    ListView2.show_selection(row && source_ && source_of(*row) == source_);
}

/// Takes the selected text into the fields. What has been typed over the same text stays.
void frmMyMsgBox::show_selected_text() {
    const auto row = ListView2.selected_item();
    if (row && source_ && source_of(*row) == source_) return;
    empty_fields();
    if (!row) return;
    source_ = source_of(*row);
    show_chosen();
    Command5.set_enabled(true);
    Text1.set_text(ListView2.row(*row).text());
    txtText.set_text(ListView2.row(*row).sub_item(TEXT_BODY));
    taken_ = fields();
}

std::optional<frmMyMsgBox::Source> frmMyMsgBox::source_of(std::size_t row) const {
    if (!listed_category_) return std::nullopt;
    return Source{*listed_category_, ListView2.row(row).sub_item(TEXT_FILE)};
}

}  // namespace saved_texts
