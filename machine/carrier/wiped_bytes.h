#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <sys/mman.h>
#include <vector>

namespace machine::carrier {

/// Memory for bytes among which the password may be: kept out of the swap where the user's limit allows it,
/// overwritten before it is given back.
template <class T>
struct WipingAllocator {
    using value_type = T;

    T* allocate(std::size_t count) {
        T* memory = std::allocator<T>().allocate(count);
        ::mlock(memory, count * sizeof(T));
        return memory;
    }
    void deallocate(T* memory, std::size_t count) {
        ::explicit_bzero(memory, count * sizeof(T));
        std::allocator<T>().deallocate(memory, count);
    }

    bool operator==(const WipingAllocator&) const = default;
};

using WipedBytes = std::vector<char, WipingAllocator<char>>;

/// Overwrites the bytes and empties the vector, which keeps its memory for the next call.
inline void wipe(WipedBytes& bytes) {
    if (!bytes.empty()) ::explicit_bzero(bytes.data(), bytes.size());
    bytes.clear();
}

}  // namespace machine::carrier
