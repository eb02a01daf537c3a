#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace machine::carrier {

/// Bytes among which the password may be: kept out of the swap where the user's limit allows it, and
/// overwritten when they go. The memory is kept for the next use.
class WipedBytes {
  public:
    WipedBytes() = default;
    WipedBytes(const WipedBytes&) = delete;
    WipedBytes& operator=(const WipedBytes&) = delete;
    ~WipedBytes() { wipe(); }

    char* data() { return memory_.get(); }
    std::size_t size() const { return size_; }
    std::string_view view() const { return {memory_.get(), size_}; }

    /// New bytes are 0.
    void resize(std::size_t size);
    void append(std::string_view bytes);
    void wipe() { resize(0); }

  private:
    /// Behind the size everything is 0.
    std::unique_ptr<char[]> memory_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

}  // namespace machine::carrier
