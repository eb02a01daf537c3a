// The columns for each kind of message, and the selected rows into the main window's recipients.

#include "addressbook/frmSendMan.h"
#include "core/boxes.h"
#include "core/phone_number.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"
#include "platform/text/format.h"
#include "platform/text/number.h"

#include <algorithm>

namespace addressbook {

using platform::ListItem;
using platform::Text;
using platform::TextView;

namespace {

/// In twips, until LISTVIEW2HDR_RESET.
constexpr int FIRST_COLUMN_WIDTH = 1000;
constexpr int COLUMN_WIDTH = 1500;

/// The sub-item of the column with this caption; without such a column one that is empty in every row.
int sub_item_of(TextView caption, const platform::ListView& list) {
    const int column = platform::FIND_COLUMN(caption, list);
    return column > 0 ? column - 1 : list.column_count();
}

/// Whether picking finds digits here that are not all zeros.
bool holds_number(TextView cell) { return cell.find_first_of(u"123456789") != TextView::npos; }

Text shown_number(TextView cell) { return holds_number(cell) ? Text(cell) : Text(u"번호 없음"); }

}  // namespace

void frmSendMan::connect_picking() {
    Combo2.Click.connect([this] { use_number_column(); });
    for (std::size_t index = 0; index < Command2.size(); ++index)
        Command2[index].Click.connect([this, index] { take_selected(index); });
    ListView2.DblClick.connect([this] {
        if (ListView2.selected_item()) take_selected(1);
    });
}

void frmSendMan::ShowEnter(const Text& kind) {
    load();
    build_columns(kind);
    LISTVIEW2HDR_RESET();
    show_modal();
}

void frmSendMan::build_columns(const Text& kind) {
    const compose::KindOfMessage* shown = compose::find_kind(kind);
    if (shown == nullptr) return;
    std::vector<platform::ListView::Column> columns;
    for (const TextView caption : shown->picker_columns) {
        columns.push_back(
            {.caption = Text(caption), .width = columns.empty() ? FIRST_COLUMN_WIDTH : COLUMN_WIDTH});
    }
    ListView2.set_columns(std::move(columns));
    Combo2.clear();
    for (const TextView column : shown->picker_numbers) Combo2.add_row(Text(column));
    Combo2.set_list_index(0);
    sort_as_before();
}

/// Shows which column's numbers will be taken, and which cards have none there.
void frmSendMan::use_number_column() {
    const int column = platform::FIND_COLUMN(Combo2.text(), ListView2);
    ListView2.use_column(column, shown_number);
    const auto mark_of = [column](const ListItem& row) {
        return holds_number(row.sub_item(column - 1)) ? platform::RowMark::none : platform::RowMark::unusable;
    };
    ListView2.set_marking({.mark_of = mark_of, .reason_of = {}});
}

void frmSendMan::take_selected(std::size_t index) {
    if (!ListView2.selected_item()) return core::warn(platform_.desktop, u"자료를 먼저 선택하세요!");
    SENDLIST_ADD();
    if (index == 0) unload();
}

void frmSendMan::SENDLIST_ADD() {
    const PickedCells cells{.number = sub_item_of(Combo2.text(), ListView2),
                            .company = sub_item_of(u"회사", ListView2),
                            .title = sub_item_of(u"직위", ListView2)};
    std::size_t added = 0;
    platform_.desktop.set_pointer(platform::Pointer::hourglass);
    show_progress();
    for (std::size_t row = 0; row < ListView2.row_count(); ++row) {
        if (!ListView2.row(row).selected()) continue;
        platform::ignore_errors([&] {
            if (pick_row(ListView2.row(row), cells)) ++added;
        });
        PBar1.set_progress(row + 1, ListView2.row_count());
        platform_.desktop.paint();
    }
    hide_progress();
    // What was left out is deliberately not counted: the cards show it before they are picked.
    Added.set_caption(platform::counted(added, u"명 추가 · 받는사람 ") +
                      platform::counted(recipients_.ListView1.row_count(), u"명"));
}

bool frmSendMan::pick_row(const ListItem& row, const PickedCells& cells) {
    Text name = platform::trim(row.text());
    if (name.empty()) name = platform::trim(row.sub_item(cells.company));
    const Text number = core::DIGITS_ONLY(row.sub_item(cells.number));
    if (platform::leading_number(number) == 0) return false;
    if (!recipients_.add(platform::blanks_for_nul(std::move(name)), number,
                         platform::blanks_for_nul(row.sub_item(cells.title))))
        return false;
    state_.forms.gDialogConfirmed = true;
    return true;
}

}  // namespace addressbook
