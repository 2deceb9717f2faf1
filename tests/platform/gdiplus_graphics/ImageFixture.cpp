#include "tests/platform/gdiplus_graphics/ImageFixture.h"

namespace vxgui::test {

using namespace gdiplus;

TestPicture ImageFixture::Draw(const TestPicture& image, int width, int height,
                               const Drawing& drawing) {
    GpBitmap* target =
        MakeBitmap({width, height, std::vector<uint32_t>(static_cast<size_t>(width) * height)});
    GpGraphics* graphics = GraphicsOf(target);
    GdipSetInterpolationMode(graphics, drawing.mode);
    GdipSetPixelOffsetMode(graphics, drawing.offset);
    const GpRectF &to = drawing.target, &from = drawing.part;
    EXPECT_EQ(GdipDrawImageRectRect(graphics, AsImage(MakeBitmap(image)), to.X, to.Y, to.Width,
                                    to.Height, from.X, from.Y, from.Width, from.Height, UnitPixel,
                                    drawing.attributes, nullptr, nullptr),
              Ok);
    return PictureOf(target);
}

TestPicture ImageFixture::Mosaic(int width, int height) {
    TestPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto mixed = static_cast<uint32_t>(x * 73 + y * 151 + 17) * 2654435761u;
            picture.pixels.push_back(mixed | 0xFF000000);
        }
    }
    return picture;
}

TestPicture ImageFixture::Cut(const TestPicture& picture, int x, int y, int width, int height) {
    TestPicture part{width, height, {}};
    for (int row = y; row < y + height; ++row) {
        for (int column = x; column < x + width; ++column) {
            part.pixels.push_back(picture.At(column, row));
        }
    }
    return part;
}

}  // namespace vxgui::test
