#pragma once

#include "machine/carrier/wiped_bytes.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

/// How the program and `carrier-host` pass calls of the carrier's library to each other.
///
/// A frame is the length of its payload in four bytes and the payload. Numbers are little-endian with 32
/// bits; nothing depends on the width of a pointer, so the two programs may have different ones. A text is
/// its length and its bytes. Each side trusts nothing that the other one writes: a library can make the host
/// write anything.
namespace machine::carrier {

/// The descriptor under which the host has its socket.
constexpr int HOST_SOCKET = 3;

/// The exports of the library.
enum class Export : std::uint8_t { bind, unbind, money_status, user_info, submit, submit_2 };

/// The name of an export, how many numbers and texts a call of it carries, and whether the library's changes
/// to them are wanted back.
struct Shape {
    const char* name;
    std::size_t numbers;
    std::size_t texts;
    bool gives_back;
};
const Shape& shape_of(Export which);

/// A call: its 32-bit arguments and its texts, each in the library's own order. The texts belong to the
/// caller, or to the frame that was parsed.
struct Call {
    Export which{};
    std::vector<std::int32_t> numbers;
    std::vector<std::string_view> texts;
};

enum class Outcome : std::uint8_t { returned, no_library, no_export };

/// What came of a call. Numbers and texts are there if the library has returned and they are wanted back: as
/// many as in the call, each text as long as it was.
struct Answer {
    Outcome outcome = Outcome::returned;
    std::int32_t result = 0;
    std::vector<std::int32_t> numbers{};
    std::vector<std::string_view> texts{};
};

constexpr std::size_t FRAME_HEAD = 4;
/// A fax of many documents or a very long voice text is far shorter.
constexpr std::size_t LONGEST_PAYLOAD = std::size_t{16} << 20;

/// The length of the payload that the head of a frame announces; nothing when it is too long.
std::optional<std::size_t> payload_length(std::string_view head);

/// Writes a frame into `frame`, in place of what it holds. Returns false when the payload would be too long.
bool write_call(const Call& call, WipedBytes& frame);
void write_answer(const Answer& answer, WipedBytes& frame);

/// Parses a payload; nothing when it is no call, or no answer to this call.
std::optional<Call> parse_call(std::string_view payload);
std::optional<Answer> parse_answer(std::string_view payload, const Call& call);

}  // namespace machine::carrier
