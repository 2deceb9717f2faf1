#pragma once

#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelTarget.h"

namespace vxgui::gdi {

/// Writes one colour by coverage: each channel becomes d + (c - d) * coverage / 255, rounded, and
/// the alpha byte 0 wherever there is any coverage. A 1-bit target takes the colour from half
/// coverage up.
class CoveragePaint {
public:
    /// `color` is 0x00RRGGBB.
    CoveragePaint(const PixelTarget& target, uint32_t color);

    /// A row of coverage bytes from (x, y) rightwards; all must lie inside.
    void Row(int32_t x, int32_t y, int32_t count, const uint8_t* coverage);
    /// The same coverage for the whole row.
    void Row(int32_t x, int32_t y, int32_t count, uint8_t coverage);
    /// A filled rectangle; all must lie inside.
    void Fill(const RECT& rect);

private:
    void BlendWords(int32_t x, int32_t y, int32_t count, const uint8_t* coverage);

    const PixelTarget& target_;
    const uint32_t color_;
    ColorMatcher matcher_;
};

}  // namespace vxgui::gdi
