#pragma once

#include "platform/ports/files.h"
#include "platform/ports/settings.h"

namespace platform {

/// Settings files on top of the `Files` port. The same calls give the same bytes as the system's own settings
/// functions.
class IniSettings : public Settings {
  public:
    /// `files` must outlive this object.
    explicit IniSettings(Files& files) : files_(files) {}

    /// Empty also when the file cannot be read.
    std::string read(const Text& path, const std::string& section, const std::string& key,
                     std::size_t limit) const override;
    /// Raises RuntimeError and writes nothing when the file exists but cannot be read: writing would lose its
    /// other lines. Where the file cannot be replaced, an empty value still blanks the one before.
    void write(const Text& path, const std::string& section, const std::string& key,
               const std::string& value) override;

  private:
    Files& files_;
};

}  // namespace platform
