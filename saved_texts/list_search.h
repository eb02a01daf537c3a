#pragma once

#include "platform/controls/list_view.h"

#include <vector>

namespace saved_texts {

/// Leaves those rows in a list of texts whose title or text holds some words, and keeps the others meanwhile.
class ListSearch {
  public:
    explicit ListSearch(platform::ListView& list) : list_(list) {}

    /// Upper and lower case are the same; without words all rows show.
    void show(const platform::Text& words);
    /// The list is about to be filled anew.
    void forget() { others_.clear(); }
    /// The rows that are looked through.
    std::size_t all() const { return list_.row_count() + others_.size(); }

  private:
    using Cells = std::vector<platform::Text>;

    platform::ListView& list_;
    std::vector<Cells> others_;
};

}  // namespace saved_texts
