#pragma once

#include <vector>

#include "GdiTestSupport.h"

namespace vxgui::gdi {

/// A picture as plain words, top row first, and the blits as one loop over single pixels. It
/// shares no code with what it is compared to.
struct ModelPicture {
    int width = 0;
    int height = 0;
    int depth = 32;
    std::vector<uint32_t> palette;  ///< empty above 8 bits and for a monochrome bitmap
    std::vector<uint32_t> words;
    std::vector<bool> mayDraw;
    uint32_t zero = 0;        ///< the context's text colour, 0x00RRGGBB
    uint32_t one = 0xFFFFFF;  ///< the context's background colour
    uint32_t brush = 0xFFFFFF;

    uint32_t& At(int x, int y) { return words[static_cast<size_t>(y * width + x)]; }
    uint32_t At(int x, int y) const { return words[static_cast<size_t>(y * width + x)]; }
    bool Mono() const { return depth == 1 && palette.empty(); }
    uint32_t Mask() const { return depth == 32 ? 0xFFFFFFFFu : (1u << depth) - 1; }
};

struct ModelBlit {
    int x, y, width, height;
    int sourceX, sourceY, sourceWidth, sourceHeight;
    uint32_t code;
};

inline uint32_t ModelNearest(const std::vector<uint32_t>& palette, uint32_t color) {
    size_t best = 0;
    long least = -1;
    for (size_t i = 0; i < palette.size(); ++i) {
        long sum = 0;
        for (int shift = 0; shift < 24; shift += 8) {
            const long d = static_cast<long>(palette[i] >> shift & 255) -
                           static_cast<long>(color >> shift & 255);
            sum += d * d;
        }
        if (least < 0 || sum < least) {
            least = sum;
            best = i;
        }
    }
    return static_cast<uint32_t>(best);
}

inline uint32_t ModelSourceWord(const ModelPicture& to, const ModelPicture& from, uint32_t word) {
    if (from.depth >= 24 && to.depth >= 24) return word;
    if (from.depth == to.depth && from.palette == to.palette) return word;
    uint32_t color = word & 0xFFFFFF;
    if (from.Mono()) color = word ? to.one : to.zero;
    if (!from.palette.empty()) color = from.palette[word];
    if (to.depth >= 24) return color;
    if (to.Mono()) return color == from.one ? 1 : 0;
    return ModelNearest(to.palette, color);
}

inline uint32_t ModelBrushWord(const ModelPicture& to) {
    if (to.depth >= 24) return to.brush;
    return ModelNearest(to.Mono() ? std::vector<uint32_t>{0, 0xFFFFFF} : to.palette, to.brush);
}

inline uint32_t ModelRop(uint32_t code, uint32_t p, uint32_t s, uint32_t d) {
    uint32_t result = 0;
    for (int bit = 0; bit < 32; ++bit) {
        const uint32_t row = (p >> bit & 1) * 4 + (s >> bit & 1) * 2 + (d >> bit & 1);
        result |= (code >> row & 1) << bit;
    }
    return result;
}

inline bool ModelUsesSource(uint32_t code) {
    for (uint32_t row = 0; row < 8; ++row) {
        if ((code >> row & 1) != (code >> (row ^ 2) & 1)) return true;
    }
    return false;
}

/// The source coordinate for destination pixel i of a direction.
inline int ModelSource(int i, int extent, int sourceStart, int sourceExtent) {
    const int w = std::abs(extent);
    const int sw = std::abs(sourceExtent);
    const int j = ((2 * i + 1) * sw - 1) / (2 * w);
    return sourceExtent < 0 ? sourceStart - j : sourceStart + j;
}

/// `from` is a copy, so that it may be the target's picture before the blit.
inline void ModelRun(ModelPicture& to, const ModelPicture from, const ModelBlit& blit) {
    const bool usesSource = ModelUsesSource(blit.code);
    if (usesSource && (blit.sourceWidth == 0 || blit.sourceHeight == 0)) return;
    for (int i = 0; i < std::abs(blit.height); ++i) {
        for (int j = 0; j < std::abs(blit.width); ++j) {
            const int x = blit.width < 0 ? blit.x - j : blit.x + j;
            const int y = blit.height < 0 ? blit.y - i : blit.y + i;
            if (x < 0 || y < 0 || x >= to.width || y >= to.height) continue;
            if (!to.mayDraw[static_cast<size_t>(y * to.width + x)]) continue;
            uint32_t source = 0;
            if (usesSource) {
                const int sx = ModelSource(j, blit.width, blit.sourceX, blit.sourceWidth);
                const int sy = ModelSource(i, blit.height, blit.sourceY, blit.sourceHeight);
                if (sx < 0 || sy < 0 || sx >= from.width || sy >= from.height) continue;
                source = ModelSourceWord(to, from, from.At(sx, sy));
            }
            uint32_t& word = to.At(x, y);
            word = ModelRop(blit.code, ModelBrushWord(to), source, word) & to.Mask();
        }
    }
}

}  // namespace vxgui::gdi
