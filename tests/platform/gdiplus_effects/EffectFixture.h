#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/GdiplusSession.h"
#include "tests/support/Golden.h"
#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::test {

using Guid = gdiplus::GUID;
constexpr Guid kBlur{0x633C80A4, 0x1843, 0x482b, {0x9E, 0xF2, 0xBE, 0x28, 0x34, 0xC5, 0xFD, 0xD4}};
constexpr Guid kSharpen{
    0x63CBF3EE, 0xC526, 0x402c, {0x8F, 0x71, 0x62, 0xC5, 0x40, 0xBF, 0x51, 0x42}};
constexpr Guid kMatrix{
    0x718F2615, 0x7933, 0x40e3, {0xA5, 0x11, 0x5F, 0x68, 0xFE, 0x14, 0xDD, 0x74}};
constexpr Guid kLut{0xA7CE72A9, 0x0F7F, 0x40d7, {0xB3, 0xCC, 0xD0, 0xC0, 0x2D, 0x5C, 0x32, 0x12}};
constexpr Guid kBrightness{
    0xD3A1DBE1, 0x8EC4, 0x4c17, {0x9F, 0x4C, 0xEA, 0x97, 0xAD, 0x1C, 0x34, 0x3D}};
constexpr Guid kHue{0x8B2DD6C3, 0xEB07, 0x4d87, {0xA5, 0xF0, 0x71, 0x08, 0xE2, 0x6A, 0x9C, 0x5F}};
constexpr Guid kLevels{
    0x99C354EC, 0x2A31, 0x4f3a, {0x8C, 0x34, 0x17, 0xA8, 0x03, 0xB3, 0x3A, 0x25}};
constexpr Guid kTint{0x1077AF00, 0x2848, 0x4441, {0x94, 0x89, 0x44, 0xAD, 0x4C, 0x2D, 0x7A, 0x2C}};
constexpr Guid kBalance{
    0x537E597D, 0x251E, 0x48da, {0x96, 0x64, 0x29, 0xCA, 0x49, 0x6B, 0x70, 0xF8}};
constexpr Guid kRedEye{
    0x74D29D05, 0x69A4, 0x4266, {0x95, 0x49, 0x3C, 0xC5, 0x28, 0x36, 0xB6, 0x32}};
constexpr Guid kCurve{0xDD6A0022, 0x58E4, 0x4a67, {0x9D, 0x9B, 0xD4, 0x8E, 0xB8, 0x81, 0xA5, 0x3D}};
constexpr Guid kAllEffects[] = {kBlur,   kSharpen, kMatrix,  kLut,    kBrightness, kHue,
                                kLevels, kTint,    kBalance, kRedEye, kCurve};

/// A GDI+ session with effects on small pictures of straight pixels.
class EffectFixture : public testing::Test {
protected:
    ~EffectFixture() override {
        for (gdiplus::CGpEffect* effect : effects_) gdiplus::GdipDeleteEffect(effect);
        for (gdiplus::GpBitmap* bitmap : bitmaps_) gdiplus::RetireObject(bitmap);
    }

    gdiplus::CGpEffect* Make(const Guid& guid) {
        gdiplus::CGpEffect* effect = nullptr;
        EXPECT_EQ(gdiplus::GdipCreateEffect(guid, &effect), gdiplus::Ok);
        effects_.push_back(effect);
        return effect;
    }
    template <class Params>
    gdiplus::CGpEffect* Make(const Guid& guid, const Params& params) {
        gdiplus::CGpEffect* effect = Make(guid);
        EXPECT_EQ(gdiplus::GdipSetEffectParameters(effect, &params, sizeof params), gdiplus::Ok);
        return effect;
    }
    template <class Params>
    gdiplus::GpStatus Set(const Guid& guid, const Params& params) {
        return gdiplus::GdipSetEffectParameters(Make(guid), &params, sizeof params);
    }

    gdiplus::GpBitmap* BitmapOf(const TestPicture& picture) {
        Ref<gdiplus::Bitmap> bitmap =
            gdiplus::Bitmap::Create(picture.width, picture.height, gdiplus::PixelFormat32bppARGB);
        const auto width = static_cast<size_t>(picture.width);
        for (int y = 0; y < picture.height; ++y) {
            bitmap->WriteStraight(0, y, {&picture.pixels[static_cast<size_t>(y) * width], width});
        }
        bitmaps_.push_back(static_cast<gdiplus::GpBitmap*>(gdiplus::EnterObject(bitmap)));
        return bitmaps_.back();
    }
    gdiplus::GpBitmap* Keep(gdiplus::GpBitmap* bitmap) {
        bitmaps_.push_back(bitmap);
        return bitmap;
    }
    static TestPicture PictureOf(gdiplus::GpBitmap* handle) {
        const Ref<gdiplus::Bitmap> bitmap = gdiplus::Find<gdiplus::Bitmap>(handle);
        TestPicture picture{
            static_cast<int>(bitmap->Width()), static_cast<int>(bitmap->Height()), {}};
        const auto width = static_cast<size_t>(picture.width);
        picture.pixels.resize(width * static_cast<size_t>(picture.height));
        for (int y = 0; y < picture.height; ++y) {
            bitmap->ReadStraight(0, y, {&picture.pixels[static_cast<size_t>(y) * width], width});
        }
        return picture;
    }
    TestPicture Applied(gdiplus::CGpEffect* effect, const TestPicture& picture,
                        gdi::RECT* roi = nullptr) {
        gdiplus::GpBitmap* bitmap = BitmapOf(picture);
        EXPECT_EQ(gdiplus::GdipBitmapApplyEffect(bitmap, effect, roi, 0, nullptr, nullptr),
                  gdiplus::Ok);
        return PictureOf(bitmap);
    }
    uint32_t Applied(gdiplus::CGpEffect* effect, uint32_t color) {
        return Applied(effect, TestPicture{1, 1, {color}}).pixels[0];
    }

    GdiplusSession session_;

private:
    std::vector<gdiplus::CGpEffect*> effects_;
    std::vector<gdiplus::GpBitmap*> bitmaps_;
};

/// Soft colours with a hard edge, a clear corner and a red eye.
inline TestPicture EffectSample(int side = 64) {
    TestPicture picture{side, side, {}};
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int dx = x - side * 3 / 4, dy = y - side * 3 / 4;
            uint32_t pixel = 0xFF000000 | static_cast<uint32_t>(x * 255 / side) << 16 |
                             static_cast<uint32_t>(y * 255 / side) << 8 |
                             static_cast<uint32_t>(255 - x * 255 / side);
            if (x > side / 4 && x < side / 2 && y > side / 8 && y < side / 2) pixel = 0xFFF0E8D0;
            if (dx * dx + dy * dy < side * side / 100) pixel = 0xFFE01818;
            if (x + y < side / 4) pixel = 0;
            picture.pixels.push_back(pixel);
        }
    }
    return picture;
}

}  // namespace vxgui::test
