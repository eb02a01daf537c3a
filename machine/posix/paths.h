#pragma once

#include "machine/posix/installation.h"
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
    explicit Paths(Installation installation);
    /// With one folder for everything, an absolute path, and `windows` in it as the Windows directory.
    explicit Paths(const std::string& folder);

    /// The machine's absolute path, in UTF-8. A component means the entry of exactly that name, else the one
    /// whose Hangul is composed differently, else the first one that differs in the case of ASCII letters
    /// only; otherwise it is the name of something new. `.` and `..` are resolved in the text and never leave
    /// the drive. Raises RuntimeError 52 for a slash or a NUL in the path and 76 for an unknown drive.
    std::string to_posix(platform::TextView path) const;

    /// The same for something that is only read: what is not in the application directory may lie below it.
    std::string to_read(platform::TextView path) const;

    /// The same as `to_posix` without searching the disk: right for names that are known to be spelled
    /// exactly so.
    std::string as_it_stands(platform::TextView path) const;

    /// The program's path for an absolute path, on drive `z:`, without a backslash at its end.
    static platform::Text from_posix(const std::string& path);
    /// The same, but on `c:` for what lies on that drive.
    platform::Text on_drives(const std::string& path) const;

    const std::string& application_directory() const { return installation_.own; }
    const std::string& windows_directory() const { return installation_.windows_directory; }
    /// The folder that is drive `c:`. It may not exist yet.
    std::string drive_c() const { return application_directory() + "/drive_c"; }
    /// One of the programs that lie beside this one.
    std::string program(const std::string& name) const { return installation_.programs + "/" + name; }

  private:
    /// The drive's folder and the components, which are views into the path.
    struct Parts {
        std::string drive;
        std::vector<platform::TextView> components;
    };
    Parts parts_of(platform::TextView path) const;

    Installation installation_;
};

}  // namespace machine::posix
