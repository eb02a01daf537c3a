#include "machine/jet/file/connection_string.h"

namespace machine::jet {

using platform::Text;
using platform::TextView;

ConnectionString ConnectionString::parse(TextView text) {
    ConnectionString parsed;
    for (const TextView pair : platform::split(text, u';')) {
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
