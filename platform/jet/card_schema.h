#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

namespace platform::jet {

/// What the program knows of the card manager's tables: the columns that its statements name.
enum class Kind { number, text, memo };

struct Column {
    std::string_view name;
    Kind kind;
};

enum class Table : std::uint8_t { folder, card };
inline constexpr Table TABLES[] = {Table::folder, Table::card};

inline constexpr Column FOLDER_COLUMNS[] = {
    {"f_idx", Kind::number}, {"p_idx", Kind::number}, {"folder_name", Kind::text}};

inline constexpr Column CARD_COLUMNS[] = {
    {"f_idx", Kind::number},      {"p_idx", Kind::number},        {"i_idx", Kind::number},
    {"FullName", Kind::text},     {"CompanyName", Kind::text},    {"Department", Kind::text},
    {"JobTitle", Kind::text},     {"Company_addr", Kind::text},   {"Company_zipcode", Kind::text},
    {"Cellphone", Kind::text},    {"Beeper", Kind::text},         {"Email", Kind::text},
    {"Email2", Kind::text},       {"Company_phone1", Kind::text}, {"Company_phone2", Kind::text},
    {"Company_fax1", Kind::text}, {"Webpage", Kind::text},        {"Memo_", Kind::memo},
    {"Fname", Kind::text},        {"Fname_photo", Kind::text}};

inline constexpr std::size_t MOST_COLUMNS = std::size(CARD_COLUMNS);

constexpr std::span<const Column> columns_of(Table table) {
    if (table == Table::folder) return FOLDER_COLUMNS;
    return CARD_COLUMNS;
}

constexpr std::string_view name_of(Table table) {
    return table == Table::folder ? "tbl_folder" : "tbl_namecard";
}

}  // namespace platform::jet
