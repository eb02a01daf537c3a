#pragma once

#include "platform/controls/control.h"
#include "platform/controls/input.h"
#include "platform/controls/prefix_index.h"
#include "platform/controls/row_sequence.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace platform {

/// The widget's side of a list's rows: it reads them in place, and the list calls it when they change.
class RowsView {
  public:
    virtual ~RowsView() = default;

    /// A row has been added at the end.
    virtual void row_added() = 0;
    /// A row is about to be inserted before the one at the position.
    virtual void row_about_to_be_inserted(std::size_t row) = 0;
    virtual void row_inserted() = 0;
    /// Many rows are about to go or change places. The widget reads all of them anew afterwards.
    virtual void rows_about_to_be_rearranged() = 0;
    virtual void rows_rearranged() = 0;
    virtual void row_changed(std::size_t row) = 0;
    /// Rows have been selected or deselected.
    virtual void selection_changed() = 0;
    virtual void columns_changed() = 0;
    virtual void make_visible(std::size_t row) = 0;
};

/// Rows that have been taken out of a list, in their order, each with the place that it had.
using TakenRows = std::vector<std::pair<std::size_t, Row>>;

/// A report list: columns, rows with an optional check box, one selected item and any number of selected
/// rows.
class ListView : public Control {
  public:
    enum class SortOrder { ascending = 0, descending = 1 };

    struct Column {
        Text caption;
        /// Picture beside the caption: 0 ascending, 1 descending.
        std::optional<int> picture = {};
        /// In twips; 0 keeps the screen's width.
        int width = 0;
        /// How the user reads a text of the column; null shows it as it stands.
        Text (*shown)(TextView text) = nullptr;
        /// Whether the signs of the rows' marks stand here.
        bool signs = false;
        /// Whether the column is the one that matters now.
        bool in_use = false;
    };

    /// How the rows are marked.
    struct Marking {
        std::function<RowMark(const ListItem& row)> mark_of;
        /// What the user reads about the mark when he points at the row; empty when its texts say it all.
        std::function<Text(const ListItem& row)> reason_of;
    };

    /// Which rows the user checks or unchecks at once.
    enum class ManyRows { selected, all };

    ListView(Form& form, TextView name, std::vector<Column> columns, bool check_boxes = false)
        : Control(form, name), columns_(std::move(columns)), check_boxes_(check_boxes) {}
    /// Working storage, never shown.
    explicit ListView(std::vector<Column> columns) : columns_(std::move(columns)), check_boxes_(false) {}
    void accept(ControlVisitor& visitor) override;

    bool check_boxes() const { return check_boxes_; }

    /// Counted from 1, as the handlers count them.
    int column_count() const { return static_cast<int>(columns_.size()); }
    const Column& column(int number) const { return columns_[static_cast<std::size_t>(number - 1)]; }
    void set_columns(std::vector<Column> columns);
    void set_column_caption(int number, Text caption);
    void set_column_picture(int number, std::optional<int> picture);
    void set_column_width(int number, int twips);
    /// Marks the column as the one that matters now, and shows its texts so; no other column is marked then.
    void use_column(int number, Text (*shown)(TextView text));
    /// The room for all columns in twips; 0 while nothing shows the list.
    int width() const { return width_; }

    /// What the user reads in the list while it has no rows.
    const Text& placeholder() const { return placeholder_; }
    void set_placeholder(Text text) { assign(placeholder_, std::move(text), Aspect::rows); }

    std::size_t row_count() const { return rows_.size(); }
    /// Grows with every change of the rows' texts, marks and places.
    std::uint64_t revision() const { return revision_; }
    const ListItem& row(std::size_t index) const { return rows_[index]; }

    /// Adds a row and returns its index: at the end or, once the list has been sorted, in its place, behind
    /// the rows with equal texts.
    std::size_t add_row(Text text, std::vector<Text> sub_items, bool checked = false);
    /// Does nothing while the rows are held; neither do `clear` and `sort`.
    void remove_selected_rows();
    /// The same for the rows that pass, which are returned so that they can be put back.
    TakenRows take_rows(const std::function<bool(const ListItem& row)>& passes);
    /// Puts rows back where they were or, in a list that is sorted, where they belong.
    void put_back(TakenRows rows);
    void clear();

    void set_item_text(std::size_t row, Text text);
    void set_small_icon(std::size_t row, int number);
    void set_sub_item(std::size_t row, int sub_item, Text text);
    /// Raises no event.
    void set_checked(std::size_t row, bool checked);
    std::size_t checked_count() const { return checked_count_; }

