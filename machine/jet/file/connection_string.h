#pragma once

#include "platform/text/text.h"

namespace machine::jet {

/// The parts of a connection string that matter: `name=value` pairs separated by semicolons, names in any
/// case. Missing parts are empty.
struct ConnectionString {
    platform::Text data_source;
    platform::Text password;

    static ConnectionString parse(platform::TextView text);
};

}  // namespace machine::jet
