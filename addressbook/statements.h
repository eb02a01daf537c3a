#pragma once

#include "platform/text/text.h"

#include <vector>

/// The statements that are sent to the card manager's database, as they stand there.
namespace addressbook::statements {

using platform::Text;
using platform::TextView;

/// All folders: `folder_name`, `f_idx`, `p_idx`.
Text folders();
/// How many rows a folder has, in the field `RNO`.
Text card_count(TextView folder);
/// The `f_idx` of all folders that are not directly in the trash.
Text folders_outside_trash();

/// The row of tests that keeps cards of other folders out of a list; empty without folders.
Text folder_filter(const std::vector<Text>& folders);

/// The cards of one folder.
Text cards_of_folder(TextView folder);
/// The cards of the folders that the filter names; of all folders when it is empty.
Text all_cards(TextView filter);
/// Those of them that the match clause lets through.
Text matching_cards(TextView filter, TextView match);

/// The clause for a text to search for, by the mode's name; empty for an unknown mode.
Text match_clause(TextView mode, const Text& text);

inline constexpr TextView BEGINS_WITH = u"~로 시작";
inline constexpr TextView CONTAINS = u"~를 포함";
inline constexpr TextView EQUALS = u"~과 일치";

}  // namespace addressbook::statements
