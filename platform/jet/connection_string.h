#pragma once

#include "platform/text/text.h"

namespace platform::jet {

/// What a connection string asks for: pairs of a name and a value with semicolons between them, names in any
/// case. What it does not name is empty.
struct ConnectionString {
    Text data_source;
    Text password;

    static ConnectionString parse(TextView text);
};

}  // namespace platform::jet
