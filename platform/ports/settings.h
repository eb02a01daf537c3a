#pragma once

#include "platform/text/text.h"

#include <string>

namespace platform {

/// Settings files of sections and keys. Names and values are bytes of cp949.
class Settings {
  public:
    virtual ~Settings() = default;

    /// The key's value, cut to `limit` bytes at a whole character; empty when file, section or key is
    /// missing.
    virtual std::string read(const Text& path, const std::string& section, const std::string& key,
                             std::size_t limit) const = 0;
    /// Writes or replaces the key and keeps every other line; raises RuntimeError when the file cannot be
    /// written.
    virtual void write(const Text& path, const std::string& section, const std::string& key,
                       const std::string& value) = 0;
};

}  // namespace platform
