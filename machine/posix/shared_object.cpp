#include "machine/posix/shared_object.h"

#include "machine/posix/file_bytes.h"
#include "platform/error.h"

#include <cstring>
#include <link.h>

namespace machine::posix {

namespace {

using Header = ElfW(Ehdr);
using Segment = ElfW(Phdr);

/// Whether there are `size` bytes from `offset` on.
bool holds(const std::string& bytes, std::uint64_t offset, std::uint64_t size) {
    return offset <= bytes.size() && size <= bytes.size() - offset;
}

}  // namespace

bool is_whole_shared_object(const std::string& path) {
    std::string bytes;
    if (!platform::ignore_errors([&] { bytes = read_whole_file(path); })) return false;

    Header header{};
    if (!holds(bytes, 0, sizeof header)) return false;
    std::memcpy(&header, bytes.data(), sizeof header);
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_phentsize != sizeof(Segment))
        return false;

    for (std::uint64_t i = 0; i < header.e_phnum; ++i) {
        const std::uint64_t offset = header.e_phoff + i * sizeof(Segment);
        if (!holds(bytes, offset, sizeof(Segment))) return false;
        Segment segment{};
        std::memcpy(&segment, bytes.data() + offset, sizeof segment);
        if (!holds(bytes, segment.p_offset, segment.p_filesz)) return false;
    }
    return true;
}

}  // namespace machine::posix
