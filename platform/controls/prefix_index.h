#pragma once

#include "platform/text/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace platform {

class ListItem;

/// The sub-item texts of all rows of a list in their order, to find the rows that have one beginning with a
/// text.
///
/// Lists reach 100,000 rows and every new row asks for its number first. So the entries stand in sorted
/// chunks, the first characters of each text beside the next one's: a search touches two short runs of
/// memory, not every row. Texts wait unsorted until one with their first character is searched for: numbers
/// are, names and titles hardly ever.
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
    const ListItem* first_row(TextView prefix);

  private:
    /// The first characters of a text, filled up with zeros; four in a number, the first one highest.
    using Key = std::array<std::uint64_t, 3>;
    static constexpr std::size_t KEY_CHARACTERS = 12;

    /// What is searched for, ready to be compared with many texts.
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

    /// A run of the entries in their order. Its first stands beside those of the other chunks: a search for
    /// the chunk would otherwise go to far places of memory at every step.
    struct Chunk {
        Entry first;
        Entries entries;
    };

    /// The texts with one first character.
    class Bucket {
      public:
        void add(const Entry& entry) { waiting_.push_back(entry); }
        void remove(const Entry& entry);
        const ListItem* first_row(const Prefix& prefix);

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
