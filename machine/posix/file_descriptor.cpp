#include "machine/posix/file_descriptor.h"

#include <cerrno>

namespace machine::posix {

int write_all(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return errno;
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

}  // namespace machine::posix
