// The first three lines are section, key and value, the rest is the document.

#include "fuzz/check.h"
#include "platform/formats/ini_document.h"

#include <string>
#include <string_view>

namespace {

using platform::ini::read;
using platform::ini::write;

std::string_view take_line(std::string_view& rest) {
    const auto end = rest.find('\n');
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    return line;
}

/// Whether names can be found again after they are written.
bool can_be_written(std::string_view section, std::string_view key) {
    const auto start = key.find_first_not_of(" \t\v\f");
    const bool like_another_line =
        start != std::string_view::npos && (key[start] == ';' || key[start] == '[');
    return section.find_first_of("]\r") == std::string_view::npos &&
           key.find_first_of("=\r") == std::string_view::npos && !like_another_line;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view document(reinterpret_cast<const char*>(data), size);
    const std::string_view section = take_line(document), key = take_line(document),
                           value = take_line(document);

    const std::string written = write(document, section, key, value);
    if (!can_be_written(section, key)) return 0;

    const std::string line(value.substr(0, value.find('\r')));
    fuzz::check(read(written, section, key) == read("[s]\nk=" + line, "s", "k"),
                "the value written is read back");
    fuzz::check(write(written, section, key, value) == written, "writing it again changes nothing");
    for (const std::string_view other : {"other", "o", ""}) {
        if (!read("[s]\n" + std::string(key) + "=", "s", other)) {
            fuzz::check(read(document, section, other) == read(written, section, other),
                        "other keys keep their values");
        }
        if (!read("[" + std::string(section) + "]\nk=", other, "k")) {
            fuzz::check(read(document, other, key) == read(written, other, key),
                        "other sections keep their values");
        }
    }
    return 0;
}
