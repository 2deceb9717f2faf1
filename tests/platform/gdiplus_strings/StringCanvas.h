#pragma once

#include "tests/platform/gdiplus_strings/StringFixture.h"
#include "tests/support/Golden.h"

namespace vxgui::gdiplus {

/// A white picture with a graphics, on which strings are drawn and measured.
class StringCanvas : public StringFixture {
public:
    StringCanvas() { Resize(200, 60); }
    ~StringCanvas() override;

    void Resize(int width, int height);
    const test::TestPicture& Picture() const { return picture_; }
    void Clear();

    /// Draws in black, or in another colour.
    GpStatus Draw(const char16_t* text, GpFont* font, const GpRectF& rect, GpStringFormat* format,
                  ARGB color = 0xFF000000);
    struct Measured {
        GpRectF box;
        INT units, lines;
    };
    Measured Measure(const char16_t* text, GpFont* font, const GpRectF& rect,
                     GpStringFormat* format);
    /// The width of a text alone, without padding.
    double Width(const char16_t* text, GpFont* font);
    /// The box of what isn't white; empty when all is.
    GpRect Ink() const;

    GpGraphics* graphics_ = nullptr;

private:
    void End();

    test::TestPicture picture_;
    GpBitmap* bitmap_ = nullptr;
};

}  // namespace vxgui::gdiplus
