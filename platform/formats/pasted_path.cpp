#include "platform/formats/pasted_path.h"

#include <charconv>
#include <string>

namespace platform {

namespace {

/// With the byte itself for each "%" and its two digits; the bytes are UTF-8.
Text without_percent_signs(TextView address) {
    constexpr int HEXADECIMAL = 16;
    const std::string bytes = to_utf8(address);
    std::string plain;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const char* const digits = bytes.data() + i + 1;
        unsigned char byte = 0;
        const bool encoded = bytes[i] == '%' && i + 2 < bytes.size() &&
                             std::from_chars(digits, digits + 2, byte, HEXADECIMAL).ptr == digits + 2;
        plain.push_back(encoded ? static_cast<char>(byte) : bytes[i]);
        if (encoded) i += 2;
    }
    return from_utf8(plain);
}

}  // namespace

Text pasted_path(TextView pasted) {
    Text path = trim(pasted);
    if (path.size() > 1 && (path.front() == u'"' || path.front() == u'\'') && path.back() == path.front())
        path = trim(TextView(path).substr(1, path.size() - 2));
    // Of an address behind another machine's name the path alone would be another file.
    for (const TextView start : {u"file:///", u"file://localhost/"}) {
        if (equal_without_case(TextView(path).substr(0, start.size()), start))
            return without_percent_signs(TextView(path).substr(start.size() - 1));
    }
    return path;
}

}  // namespace platform
