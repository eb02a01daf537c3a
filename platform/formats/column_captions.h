#pragma once

#include "platform/text/text.h"

namespace platform {

/// What the cells of a table's column hold, as far as its caption tells.
enum class Column {
    unknown,
    name,
    title,
    telephone,
    /// Numbers at which nobody can be called: of a business, an account, an order.
    other_number
};

Column column_under(TextView caption);

/// Whether the text is the caption of names or telephone numbers, not one of them.
bool is_caption(TextView text);

}  // namespace platform
