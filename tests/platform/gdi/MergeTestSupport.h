#pragma once

#include <random>

#include "GdiTestSupport.h"
#include "vxgui/platform/gdi_merge.h"

namespace vxgui::gdi {

/// Tells the order of its operands, and every bit of both.
inline uint32_t Mixed(uint32_t source, uint32_t target) { return source * 3 ^ target * 5; }

class Mixer final : public WordMerger {
public:
    void Merge(const uint32_t* source, uint32_t* target, int32_t count) override {
        ++calls;
        for (int32_t i = 0; i < count; ++i) target[i] = Mixed(source[i], target[i]);
    }
    int calls = 0;
};

/// A clip of two rectangles that overlap or don't.
inline void Clip(HDC dc, std::mt19937& random) {
    const auto pick = [&] { return static_cast<int>(random() % 12); };
    const HRGN region = CreateRectRgn(pick(), pick(), 4 + pick(), 4 + pick());
    const HRGN other = CreateRectRgn(pick(), pick(), 4 + pick(), 4 + pick());
    CombineRgn(region, region, other, RGN_OR);
    SelectClipRgn(dc, region);
    DeleteObject(region);
    DeleteObject(other);
}

}  // namespace vxgui::gdi
