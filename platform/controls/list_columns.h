#pragma once

#include "platform/controls/list_view.h"

namespace platform {

/// 1-based column whose caption is the name in any case; -1 when there is none.
int FIND_COLUMN(TextView name, const ListView& list);

/// Sorts by the 1-based column with the order turned round. Every click turns it, one on another column too.
void SORT_BY_COLUMN(ListView& list, int column);

/// Shows the sort picture (0 ascending, 1 descending) in the 0-based column and in no other.
void SET_SORT_ARROW(ListView& list, int column, int image, bool show);

}  // namespace platform
