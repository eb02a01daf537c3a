#include "platform/controls/prefix_index.h"

#include "platform/controls/list_item.h"

#include <algorithm>
#include <functional>

namespace platform {

namespace {

constexpr std::size_t CHUNK_SIZE = 128;

}  // namespace

PrefixIndex::Key PrefixIndex::key_of(TextView text) {
    Key key{};
    for (std::size_t i = 0; i < std::min(text.size(), KEY_CHARACTERS); ++i)
        key[i / 4] |= std::uint64_t{text[i]} << (48 - 16 * (i % 4));
    return key;
}

PrefixIndex::Prefix::Prefix(TextView text)
    : text(text), key(key_of(text)), mask(key_of(Text(std::min(text.size(), KEY_CHARACTERS), u'\xFFFF'))) {}

PrefixIndex::Entry::Entry(const ListItem& row, int column)
    : key(key_of(row.sub_item(column))), row(&row), column(column) {}

const Text& PrefixIndex::Entry::text() const { return row->sub_item(column); }

bool PrefixIndex::Entry::operator<(const Entry& other) const {
    for (std::size_t i = 0; i < key.size(); ++i) {
        if (key[i] != other.key[i]) return key[i] < other.key[i];
    }
    const bool goes_on = (key.back() & 0xFFFF) != 0;
    if (const int order = goes_on ? text().compare(other.text()) : 0; order != 0) return order < 0;
    if (row != other.row) return std::less<>()(row, other.row);
    return column < other.column;
}

bool PrefixIndex::Entry::begins_before(const Prefix& prefix) const {
    for (std::size_t i = 0; i < key.size(); ++i) {
        const std::uint64_t beginning = key[i] & prefix.mask[i];
        if (beginning != prefix.key[i]) return beginning < prefix.key[i];
    }
    return prefix.text.size() > KEY_CHARACTERS &&
           TextView(text()).substr(0, prefix.text.size()) < prefix.text;
}

bool PrefixIndex::Entry::begins_with(const Prefix& prefix) const {
    for (std::size_t i = 0; i < key.size(); ++i) {
        if ((key[i] & prefix.mask[i]) != prefix.key[i]) return false;
    }
    return prefix.text.size() <= KEY_CHARACTERS || text().starts_with(prefix.text);
}

void PrefixIndex::add(const ListItem& row) {
    for (int column = 1; column <= row.sub_item_count(); ++column) add(row, column);
}

void PrefixIndex::remove(const ListItem& row) {
    for (int column = 1; column <= row.sub_item_count(); ++column) remove(row, column);
}

void PrefixIndex::add(const ListItem& row, int column) {
    const Text& text = row.sub_item(column);
    if (!text.empty()) buckets_[text.front()].add(Entry(row, column));
}

void PrefixIndex::remove(const ListItem& row, int column) {
    const Text& text = row.sub_item(column);
    if (!text.empty()) buckets_.at(text.front()).remove(Entry(row, column));
}

const ListItem* PrefixIndex::first_row(TextView prefix, const ListItem* besides) {
    const auto found = prefix.empty() ? buckets_.end() : buckets_.find(prefix.front());
    return found == buckets_.end() ? nullptr : found->second.first_row(Prefix(prefix), besides);
}

void PrefixIndex::Bucket::remove(const Entry& entry) {
    sort_waiting();
    const std::size_t place = chunk_for(entry);
    Entries& entries = chunks_[place].entries;
    entries.erase(std::lower_bound(entries.begin(), entries.end(), entry));
    if (entries.empty()) {
        chunks_.erase(chunks_.begin() + static_cast<std::ptrdiff_t>(place));
    } else {
        chunks_[place].first = entries.front();
    }
}

const ListItem* PrefixIndex::Bucket::first_row(const Prefix& prefix, const ListItem* besides) {
    sort_waiting();
    if (chunks_.empty()) return nullptr;
    const auto before = [&](const Entry& entry) { return entry.begins_before(prefix); };
    auto chunk =
        std::partition_point(chunks_.begin(), chunks_.end(), [&](const Chunk& c) { return before(c.first); });
    if (chunk != chunks_.begin()) --chunk;

    const ListItem* first = nullptr;
    std::size_t first_position = 0;
    auto entry = std::partition_point(chunk->entries.begin(), chunk->entries.end(), before);
    while (true) {
        if (entry == chunk->entries.end()) {
            if (++chunk == chunks_.end()) break;
            entry = chunk->entries.begin();
        }
        if (!entry->begins_with(prefix)) break;
        const std::size_t position = entry->row->position();
        if (entry->row != besides && (first == nullptr || position < first_position)) {
            first = entry->row;
            first_position = position;
        }
        ++entry;
    }
    return first;
}

void PrefixIndex::Bucket::sort_waiting() {
    std::sort(waiting_.begin(), waiting_.end());
    for (const Entry& entry : waiting_) insert(entry);
    waiting_.clear();
}

void PrefixIndex::Bucket::insert(const Entry& entry) {
    if (chunks_.empty()) {
        chunks_.push_back({entry, {entry}});
        return;
    }
    const std::size_t place = chunk_for(entry);
    Entries& entries = chunks_[place].entries;
    entries.insert(std::upper_bound(entries.begin(), entries.end(), entry), entry);
    chunks_[place].first = entries.front();
    if (entries.size() < CHUNK_SIZE) return;

    const auto middle = entries.begin() + static_cast<std::ptrdiff_t>(CHUNK_SIZE / 2);
    Chunk upper{*middle, Entries(middle, entries.end())};
    entries.erase(middle, entries.end());
    chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(place) + 1, std::move(upper));
}

/// The last chunk that begins at or before the entry; the first one when all begin after it.
std::size_t PrefixIndex::Bucket::chunk_for(const Entry& entry) const {
    const auto behind = std::partition_point(chunks_.begin(), chunks_.end(),
                                             [&](const Chunk& chunk) { return !(entry < chunk.first); });
    return behind == chunks_.begin() ? 0 : static_cast<std::size_t>(behind - chunks_.begin()) - 1;
}

}  // namespace platform
