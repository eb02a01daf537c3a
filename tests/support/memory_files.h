#pragma once

#include "platform/error.h"
#include "platform/ports/files.h"

#include <map>
#include <optional>
#include <set>

/// A file system in memory. Paths match without regard to ASCII case.
class MemoryFiles : public platform::Files {
  public:
    platform::Text application_directory() const override { return u"z:\\app"; }
    platform::Text windows_directory() const override { return u"z:\\windows"; }
    platform::Text system_directory() const override { return u"z:\\windows\\system"; }

    bool file_exists(const platform::Text& path) const override;
    bool folder_exists(const platform::Text& path) const override;
    std::uint64_t length(const platform::Text& path) const override;
    std::string read(const platform::Text& path) const override;
    void write(const platform::Text& path, const std::string& bytes) override;
    void remove(const platform::Text& path) override;
    void make_folder(const platform::Text& path) override;
    void remove_folder(const platform::Text& path) override;
    std::string machine_path(const platform::Text& path) const override { return platform::to_utf8(path); }
    platform::Text path_of(const std::string& path) const override { return platform::from_utf8(path); }

    /// Every write, removal and folder from now on fails so.
    std::optional<platform::ErrorNumber> failure;

    std::map<platform::Text, std::string> files;
    std::set<platform::Text> folders;

  private:
    void fail_when_told() const;
};
