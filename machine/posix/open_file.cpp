#include "machine/posix/open_file.h"

#include "machine/posix/file_descriptor.h"
#include "machine/posix/file_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <utility>

namespace machine::posix {

using platform::ErrorNumber;
using platform::OpenFile;
using platform::RuntimeError;

namespace {

/// Small writes go to the system together.
constexpr std::size_t BUFFER = 64 * 1024;

class PosixOpenFile : public OpenFile {
  public:
    explicit PosixOpenFile(const std::string& path)
        : path_(path),
          file_(::open(path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                       0600)) {
        if (!file_.is_open()) throw file_error(errno, path);
        struct stat status {};
        if (::fstat(file_.number(), &status) != 0 || !S_ISREG(status.st_mode))
            throw RuntimeError(ErrorNumber::path_access);
    }

    void write(std::string_view bytes) override {
        waiting_ += bytes;
        if (waiting_.size() >= BUFFER) flush();
    }

    void flush() override {
        const std::string bytes = std::exchange(waiting_, {});
        if (const int failure = write_all(file_.number(), bytes)) throw file_error(failure, path_);
    }

  private:
    std::string path_;
    FileDescriptor file_;
    std::string waiting_;
};

}  // namespace

std::unique_ptr<OpenFile> open_file_for_writing(const std::string& path) {
    return std::make_unique<PosixOpenFile>(path);
}

}  // namespace machine::posix
