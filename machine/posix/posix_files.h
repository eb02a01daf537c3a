#pragma once

#include "machine/posix/file_bytes.h"
#include "machine/posix/paths.h"
#include "platform/ports/files.h"

namespace machine::posix {

/// The machine's file system. Only the user may read the folders that it makes and the files in the program's
/// own folders.
class PosixFiles : public platform::Files {
  public:
    /// The Windows directory is made when it is first written to.
    explicit PosixFiles(Paths paths);

    platform::Text application_directory() const override;
    platform::Text windows_directory() const override;
    platform::Text system_directory() const override;

    bool file_exists(const platform::Text& path) const override;
    bool folder_exists(const platform::Text& path) const override;
    bool is_link(const platform::Text& path) const override;

    std::vector<platform::FileEntry> list_files(const platform::Text& folder,
                                                platform::TextView pattern) const override;
    std::vector<platform::Text> list_folders(const platform::Text& folder) const override;

    std::uint64_t length(const platform::Text& path) const override;
    std::string read(const platform::Text& path, std::uint64_t limit = platform::FILE_LIMIT) const override;
    void write(const platform::Text& path, const std::string& bytes) override;
    std::unique_ptr<platform::OpenFile> open_for_writing(const platform::Text& path) override;
    void remove(const platform::Text& path) override;
    void rename(const platform::Text& from, const platform::Text& to) override;
    void remove_files(const platform::Text& folder, platform::TextView pattern) override;
    void make_folder(const platform::Text& path) override;
    void rename_folder(const platform::Text& from, const platform::Text& to) override;
    void remove_empty_folder(const platform::Text& path) override;
    void remove_folder(const platform::Text& path) override;

    std::string machine_path(const platform::Text& path) const override { return paths_.to_read(path); }
    platform::Text path_of(const std::string& machine_path) const override {
        return paths_.on_drives(machine_path);
    }

  private:
    std::string file_to_read(const platform::Text& path) const;
    Readers readers_of(const std::string& path) const;
    void make_standing_folder_of(const std::string& path);

    Paths paths_;
};

}  // namespace machine::posix
