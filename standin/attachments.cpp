#include "standin/attachments.h"

#include "standin/cp949.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

namespace standin {
namespace {

namespace fs = std::filesystem;

char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool same_but_for_case(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return ascii_lower(x) == ascii_lower(y); });
}

std::optional<fs::path> find_in(const fs::path& folder, const std::string& name) {
    std::error_code error;
    if (fs::exists(folder / name, error)) {
        return folder / name;
    }
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (same_but_for_case(entry->path().filename().string(), name)) {
            return entry->path();
        }
    }
    return std::nullopt;
}

}  // namespace

std::vector<std::string> list_entries(std::string_view list) {
    std::vector<std::string> entries;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find(';', start), list.size());
        if (end > start) {
            entries.emplace_back(list.substr(start, end - start));
        }
        start = end + 1;
    }
    return entries;
}

bool attachment_exists(std::string_view path) {
    std::string rest = utf8_from_cp949(path);
    std::replace(rest.begin(), rest.end(), '\\', '/');
    fs::path found = ".";
    if (rest.size() > 1 && rest[1] == ':') {
        const char drive = ascii_lower(rest[0]);
        if (drive != 'c' && drive != 'z') {
            return false;
        }
        found = drive == 'c' ? "drive_c" : "/";
        rest.erase(0, 2);
    } else if (rest.starts_with('/')) {
        found = "/";
    }
    for (const fs::path& component : fs::path(rest).relative_path()) {
        const std::optional<fs::path> next = find_in(found, component.string());
        if (!next) {
            return false;
        }
        found = *next;
    }
    std::error_code error;
    return fs::is_regular_file(found, error);
}

}  // namespace standin
