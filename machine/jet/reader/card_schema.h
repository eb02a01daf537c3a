#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

namespace machine::jet {

/// The card manager's tables with the columns that the program's statements name.
enum class Kind { number, text, memo };

struct Column {
    std::string_view name;
    Kind kind;
    /// Unused columns are fetched by the statements but by nothing else. They may have another type and are
    /// NULL then.
    bool used = true;
};

enum class Table : std::uint8_t { folder, card };
inline constexpr Table TABLES[] = {Table::folder, Table::card};

inline constexpr Column FOLDER_COLUMNS[] = {
    {"f_idx", Kind::number}, {"p_idx", Kind::number}, {"folder_name", Kind::text}};

inline constexpr Column CARD_COLUMNS[] = {{"f_idx", Kind::number},
                                          {"p_idx", Kind::number},
                                          {"i_idx", Kind::number},
                                          {"FullName", Kind::text},
                                          {"CompanyName", Kind::text},
                                          {"Department", Kind::text, false},
                                          {"JobTitle", Kind::text},
                                          {"Company_addr", Kind::text, false},
                                          {"Company_zipcode", Kind::text, false},
                                          {"Cellphone", Kind::text},
                                          {"Beeper", Kind::text, false},
                                          {"Email", Kind::text, false},
                                          {"Email2", Kind::text, false},
                                          {"Company_phone1", Kind::text},
                                          {"Company_phone2", Kind::text, false},
                                          {"Company_fax1", Kind::text},
                                          {"Webpage", Kind::text, false},
                                          {"Memo_", Kind::memo, false},
                                          {"Fname", Kind::text, false},
                                          {"Fname_photo", Kind::text, false}};

inline constexpr std::size_t MOST_COLUMNS = std::size(CARD_COLUMNS);

constexpr std::span<const Column> columns_of(Table table) {
    if (table == Table::folder) return FOLDER_COLUMNS;
    return CARD_COLUMNS;
}

constexpr std::string_view name_of(Table table) {
    return table == Table::folder ? "tbl_folder" : "tbl_namecard";
}

}  // namespace machine::jet
