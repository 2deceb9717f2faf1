#pragma once

#include <optional>

#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"

namespace vxgui::gdiplus {

/// A format with the palette that an indexed one needs, which must live on.
struct PixelCoding {
    PixelFormat format;
    const Palette* palette;
};

/// Copies runs of pixels from rows of one format to rows of another: bytes as they are within one
/// format, indexes within one palette, linear light among the deep formats, and by way of straight
/// 32-bit pixels else.
class PixelCopier {
public:
    PixelCopier(PixelCoding from, PixelCoding to);

    void Copy(const uint8_t* from, size_t fromX, uint8_t* to, size_t toX, size_t count);

private:
    void CopyByColor(const uint8_t* from, size_t fromX, uint8_t* to, size_t toX, size_t count);

    PixelCoding from_, to_;
    bool sameIndexes_;
    std::optional<PaletteMatcher> matcher_;
};

}  // namespace vxgui::gdiplus
