#include "vxgui/theme/ItemPainter.h"

#include <gtest/gtest.h>

#include "generated/Places.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui {
namespace {

constexpr int32_t kWidth = 140, kHeight = 50;
constexpr uint32_t kGround = 0xFF405060;
constexpr gdi::RECT kBox{10, 8, 130, 42};

class ItemPainter : public testing::Test {
protected:
    using Pixels = std::vector<uint32_t>;

    static gdi::HostPixels Over(Pixels& pixels) {
        return {pixels.data(), kWidth, kHeight, kWidth * 4, false};
    }
    static Pixels Filled(uint32_t pixel) { return Pixels(kWidth * kHeight, pixel); }
    static uint32_t At(const Pixels& pixels, int32_t x, int32_t y) {
        return pixels[static_cast<size_t>(y * kWidth + x)];
    }
    Pixels Painted(Pixels pixels, const gdi::RECT& box = kBox, const String& caption = "OK") {
        EXPECT_TRUE(PaintItem(*button, E_ItemStateMouseOver, caption, Over(pixels), box));
        return pixels;
    }

    const Skin skin = LoadSkin(VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme");
    const Ref<ThemeItem> button = FindItem(skin, "PushButton");
};

TEST_F(ItemPainter, PaintsOnOpaquePixelsWhatTheDrawingOperationsPaint) {
    Pixels expected = Filled(kGround);
    const gdi::HDC dc = gdi::CreateHostDC(Over(expected));
    button->State(E_ItemStateMouseOver);
    button->DrawBackground(dc, 10, 8, 120, 34, -1, -1);
    int32_t right = 130, bottom = 42;
    button->DrawText(dc, "OK", DT_SINGLELINE, -1, 10, 8, right, bottom);
    gdi::DeleteDC(dc);
    for (uint32_t& pixel : expected) pixel |= 0xFF000000;
    EXPECT_EQ(Painted(Filled(kGround)), expected);
    EXPECT_NE(Painted(Filled(kGround)), Painted(Filled(kGround), kBox, ""));
}

TEST_F(ItemPainter, KeepsOnClearPixelsTheItemsOwnAlpha) {
    const Pixels clear = Painted(Filled(0));
    const Pixels white = Painted(Filled(0xFFFFFFFF)), black = Painted(Filled(0xFF000000));
    size_t half = 0;
    for (size_t i = 0; i < clear.size(); ++i) {
        const auto pixel = std::bit_cast<ARGB>(clear[i]);
        EXPECT_LE(pixel.Red, pixel.Alpha);
        EXPECT_EQ(clear[i] & 0xFFFFFF, black[i] & 0xFFFFFF) << i;
        if (pixel.Alpha == 0) {
            EXPECT_EQ(white[i], 0xFFFFFFFF) << i;
        }
        if (pixel.Alpha == 255) {
            EXPECT_EQ(white[i], clear[i]) << i;
        }
        half += pixel.Alpha > 0 && pixel.Alpha < 255;
    }
    EXPECT_EQ(At(clear, 9, 20), 0u);
    EXPECT_EQ(At(clear, 70, 12) >> 24, 255u);
    EXPECT_GT(half, 20u);  // the soft edge
}

TEST_F(ItemPainter, LetsWhatIsHalfClearShineThrough) {
    const Pixels clear = Painted(Filled(0)), half = Painted(Filled(0x80000040));
    for (size_t i = 0; i < clear.size(); ++i) {
        const auto item = std::bit_cast<ARGB>(clear[i]), shown = std::bit_cast<ARGB>(half[i]);
        EXPECT_EQ(shown.Alpha, std::min(255, item.Alpha + 0x80 * (256 - item.Alpha) / 256)) << i;
        EXPECT_EQ(shown.Blue, std::min(255, item.Blue + 0x40 * (256 - item.Alpha) / 256)) << i;
    }
}

TEST_F(ItemPainter, TouchesNothingOutsideOfTheBox) {
    for (const uint32_t ground : {kGround, 0x80102030u}) {
        const Pixels pixels = Painted(Filled(ground), kBox, "A caption that is much too long here");
        for (int32_t y = 0; y < kHeight; ++y) {
            for (int32_t x = 0; x < kWidth; ++x) {
                const bool inside = x >= 10 && x < 130 && y >= 8 && y < 42;
                if (!inside) {
                    EXPECT_EQ(At(pixels, x, y), ground) << x << "," << y;
                }
            }
        }
    }
}

TEST_F(ItemPainter, CutsABoxThatReachesBeyondThePixels) {
    const Pixels whole = Painted(Filled(kGround));
    const Pixels cut = Painted(Filled(kGround), {-50, -12, 70, 22});
    for (int32_t y = 0; y < 22; ++y)
        for (int32_t x = 0; x < 70; ++x)
            EXPECT_EQ(At(cut, x, y), At(whole, x + 60, y + 20)) << x << "," << y;
    EXPECT_EQ(Painted(Filled(kGround), {200, 0, 320, 34}), Filled(kGround));
    EXPECT_EQ(Painted(Filled(kGround), {-200, 0, -1, 34}), Filled(kGround));
    EXPECT_EQ(Painted(Filled(kGround), {20, 20, 20, 20}), Filled(kGround));
}

TEST_F(ItemPainter, TakesRowsInEitherOrder) {
    const Pixels expected = Painted(Filled(0));
    Pixels bottomUp = Filled(0), negative = Filled(0);
    ASSERT_TRUE(PaintItem(*button, E_ItemStateMouseOver, "OK",
                          {bottomUp.data(), kWidth, kHeight, kWidth * 4, true}, kBox));
    ASSERT_TRUE(PaintItem(
        *button, E_ItemStateMouseOver, "OK",
        {negative.data() + kWidth * (kHeight - 1), kWidth, kHeight, -kWidth * 4, false}, kBox));
    for (int32_t y = 0; y < kHeight; ++y) {
        for (int32_t x = 0; x < kWidth; ++x) {
            ASSERT_EQ(At(bottomUp, x, kHeight - 1 - y), At(expected, x, y));
            ASSERT_EQ(At(negative, x, kHeight - 1 - y), At(expected, x, y));
        }
    }
}

TEST_F(ItemPainter, LeavesTheItemsStateAsItWas) {
    button->State(E_ItemStateDisabled);
    Painted(Filled(kGround));
    EXPECT_EQ(button->State(), E_ItemStateDisabled);
}

TEST_F(ItemPainter, RefusesPixelsThatCantBe) {
    Pixels pixels = Filled(0);
    const auto refused = [&](void* bits, int32_t width, int32_t height, ptrdiff_t stride) {
        return !PaintItem(*button, 0, "", {bits, width, height, stride, true}, kBox);
    };
    EXPECT_TRUE(refused(nullptr, kWidth, kHeight, kWidth * 4));
    EXPECT_TRUE(refused(pixels.data(), 0, kHeight, kWidth * 4));
    EXPECT_TRUE(refused(pixels.data(), kWidth, -1, kWidth * 4));
    EXPECT_TRUE(refused(pixels.data(), kWidth, kHeight, kWidth * 4 - 2));
    EXPECT_EQ(pixels, Filled(0));
}

}  // namespace
}  // namespace vxgui
