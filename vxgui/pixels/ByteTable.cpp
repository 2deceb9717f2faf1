#include "vxgui/pixels/ByteTable.h"

namespace vxgui {

void LookUp(std::span<uint32_t> pixels, const ChannelTables& tables) {
    for (uint32_t& pixel : pixels) {
        pixel = static_cast<uint32_t>(tables.alpha[pixel >> 24]) << 24 |
                static_cast<uint32_t>(tables.red[pixel >> 16 & 255]) << 16 |
                static_cast<uint32_t>(tables.green[pixel >> 8 & 255]) << 8 |
                tables.blue[pixel & 255];
    }
}

void LookUpColors(std::span<uint32_t> pixels, const ByteTable& table) {
    for (uint32_t& pixel : pixels) {
        pixel = (pixel & 0xFF000000) | static_cast<uint32_t>(table[pixel >> 16 & 255]) << 16 |
                static_cast<uint32_t>(table[pixel >> 8 & 255]) << 8 | table[pixel & 255];
    }
}

}  // namespace vxgui
