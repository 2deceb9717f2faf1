#include "tests/frame/FrameTest.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/platform/gdi_dib.h"
#include "vxgui/platform/gdi_icons.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/ole.h"

namespace vxgui {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

using Row = std::vector<uint32_t>;

constexpr uint32_t kMagenta = 0x00FF00FF;
constexpr uint32_t kPaper = 0x40A0B0C0;  // what the target holds before

/// A row of pixels as a bitmap of 24 or 32 bits.
gdi::HBITMAP MakeBitmap(const Row& pixels, int bits) {
    uint8_t* bottom = nullptr;
    const auto width = static_cast<int32_t>(pixels.size());
    const gdi::HBITMAP bitmap = gdi::CreateDib(width, 1, bits, &bottom);
    for (const uint32_t pixel : pixels) {
        for (int byte = 0; byte < bits / 8; ++byte) *bottom++ = pixel >> (8 * byte) & 255;
    }
    return bitmap;
}

Ref<ole::Picture> PictureOf(const Row& pixels, int bits) {
    return ole::OleCreatePictureIndirect(MakeBitmap(pixels, bits), ole::kPictureBitmap, true);
}

/// A picture over an icon of one row, drawn as icons are.
class IconPicture : public ole::Picture {
public:
    explicit IconPicture(const Row& pixels) : count_(static_cast<int32_t>(pixels.size())) {
        const gdi::HBITMAP colours = MakeBitmap(pixels, 32);
        const gdi::HBITMAP mask = gdi::CreateBitmap(count_, 1, 1, 1, "\0\0\0\0");
        const gdi::ICONINFO info{1, 0, 0, mask, colours};
        icon_ = gdi::CreateIconIndirect(&info);
        gdi::DeleteObject(colours);
        gdi::DeleteObject(mask);
    }

    gdi::HGDIOBJ Handle() const override { return icon_; }
    int16_t Type() const override { return ole::kPictureIcon; }
    int32_t Width() const override { return gdi::MulDiv(count_, 2540, 96); }
    int32_t Height() const override { return gdi::MulDiv(1, 2540, 96); }
    void Render(gdi::HDC dc, int32_t x, int32_t y, int32_t cx, int32_t cy, int32_t, int32_t,
                int32_t, int32_t) const override {
        gdi::DrawIconEx(dc, x, y, icon_, cx, cy, 0, nullptr, gdi::DI_NORMAL);
    }
    bool SaveAsFile(ByteArray*) const override { return false; }

protected:
    ~IconPicture() override { gdi::DestroyIcon(icon_); }

private:
    int32_t count_;
    gdi::HICON icon_ = nullptr;
};

Ref<ole::Picture> IconOf(const Row& pixels) { return New<IconPicture>(pixels); }

/// Each byte of two pixels by the same rule.
template <class Rule>
uint32_t ByBytes(uint32_t source, uint32_t target, Rule rule) {
    uint32_t result = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        result |= (rule(source >> shift & 255, target >> shift & 255) & 255) << shift;
    }
    return result;
}

// The compositor's formulas for colours that are premultiplied already, and those that a constant
// alpha scales.
uint32_t Over(uint32_t source, uint32_t target) {
    return ByBytes(source, target, [&](uint32_t s, uint32_t t) {
        return std::min(255u, s + t * (256 - (source >> 24)) / 256);
    });
}
uint32_t ScaledOver(uint32_t source, uint32_t target, uint32_t constant) {
    const uint32_t a = (source >> 24) * constant / 256;
    return ByBytes(source, target,
                   [&](uint32_t s, uint32_t t) { return s * a / 256 + t * (256 - a) / 256; });
}
uint32_t Premultiplied(uint32_t pixel) {
    const uint32_t a = pixel >> 24;
    const uint32_t colours =
        ByBytes(pixel, 0, [&](uint32_t s, uint32_t) { return s * (a + 1) / 256; });
    return a == 0 ? 0 : (colours & 0xFFFFFF) | a << 24;
}

/// Four pixels of a host to paint on, with the companions that this library brings.
class PaintPicture : public FrameTest {
protected:
    PaintPicture() { kernel::SetKernel(nullptr); }
    ~PaintPicture() override { gdi::DeleteDC(dc_); }

    Row pixels_ = Row(4, kPaper);
    gdi::HDC dc_ = gdi::CreateHostDC({pixels_.data(), 4, 1, 16, true});
};

TEST_F(PaintPicture, CopiesAnOpaqueBitmapAtItsSize) {
    EXPECT_EQ(Global().PaintPicture(dc_, PictureOf({0x112233, kMagenta}, 24), 1, 0), 0);
    EXPECT_THAT(pixels_, ElementsAre(kPaper, 0x112233u, kMagenta, kPaper));
}

TEST_F(PaintPicture, CopiesAPartOfABitmap) {
    const Ref<ole::Picture> picture = PictureOf({1, 2, 3, 4}, 24);
    Global().PaintPicture(dc_, picture, 0, 0, -1, -1, 2, 0);
    EXPECT_THAT(pixels_, ElementsAre(3u, 4u, kPaper, kPaper));
    Global().PaintPicture(dc_, picture, 0, 0, -1, -1, 0, 0, 1, 1);
    EXPECT_THAT(pixels_, ElementsAre(1u, 4u, kPaper, kPaper));
}

