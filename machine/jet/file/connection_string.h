#pragma once

#include "platform/text/text.h"

namespace machine::jet {

/// What a connection string asks for: pairs of a name and a value with semicolons between them, names in any
/// case. What it does not name is empty.
struct ConnectionString {
    platform::Text data_source;
    platform::Text password;

    static ConnectionString parse(platform::TextView text);
};

}  // namespace machine::jet
