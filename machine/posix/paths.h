#pragma once

#include "platform/text/text.h"

#include <string>
#include <vector>

namespace machine::posix {

/// Converts the program's paths, with backslashes and drives, to the machine's and back.
///
/// `z:\` is the root folder and `c:\` the folder `drive_c` in the application directory. A path without a
/// drive is relative to the application directory.
class Paths {
  public:
    /// With the running executable's folder as the application directory.
    Paths();
    /// With another application directory, an absolute path.
    explicit Paths(std::string application_directory);

    /// The machine's absolute path, in UTF-8. A component means the entry of exactly that name, else the one
    /// whose Hangul is composed differently, else the first one that differs in the case of ASCII letters
    /// only; otherwise it is the name of something new. `.` and `..` are resolved in the text and never leave
    /// the drive. Raises RuntimeError 52 for a slash or a NUL in the path and 76 for an unknown drive.
    std::string to_posix(platform::TextView path) const;

    /// The same without searching the disk: right for names that are known to be spelled exactly so.
    std::string as_it_stands(platform::TextView path) const;

    /// The program's path for an absolute path, on drive `z:`, without a backslash at its end.
    static platform::Text from_posix(const std::string& path);
    /// The same, but on `c:` for what lies on that drive.
    platform::Text on_drives(const std::string& path) const;

    const std::string& application_directory() const { return application_directory_; }
    /// The folder that is drive `c:`. It may not exist yet.
    std::string drive_c() const { return application_directory_ + "/drive_c"; }

  private:
    /// The drive's folder and the components, which are views into the path.
    struct Parts {
        std::string drive;
        std::vector<platform::TextView> components;
    };
    Parts parts_of(platform::TextView path) const;

    std::string application_directory_;
};

}  // namespace machine::posix
