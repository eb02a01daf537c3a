#include "platform/formats/wav_file.h"

namespace platform {

namespace {

constexpr std::uint32_t PCM = 1;
constexpr std::uint32_t CHANNELS = 1;
constexpr std::uint32_t SAMPLE_BYTES = sizeof(Samples::value_type);
constexpr std::uint32_t FORMAT_BYTES = 16;
/// The bytes between the field with the file's length and the samples.
constexpr std::uint32_t HEAD_BYTES = 36;

void append(std::string& bytes, std::uint32_t number, std::uint32_t size) {
    for (std::uint32_t i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

}  // namespace

std::string wav_file(SampleView samples) {
    constexpr std::uint32_t RATE = SAMPLES_A_SECOND;
    const auto length = static_cast<std::uint32_t>(samples.size()) * SAMPLE_BYTES;
    std::string bytes = "RIFF";
    bytes.reserve(length + HEAD_BYTES + 8);
    append(bytes, length + HEAD_BYTES, 4);
    bytes += "WAVEfmt ";
    append(bytes, FORMAT_BYTES, 4);
    append(bytes, PCM, 2);
    append(bytes, CHANNELS, 2);
    append(bytes, RATE, 4);
    append(bytes, RATE * CHANNELS * SAMPLE_BYTES, 4);
    append(bytes, CHANNELS * SAMPLE_BYTES, 2);
    append(bytes, 8 * SAMPLE_BYTES, 2);
    bytes += "data";
    append(bytes, length, 4);
    for (const std::int16_t sample : samples) append(bytes, static_cast<std::uint16_t>(sample), 2);
    return bytes;
}

}  // namespace platform
