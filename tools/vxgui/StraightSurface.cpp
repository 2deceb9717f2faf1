#include "tools/vxgui/StraightSurface.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "tools/vxgui/ToolError.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::tool {
namespace {

// Premultiplying makes c * (alpha + 1) / 256 of a colour, truncated: the middle of the colours
// that give this one, and one that gives it again.
uint8_t Unmultiplied(int32_t c, int32_t alpha) {
    const int32_t first = (c * 256 + alpha) / (alpha + 1);
    const int32_t middle = (c * 256 + 128) / (alpha + 1);
    return static_cast<uint8_t>(std::min(255, std::max(first, middle)));
}

ARGB Unmultiplied(ARGB pixel) {
    if (pixel.Alpha == 0) return {};
    return {Unmultiplied(pixel.Blue, pixel.Alpha), Unmultiplied(pixel.Green, pixel.Alpha),
            Unmultiplied(pixel.Red, pixel.Alpha), pixel.Alpha};
}

template <class Change>
void ForEachPixel(cAlphaDIBSection& surface, Change change) {
    const ARGBArray pixels = surface.GetARGBArray();
    for (int32_t row = 0; row < pixels.Rows(); ++row) {
        for (ARGB& pixel : pixels.Run(row, 0, pixels.Columns() - 1)) change(pixel);
    }
}

gdi::DIBSECTION SectionOf(const cAlphaDIBSection& surface) {
    gdi::DIBSECTION section{};
    gdi::GetObjectA(surface.hDIB(), gdi::kDibSectionRecordSize, &section);
    return section;
}

void CopyRows(const gdi::BITMAP& from, bool topDown, cAlphaDIBSection& to) {
    const ARGBArray pixels = to.GetARGBArray();
    const size_t size = static_cast<size_t>(pixels.Columns()) * sizeof(ARGB);
    for (int32_t row = 0; row < pixels.Rows(); ++row) {
        const int32_t source = topDown ? pixels.Rows() - 1 - row : row;
        std::memcpy(&pixels(row, 0),
                    static_cast<const uint8_t*>(from.bmBits) + static_cast<size_t>(source) * size,
                    size);
    }
}

}  // namespace

Ref<cAlphaDIBSection> NewSurface(int32_t width, int32_t height, const std::string& path) {
    auto surface = New<cAlphaDIBSection>();
    if (surface->Create(width, height)) return surface;
    Fail(path, "no memory for " + std::to_string(width) + "x" + std::to_string(height) + " pixels");
}

Ref<cAlphaDIBSection> StraightCopy(const cAlphaDIBSection& surface, const std::string& path) {
    const int32_t height = std::abs(surface.Height());
    auto copy = NewSurface(surface.Width(), height, path);
    const gdi::DIBSECTION section = SectionOf(surface);
    if (section.dsBm.bmBitsPixel == 32) {
        CopyRows(section.dsBm, surface.Height() < 0, *copy);
        if (surface.Flags() & cAlphaDIBSection::kPremultiplied)
            ForEachPixel(*copy, [](ARGB& pixel) { pixel = Unmultiplied(pixel); });
    } else {
        copy->LoadPictureBlt(surface.hDC());
        ForEachPixel(*copy, [](ARGB& pixel) { pixel.Alpha = 255; });
    }
    copy->TransparentColor(surface.TransparentColor());
    copy->UseDrawDib(surface.Flags() & cAlphaDIBSection::kUseDrawDib);
    copy->UseMsImag32(surface.Flags() & cAlphaDIBSection::kUseMsImag32);
    return copy;
}

bool HasTransparency(cAlphaDIBSection& straight) {
    bool found = false;
    ForEachPixel(straight, [&](ARGB& pixel) { found |= pixel.Alpha != 255; });
    return found;
}

}  // namespace vxgui::tool
