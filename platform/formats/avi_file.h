#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace platform {

/// The pictures of an uncompressed AVI film. The pixels are views into the film's bytes, which must outlive
/// it.
struct AviFile {
    int width = 0;
    int height = 0;
    /// 24 (blue, green, red) or 32 (blue, green, red, and a fourth byte that is the opacity or zero
    /// throughout).
    int bits_per_pixel = 0;
    bool top_down = false;
    int frame_microseconds = 0;
    /// At least one; each holds all rows of its picture.
    std::vector<std::string_view> frames;

    /// The bytes of one row of a frame, row 0 being the topmost, without the padding at the row's end.
    std::string_view row(std::size_t frame, int y) const;
};

/// Reads the first video stream of a film. Returns nothing for bytes that are no AVI film, are damaged or cut
/// short anywhere, are compressed or have a palette, or are larger than any film that shows that the program
/// is busy.
std::optional<AviFile> read_avi(std::string_view bytes);

}  // namespace platform
