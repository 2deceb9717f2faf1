#include "bench/Roof.h"

#include <cstring>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui::bench {
namespace {

VXGUI_MULTIVERSION void Fill(uint32_t* to, size_t count, uint32_t word) {
    for (size_t i = 0; i < count; ++i) to[i] = word;
}

VXGUI_MULTIVERSION void Mix(uint32_t* to, const uint32_t* from, size_t count) {
    for (size_t i = 0; i < count; ++i) to[i] ^= from[i];
}

}  // namespace

void StreamFill(uint32_t* to, size_t count, uint32_t word) { Fill(to, count, word); }
void StreamCopy(uint32_t* to, const uint32_t* from, size_t count) {
    std::memcpy(to, from, count * sizeof *to);
}
void StreamMix(uint32_t* to, const uint32_t* from, size_t count) { Mix(to, from, count); }

}  // namespace vxgui::bench
