#include "machine/posix/paths.h"

#include "machine/posix/entry_name.h"
#include "platform/error.h"
#include "platform/text/hangul.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace machine::posix {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

namespace fs = std::filesystem;

/// The components between the backslashes, without the empty ones, `.` and `..`.
std::vector<TextView> components_of(TextView path) {
    std::vector<TextView> components;
    components.reserve(16);
    while (!path.empty()) {
        const std::size_t end = std::min(path.find(u'\\'), path.size());
        const TextView component = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component == u"..") {
            if (!components.empty()) components.pop_back();
        } else if (!component.empty() && component != u".") {
            components.push_back(component);
        }
    }
    return components;
}

bool is_there(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0;
}

/// The folder's entry that the component means, or nothing.
std::optional<std::string> entry_of(const std::string& folder, TextView component) {
    // Files from some systems have decomposed Hangul in their names, which nobody can type.
    const std::string beginning = folder + "/";
    const Text composed = platform::compose_hangul(component);
    for (const Text& spelling : {Text(component), composed, platform::decompose_hangul(component)}) {
        if (std::string name = bytes_of_name(spelling); is_there(beginning + name)) return name;
    }
    std::error_code error;
    std::optional<std::string> found;
    for (fs::directory_iterator entry(folder.empty() ? "/" : folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename();
        // File systems list entries in any order; the smallest name is always the same one.
        if (platform::equal_without_case(platform::compose_hangul(platform::from_utf8(name)), composed) &&
            (!found || name < *found))
            found = name;
    }
    return found;
}

}  // namespace

Paths::Paths(Installation installation) : installation_(std::move(installation)) {}

Paths::Paths(const std::string& folder) : Paths(Installation::in_one_folder(folder, folder + "/windows")) {}

Paths::Parts Paths::parts_of(TextView path) const {
    if (path.find_first_of(TextView(u"/\0", 2)) != TextView::npos)
        throw RuntimeError(ErrorNumber::bad_file_name);

    Parts parts{application_directory(), {}};
    if (path.size() >= 2 && path[1] == u':') {
        if (path[0] == u'z' || path[0] == u'Z') {
            parts.drive.clear();
        } else if (path[0] == u'c' || path[0] == u'C') {
            parts.drive = drive_c();
        } else {
            throw RuntimeError(ErrorNumber::path_not_found);
        }
        path.remove_prefix(2);
    }
    parts.components = components_of(path);
    return parts;
}

std::string Paths::to_posix(TextView path) const {
    // Most paths are spelled as they stand on the disk.
    if (std::string exact = as_it_stands(path); is_there(exact)) return exact;
    const Parts parts = parts_of(path);
    std::string posix = parts.drive;
    bool there = true;
    for (const TextView component : parts.components) {
        const auto entry = there ? entry_of(posix, component) : std::nullopt;
        there = entry.has_value();
        posix += "/" + entry.value_or(bytes_of_name(platform::compose_hangul(component)));
    }
    return posix.empty() ? "/" : posix;
}

std::string Paths::to_read(TextView path) const {
    std::string own = to_posix(path);
    if (!own.starts_with(application_directory() + "/") || is_there(own)) return own;
    for (const std::string& folder : installation_.below) {
        if (std::string there = folder + own.substr(application_directory().size()); is_there(there))
            return there;
    }
    return own;
}

std::string Paths::as_it_stands(TextView path) const {
    const Parts parts = parts_of(path);
    std::string posix = parts.drive;
    for (const TextView component : parts.components) posix.append("/").append(bytes_of_name(component));
    return posix.empty() ? "/" : posix;
}

Text Paths::from_posix(const std::string& path) {
    Text text = u"z:" + platform::from_utf8(path);
    std::replace(text.begin(), text.end(), u'/', u'\\');
    while (text.ends_with(u'\\')) text.pop_back();
    return text;
}

Text Paths::on_drives(const std::string& path) const {
    const std::string drive = drive_c();
    if (!path.starts_with(drive + "/")) return from_posix(path);
    return u"c:" + from_posix(path.substr(drive.size())).substr(2);
}

}  // namespace machine::posix
