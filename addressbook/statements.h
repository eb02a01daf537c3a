#pragma once

#include "platform/text/text.h"

#include <vector>

/// The statements that are sent to the card manager's database, as they stand there.
namespace addressbook::statements {

/// All folders: `folder_name`, `f_idx`, `p_idx`.
platform::Text folders();
/// How many rows a folder has, in the field `RNO`.
platform::Text card_count(platform::TextView folder);
/// The `f_idx` of all folders that are not directly in the trash.
platform::Text folders_outside_trash();

/// The condition `f_idx=1 or f_idx=2 …` for these folders; empty without folders.
platform::Text folder_filter(const std::vector<platform::Text>& folders);

/// The cards of one folder.
platform::Text cards_of_folder(platform::TextView folder);
/// The cards of the folders that the filter names; of all folders when it is empty.
platform::Text all_cards(platform::TextView filter);
/// Those of them that the match clause finds.
platform::Text matching_cards(platform::TextView filter, platform::TextView match);

/// The clause for a text to search for, by the mode's name; empty for an unknown mode.
platform::Text match_clause(platform::TextView mode, const platform::Text& text);

inline constexpr platform::TextView BEGINS_WITH = u"~로 시작";
inline constexpr platform::TextView CONTAINS = u"~를 포함";
inline constexpr platform::TextView EQUALS = u"~과 일치";

}  // namespace addressbook::statements
