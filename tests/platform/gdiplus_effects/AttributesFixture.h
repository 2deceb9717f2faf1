#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/GdiplusSession.h"

namespace vxgui::test {

/// A GDI+ session with one attributes object. Colours are read back through a palette.
class AttributesFixture : public testing::Test {
protected:
    AttributesFixture() { gdiplus::GdipCreateImageAttributes(&attributes_); }
    ~AttributesFixture() override { gdiplus::GdipDisposeImageAttributes(attributes_); }

    using Colors = std::vector<uint32_t>;
    Colors Adjusted(Colors colors,
                    gdiplus::ColorAdjustType type = gdiplus::ColorAdjustTypeBitmap) const {
        Colors palette{0, static_cast<uint32_t>(colors.size())};
        palette.insert(palette.end(), colors.begin(), colors.end());
        EXPECT_EQ(gdiplus::GdipGetImageAttributesAdjustedPalette(
                      attributes_, reinterpret_cast<gdiplus::ColorPalette*>(palette.data()), type),
                  gdiplus::Ok);
        return Colors(palette.begin() + 2, palette.end());
    }
    uint32_t Adjusted(uint32_t color,
                      gdiplus::ColorAdjustType type = gdiplus::ColorAdjustTypeBitmap) const {
        return Adjusted(Colors{color}, type)[0];
    }

    GdiplusSession session_;
    gdiplus::GpImageAttributes* attributes_ = nullptr;
};

}  // namespace vxgui::test
