#pragma once

#include "platform/ports/files.h"
#include "platform/ports/settings.h"

namespace platform {

/// Settings files over any file system, with the results of the platform's own calls on the same bytes.
class IniSettings : public Settings {
  public:
    /// `files` must outlive this object.
    explicit IniSettings(Files& files) : files_(files) {}

    /// Empty also for a file that cannot be read.
    std::string read(const Text& path, const std::string& section, const std::string& key,
                     std::size_t limit) const override;
    /// Raises the RuntimeError of a file that is there and cannot be read, and then writes nothing: writing
    /// would lose its other lines.
    void write(const Text& path, const std::string& section, const std::string& key,
               const std::string& value) override;

  private:
    Files& files_;
};

}  // namespace platform
