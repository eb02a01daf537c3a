#include "machine/carrier/wiped_bytes.h"

#include <algorithm>
#include <cstring>
#include <sys/mman.h>
#include <utility>

namespace machine::carrier {

namespace {

constexpr std::size_t LEAST_CAPACITY = 4096;

}  // namespace

void WipedBytes::resize(std::size_t size) {
    if (size < size_) ::explicit_bzero(memory_.get() + size, size_ - size);
    if (size > capacity_) {
        const std::size_t capacity = std::max({size, 2 * capacity_, LEAST_CAPACITY});
        auto memory = std::make_unique<char[]>(capacity);
        ::mlock(memory.get(), capacity);
        std::copy_n(memory_.get(), size_, memory.get());
        if (size_ > 0) ::explicit_bzero(memory_.get(), size_);
        memory_ = std::move(memory);
        capacity_ = capacity;
    }
    size_ = size;
}

void WipedBytes::append(std::string_view bytes) {
    const std::size_t end = size_;
    resize(end + bytes.size());
    std::ranges::copy(bytes, memory_.get() + end);
}

}  // namespace machine::carrier
