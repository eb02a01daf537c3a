#pragma once

#include "platform/text/text.h"

#include <array>
#include <cstddef>
#include <vector>

namespace platform {

class ListItem;

/// The sub-item texts of all rows of a list in their order, to find the rows that have one beginning with a
/// text.
///
/// Lists reach 100,000 rows and every new row asks for its number first. So the entries stand in sorted
/// chunks, the first characters of each text beside the next one's: a search touches two short runs of
/// memory, not every row.
class PrefixIndex {
  public:
    /// Enters all sub-items of a row.
    void add(const ListItem& row);
    /// Enters the row's sub-item under its present text; an empty one is left out, since nothing searches for
    /// it.
    void add(const ListItem& row, int column);
    /// Takes the sub-item out; to be called while it still has the text that it was entered under.
    void remove(const ListItem& row, int column);
    /// Takes all sub-items of a row out.
    void remove(const ListItem& row);

    /// The row that stands first in the list among those with a sub-item that begins with `prefix`, or none.
    const ListItem* first_row(TextView prefix) const;

  private:
    struct Entry {
        /// The beginning of the text, filled up with zeros: most comparisons end here.
        std::array<char16_t, 12> key{};
        const ListItem* row = nullptr;
        int column = 0;

        Entry(const ListItem& row, int column);
        const Text& text() const;
        bool operator<(const Entry& other) const;
        /// How the text's beginning, as long as the prefix, stands to it: below, equal (0) or above.
        int compare_beginning(TextView prefix) const;
    };
    using Chunk = std::vector<Entry>;

    std::size_t chunk_for(const Entry& entry) const;

    std::vector<Chunk> chunks_;
};

}  // namespace platform
