#pragma once

#include "platform/error.h"
#include "platform/ports/files.h"

#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace tests {

/// A file system in memory. Paths match without regard to ASCII case. A folder into which a test puts files
/// need not be made first.
class MemoryFiles : public platform::Files {
  public:
    struct WithoutCase {
        bool operator()(const platform::Text& left, const platform::Text& right) const;
    };
    using Contents = std::map<platform::Text, std::string, WithoutCase>;
    using Paths = std::set<platform::Text, WithoutCase>;

    platform::Text application_directory() const override { return u"z:\\app"; }
    platform::Text windows_directory() const override { return u"z:\\windows"; }
    platform::Text system_directory() const override { return u"z:\\windows\\system"; }

    bool file_exists(const platform::Text& path) const override;
    bool folder_exists(const platform::Text& path) const override;
    std::uint64_t length(const platform::Text& path) const override;
    bool is_link(const platform::Text& path) const override;
    std::vector<platform::FileEntry> list_files(const platform::Text& folder,
                                                platform::TextView pattern) const override;
    std::vector<platform::Text> list_folders(const platform::Text& folder) const override;
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
    std::string machine_path(const platform::Text& path) const override { return platform::to_utf8(path); }
    platform::Text path_of(const std::string& path) const override { return platform::from_utf8(path); }

    /// The error with which every write, removal and change of a folder fails from now on.
    std::optional<platform::ErrorNumber> failure;

    /// Every file that was read or written, in order.
    mutable std::vector<platform::Text> touched;

    Contents files;
    Paths folders;
    Paths links;
    /// When files were last written; `now` for the others.
    std::map<platform::Text, platform::LocalTime, WithoutCase> dates;
    platform::LocalTime now = platform::make_time(2026, 11, 23, 10, 0, 0);

    /// Thrown when the program is killed: at the change after so many.
    struct Killed {};
    std::optional<int> changes_until_kill;
    /// How many changes succeed before one fails, and with which error; later ones succeed again.
    std::optional<std::pair<int, platform::ErrorNumber>> changes_until_failure;

  private:
    bool holds_anything(const platform::Text& folder) const;
    void expect_folder(const platform::Text& path) const;
    void expect_file(const platform::Text& path) const;
    void expect_place_for_file(const platform::Text& path) const;
    void expect_place_for_folder(const platform::Text& path) const;
    void before_change();
};

}  // namespace tests
