#pragma once

#include <cstddef>
#include <cstdint>

namespace vxgui::bench {

/// The best plain streams over 32-bit words, for the "roof" of a work that touches as many bytes:
/// writing alone, changing in place, reading and writing, and reading two and writing one.
void StreamFill(uint32_t* to, size_t count, uint32_t word);
void StreamChange(uint32_t* to, size_t count);
void StreamCopy(uint32_t* to, const uint32_t* from, size_t count);
void StreamMix(uint32_t* to, const uint32_t* from, size_t count);

}  // namespace vxgui::bench
