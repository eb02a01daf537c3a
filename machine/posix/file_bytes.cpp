#include "machine/posix/file_bytes.h"

#include "machine/posix/file_descriptor.h"
#include "machine/posix/file_error.h"
#include "machine/posix/remains.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace machine::posix {

using platform::ErrorNumber;
using platform::OpenFile;
using platform::RuntimeError;

namespace {

namespace fs = std::filesystem;

/// Writes all the bytes. Returns 0, or the `errno` of the write that failed.
int write_all(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return errno;
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

/// Writes the file and makes the disk keep it. Returns 0 or an `errno`.
int fill(int file, std::string_view bytes) {
    if (const int failure = write_all(file, bytes)) return failure;
    return ::fsync(file) == 0 ? 0 : errno;
}

/// Makes the disk keep the folder's entries. A file system that cannot do this still has the new file.
void sync_folder(const std::string& folder) {
    const FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.is_open()) ::fsync(opened.number());
}

/// Makes a file with an unused name; -1 with `errno` on failure.
int open_new_file(const std::string& folder, mode_t mode, std::string& path) {
    for (int number = 0;; ++number) {
        path = folder + "/" + std::string(UNFINISHED) + std::to_string(::getpid()) + "-" +
               std::to_string(number);
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        if (file >= 0 || errno != EEXIST) return file;
    }
}

/// Small writes go to the system together.
constexpr std::size_t BUFFER = std::size_t{64} * 1024;

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

std::string read_whole_file(const std::string& path, std::uint64_t limit) {
    if (auto bytes = read_if_there(path, limit)) return std::move(*bytes);
    throw file_error(ENOENT, path);
}

std::optional<std::string> read_if_there(const std::string& path, std::uint64_t limit) {
    // Checked before opening: some devices act when they are opened.
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) return std::nullopt;
        throw file_error(errno, path);
    }
    if (!S_ISREG(status.st_mode)) throw RuntimeError(ErrorNumber::path_access);
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size > limit) throw RuntimeError(ErrorNumber::out_of_memory);

    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.is_open()) throw file_error(errno, path);
    std::string bytes;
    bytes.reserve(size);
    std::array<char, 65536> chunk;
    for (;;) {
        const ssize_t got = ::read(file.number(), chunk.data(), chunk.size());
        if (got < 0 && errno != EINTR) throw file_error(errno, path);
        if (got > 0) bytes.append(chunk.data(), static_cast<std::size_t>(got));
        // It has grown meanwhile, and may go on growing.
        if (bytes.size() > limit) throw RuntimeError(ErrorNumber::out_of_memory);
        // Only at its end does a normal file give less than was asked for.
        if (got >= 0 && static_cast<std::size_t>(got) < chunk.size()) return bytes;
    }
}

void replace_file(const std::string& path, const std::string& bytes, Readers readers) {
    const std::string folder = fs::path(path).parent_path();
    std::string new_file;
    const FileDescriptor file(open_new_file(folder, readers == Readers::user_alone ? 0600 : 0666, new_file));
    if (!file.is_open()) throw file_error(errno, new_file);
    struct stat old {};
    if (readers == Readers::as_usual && ::lstat(path.c_str(), &old) == 0 && S_ISREG(old.st_mode))
        ::fchmod(file.number(), old.st_mode & 0666);
    int failure = fill(file.number(), bytes);
    // A kill from here on loses nothing. A name that is too long for this is given to the file at once.
    if (const std::string waiting = waiting_path(path);
        failure == 0 && ::rename(new_file.c_str(), waiting.c_str()) == 0)
        new_file = waiting;
    // A link is replaced, not followed: it could lead into a folder where others could read a password.
    if (failure == 0 && ::rename(new_file.c_str(), path.c_str()) != 0) failure = errno;
    if (failure != 0) {
        ::unlink(new_file.c_str());
        throw file_error(failure, path);
    }
    sync_folder(folder);
    settle_remains(folder);
}

void rename_file(const std::string& from, const std::string& to) {
    struct stat status {};
    if (::lstat(from.c_str(), &status) != 0) throw file_error(errno, from);
    if (!S_ISREG(status.st_mode)) throw RuntimeError(ErrorNumber::path_access);
    if (::rename(from.c_str(), to.c_str()) != 0) throw file_error(errno, to);
    sync_folder(fs::path(to).parent_path());
}

std::unique_ptr<OpenFile> open_file_for_writing(const std::string& path) {
    return std::make_unique<PosixOpenFile>(path);
}

}  // namespace machine::posix
