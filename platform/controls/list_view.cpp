#include "platform/controls/list_view.h"

#include <algorithm>

namespace platform {

void ListView::set_columns(std::vector<Column> columns) {
    if (rows_view_ != nullptr) rows_view_->rows_about_to_be_rearranged();
    columns_ = std::move(columns);
    sorted_ = false;
    if (rows_view_ != nullptr) {
        rows_view_->rows_rearranged();
        rows_view_->columns_changed();
    }
}

void ListView::set_column_caption(int number, Text caption) {
    columns_[static_cast<std::size_t>(number - 1)].caption = std::move(caption);
    if (rows_view_ != nullptr) rows_view_->columns_changed();
}

void ListView::set_column_picture(int number, std::optional<int> picture) {
    columns_[static_cast<std::size_t>(number - 1)].picture = picture;
    if (rows_view_ != nullptr) rows_view_->columns_changed();
}

void ListView::set_column_width(int number, int twips) {
    columns_[static_cast<std::size_t>(number - 1)].width = twips;
    if (rows_view_ != nullptr) rows_view_->columns_changed();
}

std::size_t ListView::add_row(Text text, std::vector<Text> sub_items, bool checked) {
    ++revision_;
    auto added = std::make_unique<ListItem>(std::move(text), std::move(sub_items));
    added->checked_ = checked;
    if (checked) ++checked_count_;
    if (index_) index_->add(*added);
    if (sorted_ && !filling_) added->sort_text_ = lower_case(added->sub_item(sort_key_));
    const bool at_end = !sorted_ || held_ || filling_;
    const std::size_t place = at_end ? rows_.size() : place_of(added->sort_text_);
    insert(place, std::move(added));
    return place;
}

void ListView::insert(std::size_t place, Row row) {
    const bool at_end = place == rows_.size();
    if (rows_view_ != nullptr && !at_end) rows_view_->row_about_to_be_inserted(place);
    rows_.insert(place, std::move(row));
    if (rows_view_ == nullptr) return;
    at_end ? rows_view_->row_added() : rows_view_->row_inserted();
}

void ListView::remove_selected_rows() {
    take_rows([](const ListItem& row) { return row.selected(); });
}

TakenRows ListView::take_rows(const std::function<bool(const ListItem& row)>& passes) {
    TakenRows taken;
    if (held_) return taken;
    ++revision_;
    if (rows_view_ != nullptr) rows_view_->rows_about_to_be_rearranged();
    std::size_t place = 0;
    for (Row& row : rows_.take_all()) {
        if (passes(*row)) {
            leave_out(*row);
            taken.emplace_back(place, std::move(row));
        } else {
            rows_.insert(rows_.size(), std::move(row));
        }
        ++place;
    }
    if (rows_view_ != nullptr) rows_view_->rows_rearranged();
    return taken;
}

void ListView::put_back(TakenRows rows) {
    if (held_) return;
    ++revision_;
    if (rows_view_ != nullptr) rows_view_->rows_about_to_be_rearranged();
    auto back = rows.begin();
    const auto put_in_place = [&](bool at_end) {
        while (back != rows.end() && (at_end || back->first <= rows_.size())) {
            take_in(*back->second);
            rows_.insert(rows_.size(), std::move(back->second));
            ++back;
        }
    };
    for (Row& row : rows_.take_all()) {
        put_in_place(false);
        rows_.insert(rows_.size(), std::move(row));
    }
    put_in_place(true);
    if (rows_view_ != nullptr) rows_view_->rows_rearranged();
    if (sorted_ && !filling_) sort(sort_key_, sort_order_);
}

void ListView::leave_out(ListItem& row) {
    if (selected_item_ == &row) selected_item_ = nullptr;
    row.selected_ = false;
    if (row.checked()) --checked_count_;
    if (index_) index_->remove(row);
}

void ListView::take_in(ListItem& row) {
    if (row.checked()) ++checked_count_;
    if (index_) index_->add(row);
}

void ListView::clear() {
    if (held_) return;
    ++revision_;
    if (rows_view_ != nullptr) rows_view_->rows_about_to_be_rearranged();
    index_.reset();
    rows_.take_all();
    selected_item_ = nullptr;
    checked_count_ = 0;
    if (rows_view_ != nullptr) rows_view_->rows_rearranged();
}

void ListView::set_item_text(std::size_t row, Text text) {
    ++revision_;
    item(row).text_ = std::move(text);
    if (rows_view_ != nullptr) rows_view_->row_changed(row);
}

void ListView::set_small_icon(std::size_t row, int number) {
    item(row).small_icon_ = number;
    if (rows_view_ != nullptr) rows_view_->row_changed(row);
}

void ListView::set_sub_item(std::size_t row, int sub_item, Text text) {
    ListItem& changed = item(row);
    if (changed.sub_item(sub_item) == text) return;
    if (changed.sub_item_count() < sub_item) changed.sub_items_.resize(static_cast<std::size_t>(sub_item));
    ++revision_;
    if (index_) index_->remove(changed, sub_item);
    changed.sub_items_[static_cast<std::size_t>(sub_item - 1)] = std::move(text);
    if (index_) index_->add(changed, sub_item);
    if (rows_view_ != nullptr) rows_view_->row_changed(row);
}

void ListView::set_checked(std::size_t row, bool checked) {
    change_checked(row, checked);
    if (rows_view_ != nullptr) rows_view_->row_changed(row);
}

void ListView::change_checked(std::size_t row, bool checked) {
    if (item(row).checked_ == checked) return;
    ++revision_;
    item(row).checked_ = checked;
    checked ? ++checked_count_ : --checked_count_;
}

void ListView::use_column(int number, Text (*shown)(TextView text)) {
    for (int other = 1; other <= column_count(); ++other) {
        Column& column = columns_[static_cast<std::size_t>(other - 1)];
        column.in_use = other == number;
        column.shown = column.in_use ? shown : nullptr;
    }
    if (rows_view_ != nullptr) rows_view_->columns_changed();
    refresh(Aspect::rows);
}

void ListView::set_marking(Marking marking) {
    marking_ = std::move(marking);
    if (rows_view_ == nullptr || rows_.size() == 0) return;
    rows_view_->row_changed(0);
    rows_view_->row_changed(rows_.size() - 1);
}

RowMark ListView::mark(std::size_t row) const {
    return marking_.mark_of ? marking_.mark_of(rows_[row]) : RowMark::none;
}

Text ListView::mark_reason(std::size_t row) const {
    return marking_.reason_of ? marking_.reason_of(rows_[row]) : Text();
}

std::optional<std::size_t> ListView::selected_item() const {
    if (selected_item_ == nullptr) return std::nullopt;
    return selected_item_->position();
}

void ListView::select_item(std::size_t row) {
    item(row).selected_ = true;
    selected_item_ = &item(row);
    if (rows_view_ != nullptr) rows_view_->selection_changed();
}

void ListView::deselect_item() {
    if (selected_item_ == nullptr) return;
    selected_item_->selected_ = false;
    selected_item_ = nullptr;
    if (rows_view_ != nullptr) rows_view_->selection_changed();
}

void ListView::select_all() {
    for (std::size_t row = 0; row < rows_.size(); ++row) item(row).selected_ = true;
    if (selected_item_ == nullptr && rows_.size() > 0) selected_item_ = &item(0);
    if (rows_view_ != nullptr) rows_view_->selection_changed();
}

void ListView::deselect_all() {
    for (std::size_t row = 0; row < rows_.size(); ++row) item(row).selected_ = false;
    selected_item_ = nullptr;
    if (rows_view_ != nullptr) rows_view_->selection_changed();
}

void ListView::go_to(std::size_t row) {
    deselect_all();
    select_item(row);
    make_visible(row);
}

void ListView::make_visible(std::size_t row) const {
    if (rows_view_ != nullptr) rows_view_->make_visible(row);
}

std::optional<std::size_t> ListView::find_in_sub_items(TextView beginning, const ListItem* besides) const {
    if (!index_) {
        index_.emplace();
        for (std::size_t row = 0; row < rows_.size(); ++row) index_->add(rows_[row]);
    }
    const ListItem* found = index_->first_row(beginning, besides);
    if (found == nullptr) return std::nullopt;
    return found->position();
}

void ListView::sort(int sort_key, SortOrder order) {
    if (held_) return;
    sort_key_ = sort_key;
    sort_order_ = order;
    sorted_ = true;
    ++revision_;
    if (rows_view_ != nullptr) rows_view_->rows_about_to_be_rearranged();
    std::vector<std::pair<Text, Row>> keyed;
    keyed.reserve(rows_.size());
    for (Row& row : rows_.take_all()) keyed.emplace_back(lower_case(row->sub_item(sort_key)), std::move(row));
    std::ranges::stable_sort(
        keyed, [this](const Text& a, const Text& b) { return stands_before(a, b); },
        &std::pair<Text, Row>::first);
    for (auto& [sort_text, row] : keyed) {
        row->sort_text_ = std::move(sort_text);
        rows_.insert(rows_.size(), std::move(row));
    }
    if (rows_view_ != nullptr) rows_view_->rows_rearranged();
}

bool ListView::stands_before(const Text& sort_text, const Text& other) const {
    return sort_order_ == SortOrder::ascending ? sort_text < other : other < sort_text;
}

/// The position behind the last row that does not have to stand behind one with the text.
std::size_t ListView::place_of(const Text& sort_text) const {
    std::size_t first = 0;
    std::size_t behind = rows_.size();
    while (first < behind) {
        const std::size_t middle = (first + behind) / 2;
        if (stands_before(sort_text, rows_[middle].sort_text_)) {
            behind = middle;
        } else {
            first = middle + 1;
        }
    }
    return first;
}

void ListView::user_check(std::size_t row, bool checked) {
    if (item(row).checked() == checked || !takes_input()) return;
    change_checked(row, checked);
    if (rows_view_ != nullptr) rows_view_->row_changed(row);
    ItemCheck.raise(row);
}

void ListView::user_select(std::size_t row, bool selected) { item(row).selected_ = selected; }

void ListView::user_selected_item(std::optional<std::size_t> row) {
    selected_item_ = row ? &item(*row) : nullptr;
}

void ListView::user_resized(int width) {
    if (width == width_) return;
    width_ = width;
    Resize.raise();
}

}  // namespace platform
