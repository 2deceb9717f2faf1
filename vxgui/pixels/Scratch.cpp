#include "vxgui/pixels/Scratch.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <new>

namespace vxgui::scratch {
namespace {

constexpr size_t kLine = 64;
constexpr size_t kLeast = 4096;

/// In steps of two, so that what is a little larger than the last time finds a block as well. What
/// wouldn't be kept is left as it is.
size_t CapacityFor(size_t size) {
    return size > kKeptBytes ? size : std::bit_ceil(std::max(size, kLeast));
}

struct Block {
    void* place;
    size_t capacity;
};

// What the heap gave is noted in front of the block; there is room, as its own steps are shorter.
void* Fresh(size_t capacity) {
    void* const start = ::operator new(capacity + kLine);
    char* const place =
        static_cast<char*>(start) + kLine - reinterpret_cast<uintptr_t>(start) % kLine;
    std::memcpy(place - sizeof start, &start, sizeof start);
    return place;
}

void Free(const Block& block) {
    void* start;
    std::memcpy(&start, static_cast<char*>(block.place) - sizeof start, sizeof start);
    ::operator delete(start);
}

/// The kept blocks, the one kept longest ago first. Trivially destructible, so that it can be asked
/// after its thread's destructors have run.
struct Store {
    Block blocks[kKeptBlocks];
    size_t count, bytes;
    bool closed;

    Block Remove(size_t index) {
        const Block block = blocks[index];
        std::copy(blocks + index + 1, blocks + count, blocks + index);
        --count;
        bytes -= block.capacity;
        return block;
    }
    void* Take(size_t capacity) {
        for (size_t i = count; i-- > 0;) {
            if (blocks[i].capacity == capacity) return Remove(i).place;
        }
        return nullptr;
    }
    void Keep(const Block& block) {
        while (count == kKeptBlocks || bytes + block.capacity > kKeptBytes) Free(Remove(0));
        blocks[count++] = block;
        bytes += block.capacity;
    }
};

struct Closer {
    Store& store;
    ~Closer() {
        store.closed = true;
        while (store.count > 0) Free(store.Remove(0));
    }
};

Store& TheStore() {
    thread_local Store store{};
    thread_local Closer closer{store};
    static_cast<void>(closer);
    return store;
}

}  // namespace

void* Take(size_t size) {
    const size_t capacity = CapacityFor(size);
    void* const kept = TheStore().Take(capacity);
    return kept ? kept : Fresh(capacity);
}

void Give(void* place, size_t size) noexcept {
    const Block block{place, CapacityFor(size)};
    Store& store = TheStore();
    if (store.closed || block.capacity > kKeptBytes) {
        Free(block);
    } else {
        store.Keep(block);
    }
}

}  // namespace vxgui::scratch
