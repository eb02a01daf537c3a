#include "machine/jet/sql/card_rows.h"

#include "platform/error.h"

#include <algorithm>
#include <functional>
#include <limits>

namespace machine::jet {

using platform::CardField;
using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

constexpr std::size_t LONGEST_TEXT = (1U << 30) - 1;
/// Enough for a million cards. With a file that repeats its folders a statement could produce any number of
/// rows.
constexpr std::size_t MOST_FIELDS = 20'000'000;

/// The position of the part when it lies within the text.
std::optional<std::size_t> position_in(const Text& text, TextView part) {
    const std::less_equal<const char16_t*> before;
    const bool inside =
        before(text.data(), part.data()) && before(part.data() + part.size(), text.data() + text.size());
    if (!inside) return std::nullopt;
    return static_cast<std::size_t>(part.data() - text.data());
}

}  // namespace

void CardRows::add(const Cell& cell) {
    if (cells_.size() >= MOST_FIELDS) throw RuntimeError(ErrorNumber::out_of_memory);
    Packed packed{};
    if (const auto* number = std::get_if<std::int32_t>(&cell)) {
        packed.kind = Packed::Kind::number;
        packed.value = static_cast<std::uint32_t>(*number);
    } else if (const auto* text = std::get_if<TextView>(&cell)) {
        const auto known = source_ ? position_in(source_->texts_, *text) : std::nullopt;
        const std::size_t begin = known.value_or(texts_.size());
        if (begin > std::numeric_limits<std::uint32_t>::max() || text->size() > LONGEST_TEXT)
            throw RuntimeError(ErrorNumber::out_of_memory);
        packed.kind = known ? Packed::Kind::text_of_source : Packed::Kind::text;
        packed.value = static_cast<std::uint32_t>(begin);
        packed.length = static_cast<std::uint32_t>(text->size());
        if (!known) texts_ += *text;
    }
    cells_.push_back(packed);
}

std::optional<std::size_t> CardRows::column(TextView name) const {
    const auto found = std::ranges::find_if(columns_, [&](const Column& column) {
        return column.name.size() == name.size() && platform::equal_without_case(column.name, name);
    });
    if (found == columns_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - columns_.begin());
}

Cell CardRows::at(std::size_t row, std::size_t column) const {
    const Packed& packed = cells_[row * columns_.size() + column];
    switch (packed.kind) {
        case Packed::Kind::null:
            return {};
        case Packed::Kind::number:
            return static_cast<std::int32_t>(packed.value);
        case Packed::Kind::text:
            return TextView(texts_).substr(packed.value, packed.length);
        case Packed::Kind::text_of_source:
            return TextView(source_->texts_).substr(packed.value, packed.length);
    }
    return {};
}

CardField CardRows::field(std::size_t row, std::size_t column) const {
    CardField field{columns_[column].type, {}};
    const Cell cell = at(row, column);
    if (const auto* number = std::get_if<std::int32_t>(&cell)) field.value = *number;
    if (const auto* text = std::get_if<TextView>(&cell)) field.value = Text(*text);
    return field;
}

}  // namespace machine::jet
