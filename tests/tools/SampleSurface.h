#pragma once

#include "tests/support/Golden.h"
#include "tests/tools/ToolCall.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::tool {

/// A picture that no two rows or columns of are alike, with every kind of alpha.
inline test::TestPicture SamplePicture(int width = 5, int height = 3) {
    test::TestPicture picture{width, height, {}};
    for (int i = 0; i < width * height; ++i) {
        const auto n = static_cast<uint32_t>(i);
        const uint32_t alpha = i == 0 ? 255 : i == 1 ? 0 : n * 37 & 255;
        picture.pixels.push_back(alpha << 24 | (n * 17 & 255) << 16 | (n * 5 + 100) % 256 << 8 |
                                 (255 - n * 11 % 256));
    }
    return picture;
}

inline Ref<cAlphaDIBSection> SurfaceWith(const test::TestPicture& picture) {
    auto surface = New<cAlphaDIBSection>();
    surface->Create(picture.width, picture.height);
    const ARGBArray pixels = surface->GetARGBArray();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x)
            pixels(picture.height - 1 - y, x) =
                ARGBFromValue(static_cast<int32_t>(picture.At(x, y)));
    }
    return surface;
}

inline test::TestPicture PictureOn(cAlphaDIBSection& surface) {
    test::TestPicture picture{surface.Width(), surface.Height(), {}};
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x)
            picture.pixels.push_back(static_cast<uint32_t>(surface.GetPixel(x, y)));
    }
    return picture;
}

inline ByteArray Serialized(cAlphaDIBSection& surface, int16_t flags = 0) {
    ByteArray bytes;
    surface.ToByteArray(bytes, flags);
    return bytes;
}

inline ByteArray BagWith(const Ref<cAlphaDIBSection>& surface, int32_t flags) {
    auto bag = New<ole::PropertyBag>();
    bag->WriteProperty("Name", "Button");
    surface->WriteProperties(bag, flags);
    return bag->Contents();
}

inline std::string SamplePng(const std::string& name) {
    test::WritePng(Folder() + name, SamplePicture());
    return Folder() + name;
}

}  // namespace vxgui::tool
