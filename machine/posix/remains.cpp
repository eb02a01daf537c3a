#include "machine/posix/remains.h"

#include <dirent.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace machine::posix {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view WAITING = ".zent-whole-";

/// The status of the normal file; nothing where there is none.
std::optional<struct stat> file_at(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    return status;
}

bool is_older(const struct stat& one, const struct stat& other) {
    return std::tie(one.st_mtim.tv_sec, one.st_mtim.tv_nsec) <
           std::tie(other.st_mtim.tv_sec, other.st_mtim.tv_nsec);
}

}  // namespace

std::string waiting_path(const std::string& path) {
    const fs::path target(path);
    return target.parent_path() / (std::string(WAITING) + target.filename().string());
}

void bring_in(const std::string& path) {
    const std::string waiting = waiting_path(path);
    const auto whole = file_at(waiting);
    // In a folder for everybody it may be another user's.
    if (!whole || whole->st_uid != ::getuid()) return;
    const auto present = file_at(path);
    present&& is_older(*whole, *present) ? ::unlink(waiting.c_str())
                                         : ::rename(waiting.c_str(), path.c_str());
}

void settle_remains(const std::string& folder) {
    struct CloseFolder {
        void operator()(DIR* opened) const { ::closedir(opened); }
    };
    // A box of texts has thousands of files: their names are looked at where they stand.
    const std::unique_ptr<DIR, CloseFolder> opened(::opendir(folder.c_str()));
    if (!opened) return;
    while (const dirent* entry = ::readdir(opened.get())) {
        const std::string_view name = entry->d_name;
        if (name.starts_with(WAITING)) {
            bring_in(folder + "/" + std::string(name.substr(WAITING.size())));
        } else if (name.starts_with(UNFINISHED)) {
            // It may hold a password that the user has removed since.
            ::unlink((folder + "/" + std::string(name)).c_str());
        }
    }
}

}  // namespace machine::posix
