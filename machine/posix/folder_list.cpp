#include "machine/posix/folder_list.h"

#include "machine/posix/entry_name.h"
#include "machine/posix/file_error.h"
#include "platform/file_name.h"
#include "platform/text/hangul.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_set>

namespace machine::posix {

using platform::FileEntry;
using platform::LocalTime;
using platform::Text;
using platform::TextView;

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

/// Calls `take(name, status, descriptor of the folder)` for each entry. A link counts as itself.
template <class Take>
void for_each_entry(const std::string& path, Take take) {
    const std::unique_ptr<DIR, CloseFolder> folder(::opendir(path.c_str()));
    if (folder == nullptr) throw folder_error(errno);
    const int descriptor = ::dirfd(folder.get());
    while (const dirent* entry = ::readdir(folder.get())) {
        struct stat status {};
        // Deleted since the folder was read.
        if (::fstatat(descriptor, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
            take(std::string(entry->d_name), status, descriptor);
    }
}

/// The name as the program's paths write it; nothing for a hidden entry, and for one with a backslash, which
/// a path would take for a folder.
std::optional<Text> listed_name(const std::string& name) {
    if (name.starts_with('.') || name.find('\\') != std::string::npos) return std::nullopt;
    return name_of_entry(name);
}

LocalTime local_time(std::time_t seconds) {
    std::tm parts{};
    if (::localtime_r(&seconds, &parts) == nullptr) return LocalTime();
    return platform::make_time(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour,
                               parts.tm_min, parts.tm_sec);
}

/// Composes the Hangul syllables of the names. A name stays decomposed when another entry already has the
/// composed one.
template <class Entry, class Name>
void compose_names(std::vector<Entry>& entries, Name name_of) {
    std::vector<Entry*> apart;
    for (Entry& entry : entries) {
        if (platform::compose_hangul(name_of(entry)) != name_of(entry)) apart.push_back(&entry);
    }
    if (!apart.empty()) {
        std::unordered_set<Text> taken;
        for (Entry& entry : entries) taken.insert(name_of(entry));
        for (Entry* entry : apart) {
            Text composed = platform::compose_hangul(name_of(*entry));
            if (taken.insert(composed).second) name_of(*entry) = std::move(composed);
        }
    }
    std::sort(entries.begin(), entries.end(),
              [&](Entry& a, Entry& b) { return platform::name_precedes(name_of(a), name_of(b)); });
}

}  // namespace

std::vector<FileEntry> files_of(const std::string& folder, TextView pattern) {
    std::vector<FileEntry> files;
    for_each_entry(folder, [&](const std::string& name, const struct stat& status, int) {
        if (!S_ISREG(status.st_mode)) return;
        if (auto listed = listed_name(name); listed && platform::matches_pattern(*listed, pattern))
            files.push_back({std::move(*listed), local_time(status.st_mtime)});
    });
    compose_names(files, [](FileEntry& file) -> Text& { return file.name; });
    return files;
}

std::vector<Text> folders_of(const std::string& folder) {
    std::vector<Text> folders;
    for_each_entry(folder, [&](const std::string& name, const struct stat& status, int) {
        if (!S_ISDIR(status.st_mode)) return;
        if (auto listed = listed_name(name)) folders.push_back(std::move(*listed));
    });
    compose_names(folders, [](Text& name) -> Text& { return name; });
    return folders;
}

void remove_files_of(const std::string& folder, TextView pattern) {
    for_each_entry(folder, [&](const std::string& name, const struct stat& status, int descriptor) {
        if (S_ISDIR(status.st_mode) ||
            !platform::matches_pattern(platform::compose_hangul(platform::from_utf8(name)), pattern))
            return;
        if (::unlinkat(descriptor, name.c_str(), 0) != 0) throw file_error(errno, folder + "/" + name);
    });
}

}  // namespace machine::posix
