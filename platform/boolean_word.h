#pragma once

#include <cstdint>

namespace platform {

/// A truth value of the shared state: a 16-bit word that holds only 0 or -1.
class BooleanWord {
  public:
    constexpr BooleanWord() = default;
    constexpr BooleanWord(bool value) : word_(value ? -1 : 0) {}  // NOLINT(google-explicit-constructor)

    constexpr operator bool() const { return word_ != 0; }  // NOLINT(google-explicit-constructor)

  private:
    std::int16_t word_ = 0;
};

}  // namespace platform
