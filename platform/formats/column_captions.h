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

/// In a table the last word tells: "담당자 연락처" as "연락처".
Column column_under(TextView caption);

/// Whether the whole text is the caption of names or telephone numbers. People and companies have parts of
/// such words in their names.
bool is_caption(TextView text);

}  // namespace platform
