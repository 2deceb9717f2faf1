#pragma once

#include "vxgui/image/modTGA.h"

namespace vxgui {

/// A TGA picture decoded into an array of its own.
class cTgaPicture {
public:
    int32_t Height() const { return record_.header.height; }
    int32_t Width() const { return record_.header.width; }
    /// Parses and decodes; true when both succeed.
    bool SetData(const ByteArray& bytes);
    /// Row `y` counts from the bottom. Outside the picture the outputs stay as they are.
    void GetPixel(int32_t x, int32_t y, uint8_t& blue, uint8_t& green, uint8_t& red,
                  uint8_t& alpha) const;
    /// Paints the array with its first row at the top, that is, head down.
    void DrawPic(gdi::HDC dc) const;

private:
    const ARGB* PixelAt(int32_t x, int32_t y) const;

    TgaRecord record_;
};

}  // namespace vxgui
