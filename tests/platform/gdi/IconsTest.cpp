#include "GdiTestSupport.h"
#include "vxgui/platform/gdi_icons.h"

namespace vxgui::gdi {
namespace {

using Words = std::vector<uint32_t>;

// An icon of one row.
HICON Row(const Words& colors, uint8_t maskBits, int depth = 32) {
    const auto width = static_cast<int>(colors.size());
    const uint8_t rows[2] = {maskBits, 0};
    ICONINFO info{1, 0, 0, CreateBitmap(width, 1, 1, 1, rows), nullptr};
    HICON icon = nullptr;
    {
        Canvas canvas(width, 1, depth);
        for (int x = 0; x < width; ++x) canvas.Put(x, 0, colors[static_cast<size_t>(x)]);
        info.hbmColor = canvas.bitmap;
        icon = CreateIconIndirect(&info);
    }
    EXPECT_TRUE(DeleteObject(info.hbmMask));
    EXPECT_NE(icon, nullptr);
    return icon;
}

TEST(Icons, WithAnyAlphaAreDrawnSourceOverWithoutTheirMask) {
    HICON icon = Row({0xFF112233, 0x80FF0000, 0x00FFFFFF}, 0xFF);
    Canvas target(3, 1);
    target.Fill(0xFF0000C8);
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
    // 255 * 128 and 200 * 127 over 255, rounded; alpha 128 + 127.
    EXPECT_EQ(target.Words(), (Words{0xFF112233, 0xFF800064, 0xFF0000C8}));
    DestroyIcon(icon);
}

TEST(Icons, WithoutAlphaAndThenInvertAndClearAlphaInTheWholeRectangle) {
    for (const int depth : {24, 32}) {
        HICON icon = Row({0x00112233, 0x00000000, 0x00FFFFFF}, 0x60, depth);
        Canvas target(4, 1);
        target.Fill(0xFF0000C8);
        EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
        EXPECT_EQ(target.Words(), (Words{0x00112233, 0x000000C8, 0x00FFFF37, 0xFF0000C8}));
        DestroyIcon(icon);
    }
}

TEST(Icons, ABlackAndWhiteOneHasItsImageBelowItsMask) {
    const uint8_t rows[4] = {0x60, 0, 0xA0, 0};
    ICONINFO info{1, 0, 0, CreateBitmap(3, 2, 1, 1, rows), nullptr};
    HICON icon = CreateIconIndirect(&info);
    Canvas target(3, 1);
    target.Fill(0x0000C8);
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
    EXPECT_EQ(target.Words(), (Words{0xFFFFFF, 0x0000C8, 0xFFFF37}));
    ICONINFO back{};
    EXPECT_TRUE(GetIconInfo(icon, &back));
    EXPECT_EQ(back.hbmColor, nullptr);
    Canvas mask(back.hbmMask);
    EXPECT_EQ(mask.Words(), (Words{0, 1, 1, 1, 0, 1}));
    DestroyIcon(icon);
    DeleteObject(info.hbmMask);
}

TEST(Icons, ASizeOfZeroIsTheIconsOwnAndOthersStretch) {
    HICON icon = Row({0xFF000001, 0xFF000002}, 0);
    Canvas target(4, 2);
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 4, 0, 0, nullptr, DI_NORMAL));
    EXPECT_EQ(target.Words(), (Words{0xFF000001, 0xFF000001, 0xFF000002, 0xFF000002, 0, 0, 0, 0}));
    DestroyIcon(icon);
}

TEST(Icons, PartsCanBeDrawnAlone) {
    HICON icon = Row({0x00112233, 0x00000000}, 0x40);
    Canvas target(2, 1);
    target.Fill(0xFF0000C8);
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, nullptr, 0));
    EXPECT_EQ(target.Words(), (Words{0xFF0000C8, 0xFF0000C8}));
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, nullptr, DI_MASK));
    EXPECT_EQ(target.Words(), (Words{0, 0xFFFFFF}));
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, nullptr, DI_IMAGE));
    EXPECT_EQ(target.Words(), (Words{0x00112233, 0}));
    DestroyIcon(icon);
}

TEST(Icons, ABrushFillsTheRectangleFirst) {
    HICON icon = Row({0x00FF0000, 0x00000000}, 0x40);
    Canvas target(2, 1);
    auto* grey = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    EXPECT_TRUE(DrawIconEx(target.dc, 0, 0, icon, 0, 0, 0, grey, DI_NORMAL));
    EXPECT_EQ(target.Words(), (Words{0x00FF0000, 0x00808080}));
    DestroyIcon(icon);
}

TEST(Icons, GiveCopiesOfTheirParts) {
    const uint8_t rows[2] = {0x40, 0};
    ICONINFO info{0, 3, 4, CreateBitmap(2, 1, 1, 1, rows), nullptr};
    const uint32_t words[2] = {0x80112233, 0x00445566};
    info.hbmColor = CreateBitmap(2, 1, 1, 32, words);
    HICON icon = CreateIconIndirect(&info);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    ICONINFO back{};
    EXPECT_TRUE(GetIconInfo(icon, &back));
    EXPECT_FALSE(back.fIcon);
    EXPECT_EQ(back.xHotspot, 3u);
    EXPECT_EQ(back.yHotspot, 4u);
    {
        Canvas mask(back.hbmMask);
        EXPECT_EQ(mask.Words(), (Words{0, 1}));
        Canvas colors(back.hbmColor);
        EXPECT_EQ(colors.Words(), (Words{0x80112233, 0x00445566}));
    }
    EXPECT_TRUE(DestroyIcon(icon));
    EXPECT_FALSE(DestroyIcon(icon));
    EXPECT_FALSE(GetIconInfo(icon, &back));
}

TEST(Icons, KeepToTheTarget) {
    HICON icon = Row({0xFF000001, 0xFF000002, 0xFF000003}, 0);
    GuardedHost host(2, 2, false, false);
    EXPECT_TRUE(DrawIconEx(host.dc, -1, -3, icon, 9, 9, 0, nullptr, DI_NORMAL));
    EXPECT_TRUE(DrawIconEx(host.dc, 1, 1, icon, -9, -9, 0, nullptr, DI_NORMAL));
    EXPECT_TRUE(host.Intact());
    DestroyIcon(icon);
}

TEST(Icons, WrongHandlesAreRefused) {
    Canvas canvas(2, 2);
    ICONINFO info{};
    EXPECT_EQ(CreateIconIndirect(nullptr), nullptr);
    EXPECT_EQ(CreateIconIndirect(&info), nullptr) << "no icon without a mask";
    info.hbmMask = CreateBitmap(1, 1, 1, 1, nullptr);
    EXPECT_EQ(CreateIconIndirect(&info), nullptr) << "a mask without an image";
    info.hbmColor = reinterpret_cast<HBITMAP>(canvas.dc);
    EXPECT_EQ(CreateIconIndirect(&info), nullptr);
    DeleteObject(info.hbmMask);
    HICON icon = Row({0xFF000001}, 0);
    EXPECT_FALSE(DrawIconEx(nullptr, 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL));
    EXPECT_FALSE(DrawIconEx(canvas.dc, 0, 0, nullptr, 0, 0, 0, nullptr, DI_NORMAL));
    EXPECT_FALSE(GetIconInfo(icon, nullptr));
    EXPECT_FALSE(DeleteObject(icon)) << "an icon is destroyed, not deleted";
    EXPECT_EQ(SelectObject(canvas.dc, icon), nullptr);
    EXPECT_TRUE(DestroyIcon(icon));
}

}  // namespace
}  // namespace vxgui::gdi
