#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Code page 949 as constant data, made from cmake/cp949/cp949.txt when the program is built.
namespace platform::cp949_table {

inline constexpr unsigned char FIRST_LEAD = 0x81, LAST_LEAD = 0xFE;
inline constexpr unsigned char FIRST_TRAIL = 0x41, LAST_TRAIL = 0xFE;
inline constexpr std::size_t TRAILS = LAST_TRAIL - FIRST_TRAIL + 1;
inline constexpr std::size_t PAIRS = (LAST_LEAD - FIRST_LEAD + 1) * TRAILS;

/// The byte, or the lead byte * 256 + trail byte, of every code unit.
extern const std::array<std::uint16_t, 0x10000> ENCODE;

/// How many bytes that is, 1 or 2. A table of its own, because the part of it that a message uses stays in
/// the processor's nearest cache.
extern const std::array<std::uint8_t, 0x10000> BYTES;

/// The character of every single byte; lead bytes, which are none alone, have a question mark.
extern const std::array<char16_t, 0x100> DECODE_SINGLE;

/// The character of every pair, row by lead byte from FIRST_LEAD and column by trail byte from FIRST_TRAIL.
extern const std::array<char16_t, PAIRS> DECODE_DOUBLE;

}  // namespace platform::cp949_table
