#pragma once

#include <cstdint>
#include <vector>

namespace vxgui::test {

/// A TGA file put together by hand.
struct TgaBytes {
    int idLength = 0;
    int mapType = 0;
    int imageType = 2;
    int mapFirst = 0;
    int mapLength = 0;
    int mapEntrySize = 0;
    int width = 1;
    int height = 1;
    int depth = 24;
    int descriptor = 0;
    std::vector<uint8_t> map = {};
    std::vector<uint8_t> pixels = {};
    bool footer = false;
    uint32_t extensionOffset = 0;

    std::vector<uint8_t> Bytes() const;
};

}  // namespace vxgui::test
