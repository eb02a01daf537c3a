#pragma once

#include "platform/text/calendar.h"
#include "platform/text/text.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// A file as a folder's list shows it.
struct FileEntry {
    /// Leads to this very file in a path. What of it no text can show stands in it as lone surrogates.
    Text name;
    /// When it was written last.
    LocalTime modified;
};

/// A file that is open for writing. Destroying it closes the file; what was not flushed may be lost.
class OpenFile {
  public:
    virtual ~OpenFile() = default;

    /// Writes where the last write ended. The bytes are in the file after a flush.
    virtual void write(std::string_view bytes) = 0;
    virtual void flush() = 0;
};

/// The most bytes of a file that is read whole where its use sets no closer limit.
inline constexpr std::uint64_t FILE_LIMIT = std::uint64_t{64} << 20;

/// The file system, by paths with backslashes: below the application directory, on drive `c:` or, for what
/// the user picks, elsewhere. Contents are bytes. Failures are RuntimeErrors with the classic file numbers.
///
/// What an installation brings lies below the application directory: its files are found and read there by
/// their names, but not listed. A write puts the user's own file above it.
class Files {
  public:
    virtual ~Files() = default;

    /// The directory of the running executable or, installed, the user's own, without a backslash at its end.
    virtual Text application_directory() const = 0;
    /// The per-user directory that no other user can read, without a backslash at its end.
    virtual Text windows_directory() const = 0;
    virtual Text system_directory() const = 0;

    /// Whether a normal file (no folder, not hidden) matches the path; `*` and `?` may stand in the name.
    virtual bool file_exists(const Text& path) const = 0;
    virtual bool folder_exists(const Text& path) const = 0;

    /// The file's length in bytes, found without opening it.
    virtual std::uint64_t length(const Text& path) const = 0;

    /// Whether the path's last component is a link that leads elsewhere.
    virtual bool is_link(const Text& path) const = 0;

    /// The normal files of the folder whose names match the pattern, in the order of their names without
    /// regard to case; neither hidden ones nor links. Hangul in the names is in whole syllables.
    virtual std::vector<FileEntry> list_files(const Text& folder, TextView pattern) const = 0;
    /// The folders in the folder likewise.
    virtual std::vector<Text> list_folders(const Text& folder) const = 0;

    /// The whole file. Raises RuntimeError 7 for one of more bytes than the limit, without reading further.
    virtual std::string read(const Text& path, std::uint64_t limit = FILE_LIMIT) const = 0;
    /// Writes the whole file or leaves the old one as it was, also when the program is killed meanwhile. In
    /// the program's own folders only the user can read the file. A new name, of a folder too, must pass
    /// `check_file_name`.
    virtual void write(const Text& path, const std::string& bytes) = 0;
    /// Opens the file to be written from its beginning, for data that arrives in pieces; creates it when it
    /// is missing. It is not truncated: bytes after the last one written stay.
    virtual std::unique_ptr<OpenFile> open_for_writing(const Text& path) = 0;
    virtual void remove(const Text& path) = 0;
    /// Gives the file another path beside the old one, in a single step. A file that has it is replaced.
    virtual void rename(const Text& from, const Text& to) = 0;
    /// Removes the files of the folder that match the pattern, hidden ones too. Of a link the link itself is
    /// removed; folders stay.
    virtual void remove_files(const Text& folder, TextView pattern) = 0;
    virtual void make_folder(const Text& path) = 0;
    virtual void rename_folder(const Text& from, const Text& to) = 0;
    /// Raises RuntimeError 75 when the folder is not empty.
    virtual void remove_empty_folder(const Text& path) = 0;
    /// Removes the folder with all that is in it.
    virtual void remove_folder(const Text& path) = 0;

    /// The path as the operating system writes it, in UTF-8, for its dialogs and players. Raises RuntimeError
    /// for a path that cannot exist.
    virtual std::string machine_path(const Text& path) const = 0;
    /// The reverse: the program's path for one that the operating system wrote.
    virtual Text path_of(const std::string& machine_path) const = 0;
};

}  // namespace platform
