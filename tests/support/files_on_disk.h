#pragma once

#include "machine/posix/posix_files.h"
#include "tests/support/error_number.h"
#include "tests/support/temporary_folder.h"

#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace tests {

/// The real files, with the application and the Windows directory in a temporary folder.
struct FilesOnDisk {
    FilesOnDisk() { std::filesystem::create_directory(application); }

    TemporaryFolder folder;
    std::filesystem::path application = folder.path() / "앱";
    std::filesystem::path windows = folder.path() / "home/.config/cardvale";
    machine::posix::Installation installation =
        machine::posix::Installation::in_one_folder(application, windows);
    machine::posix::PosixFiles files{machine::posix::Paths(installation)};
};

/// Writes a file without the `Files` port.
inline void put(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string bytes_of(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// The names in a folder, hidden ones too.
inline std::set<std::string> names_in(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.insert(entry.path().filename());
    return names;
}

}  // namespace tests
