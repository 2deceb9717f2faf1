#include "vxgui/platform/gdi/Rop3.h"

namespace vxgui::gdi {

Rop3::Rop3(DWORD rop) : code_(static_cast<uint8_t>(rop >> 16)) {
    // The Möbius transform of the truth table.
    uint32_t form = code_;
    form ^= (form & 0x55) << 1;
    form ^= (form & 0x33) << 2;
    form ^= (form & 0x0F) << 4;
    for (size_t set = 0; set < 8; ++set) masks_[set] = (form >> set & 1) != 0 ? ~0u : 0u;
}

void Rop3::Apply(const uint32_t* pattern, const uint32_t* source, uint32_t* destination,
                 size_t count) const {
    const std::array<uint32_t, 8> m = masks_;
    for (size_t i = 0; i < count; ++i) {
        const uint32_t p = pattern[i];
        const uint32_t s = source[i];
        const uint32_t withD = (((m[7] & p) ^ m[3]) & s) ^ (m[5] & p) ^ m[1];
        const uint32_t withoutD = (((m[6] & p) ^ m[2]) & s) ^ (m[4] & p) ^ m[0];
        destination[i] = (withD & destination[i]) ^ withoutD;
    }
}

}  // namespace vxgui::gdi
