#pragma once

#include "tests/platform/gdiplus_graphics/GraphicsFixture.h"

namespace vxgui::test {

/// Draws images on a graphics of the size that a test asks for.
class ImageFixture : public GraphicsFixture {
protected:
    /// Where a whole image of `from` goes and how.
    struct Drawing {
        gdiplus::GpRectF target;
        gdiplus::GpRectF part;
        gdiplus::InterpolationMode mode = gdiplus::InterpolationModeNearestNeighbor;
        gdiplus::PixelOffsetMode offset = gdiplus::PixelOffsetModeHalf;
        gdiplus::GpImageAttributes* attributes = nullptr;
    };

    /// The picture, `width` by `height`, that shows what the drawing leaves on clear pixels.
    TestPicture Draw(const TestPicture& image, int width, int height, const Drawing& drawing);

    /// Opaque, each pixel of a colour of its own.
    static TestPicture Mosaic(int width, int height);
    /// The part of `picture` in a box.
    static TestPicture Cut(const TestPicture& picture, int x, int y, int width, int height);
};

}  // namespace vxgui::test
