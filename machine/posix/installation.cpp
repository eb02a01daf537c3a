#include "machine/posix/installation.h"

#include <filesystem>
#include <pwd.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace machine::posix {

namespace {

namespace fs = std::filesystem;

/// Below it an administrator puts the carrier's library, and other addresses of the service's pages.
constexpr const char* ADMINISTRATOR = "/usr/local/lib/";

/// The home folder in the user database: the program does not read the environment. Empty for an unknown
/// user.
std::string home_folder() {
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr)
        return {};
    return found->pw_dir;
}

}  // namespace

Installation Installation::in_one_folder(std::string folder, std::string windows_directory) {
    while (folder.ends_with('/')) folder.pop_back();
    return {
        .programs = folder, .own = folder, .below = {}, .windows_directory = std::move(windows_directory)};
}

Installation this_installation() {
    const fs::path programs = fs::read_symlink("/proc/self/exe").parent_path();
    const std::string name = programs.filename();
    const fs::path shared = (programs / SHARED_FROM_PROGRAMS / name).lexically_normal();
    const std::string home = home_folder();
    std::error_code ignored;
    if (!home.empty() && fs::exists(shared / "i_version.ini", ignored)) {
        return {.programs = programs,
                .own = home + "/.local/share/" + name,
                .below = {ADMINISTRATOR + name, shared, programs},
                .windows_directory = home + "/.config/" + name};
    }
    return Installation::in_one_folder(
        programs, home.empty() ? programs.string() + "/drive_c/windows" : home + "/.config/cardvale");
}

}  // namespace machine::posix
