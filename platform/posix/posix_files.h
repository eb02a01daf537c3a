#pragma once

#include "platform/ports/files.h"
#include "platform/posix/paths.h"
#include "platform/posix/whole_file.h"

namespace platform::posix {

/// The machine's file system. Folders that it makes are their user's alone, and so are files in the program's
/// own folders.
class PosixFiles : public Files {
  public:
    /// With `~/.config/cardvale` as the Windows directory, of the home that the user database tells.
    explicit PosixFiles(const Paths& paths);
    /// With another Windows directory, an absolute path; the first write into it makes it.
    PosixFiles(Paths paths, std::string windows_directory);

    Text application_directory() const override;
    Text windows_directory() const override;
    Text system_directory() const override;

    bool file_exists(const Text& path) const override;
    bool folder_exists(const Text& path) const override;
    bool is_link(const Text& path) const override;

    std::vector<FileEntry> list_files(const Text& folder, TextView pattern) const override;
    std::vector<Text> list_folders(const Text& folder) const override;

    std::uint64_t length(const Text& path) const override;
    std::string read(const Text& path) const override;
    void write(const Text& path, const std::string& bytes) override;
    std::unique_ptr<OpenFile> open_for_writing(const Text& path) override;
    void remove(const Text& path) override;
    void remove_files(const Text& folder, TextView pattern) override;
    void make_folder(const Text& path) override;
    void rename_folder(const Text& from, const Text& to) override;
    void remove_empty_folder(const Text& path) override;
    void remove_folder(const Text& path) override;

    std::string machine_path(const Text& path) const override { return paths_.to_posix(path); }
    Text path_of(const std::string& machine_path) const override { return paths_.on_drives(machine_path); }

  private:
    Readers readers_of(const std::string& path) const;
    void make_standing_folder_of(const std::string& path);

    Paths paths_;
    std::string windows_directory_;
};

}  // namespace platform::posix
