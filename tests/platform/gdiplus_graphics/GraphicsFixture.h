#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/GdiplusSession.h"
#include "tests/support/Golden.h"
#include "vxgui/platform/gdi_dib.h"

namespace vxgui::test {

/// A GDI+ session with a graphics over a bitmap and one over a device context, both clear.
class GraphicsFixture : public testing::Test {
protected:
    static constexpr int kWidth = 12, kHeight = 10;
    static constexpr gdiplus::ARGB kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF;

    GraphicsFixture();
    ~GraphicsFixture() override;

    /// A bitmap of these straight pixels; the fixture disposes of it.
    gdiplus::GpBitmap* MakeBitmap(const TestPicture& picture,
                                  gdiplus::PixelFormat format = gdiplus::PixelFormat32bppARGB);
    gdiplus::GpGraphics* GraphicsOf(gdiplus::GpBitmap* bitmap);
    /// A box of 8 by 8 at (1, 1) with one of 4 by 4 in its middle.
    gdiplus::GpPath* Nested();
    gdiplus::GpBrush* Solid(gdiplus::ARGB color);

    static gdiplus::GpImage* AsImage(gdiplus::GpBitmap* bitmap) {
        return reinterpret_cast<gdiplus::GpImage*>(bitmap);
    }
    /// The pixels of a bitmap, with straight alpha.
    static TestPicture PictureOf(gdiplus::GpBitmap* bitmap);
    TestPicture OnBitmap() const { return PictureOf(bitmap_); }
    TestPicture OnContext() const;
    /// A picture of one colour with a box of another, whose far edges are left out.
    static TestPicture Box(int left, int top, int right, int bottom, gdiplus::ARGB color,
                           gdiplus::ARGB around = 0, int width = kWidth, int height = kHeight);
    static void ExpectSame(const TestPicture& actual, const TestPicture& expected,
                           int tolerance = 0);

    GdiplusSession session_;
    gdiplus::GpBitmap* bitmap_ = nullptr;
    gdiplus::GpGraphics* onBitmap_ = nullptr;
    gdi::HBITMAP dib_ = nullptr;
    gdi::HDC dc_ = nullptr;
    gdiplus::GpGraphics* onContext_ = nullptr;

private:
    std::vector<gdiplus::GpBitmap*> bitmaps_;
    std::vector<gdiplus::GpGraphics*> graphics_;
    std::vector<gdiplus::GpBrush*> brushes_;
    std::vector<gdiplus::GpPath*> paths_;
};

}  // namespace vxgui::test
