#pragma once

#include <string>
#include <vector>

namespace machine::posix {

/// The folders of the running program, absolute paths without a slash at the end.
///
/// Built, it lies with all its files in one folder, which is its application directory. Installed, its
/// folders cannot be written to, and everybody has an application directory of his own above them.
struct Installation {
    /// With one folder for everything but the settings.
    static Installation in_one_folder(std::string folder, std::string windows_directory);

    /// The running executable, helper programs and modules.
    std::string programs;
    /// The application directory.
    std::string own;
    /// What is not in the application directory is looked for in these, in this order.
    std::vector<std::string> below;
    /// The Windows directory: what the program keeps of the user outside the application directory.
    std::string windows_directory;
};

/// The running program's installation. Nothing in it is made here.
Installation this_installation();

}  // namespace machine::posix