TEST_F(PaintPicture, BlendsAnOpaqueBitmapOfAnotherSizeByTheConstantAlone) {
    Global().PaintPicture(dc_, PictureOf({0x112233, 0xF0E0D0}, 24), 0, 0, 4, 1);
    const auto expected = [](uint32_t source) {
        const uint32_t mixed =
            ByBytes(source, kPaper, [](uint32_t s, uint32_t t) { return (s * 255 + t) / 256; });
        return (mixed & 0xFFFFFF) | (kPaper & 0xFF000000);  // the target keeps its alpha
    };
    const uint32_t left = expected(0x112233), right = expected(0xF0E0D0);
    EXPECT_THAT(pixels_, ElementsAre(left, left, right, right));
}

TEST_F(PaintPicture, LeavesOutTheKeyOfAnOpaqueBitmap) {
    Global().PaintPicture(dc_, PictureOf({0x112233, 0x0000FF}, 24), 0, 0, -1, -1, 0, 0, -1, -1, 255,
                          0xFF0000);  // a COLORREF: blue
    EXPECT_EQ(pixels_[0] & 0xFFFFFF, 0x112233u);
    EXPECT_EQ(pixels_[1], kPaper);
}

TEST_F(PaintPicture, FadesAnOpaqueBitmapAndLeavesOutMagenta) {
    Global().PaintPicture(dc_, PictureOf({0x112233, kMagenta}, 24), 0, 0, -1, -1, 0, 0, -1, -1,
                          128);
    EXPECT_THAT(pixels_, ElementsAre(ScaledOver(0xFF112233, kPaper, 128), kPaper, kPaper, kPaper));
}

TEST_F(PaintPicture, FadesAnOpaqueBitmapAndLeavesOutItsKey) {
    Global().PaintPicture(dc_, PictureOf({0x112233, kMagenta}, 24), 0, 0, -1, -1, 0, 0, -1, -1, 128,
                          0x332211);
    EXPECT_THAT(pixels_, ElementsAre(kPaper, ScaledOver(0xFFFF00FF, kPaper, 128), kPaper, kPaper));
}

TEST_F(PaintPicture, LeavesOutMagentaOfUniformAlphaThoughNoKeyIsGiven) {
    for (const uint32_t alpha : {0u, 0xFF000000u}) {
        pixels_.assign(4, kPaper);
        Global().PaintPicture(dc_, PictureOf({alpha | 0x112233, alpha | kMagenta}, 32));
        EXPECT_THAT(pixels_, ElementsAre(0xFF112233u, kPaper, kPaper, kPaper)) << alpha;
    }
}

TEST_F(PaintPicture, LaysABitmapWithAlphaOver) {
    const Row source = {0x80112233, 0xFFFF00FF, 0x00FFFFFF};
    Global().PaintPicture(dc_, PictureOf(source, 32));
    EXPECT_THAT(pixels_, ElementsAre(Over(Premultiplied(source[0]), kPaper),
                                     Over(source[1], kPaper), kPaper, kPaper));
}

TEST_F(PaintPicture, LeavesOutTheKeyOfABitmapWithAlpha) {
    const Row source = {0x80112233, 0xFFFF00FF};
    Global().PaintPicture(dc_, PictureOf(source, 32), 0, 0, -1, -1, 0, 0, -1, -1, 255, kMagenta);
    EXPECT_THAT(pixels_,
                ElementsAre(Over(Premultiplied(source[0]), kPaper), kPaper, kPaper, kPaper));
}

TEST_F(PaintPicture, DrawsAnIconAtItsOwnSizeForANegativeOne) {
    const Ref<ole::Picture> icon = IconOf({0xFF112233, 0x80445566});
    gdi::DrawIconEx(dc_, 1, 0, static_cast<gdi::HICON>(icon->Handle()), 0, 0, 0, nullptr,
                    gdi::DI_NORMAL);
    const Row expected = pixels_;
    EXPECT_NE(expected[1], kPaper);
    EXPECT_EQ(expected[3], kPaper);
    for (const int32_t size : {-1, -9, 0}) {
        pixels_.assign(4, kPaper);
        // The row to start from isn't asked.
        Global().PaintPicture(dc_, icon, 1, 0, size, size, 0, 5);
        EXPECT_THAT(pixels_, ElementsAreArray(expected)) << size;
    }
}

TEST_F(PaintPicture, DrawsNothingOfAnIconThatIsCutOrFaded) {
    const Ref<ole::Picture> icon = IconOf({0xFF112233, 0xFF445566});
    Global().PaintPicture(dc_, icon, 0, 0, -1, -1, 1, 0);
    Global().PaintPicture(dc_, icon, 0, 0, -1, -1, 0, 0, -1, -1, 100);
    EXPECT_THAT(pixels_, ElementsAreArray(Row(4, kPaper)));
}

TEST_F(PaintPicture, DrawsNothingWithoutAPictureOrAContext) {
    EXPECT_EQ(Global().PaintPicture(dc_, nullptr), 0);
    EXPECT_EQ(Global().PaintPicture(nullptr, PictureOf({1}, 24)), 0);
    EXPECT_EQ(Global().PaintPicture(nullptr, PictureOf({1}, 32)), 0);
    EXPECT_EQ(Global().PaintPicture(nullptr, IconOf({1})), 0);
    EXPECT_THAT(pixels_, ElementsAreArray(Row(4, kPaper)));
}

TEST_F(PaintPicture, SurvivesOriginsFarOutside) {
    for (const int32_t far : {INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(Global().PaintPicture(dc_, PictureOf({1}, 24), 0, 0, -1, -1, far, far), 0);
        EXPECT_EQ(Global().PaintPicture(dc_, IconOf({1}), 0, 0, -1, -1, far, far), 0);
    }
    EXPECT_THAT(pixels_, ElementsAreArray(Row(4, kPaper)));
}

}  // namespace
}  // namespace vxgui
