#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace tests {

/// An empty folder of the test's own. It is the current directory while this object lives and is removed with
/// it.
class TemporaryFolder {
  public:
    TemporaryFolder() : before_(std::filesystem::current_path()) {
        std::string name = std::filesystem::temp_directory_path() / "zent-test-XXXXXX";
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder " + name);
        path_ = std::filesystem::canonical(name);
        std::filesystem::current_path(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::current_path(before_, ignored);
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path before_;
    std::filesystem::path path_;
};

}  // namespace tests
