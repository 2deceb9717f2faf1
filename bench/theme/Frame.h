#pragma once

#include <memory>
#include <string>

#include "bench/Pixels.h"
#include "vxgui/pixels/Premultiply.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui::bench {

/// The frame that is painted: pixels to a side, and how many of them each margin has.
constexpr int kFrame = 30, kMargin = 4;

/// What it is painted into.
struct Size {
    int width, height;
    std::string Name() const { return std::to_string(width) + "x" + std::to_string(height); }
};
constexpr Size kSizes[] = {{100, 20}, {200, 40}, {400, 300}};

/// The target, opaque, and where in it the item stands.
constexpr Size kTarget{420, 320};
constexpr int kLeft = 7, kTop = 9;
constexpr uint32_t kGround = 0xFFC0D0E0;

/// A surface that holds a picture whose first row is the top one.
inline Ref<cAlphaDIBSection> SurfaceOf(int width, int height, const std::vector<uint32_t>& words) {
    const Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    surface->Create(width, height);
    const auto row = static_cast<size_t>(width);
    auto* memory = static_cast<uint32_t*>(surface->DIBSectionBitsPtr());
    for (size_t y = 0, rows = static_cast<size_t>(height); y < rows; ++y) {
        std::copy_n(words.data() + y * row, row, memory + (rows - 1 - y) * row);
    }
    return surface;
}

/// An item of one frame, all of whose pixels are translucent.
inline Ref<ThemeItem> PerPixelItem(bool tiled) {
    const Ref<ThemeItem> item = New<ThemeItem>();
    item->SetImage(SurfaceOf(kFrame, kFrame, StraightPicture(kFrame, kFrame, false)), 1, 0,
                   PerPixel);
    item->SetImageMargin(kMargin, kMargin, kMargin, kMargin);
    if (tiled) item->SetTile(TileXTileY, 1, 1, 1, 1);
    return item;
}

/// A host's pixels with a context over them.
struct HostTarget : Pixels {
    HostTarget(int width, int height) : Pixels(width, height, kGround) {
        dc = gdi::CreateHostDC({words.data(), width, height, Stride(), false});
    }
    ~HostTarget() { gdi::DeleteDC(dc); }
    HostTarget(const HostTarget&) = delete;
    HostTarget& operator=(const HostTarget&) = delete;

    gdi::HDC dc;
};

}  // namespace vxgui::bench
