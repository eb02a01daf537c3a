#include "machine/jet/file/connection_string.h"

#include <algorithm>

namespace machine::jet {

using platform::Text;
using platform::TextView;

ConnectionString ConnectionString::parse(TextView text) {
    ConnectionString parsed;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(u';'), text.size());
        const TextView pair = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));

        const std::size_t equals = pair.find(u'=');
        if (equals == TextView::npos) continue;
        const Text name = platform::trim(pair.substr(0, equals));
        const Text value = platform::trim(pair.substr(equals + 1));
        if (platform::equal_without_case(name, u"Data Source")) parsed.data_source = value;
        if (platform::equal_without_case(name, u"Jet OLEDB:Database Password")) parsed.password = value;
    }
    return parsed;
}

}  // namespace machine::jet
