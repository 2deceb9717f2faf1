#pragma once

#include <algorithm>
#include <cstdint>
#include <new>
#include <random>
#include <vector>

namespace vxgui::bench {

/// Memory that begins at a line of the cache, so that nobody has the luck of the heap.
template <class T>
struct LineAllocator {
    using value_type = T;
    static constexpr std::align_val_t kLine{64};

    LineAllocator() = default;
    template <class U>
    LineAllocator(const LineAllocator<U>&) {}
    T* allocate(size_t count) { return static_cast<T*>(::operator new(count * sizeof(T), kLine)); }
    void deallocate(T* place, size_t) { ::operator delete(place, kLine); }
    bool operator==(const LineAllocator&) const { return true; }
};

/// 32-bit pixels, top row first.
struct Pixels {
    Pixels(int width, int height, uint32_t word = 0)
        : width(width), height(height), words(static_cast<size_t>(width) * height, word) {}

    /// Leaves the words where they stand: others look at them.
    void Set(const std::vector<uint32_t>& picture) {
        std::copy(picture.begin(), picture.end(), words.begin());
    }
    int Stride() const { return width * 4; }
    uint8_t* Bytes() { return reinterpret_cast<uint8_t*>(words.data()); }

    int width, height;
    std::vector<uint32_t, LineAllocator<uint32_t>> words;
};

/// Straight pixels, each of its own colour: all translucent, or in runs of clear, opaque and
/// translucent ones as icons have them.
inline std::vector<uint32_t> StraightPicture(int width, int height, bool runs) {
    std::mt19937 random(7);
    std::vector<uint32_t> words;
    for (int i = 0; i < width * height; ++i) {
        const uint32_t color = random() & 0xFFFFFF, translucent = 1 + random() % 254;
        const int zone = i % width * 8 / width;
        const uint32_t alpha = !runs || zone == 2 || zone == 5 ? translucent
                               : zone < 2 || zone > 5          ? 0
                                                               : 255;
        words.push_back(alpha << 24 | color);
    }
    return words;
}

}  // namespace vxgui::bench
