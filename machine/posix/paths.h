#pragma once

#include "platform/text/text.h"

#include <string>
#include <vector>

namespace machine::posix {

/// Turns the program's paths, of backslashes and drives, into the machine's and back.
///
/// `z:\` is the root folder, `c:\` the folder `drive_c` in the application directory, and what has no drive
/// lies below the application directory.
class Paths {
  public:
    /// Paths around the folder of the running executable.
    Paths();
    /// Paths around another folder, an absolute path.
    explicit Paths(std::string application_directory);

    /// The machine's absolute path, in UTF-8. Each component is the entry of exactly that name, else the one
    /// that spells its Hangul otherwise, else the first one that differs in the case of ASCII letters, else a
    /// name that nothing has yet; `.` and `..`
    /// are resolved by the text and never leave the drive. Raises RuntimeError 52 for a slash or a NUL in the
    /// path and 76 for a drive that is not there.
    std::string to_posix(platform::TextView path) const;

    /// The same by the text alone: the path of an entry whose name it has exactly, without a look at the
    /// disk.
    std::string as_it_stands(platform::TextView path) const;

    /// The program's path of an absolute path, below `z:`, without a backslash at its end.
    static platform::Text from_posix(const std::string& path);
    /// The same, but below `c:` for what lies on that drive.
    platform::Text on_drives(const std::string& path) const;

    const std::string& application_directory() const { return application_directory_; }
    /// The folder that is drive `c:`. It need not be there yet.
    std::string drive_c() const { return application_directory_ + "/drive_c"; }

  private:
    /// The folder where a path begins, and its components, which look into the path.
    struct Parts {
        std::string drive;
        std::vector<platform::TextView> components;
    };
    Parts parts_of(platform::TextView path) const;

    std::string application_directory_;
};

}  // namespace machine::posix
