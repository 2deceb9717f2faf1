#include "tests/platform/gdiplus_strings/StringCanvas.h"

#include <algorithm>

namespace vxgui::gdiplus {

namespace {
constexpr uint32_t kWhite = 0xFFFFFFFF;
}

StringCanvas::~StringCanvas() { End(); }

void StringCanvas::End() {
    if (graphics_) GdipDeleteGraphics(graphics_);
    if (bitmap_) GdipDisposeImage(reinterpret_cast<GpImage*>(bitmap_));
    graphics_ = nullptr;
    bitmap_ = nullptr;
}

void StringCanvas::Resize(int width, int height) {
    End();
    picture_ = {width, height, std::vector<uint32_t>(static_cast<size_t>(width) * height, kWhite)};
    ASSERT_EQ(GdipCreateBitmapFromScan0(width, height, width * 4, PixelFormat32bppPARGB,
                                        reinterpret_cast<BYTE*>(picture_.pixels.data()), &bitmap_),
              Ok);
    ASSERT_EQ(GdipGetImageGraphicsContext(reinterpret_cast<GpImage*>(bitmap_), &graphics_), Ok);
}

void StringCanvas::Clear() { std::fill(picture_.pixels.begin(), picture_.pixels.end(), kWhite); }

GpStatus StringCanvas::Draw(const char16_t* text, GpFont* font, const GpRectF& rect,
                            GpStringFormat* format, ARGB color) {
    GpBrush* brush = nullptr;
    GdipCreateSolidFill(color, &brush);
    const GpStatus status = GdipDrawString(graphics_, text, -1, font, &rect, format, brush);
    GdipDeleteBrush(brush);
    return status;
}

StringCanvas::Measured StringCanvas::Measure(const char16_t* text, GpFont* font,
                                             const GpRectF& rect, GpStringFormat* format) {
    Measured measured{};
    EXPECT_EQ(GdipMeasureString(graphics_, text, -1, font, &rect, format, &measured.box,
                                &measured.units, &measured.lines),
              Ok);
    return measured;
}

double StringCanvas::Width(const char16_t* text, GpFont* font) {
    GpStringFormat* format = Typographic();
    GdipSetStringFormatFlags(format, StringFormatFlagsMeasureTrailingSpaces);
    return Measure(text, font, {}, format).box.Width;
}

GpRect StringCanvas::Ink() const {
    int left = picture_.width, top = picture_.height, right = 0, bottom = 0;
    for (int y = 0; y < picture_.height; ++y) {
        for (int x = 0; x < picture_.width; ++x) {
            if (picture_.At(x, y) == kWhite) continue;
            left = std::min(left, x), right = std::max(right, x + 1);
            top = std::min(top, y), bottom = std::max(bottom, y + 1);
        }
    }
    return right > left ? GpRect{left, top, right - left, bottom - top} : GpRect{};
}

}  // namespace vxgui::gdiplus
