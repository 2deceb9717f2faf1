#pragma once

#include <cstddef>
#include <cstdint>

namespace vxgui::gdi {

/// Writes words past the caches: the target's lines aren't fetched in order to be overwritten,
/// which is half of the work where they aren't near. What was written is there for other threads
/// when the stream ends.
class WordStream {
public:
    /// From this many bytes on, what one operation writes is out of the nearer caches before
    /// anybody reads it.
    static constexpr size_t kWorthwhile = size_t{8} << 20;

    WordStream() = default;
    WordStream(const WordStream&) = delete;
    WordStream& operator=(const WordStream&) = delete;
    ~WordStream();

    /// Copies `count` words from memory apart from the target.
    void Write(const uint32_t* from, uint32_t* to, size_t count);
};

}  // namespace vxgui::gdi
