#pragma once

#include "machine/qt/binders/list_view_model.h"
#include "platform/controls/list_view.h"

#include <QItemSelection>
#include <optional>
#include <vector>

class QTreeView;

namespace machine::qt {

/// Keeps rows, selection and current row of a list and its view the same.
///
/// Handlers add, select and mark rows one by one, up to 100,000 of them. What the view does not need at once
/// (new and changed rows, the selection, where to scroll) is collected and passed to it once in each turn of
/// the event loop.
class ListRows : public QObject, public platform::RowsView {
    Q_OBJECT

  public:
    ListRows(platform::ListView& list, QTreeView& view);

    ListViewModel& model() { return model_; }

    /// Passes on what has been collected; needed before the user acts on the view.
    void bring_up_to_date();
    void let_go();

    void row_added() override;
    void row_about_to_be_inserted(std::size_t row) override;
    void row_inserted() override;
    void rows_about_to_be_rearranged() override;
    void rows_rearranged() override;
    void row_changed(std::size_t row) override;
    void selection_changed() override;
    void columns_changed() override;
    void make_visible(std::size_t row) override;

  private:
    void gather();
    void show_selection();
    void keep_current(int row);
    void take_selection(const QItemSelection& selected, const QItemSelection& deselected);
    void take_selected_item();
    int last_row() const { return static_cast<int>(list_.row_count()) - 1; }

    platform::ListView& list_;
    QTreeView& view_;
    ListViewModel model_;

    bool live_ = true;
    bool gathering_ = false;
    bool showing_ = false;
    bool selection_changed_ = false;
    int current_before_ = 0;
    std::optional<int> first_changed_;
    int last_changed_ = 0;
    std::optional<int> to_show_;
    /// In twips, as the list has set them.
    std::vector<int> widths_;
};

}  // namespace machine::qt
