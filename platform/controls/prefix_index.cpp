#include "platform/controls/prefix_index.h"

#include "platform/controls/list_view.h"

#include <algorithm>
#include <functional>

namespace platform {

namespace {

constexpr std::size_t CHUNK_SIZE = 256;

}  // namespace

PrefixIndex::Entry::Entry(const ListItem& row, int column) : row(&row), column(column) {
    const Text& whole = text();
    std::copy_n(whole.begin(), std::min(whole.size(), key.size()), key.begin());
}

const Text& PrefixIndex::Entry::text() const { return row->sub_item(column); }

bool PrefixIndex::Entry::operator<(const Entry& other) const {
    if (key != other.key) return key < other.key;
    const bool goes_on = key.back() != u'\0';
    if (const int order = goes_on ? text().compare(other.text()) : 0; order != 0) return order < 0;
    if (row != other.row) return std::less<>()(row, other.row);
    return column < other.column;
}

int PrefixIndex::Entry::compare_beginning(TextView prefix) const {
    const TextView beginning(key.data(), std::min(prefix.size(), key.size()));
    const int order = beginning.compare(prefix.substr(0, key.size()));
    return order != 0 || prefix.size() <= key.size()
               ? order
               : TextView(text()).substr(0, prefix.size()).compare(prefix);
}

void PrefixIndex::add(const ListItem& row) {
    for (int column = 1; column <= row.sub_item_count(); ++column) add(row, column);
}

void PrefixIndex::remove(const ListItem& row) {
    for (int column = 1; column <= row.sub_item_count(); ++column) remove(row, column);
}

void PrefixIndex::add(const ListItem& row, int column) {
    if (row.sub_item(column).empty()) return;
    const Entry entry(row, column);
    if (chunks_.empty()) {
        chunks_.push_back({entry});
        return;
    }
    const std::size_t place = chunk_for(entry);
    Chunk& chunk = chunks_[place];
    chunk.insert(std::upper_bound(chunk.begin(), chunk.end(), entry), entry);
    if (chunk.size() < CHUNK_SIZE) return;

    const auto middle = chunk.begin() + static_cast<std::ptrdiff_t>(CHUNK_SIZE / 2);
    Chunk upper(middle, chunk.end());
    chunk.erase(middle, chunk.end());
    chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place) + 1, std::move(upper));
}

void PrefixIndex::remove(const ListItem& row, int column) {
    if (row.sub_item(column).empty()) return;
    const Entry entry(row, column);
    const std::size_t place = chunk_for(entry);
    Chunk& chunk = chunks_[place];
    chunk.erase(std::lower_bound(chunk.begin(), chunk.end(), entry));
    if (chunk.empty()) chunks_.erase(chunks_.begin() + static_cast<std::ptrdiff_t>(place));
}

const ListItem* PrefixIndex::first_row(TextView prefix) const {
    if (prefix.empty()) return nullptr;
    const auto before = [prefix](const Entry& entry) { return entry.compare_beginning(prefix) < 0; };
    auto chunk = std::partition_point(chunks_.begin(), chunks_.end(),
                                      [&](const Chunk& c) { return before(c.back()); });
    if (chunk == chunks_.end()) return nullptr;

    const ListItem* first = nullptr;
    auto entry = std::partition_point(chunk->begin(), chunk->end(), before);
    while (entry->compare_beginning(prefix) == 0) {
        if (first == nullptr || entry->row->position() < first->position()) first = entry->row;
        if (++entry == chunk->end()) {
            if (++chunk == chunks_.end()) break;
            entry = chunk->begin();
        }
    }
    return first;
}

/// The last chunk that begins at or before the entry; the first one when all begin behind it.
std::size_t PrefixIndex::chunk_for(const Entry& entry) const {
    const auto behind = std::partition_point(chunks_.begin(), chunks_.end(),
                                             [&](const Chunk& chunk) { return !(entry < chunk.front()); });
    return behind == chunks_.begin() ? 0 : static_cast<std::size_t>(behind - chunks_.begin()) - 1;
}

}  // namespace platform
