#include "platform/controls/list_columns.h"

namespace platform {

int FIND_COLUMN(TextView name, const ListView& list) {
    for (int column = 1; column <= list.column_count(); ++column) {
        if (equal_without_case(list.column(column).caption, name)) return column;
    }
    return -1;
}

void SORT_BY_COLUMN(ListView& list, int column) {
    const bool descending = list.sort_order() == ListView::SortOrder::ascending;
    list.sort(column - 1, descending ? ListView::SortOrder::descending : ListView::SortOrder::ascending);
    SET_SORT_ARROW(list, list.sort_key(), descending ? 1 : 0, true);
}

void SET_SORT_ARROW(ListView& list, int column, int image, bool show) {
    for (int number = 1; number <= list.column_count(); ++number) {
        const bool here = show && number == column + 1;
        list.set_column_picture(number, here ? std::optional(image) : std::nullopt);
    }
}

}  // namespace platform
