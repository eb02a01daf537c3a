#pragma once

#include "platform/text/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace platform {

class ListItem;

/// Finds the rows of a list that have a sub-item beginning with a text.
///
/// Lists reach 100,000 rows, and before a row is added its number is searched for. So the sub-items stand in
/// sorted chunks, with their first characters side by side in memory: a search reads two short runs of
/// memory, not every row. Texts that share a first character are sorted only when such a text is searched
/// for: numbers are, names and titles hardly ever.
class PrefixIndex {
  public:
    /// Adds all sub-items of a row.
    void add(const ListItem& row);
    /// Adds the row's sub-item under its present text. An empty one is left out, since nothing searches for
    /// it.
    void add(const ListItem& row, int column);
    /// Removes the sub-item. To be called while it still has the text under which it was added.
    void remove(const ListItem& row, int column);
    /// Removes all sub-items of a row.
    void remove(const ListItem& row);

    /// Of the rows with a sub-item that begins with `prefix`, other than `besides`, the one that stands first
    /// in the list; null when there is none.
    const ListItem* first_row(TextView prefix, const ListItem* besides);

  private:
    /// The first characters of a text, padded with zeros; four in each number, the first in the highest bits.
    using Key = std::array<std::uint64_t, 3>;
    static constexpr std::size_t KEY_CHARACTERS = 12;

    /// A text to search for, prepared for comparison with many texts.
    struct Prefix {
        TextView text;
        Key key, mask;

        explicit Prefix(TextView text);
    };

    struct Entry {
        /// Most comparisons end here.
        Key key;
        const ListItem* row = nullptr;
        int column = 0;

        Entry(const ListItem& row, int column);
        const Text& text() const;
        bool operator<(const Entry& other) const;
        bool begins_before(const Prefix& prefix) const;
        bool begins_with(const Prefix& prefix) const;
    };
    using Entries = std::vector<Entry>;

    /// A sorted run of the entries. The first of them is copied beside those of the other chunks: otherwise
    /// the search for a chunk would jump through memory at every step.
    struct Chunk {
        Entry first;
        Entries entries;
    };

    /// The texts with one first character.
    class Bucket {
      public:
        void add(const Entry& entry) { waiting_.push_back(entry); }
        void remove(const Entry& entry);
        const ListItem* first_row(const Prefix& prefix, const ListItem* besides);

      private:
        void sort_waiting();
        void insert(const Entry& entry);
        std::size_t chunk_for(const Entry& entry) const;

        Entries waiting_;
        std::vector<Chunk> chunks_;
    };

    static Key key_of(TextView text);

    std::unordered_map<char16_t, Bucket> buckets_;
};

}  // namespace platform
