#pragma once

#include "platform/controls/list_view.h"
#include "tests/support/utf8.h"

#include <string>
#include <vector>

namespace tests {

/// What a column shows, row by row.
inline std::vector<std::string> column(const platform::ListView& list, int sub_item = 0) {
    std::vector<std::string> texts;
    for (std::size_t row = 0; row < list.row_count(); ++row)
        texts.push_back(utf8(list.row(row).sub_item(sub_item)));
    return texts;
}

/// What a click of the user on the row does.
inline void choose(platform::ListView& list, std::size_t row) {
    list.deselect_item();
    list.select_item(row);
    list.MouseUp.raise(platform::MouseButton::left);
}

}  // namespace tests
