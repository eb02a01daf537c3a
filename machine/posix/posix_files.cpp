#include "machine/posix/posix_files.h"

#include "machine/posix/file_bytes.h"
#include "machine/posix/file_error.h"
#include "machine/posix/folder_list.h"
#include "machine/posix/private_folder.h"
#include "machine/posix/remains.h"
#include "platform/file_name.h"
#include "platform/text/hangul.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace machine::posix {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::Text;
using platform::TextView;

namespace {

namespace fs = std::filesystem;

constexpr mode_t USER_ALONE = 0700;

/// The path's last component; a backslash at the end does not count.
TextView name_in(TextView path) {
    while (path.ends_with(u'\\')) path.remove_suffix(1);
    return path.substr(path.find_last_of(u"\\:") + 1);
}

bool is_normal_file(const fs::path& path) {
    std::error_code ignored;
    return !path.filename().string().starts_with('.') && fs::is_regular_file(path, ignored);
}

}  // namespace

PosixFiles::PosixFiles(Paths paths) : paths_(std::move(paths)) {}

Text PosixFiles::application_directory() const { return Paths::from_posix(paths_.application_directory()); }

Text PosixFiles::windows_directory() const { return Paths::from_posix(paths_.windows_directory()); }

Text PosixFiles::system_directory() const { return windows_directory(); }

bool PosixFiles::file_exists(const Text& path) const {
    const std::size_t name_at = path.rfind(u'\\') + 1;
    const Text pattern = path.substr(name_at);
    if (pattern.empty()) return false;
    bool exists = false;
    // An impossible path names nothing.
    platform::ignore_errors([&] {
        if (pattern.find_first_of(u"*?") == Text::npos) {
            exists = is_normal_file(file_to_read(path));
            return;
        }
        std::error_code error;
        const std::string folder = paths_.to_posix(path.substr(0, name_at));
        for (fs::directory_iterator entry(folder, error), end; !error && !exists && entry != end;
             entry.increment(error)) {
            const Text name =
                platform::compose_hangul(platform::from_utf8(entry->path().filename().string()));
            exists = platform::matches_pattern(name, pattern) && is_normal_file(entry->path());
        }
    });
    return exists;
}

bool PosixFiles::folder_exists(const Text& path) const {
    bool exists = false;
    platform::ignore_errors([&] {
        std::error_code ignored;
        exists = fs::is_directory(paths_.to_posix(path), ignored);
    });
    return exists;
}

std::uint64_t PosixFiles::length(const Text& path) const {
    const std::string file = paths_.to_read(path);
    struct stat found {};
    if (::stat(file.c_str(), &found) != 0) throw file_error(errno, file);
    return static_cast<std::uint64_t>(found.st_size);
}

bool PosixFiles::is_link(const Text& path) const {
    bool link = false;
    platform::ignore_errors([&] {
        std::error_code ignored;
        link = fs::is_symlink(paths_.to_posix(path), ignored);
    });
    return link;
}

std::vector<platform::FileEntry> PosixFiles::list_files(const Text& folder, TextView pattern) const {
    const std::string posix = paths_.to_posix(folder);
    settle_remains(posix);
    return files_of(posix, pattern);
}

std::vector<Text> PosixFiles::list_folders(const Text& folder) const {
    return folders_of(paths_.to_posix(folder));
}

std::string PosixFiles::read(const Text& path, std::uint64_t limit) const {
    // Thousands of files are read one by one, so try the exact name before searching the folder.
    if (auto bytes = read_if_there(paths_.as_it_stands(path), limit)) return std::move(*bytes);
    return read_whole_file(file_to_read(path), limit);
}

void PosixFiles::write(const Text& path, const std::string& bytes) {
    const std::string file = paths_.to_posix(path);
    if (!is_normal_file(file)) platform::check_file_name(name_in(path));
    make_standing_folder_of(file);
    replace_file(file, bytes, readers_of(file));
}

std::unique_ptr<platform::OpenFile> PosixFiles::open_for_writing(const Text& path) {
    const std::string file = paths_.to_posix(path);
    make_standing_folder_of(file);
    return open_file_for_writing(file);
}

void PosixFiles::remove(const Text& path) {
    const std::string file = paths_.to_posix(path);
    if (::unlink(file.c_str()) != 0) throw file_error(errno, file);
    // Otherwise it would come back.
    ::unlink(waiting_path(file).c_str());
}

void PosixFiles::rename(const Text& from, const Text& to) {
    platform::check_file_name(name_in(to));
    rename_file(paths_.to_posix(from), paths_.to_posix(to));
}

void PosixFiles::remove_files(const Text& folder, TextView pattern) {
    remove_files_of(paths_.to_posix(folder), pattern);
}

void PosixFiles::make_folder(const Text& path) {
    platform::check_file_name(name_in(path));
    const std::string folder = paths_.to_posix(path);
    make_standing_folder_of(folder);
    if (::mkdir(folder.c_str(), USER_ALONE) == 0) return;
    const int failure = errno;
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) return;
    throw failure == EEXIST ? RuntimeError(ErrorNumber::path_access) : folder_error(failure);
}

void PosixFiles::rename_folder(const Text& from, const Text& to) {
    platform::check_file_name(name_in(to));
    const std::string folder = paths_.to_posix(from);
    std::error_code error;
    if (!fs::is_directory(folder, error)) throw RuntimeError(ErrorNumber::path_not_found);
    if (::rename(folder.c_str(), paths_.to_posix(to).c_str()) != 0) throw folder_error(errno);
}

void PosixFiles::remove_empty_folder(const Text& path) {
    const std::string folder = paths_.to_posix(path);
    settle_remains(folder);
    if (::rmdir(folder.c_str()) != 0) throw folder_error(errno);
}

void PosixFiles::remove_folder(const Text& path) {
    const std::string folder = paths_.to_posix(path);
    std::error_code error;
    if (!fs::is_directory(folder, error)) {
        throw RuntimeError(fs::exists(folder, error) ? ErrorNumber::path_access
                                                     : ErrorNumber::path_not_found);
    }
    // A link is deleted itself; what it leads to stays.
    fs::remove_all(folder, error);
    if (error) throw folder_error(error.value());
}

/// Of the user's own file, what a kill has left waiting is brought in first.
std::string PosixFiles::file_to_read(const Text& path) const {
    bring_in(paths_.to_posix(path));
    return paths_.to_read(path);
}

/// The program's own folders hold private data such as passwords. Files elsewhere were named by the user, who
/// may share them.
Readers PosixFiles::readers_of(const std::string& path) const {
    for (const std::string& own : {paths_.application_directory(), paths_.windows_directory()}) {
        if (path.starts_with(own + "/")) return Readers::user_alone;
    }
    return Readers::as_usual;
}

/// The program relies on drive `c:` and the Windows directory, so they are made when something is written
/// there.
void PosixFiles::make_standing_folder_of(const std::string& path) {
    const std::string folder = fs::path(path).parent_path();
    if (folder == paths_.windows_directory() || folder == paths_.drive_c()) make_private_folder(folder);
}

}  // namespace machine::posix
