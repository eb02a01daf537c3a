// The list of cards: its columns, its rows, and what the caption says about them.

#include "addressbook/card_db.h"
#include "addressbook/frmSendMan.h"
#include "platform/controls/list_columns.h"
#include "platform/error.h"
#include "platform/text/format.h"

#include <algorithm>

namespace addressbook {

using platform::Text;
using platform::TextView;

namespace {

/// Input of the user does not interrupt the filling of the list before this many rows.
constexpr std::size_t FILLED_ANYHOW = 200;
/// Looking at the clock for each row takes longer than a fifth of the rows' own time.
constexpr std::size_t ROWS_BETWEEN_LOOKS = 20;
/// A list of up to this many records is filled without showing progress.
constexpr int QUICK_LIST = 100;

constexpr int FIRST_COLUMN_NARROWER_BY = 60;

struct FilledColumn {
    TextView caption;
    TextView field;
};

/// Other captions stay empty, "회사전화2" among them, and so does "회사팩스2", whose field no statement
/// fetches.
constexpr FilledColumn FILLED_COLUMNS[] = {
    {u"이름", u"fullname"},         {u"성명", u"fullname"},          {u"직위", u"JobTitle"},
    {u"회사", u"companyname"},      {u"회사명", u"companyname"},     {u"휴대폰", u"cellphone"},
    {u"이동통신", u"cellphone"},    {u"전화", u"Company_phone1"},    {u"회사전화", u"Company_phone1"},
    {u"팩스1", u"Company_fax1"},    {u"회사팩스1", u"Company_fax1"}, {u"팩스", u"Company_fax1"},
    {u"회사팩스", u"Company_fax1"}, {u"팩스2", u"Company_fax2"},     {u"회사팩스2", u"Company_fax2"},
};

TextView field_of(TextView caption) {
    const auto* found = std::ranges::find(FILLED_COLUMNS, caption, &FilledColumn::caption);
    return found == std::end(FILLED_COLUMNS) ? TextView() : found->field;
}

bool moves_selection(int code) {
    switch (code) {
        case platform::KEY_UP:
        case platform::KEY_DOWN:
        case platform::KEY_PAGE_UP:
        case platform::KEY_PAGE_DOWN:
        case platform::KEY_HOME:
        case platform::KEY_END:
            return true;
        default:
            return false;
    }
}

}  // namespace

void frmSendMan::connect_list() {
    ListView2.MouseUp.connect([this](platform::MouseButton button) {
        if (button == platform::MouseButton::left) PICK_STATUS_SHOW();
    });
    ListView2.KeyUp.connect([this](platform::KeyPressed& key) {
        if (moves_selection(key.code)) PICK_STATUS_SHOW();
    });
    ListView2.KeyPress.connect([this](platform::KeyPressed& key) {
        if (key.code != platform::KEY_CTRL_A) return;
        ListView2.select_all();
        show_counts();
    });
    ListView2.ColumnClick.connect([this](int column) { sort_by(column); });
    ListView2.Resize.connect([this] { LISTVIEW2HDR_RESET(); });
}

void frmSendMan::CARD_LIST_FILL(platform::CardRecordset& recordset) {
    ListView2.clear();
    typed_row_.reset();
    if (recordset.end_of_file()) return PICK_STATUS_SHOW();
    platform_.desktop.set_pointer(platform::Pointer::hourglass);
    const int records = recordset.record_count();
    if (records > QUICK_LIST) show_progress();
    sub_item_fields_.clear();
    for (int column = 2; column <= ListView2.column_count(); ++column)
        sub_item_fields_.push_back(field_of(ListView2.column(column).caption));
    fill_with(recordset, records);
    LISTVIEW2HDR_RESET();
    PICK_STATUS_SHOW();
    hide_progress();
}

void frmSendMan::fill_with(platform::CardRecordset& recordset, int records) {
    const platform::FilledList filling(ListView2);
    const auto user = platform_.desktop.watch_input();
    for (; !recordset.end_of_file(); recordset.move_next()) {
        const std::size_t rows = ListView2.row_count();
        const bool look = rows % ROWS_BETWEEN_LOOKS == 1;
        // Deliberately silent: a user who goes on working does not wait for the rest of a long list.
        if (look && rows > FILLED_ANYHOW && user->input_waits()) break;
        LISTVIEW2_ADD(recordset);
        PBar1.set_progress(rows + 1, static_cast<std::size_t>(records));
        if (look) platform_.desktop.paint();
    }
}

void frmSendMan::LISTVIEW2_ADD(const platform::CardRecordset& TemTable) {
    const auto read = [&](TextView field) {
        Text text;
        platform::ignore_errors([&] { text = FIELD_VALUE(TemTable.field(field)); });
        return text;
    };
    std::vector<Text> sub_items;
    sub_items.reserve(sub_item_fields_.size());
    for (const TextView field : sub_item_fields_) sub_items.push_back(field.empty() ? Text() : read(field));
    ListView2.add_row(read(u"fullname"), std::move(sub_items));
}

void frmSendMan::LISTVIEW2HDR_RESET() {
    if (ListView2.column_count() == 0) return;
    const int width = ListView2.width() / ListView2.column_count();
    for (int column = 1; column <= ListView2.column_count(); ++column)
        ListView2.set_column_width(column,
                                   std::max(column == 1 ? width - FIRST_COLUMN_NARROWER_BY : width, 0));
}

void frmSendMan::PICK_STATUS_SHOW() {
    const auto with_commas = [](double number) { return platform::format_number(number, u"#,##0"); };
    const auto selected = ListView2.selected_item();
    set_caption(u"발송대상 선택-" + with_commas(total_) + u"/" +
                with_commas(static_cast<double>(ListView2.row_count())) + u"/" +
                platform::decimal(selected ? static_cast<long long>(*selected) + 1 : 0));
    show_counts();
}

void frmSendMan::show_counts() {
    std::size_t selected = 0;
    for (std::size_t row = 0; row < ListView2.row_count(); ++row) selected += ListView2.row(row).selected();
    Counts.set_caption(u"전체 " + platform::counted(static_cast<std::size_t>(total_), u"명 · 목록 ") +
                       platform::counted(ListView2.row_count(), u"명 · 선택 ") +
                       platform::counted(selected, u"명"));
}

/// The order is kept for the next opening.
void frmSendMan::sort_by(int column) {
    platform::SORT_BY_COLUMN(ListView2, column);
    state_.cards.sort_column = ListView2.column(column).caption;
    state_.cards.sort_order = ListView2.sort_order();
}

void frmSendMan::sort_as_before() {
    const int column = platform::FIND_COLUMN(state_.cards.sort_column, ListView2);
    if (column < 0) return;
    ListView2.sort(column - 1, state_.cards.sort_order);
    const bool descending = state_.cards.sort_order == platform::ListView::SortOrder::descending;
    platform::SET_SORT_ARROW(ListView2, column - 1, descending ? 1 : 0, true);
}

void frmSendMan::show_progress() {
    PBar1.set_value(0);
    PBar1.show();
}

void frmSendMan::hide_progress() {
    PBar1.hide();
    PBar1.set_value(0);
    platform_.desktop.set_pointer(platform::Pointer::normal);
}

}  // namespace addressbook
