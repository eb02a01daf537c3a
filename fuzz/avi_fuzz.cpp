#include "platform/formats/avi_file.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// A film that is accepted must be readable to its last row.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto film = platform::read_avi(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!film) return 0;
    unsigned sum = 0;
    for (std::size_t frame = 0; frame < film->frames.size(); ++frame)
        for (int y = 0; y < film->height; ++y)
            for (const char byte : film->row(frame, y)) sum += static_cast<unsigned char>(byte);
    volatile unsigned keep = sum;
    static_cast<void>(keep);
    return 0;
}
