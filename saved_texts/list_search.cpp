#include "saved_texts/list_search.h"

#include "saved_texts/frmMyMsgBox.h"

#include <algorithm>
#include <utility>

namespace saved_texts {

using platform::Text;

void ListSearch::show(const Text& words) {
    if (words.empty() && others_.empty()) return;
    const Text wanted = platform::lower_case(words);
    const auto holds = [&wanted](const Text& cell) {
        return platform::contains(platform::lower_case(cell), wanted);
    };
    std::vector<Cells> rows = std::exchange(others_, {});
    for (std::size_t row = 0; row < list_.row_count(); ++row) {
        Cells cells;
        for (int cell = 0; cell <= TEXT_FILE; ++cell) cells.push_back(list_.row(row).sub_item(cell));
        rows.push_back(std::move(cells));
    }
    list_.clear();
    const platform::FilledList filling(list_);
    for (Cells& cells : rows) {
        if (!words.empty() && !holds(cells[0]) && !holds(cells[TEXT_LINE])) {
            others_.push_back(std::move(cells));
            continue;
        }
        Text title = std::move(cells.front());
        cells.erase(cells.begin());
        list_.add_row(std::move(title), std::move(cells));
    }
}

}  // namespace saved_texts