    /// Says from now on how the rows are marked.
    void set_marking(Marking marking);
    /// Found out each time it is asked for, because only the rows on the screen are.
    RowMark mark(std::size_t row) const;
    /// What the user reads about the row's mark.
    Text mark_reason(std::size_t row) const;

    /// The one row that keys act on; none after it has gone or has been deselected.
    std::optional<std::size_t> selected_item() const;
    /// Makes the row the selected item and selects it; other rows keep their selection.
    void select_item(std::size_t row);
    /// Deselects the selected item, if there is one.
    void deselect_item();
    void select_all();
    void deselect_all();
    /// Selects the row alone and brings it into view.
    void go_to(std::size_t row);
    void make_visible(std::size_t row) const;
    /// Whether the user sees which rows are selected; he need not where selecting was not his doing.
    bool shows_selection() const { return shows_selection_; }
    void show_selection(bool on) { assign(shows_selection_, on, Aspect::selection); }

    /// The first row with a sub-item that begins with the text, other than `besides`.
    std::optional<std::size_t> find_in_sub_items(TextView beginning, const ListItem* besides = nullptr) const;

    /// 0 is the item text.
    int sort_key() const { return sort_key_; }
    SortOrder sort_order() const { return sort_order_; }
    /// Sorts the rows without regard to case, and those that are added until the columns are set anew. Rows
    /// with equal texts keep their order. A row whose text changes stays where it is: nothing moves under the
    /// user's hand while a job marks its rows.
    void sort(int sort_key, SortOrder order);

    /// The widget that shows the rows, beside the one that shows the control's other aspects.
    void attach_rows(RowsView* view) { rows_view_ = view; }

    // What the user does.
    void user_check(std::size_t row, bool checked);
    /// Whether many rows are checked is up to the handlers of CheckMany.
    void user_check_many(ManyRows rows, bool checked) { CheckMany.raise(rows, checked); }
    void user_select(std::size_t row, bool selected);
    void user_selected_item(std::optional<std::size_t> row);
    void user_resized(int width);

    Event<std::size_t> ItemCheck;
    UserEvent<ManyRows, bool> CheckMany{*this};
    UserEvent<int> ColumnClick{*this};
    UserEvent<KeyPressed&> KeyDown{*this};
    UserEvent<KeyPressed&> KeyPress{*this};
    UserEvent<KeyPressed&> KeyUp{*this};
    UserEvent<MouseButton> MouseUp{*this};
    UserEvent<> DblClick{*this};
    /// Without a handler nothing can be dropped here.
    UserEvent<const Dropped&> Drop{*this};
    /// The width available for the columns has changed.
    Event<> Resize;

  private:
    friend class HeldRows;
    friend class FilledList;

    ListItem& item(std::size_t row) { return rows_[row]; }
    void change_checked(std::size_t row, bool checked);
    bool stands_before(const Text& sort_text, const Text& other) const;
    std::size_t place_of(const Text& sort_text) const;
    void insert(std::size_t place, Row row);
    void leave_out(ListItem& row);
    void take_in(ListItem& row);

    RowsView* rows_view_ = nullptr;
    std::vector<Column> columns_;
    bool check_boxes_;
    Text placeholder_;
    RowSequence rows_;
    Marking marking_;
    /// Made at the first search, because most lists are never searched.
    mutable std::optional<PrefixIndex> index_;
    ListItem* selected_item_ = nullptr;
    std::size_t checked_count_ = 0;
    std::uint64_t revision_ = 0;
    int sort_key_ = 0;
    SortOrder sort_order_ = SortOrder::ascending;
    bool sorted_ = false;
    int width_ = 0;
    bool held_ = false;
    bool filling_ = false;
    bool shows_selection_ = true;
};

/// Fills a list for as long as this object lives: new rows stand at the end, and a sorted list is sorted once
/// when it goes. Many rows at once are quicker so than each in its place.
class FilledList {
  public:
    explicit FilledList(ListView& list) : list_(list) { list_.filling_ = true; }
    FilledList(const FilledList&) = delete;
    FilledList& operator=(const FilledList&) = delete;
    ~FilledList() {
        list_.filling_ = false;
        if (list_.sorted_) list_.sort(list_.sort_key_, list_.sort_order_);
    }

  private:
    ListView& list_;
};

/// Holds a list's rows for as long as this object lives: none goes, none changes its place, and a new one
/// stands at the end even if the list is sorted. For work over the rows in whose pauses the event loop runs.
class HeldRows {
  public:
    explicit HeldRows(ListView& list) : list_(list) { list_.held_ = true; }
    HeldRows(const HeldRows&) = delete;
    HeldRows& operator=(const HeldRows&) = delete;
    ~HeldRows() { list_.held_ = false; }

  private:
    ListView& list_;
};

}  // namespace platform
