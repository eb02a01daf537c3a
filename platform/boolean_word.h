#pragma once

#include <cstdint>

namespace platform {

/// The truth values of the shared state: a 16-bit word that holds 0 or -1 and nothing else.
class BooleanWord {
  public:
    constexpr BooleanWord() = default;
    constexpr BooleanWord(bool value) : word_(value ? -1 : 0) {}  // NOLINT(google-explicit-constructor)

    constexpr operator bool() const { return word_ != 0; }  // NOLINT(google-explicit-constructor)

  private:
    std::int16_t word_ = 0;
};

}  // namespace platform
