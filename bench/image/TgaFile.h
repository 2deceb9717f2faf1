#pragma once

#include "bench/Pixels.h"

namespace vxgui::bench {

/// A TGA file of 32 bits, bottom row first: plain with pixels that all differ, or in runs of the
/// lengths that painted pictures have, with stretches of single pixels between them.
inline std::vector<uint8_t> TgaFile(int side, bool packed) {
    const auto byte = [](int value) { return static_cast<uint8_t>(value & 255); };
    std::vector<uint8_t> file(18);
    file[2] = packed ? 10 : 2;
    file[12] = file[14] = byte(side);
    file[13] = file[15] = byte(side >> 8);
    file[16] = 32;
    file[17] = 8;
    const std::vector<uint32_t> words = StraightPicture(side, side, false);
    const auto put = [&](uint32_t word) {
        for (int shift = 0; shift < 32; shift += 8) file.push_back(byte(int(word >> shift)));
    };
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; x += packed ? 64 : 1) {
            const uint32_t* const row = &words[static_cast<size_t>(y * side + x)];
            if (!packed) {
                put(row[0]);
                continue;
            }
            for (const int run : {20, 4, 24}) {
                file.push_back(byte(128 + run - 1));
                put(row[run]);
            }
            file.push_back(15);
            for (int i = 0; i < 16; ++i) put(row[i]);
        }
    }
    return file;
}

}  // namespace vxgui::bench
