#include "platform/formats/avi_file.h"

#include <cstdint>
#include <string>

namespace platform {
namespace {

constexpr int largest_side = 1024;
constexpr std::size_t most_frames = 1000;
constexpr std::size_t most_streams = 100;  // a frame's name has two digits for its stream
constexpr std::uint32_t shortest_frame = 10'000;
constexpr std::uint32_t longest_frame = 10'000'000;
constexpr std::size_t list_name_size = 4;

/// A little-endian number of one to four bytes, or nothing when the body ends before it does.
std::optional<std::uint32_t> number_at(std::string_view body, std::size_t offset, std::size_t size) {
    if (body.size() < size || offset > body.size() - size) return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i)
        number |= std::uint32_t{static_cast<unsigned char>(body[offset + i])} << (8 * i);
    return number;
}

struct Chunk {
    std::string_view name;
    std::string_view body;

    bool is_list(std::string_view list_name) const { return name == "LIST" && body.starts_with(list_name); }
};

/// Takes the chunk at the head of `rest`, its padding byte included; nothing when it runs past the end.
std::optional<Chunk> take_chunk(std::string_view& rest) {
    constexpr std::size_t head_size = 8;
    const auto size = number_at(rest, 4, 4);
    if (!size || *size > rest.size() - head_size) return std::nullopt;
    const Chunk chunk{rest.substr(0, 4), rest.substr(head_size, *size)};
    rest.remove_prefix(head_size + *size);
    if (*size % 2 == 1 && !rest.empty()) rest.remove_prefix(1);
    return chunk;
}

/// The chunks of a list one after another, or nothing when one of them runs past the list's end.
std::optional<std::vector<Chunk>> chunks_of(std::string_view list) {
    std::vector<Chunk> chunks;
    list.remove_prefix(list_name_size);
    while (!list.empty()) {
        const auto chunk = take_chunk(list);
        if (!chunk) return std::nullopt;
        chunks.push_back(*chunk);
    }
    return chunks;
}

/// The first of the chunks that is a list of that name.
const Chunk* find_list(const std::vector<Chunk>& chunks, std::string_view list_name) {
    for (const Chunk& chunk : chunks)
        if (chunk.is_list(list_name)) return &chunk;
    return nullptr;
}

std::string_view body_of(const std::vector<Chunk>& chunks, std::string_view name) {
    for (const Chunk& chunk : chunks)
        if (chunk.name == name) return chunk.body;
    return {};
}

std::size_t row_size(const AviFile& film) {
    return static_cast<std::size_t>(film.width) * static_cast<std::size_t>(film.bits_per_pixel / 8);
}

/// Rows begin at multiples of four bytes.
std::size_t row_stride(const AviFile& film) { return (row_size(film) + 3) / 4 * 4; }

bool read_picture_format(std::string_view format, AviFile& film) {
    const auto header_size = number_at(format, 0, 4);
    const auto width = number_at(format, 4, 4);
    const auto height = number_at(format, 8, 4);
    const auto bits = number_at(format, 14, 2);
    const auto compression = number_at(format, 16, 4);
    if (!header_size || *header_size < 40 || !width || !height || !bits || !compression) return false;
    if (*compression != 0 || (*bits != 24 && *bits != 32)) return false;
    film.top_down = *height >= 0x8000'0000U;
    const std::uint32_t rows = film.top_down ? 0U - *height : *height;
    if (*width == 0 || *width > largest_side || rows == 0 || rows > largest_side) return false;
    film.width = static_cast<int>(*width);
    film.height = static_cast<int>(rows);
    film.bits_per_pixel = static_cast<int>(*bits);
    return true;
}

/// Reads the headers and returns the number of the video stream; nothing when there is none that can be
/// shown.
std::optional<std::size_t> read_headers(std::string_view list, AviFile& film) {
    const auto chunks = chunks_of(list);
    if (!chunks) return std::nullopt;
    const auto microseconds = number_at(body_of(*chunks, "avih"), 0, 4);
    if (!microseconds || *microseconds < shortest_frame || *microseconds > longest_frame) return std::nullopt;
    film.frame_microseconds = static_cast<int>(*microseconds);
    std::size_t stream = 0;
    for (const Chunk& chunk : *chunks) {
        if (!chunk.is_list("strl")) continue;
        const auto parts = chunks_of(chunk.body);
        if (!parts || stream == most_streams) return std::nullopt;
        if (body_of(*parts, "strh").starts_with("vids")) {
            if (!read_picture_format(body_of(*parts, "strf"), film)) return std::nullopt;
            return stream;
        }
        ++stream;
    }
    return std::nullopt;
}

bool read_frames(std::string_view list, std::size_t stream, AviFile& film) {
    const auto chunks = chunks_of(list);
    if (!chunks) return false;
    const std::string digits{static_cast<char>('0' + stream / 10), static_cast<char>('0' + stream % 10)};
    const std::size_t picture_size = row_stride(film) * static_cast<std::size_t>(film.height);
    for (const Chunk& chunk : *chunks) {
        // Either name stands for a whole picture: programs disagree about which one goes with "not
        // compressed".
        if (chunk.name != digits + "db" && chunk.name != digits + "dc") continue;
        if (chunk.body.size() != picture_size || film.frames.size() == most_frames) return false;
        film.frames.push_back(chunk.body);
    }
    return !film.frames.empty();
}

}  // namespace

std::string_view AviFile::row(std::size_t frame, int y) const {
    const auto line = static_cast<std::size_t>(top_down ? y : height - 1 - y);
    return frames.at(frame).substr(line * row_stride(*this), row_size(*this));
}

std::optional<AviFile> read_avi(std::string_view bytes) {
    const auto file = take_chunk(bytes);
    if (!file || file->name != "RIFF" || !file->body.starts_with("AVI ")) return std::nullopt;
    const auto chunks = chunks_of(file->body);
    if (!chunks) return std::nullopt;
    const Chunk* headers = find_list(*chunks, "hdrl");
    const Chunk* frames = find_list(*chunks, "movi");
    if (headers == nullptr || frames == nullptr) return std::nullopt;

    AviFile film;
    const auto stream = read_headers(headers->body, film);
    if (!stream || !read_frames(frames->body, *stream, film)) return std::nullopt;
    return film;
}

}  // namespace platform
