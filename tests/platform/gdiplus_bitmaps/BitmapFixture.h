#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/GdiplusSession.h"

namespace vxgui::gdiplus {

/// Disposes of the bitmaps that a test makes.
class BitmapTest : public testing::Test {
protected:
    ~BitmapTest() override {
        for (GpBitmap* bitmap : made_) GdipDisposeImage(AsImage(bitmap));
    }

    static GpImage* AsImage(GpBitmap* bitmap) { return reinterpret_cast<GpImage*>(bitmap); }

    GpBitmap* Keep(GpBitmap* bitmap) {
        made_.push_back(bitmap);
        return bitmap;
    }
    GpBitmap* Make(INT width, INT height, PixelFormat format) {
        GpBitmap* bitmap = nullptr;
        EXPECT_EQ(GdipCreateBitmapFromScan0(width, height, 0, format, nullptr, &bitmap), Ok);
        return Keep(bitmap);
    }
    /// One of `format` with these straight pixels, the top row first.
    GpBitmap* Make(INT width, INT height, PixelFormat format, std::vector<ARGB> pixels) {
        GpBitmap* bitmap = Make(width, height, format);
        Write(bitmap, PixelFormat32bppARGB, pixels.data(), width * 4);
        return bitmap;
    }

    /// The whole bitmap through a lock with a buffer of the caller's.
    static void Transfer(GpBitmap* bitmap, UINT flags, PixelFormat format, void* bytes,
                         INT stride) {
        BitmapData data{0, 0, stride, 0, bytes, 0};
        ASSERT_EQ(
            GdipBitmapLockBits(bitmap, nullptr, flags | ImageLockModeUserInputBuf, format, &data),
            Ok);
        ASSERT_EQ(GdipBitmapUnlockBits(bitmap, &data), Ok);
    }
    static void Write(GpBitmap* bitmap, PixelFormat format, void* bytes, INT stride) {
        Transfer(bitmap, ImageLockModeWrite, format, bytes, stride);
    }
    static std::vector<ARGB> Pixels(GpBitmap* bitmap, PixelFormat format = PixelFormat32bppARGB) {
        UINT width = 0, height = 0;
        GdipGetImageWidth(AsImage(bitmap), &width);
        GdipGetImageHeight(AsImage(bitmap), &height);
        std::vector<ARGB> pixels(size_t{width} * height);
        Transfer(bitmap, ImageLockModeRead, format, pixels.data(), static_cast<INT>(width * 4));
        return pixels;
    }

    test::GdiplusSession session_;

private:
    std::vector<GpBitmap*> made_;
};

}  // namespace vxgui::gdiplus
