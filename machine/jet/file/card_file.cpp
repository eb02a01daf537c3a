#include "machine/jet/file/card_file.h"

#include "platform/error.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace machine::jet {

using platform::ErrorNumber;
using platform::RuntimeError;

namespace {

constexpr double LONGEST_TICK_NANOSECONDS = 50e6;

}  // namespace

bool FileState::operator==(const FileState& other) const {
    return device == other.device && number == other.number && length == other.length &&
           changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
}

bool FileState::is_settled() const {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const double age = static_cast<double>(now.tv_sec - changed.tv_sec) * 1e9 +
                       static_cast<double>(now.tv_nsec - changed.tv_nsec);
    return age > LONGEST_TICK_NANOSECONDS;
}

CardFile::CardFile(const std::string& path)
    : file_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
    if (!file_.is_open()) {
        const bool missing = errno == ENOENT || errno == ENOTDIR;
        throw RuntimeError(ErrorNumber::database_unusable, missing ? u"데이터베이스 파일을 찾을 수 없습니다."
                                                                   : u"데이터베이스 파일을 열 수 없습니다.");
    }
    struct stat status {};
    if (::fstat(file_.number(), &status) != 0 || !S_ISREG(status.st_mode))
        throw RuntimeError(ErrorNumber::database_unusable, u"데이터베이스 파일을 열 수 없습니다.");
}

FileState CardFile::state() const {
    struct stat status {};
    if (::fstat(file_.number(), &status) != 0) throw RuntimeError(ErrorNumber::database_unusable);
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

JetHeader CardFile::header() const {
    std::string page(PAGE_BYTES, '\0');
    const ssize_t got = ::pread(file_.number(), page.data(), page.size(), 0);
    const auto header = got == static_cast<ssize_t>(page.size()) ? JetHeader::read(page) : std::nullopt;
    if (!header)
        throw RuntimeError(ErrorNumber::database_unusable, u"데이터베이스 형식을 인식할 수 없습니다.");
    if (state().length % static_cast<off_t>(PAGE_BYTES) != 0)
        throw RuntimeError(ErrorNumber::database_unusable, u"데이터베이스 파일이 잘려 있습니다.");
    return *header;
}

}  // namespace machine::jet
