#include "platform/posix/posix_files.h"

#include "platform/posix/file_error.h"
#include "platform/posix/whole_file.h"

#include <cerrno>
#include <filesystem>
#include <optional>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace platform::posix {

namespace {

namespace fs = std::filesystem;

constexpr mode_t USER_ALONE = 0700;

/// The home folder by the user database; the program reads no environment. Empty for a user whom it does not
/// know.
std::string home_folder() {
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return found->pw_dir;
}

std::string default_windows_directory(const Paths& paths) {
    const std::string home = home_folder();
    return home.empty() ? paths.drive_c() + "/windows" : home + "/.config/cardvale";
}

/// Makes the folder with those above it. Silent: what then wants to stand in it fails by itself.
void make_folders(const fs::path& folder) {
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    if (folder.has_relative_path()) make_folders(folder.parent_path());
    ::mkdir(folder.c_str(), USER_ALONE);
}

/// Whether the name is one of the pattern's: `*` is any run of characters and `?` any one, letters in either
/// case. `*.*` means every name, as it always did, also those without a dot.
bool matches(TextView name, TextView pattern) {
    if (pattern == u"*.*") return true;
    std::size_t at = 0;
    std::size_t in_pattern = 0;
    std::optional<std::pair<std::size_t, std::size_t>> after_star;
    while (at < name.size()) {
        if (in_pattern < pattern.size() && pattern[in_pattern] == u'*') {
            after_star = {at, ++in_pattern};
        } else if (in_pattern < pattern.size() &&
                   (pattern[in_pattern] == u'?' || pattern[in_pattern] == name[at])) {
            ++at;
            ++in_pattern;
        } else if (after_star) {
            at = ++after_star->first;
            in_pattern = after_star->second;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', in_pattern) == TextView::npos;
}

bool is_normal_file(const fs::path& path) {
    std::error_code ignored;
    return !path.filename().string().starts_with('.') && fs::is_regular_file(path, ignored);
}

}  // namespace

PosixFiles::PosixFiles(const Paths& paths) : PosixFiles(paths, default_windows_directory(paths)) {}

PosixFiles::PosixFiles(Paths paths, std::string windows_directory)
    : paths_(std::move(paths)), windows_directory_(std::move(windows_directory)) {}

Text PosixFiles::application_directory() const { return Paths::from_posix(paths_.application_directory()); }

Text PosixFiles::windows_directory() const { return Paths::from_posix(windows_directory_); }

Text PosixFiles::system_directory() const { return windows_directory(); }

bool PosixFiles::file_exists(const Text& path) const {
    const std::size_t name_at = path.rfind(u'\\') + 1;
    const Text pattern = lower_case(TextView(path).substr(name_at));
    if (pattern.empty()) return false;
    bool exists = false;
    // A path that cannot be names nothing.
    ignore_errors([&] {
        if (pattern.find_first_of(u"*?") == Text::npos) {
            exists = is_normal_file(paths_.to_posix(path));
            return;
        }
        std::error_code error;
        const std::string folder = paths_.to_posix(path.substr(0, name_at));
        for (fs::directory_iterator entry(folder, error), end; !error && !exists && entry != end;
             entry.increment(error)) {
            const Text name = lower_case(from_utf8(entry->path().filename().string()));
            exists = matches(name, pattern) && is_normal_file(entry->path());
        }
    });
    return exists;
}

bool PosixFiles::folder_exists(const Text& path) const {
    bool exists = false;
    ignore_errors([&] {
        std::error_code ignored;
        exists = fs::is_directory(paths_.to_posix(path), ignored);
    });
    return exists;
}

std::uint64_t PosixFiles::length(const Text& path) const {
    const std::string file = paths_.to_posix(path);
    struct stat found {};
    if (::stat(file.c_str(), &found) != 0) throw file_error(errno, file);
    return static_cast<std::uint64_t>(found.st_size);
}

std::string PosixFiles::read(const Text& path) const { return read_whole_file(paths_.to_posix(path)); }

void PosixFiles::write(const Text& path, const std::string& bytes) {
    const std::string file = paths_.to_posix(path);
    make_standing_folder_of(file);
    replace_file(file, bytes);
}

void PosixFiles::remove(const Text& path) {
    const std::string file = paths_.to_posix(path);
    if (::unlink(file.c_str()) != 0) throw file_error(errno, file);
}

void PosixFiles::make_folder(const Text& path) {
    const std::string folder = paths_.to_posix(path);
    make_standing_folder_of(folder);
    if (::mkdir(folder.c_str(), USER_ALONE) == 0) return;
    const int failure = errno;
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    throw failure == EEXIST ? RuntimeError(ErrorNumber::path_access) : folder_error(failure);
}

void PosixFiles::remove_folder(const Text& path) {
    const std::string folder = paths_.to_posix(path);
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        throw RuntimeError(fs::exists(folder, error) ? ErrorNumber::path_access
                                                     : ErrorNumber::path_not_found);
    }
    // Links go as links: what they lead to stays.
    fs::remove_all(folder, error);
    if (error) throw folder_error(error.value());
}

/// Drive `c:` and the Windows directory are always there for the program: made when something is to stand in
/// them.
void PosixFiles::make_standing_folder_of(const std::string& path) {
    const std::string folder = fs::path(path).parent_path();
    if (folder == windows_directory_ || folder == paths_.drive_c()) make_folders(folder);
}

}  // namespace platform::posix
