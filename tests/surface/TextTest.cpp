#include "tests/surface/SurfaceSupport.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::test {
namespace {

struct SeenText {
    std::u16string text;
    int count = 0;
    gdi::RECT rect{};
    UINT flags = 0;
    gdi::HGDIOBJ font = nullptr;
};
SeenText seen;

/// In place of glyphs: one pixel of each of three coverages, at the rectangle's corner.
int DrawThreePixels(gdi::HDC dc, char16_t* text, int count, gdi::RECT* rect, UINT flags) {
    seen = {count < 0 ? std::u16string(text) : std::u16string(text, text + count), count, *rect,
            flags, gdi::GetCurrentObject(dc, gdi::OBJ_FONT)};
    const COLORREF white = gdi::GetTextColor(dc);
    gdi::SetPixel(dc, rect->left, rect->top, white);
    gdi::SetPixel(dc, rect->left + 1, rect->top, white & gdi::RGB(128, 128, 128));
    gdi::SetPixel(dc, rect->left + 2, rect->top, white & gdi::RGB(1, 1, 1));
    rect->right = 77;
    return 12;
}

class ActedText : public PassingKernel {
public:
    kernel::FARPROC GetProcAddress(kernel::HMODULE module, const char* name) override {
        const bool named = reinterpret_cast<uintptr_t>(name) >= 0x10000;
        return named && std::string_view(name) == "DrawTextW"
                   ? reinterpret_cast<kernel::FARPROC>(&DrawThreePixels)
                   : PassingKernel::GetProcAddress(module, name);
    }
};

TEST(SurfaceText, CoverageBecomesAlphaUnderPremultipliedColour) {
    const auto surface = MakeSurface(5, 3, Pixel(9, 9, 9, 9));
    gdi::SetTextColor(surface->hDC(), gdi::RGB(255, 100, 3));
    const ActedText kernel;
    gdi::RECT rect{1, 1, 5, 3};
    EXPECT_EQ(surface->DrawText("ab", rect, 0x24), 12);
    EXPECT_EQ(seen.text, u"ab");
    EXPECT_EQ(seen.flags, 0x24u);
    EXPECT_EQ(rect.right, 77);
    const auto value = [](ARGB pixel) { return ValueFromARGB(pixel); };
    EXPECT_EQ(surface->GetPixel(1, 1), value(Pixel(3, 100, 255, 255)));
    EXPECT_EQ(surface->GetPixel(2, 1), value(Pixel(1, 50, 128, 128)));
    EXPECT_EQ(surface->GetPixel(3, 1), value(Pixel(0, 0, 1, 1)));
    int untouched = 0;
    for (const ARGB pixel : MemoryOf(surface)) untouched += pixel == Pixel(9, 9, 9, 9);
    EXPECT_EQ(untouched, 12);
    EXPECT_EQ(surface->Flags(), 3u);
}

TEST(SurfaceText, IsDrawnInTheFontOfTheSurfaceAndAsLongAsAskedFor) {
    const auto surface = MakeSurface(5, 3);
    const gdi::HFONT font = gdi::CreateFontA(12, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Sans");
    const auto before = gdi::SelectObject(surface->hDC(), font);
    const ActedText kernel;
    gdi::RECT rect{0, 0, 5, 3};
    surface->DrawText("abc", rect, 0, 2);
    EXPECT_EQ(seen.text, u"ab");
    EXPECT_EQ(seen.font, font);
    gdi::SelectObject(surface->hDC(), before);
    EXPECT_TRUE(gdi::DeleteObject(font));
}

TEST(SurfaceText, AnEmptySurfaceOrAMissingCallDrawsNothing) {
    gdi::RECT rect{0, 0, 5, 3};
    EXPECT_EQ(New<cAlphaDIBSection>()->DrawText("ab", rect, 0), 0);
    const auto surface = MakeSurface(5, 3, Pixel(9, 9, 9, 9));
    const MissingModule kernel("user32");
    EXPECT_EQ(surface->DrawText("ab", rect, 0), 0);
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(15, Pixel(9, 9, 9, 9)));
}

TEST(SurfaceText, GlyphsAreDrawnWithoutTheirBackground) {
    const auto surface = MakeSurface(40, 20, Pixel(9, 9, 9, 9));
    gdi::RECT rect{0, 0, 40, 20};
    EXPECT_GT(surface->DrawText("i", rect, 0), 0);
    int touched = 0;
    for (const ARGB pixel : MemoryOf(surface)) {
        touched += pixel != Pixel(9, 9, 9, 9);
        EXPECT_EQ(pixel.Blue, pixel == Pixel(9, 9, 9, 9) ? 9 : 0);
    }
    EXPECT_GT(touched, 3);
    EXPECT_LT(touched, 60);
}

TEST(SurfaceText, MeasuringDrawsNothing) {
    const auto surface = MakeSurface(40, 20, Pixel(9, 9, 9, 9));
    gdi::RECT rect{0, 0, 0, 0};
    EXPECT_GT(surface->DrawText("mm", rect, gdi::DT_CALCRECT), 0);
    EXPECT_GT(rect.right, 5);
    EXPECT_EQ(MemoryOf(surface), std::vector<ARGB>(800, Pixel(9, 9, 9, 9)));
}

}  // namespace
}  // namespace vxgui::test
