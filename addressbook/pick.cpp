// The columns for each kind of message, and the selected rows into the main window's recipients.

#include "addressbook/frmSendMan.h"
#include "core/boxes.h"
#include "core/phone_number.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"
#include "platform/text/number.h"

#include <algorithm>

namespace addressbook {

using platform::ListItem;
using platform::Text;
using platform::TextView;

namespace {

struct KindColumns {
    TextView kind;
    std::vector<TextView> columns;
    /// The columns that hold numbers to send to.
    std::vector<TextView> numbers;
};

KindColumns columns_of(TextView kind) {
    if (kind == u"문자메시지" || kind == u"문자플러스") {
        return {kind, {u"이름", u"직위", u"회사", u"휴대폰"}, {u"휴대폰"}};
    }
    if (kind == u"음성메시지") {
        return {kind,
                {u"이름", u"회사", u"휴대폰", u"회사전화", u"회사전화2"},
                {u"휴대폰", u"회사전화", u"회사전화2"}};
    }
    if (kind == u"팩스메시지") {
        return {kind, {u"이름", u"회사", u"회사팩스", u"회사팩스2"}, {u"회사팩스", u"회사팩스2"}};
    }
    return {kind, {}, {}};
}

/// In twips, until the columns are evened out.
constexpr int FIRST_COLUMN_WIDTH = 1000;
constexpr int COLUMN_WIDTH = 1500;

/// The sub-item of the column with this caption; without such a column one that is empty in every row.
int sub_item_of(TextView caption, const platform::ListView& list) {
    const int column = platform::FIND_COLUMN(caption, list);
    return column > 0 ? column - 1 : list.column_count();
}

}  // namespace

void frmSendMan::connect_picking() {
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
    const KindColumns shown = columns_of(kind);
    std::vector<platform::ListView::Column> columns;
    for (const TextView caption : shown.columns) {
        columns.push_back(
            {.caption = Text(caption), .width = columns.empty() ? FIRST_COLUMN_WIDTH : COLUMN_WIDTH});
    }
    ListView2.set_columns(std::move(columns));
    Combo2.clear();
    for (const TextView column : shown.numbers) Combo2.add_row(Text(column));
    if (!shown.numbers.empty()) Combo2.set_list_index(0);
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
    platform_.desktop.set_pointer(platform::Pointer::hourglass);
    show_progress();
    for (std::size_t row = 0; row < ListView2.row_count(); ++row) {
        if (!ListView2.row(row).selected()) continue;
        platform::ignore_errors([&] { pick_row(ListView2.row(row), cells); });
        PBar1.set_progress(row + 1, ListView2.row_count());
        platform_.desktop.paint();
    }
    hide_progress();
}

void frmSendMan::pick_row(const ListItem& row, const PickedCells& cells) {
    Text name = platform::trim(row.text());
    if (name.empty()) name = platform::trim(row.sub_item(cells.company));
    if (name.empty()) name = compose::NO_NAME;
    const Text number = core::DIGITS_ONLY(row.sub_item(cells.number));
    if (platform::leading_number(number) == 0) return;
    // Deliberately by its beginning: a number that begins a listed one counts as listed.
    platform::ListView& recipients = main_form_.ListView1;
    if (recipients.find_in_sub_items(number)) return;

    recipients.deselect_item();
    const std::size_t added = recipients.add_row(u"",
                                                 {platform::blanks_for_nul(std::move(name)), number, u"",
                                                  platform::blanks_for_nul(row.sub_item(cells.title))},
                                                 true);
    recipients.make_visible(added);
    recipients.select_item(added);
    state_.forms.gDialogConfirmed = true;
}

}  // namespace addressbook
