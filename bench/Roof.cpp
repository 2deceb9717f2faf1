#include "bench/Roof.h"

#include <cstring>
#include <cwchar>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui::bench {
namespace {

VXGUI_MULTIVERSION(void, Mix, (uint32_t * to, const uint32_t* from, size_t count)) {
    for (size_t i = 0; i < count; ++i) to[i] ^= from[i];
}

VXGUI_MULTIVERSION(void, Change, (uint32_t * to, size_t count)) {
    for (size_t i = 0; i < count; ++i) to[i] ^= 0x01010101;
}

}  // namespace

void StreamFill(uint32_t* to, size_t count, uint32_t word) {
    std::wmemset(reinterpret_cast<wchar_t*>(to), static_cast<wchar_t>(word), count);
}
void StreamChange(uint32_t* to, size_t count) { Change(to, count); }
void StreamCopy(uint32_t* to, const uint32_t* from, size_t count) {
    std::memcpy(to, from, count * sizeof *to);
}
void StreamMix(uint32_t* to, const uint32_t* from, size_t count) { Mix(to, from, count); }

}  // namespace vxgui::bench
