#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "vxgui/base/Variant.h"
#include "vxgui/platform/gdi.h"

namespace vxgui::tool {

/// A picture that a command paints on: 32-bit blue-green-red-alpha pixels, top row first, with a
/// device context over them.
class Sheet {
public:
    /// A `ToolError` for a size that can't be: sides from 1 to 32,767, an area of up to 64
    /// megapixels.
    Sheet(int32_t width, int32_t height);
    ~Sheet();
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    int32_t width() const { return width_; }
    int32_t height() const { return height_; }
    gdi::HDC dc() const { return dc_; }
    uint32_t& At(int32_t x, int32_t y) { return pixels_[static_cast<size_t>(y) * width_ + x]; }

    void Fill(uint32_t pixel);
    /// The ground on which transparency can be seen: squares of two greys.
    void FillChecks(int32_t x, int32_t y, int32_t width, int32_t height);
    /// Drawing leaves the alpha byte in many states; this makes every pixel opaque.
    void MakeOpaque();
    /// A PNG file.
    ByteArray Png() const;
    /// Writes a PNG; a `ToolError` when it can't be written.
    void WritePng(const std::string& path) const;

private:
    int32_t width_;
    int32_t height_;
    std::vector<uint32_t> pixels_;
    gdi::HDC dc_ = nullptr;
};

}  // namespace vxgui::tool
