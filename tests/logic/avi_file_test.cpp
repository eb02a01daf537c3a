#include "platform/formats/avi_file.h"

#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <vector>

namespace {

using platform::AviFile;
using platform::read_avi;

std::string number(std::uint32_t value, int size = 4) {
    std::string bytes;
    for (; size > 0; --size, value >>= 8) bytes += static_cast<char>(value & 0xFF);
    return bytes;
}

std::string chunk(const std::string& name, const std::string& body) {
    return name + number(static_cast<std::uint32_t>(body.size())) + body + std::string(body.size() % 2, '\0');
}

/// A small film of two frames, each part of which a test can spoil.
struct Film {
    std::uint32_t microseconds = 100'000;
    std::uint32_t width = 3;
    std::uint32_t height = 2;
    std::uint32_t bits = 24;
    std::uint32_t compression = 0;
    std::string stream_kind = "vids";
    std::string streams_before = {};
    std::string frame_name = "00db";
    std::string frame = "BGRbgrXYZ...123456789...";
    std::uint32_t frames = 2;

    std::string bytes() const {
        const std::string format = number(40) + number(width) + number(height) + number(1, 2) +
                                   number(bits, 2) + number(compression) + std::string(20, '\0');
        const std::string stream = chunk("strh", stream_kind + std::string(52, '\0')) + chunk("strf", format);
        const std::string headers = chunk("avih", number(microseconds) + std::string(52, '\0')) +
                                    streams_before + chunk("LIST", "strl" + stream);
        std::string movie = "movi" + chunk("JUNK", "odd");
        for (std::uint32_t i = 0; i < frames; ++i) movie += chunk(frame_name, frame);
        return chunk("RIFF", "AVI " + chunk("LIST", "hdrl" + headers) + chunk("LIST", movie));
    }
};

TEST(AviFile, TheProductsFilmsLoadWhole) {
    const struct {
        const char* name;
        int width, height, microseconds;
        std::size_t frames;
    } films[] = {{"timer.avi", 64, 64, 83'333, 15}, {"send.avi", 152, 48, 100'000, 20}};
    for (const auto& expected : films) {
        SCOPED_TRACE(expected.name);
        std::ifstream file(std::string(ZENT_FIXTURES "/../../resource/") + expected.name, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        const auto film = read_avi(bytes);
        ASSERT_TRUE(film);
        EXPECT_EQ(film->width, expected.width);
        EXPECT_EQ(film->height, expected.height);
        EXPECT_EQ(film->frame_microseconds, expected.microseconds);
        EXPECT_EQ(film->frames.size(), expected.frames);
        EXPECT_EQ(film->row(0, 0).substr(0, 4), std::string(4, '\0'))
            << "the corner must let the window through";
    }
}

TEST(AviFile, RowsComeFromTheTopWithoutPaddingInEitherOrderOfTheFile) {
    const auto row = [](const Film& film, std::size_t frame, int y) {
        const std::string bytes = film.bytes();
        const auto read = read_avi(bytes);
        return read ? std::string(read->row(frame, y)) : "no film";
    };
    EXPECT_EQ(row({}, 0, 0), "123456789");
    EXPECT_EQ(row({}, 1, 1), "BGRbgrXYZ");
    const Film top_down{.height = 0U - 2U};
    EXPECT_EQ(row(top_down, 0, 0), "BGRbgrXYZ");
    EXPECT_EQ(row(top_down, 1, 1), "123456789");
    EXPECT_EQ(row({.bits = 32, .frame = "BGR0bgr1XYZ2123456789..."}, 0, 1), "BGR0bgr1XYZ2");
}

TEST(AviFile, ThePicturesOfTheVideoStreamAreFoundAfterASoundStream) {
    const std::string sound = chunk("LIST", "strl" + chunk("strh", "auds") + chunk("strf", ""));
    EXPECT_TRUE(read_avi(Film{.streams_before = sound, .frame_name = "01dc"}.bytes()));
    EXPECT_FALSE(read_avi(Film{.streams_before = sound, .frame_name = "00dc"}.bytes()));
}

TEST(AviFile, AFilmThatCannotBeShownIsRefused) {
    const struct {
        const char* fault;
        Film film;
    } cases[] = {
        {"no frame", {.frames = 0}},
        {"too many frames", {.frames = 1001}},
        {"frame shorter than its picture", {.frame = "BGRbgrXYZ...123456789.."}},
        {"no width", {.width = 0, .frame = ""}},
        {"too wide", {.width = 1025, .height = 1, .frame = std::string(3076, '.')}},
        {"too high", {.width = 1, .height = 1025, .frame = std::string(4100, '.')}},
        {"the lowest height there is", {.height = 0x8000'0000U}},
        {"size whose product overflows",
         {.width = 0x4000'0001U, .height = 4, .bits = 32, .frame = "1234567890123456"}},
        {"palette", {.bits = 8, .frame = "1234567."}},
        {"run-length compression", {.compression = 1}},
        {"frames too short to see", {.microseconds = 0}},
        {"frames that never end", {.microseconds = 0xFFFF'FFFFU}},
        {"no video stream", {.stream_kind = "auds"}},
    };
    ASSERT_TRUE(read_avi(Film{}.bytes()));
    for (const auto& [fault, film] : cases) EXPECT_FALSE(read_avi(film.bytes())) << fault;
}

}  // namespace
