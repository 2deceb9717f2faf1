#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

using Words = std::vector<uint32_t>;

TEST(BitBlt, CopiesAllFourBytesBetween32BitBitmaps) {
    Canvas source(2, 1);
    source.Put(0, 0, 0x80112233);
    Canvas target(2, 1);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 2, 1, source.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(target.At(0, 0), 0x80112233u);
}

TEST(BitBlt, TheAlphaByteBecomesZeroFromOtherDepths) {
    for (const int depth : {1, 8, 24}) {
        DibInfo info = DibOf(1, 1, depth);
        info.colors[0] = {0x33, 0x22, 0x11, 0xFF};
        Canvas source(info);
        if (depth == 24) source.Put(0, 0, 0x112233);
        Canvas target(1, 1);
        target.Fill(0xFFFFFFFF);
        EXPECT_TRUE(BitBlt(target.dc, 0, 0, 1, 1, source.dc, 0, 0, SRCCOPY));
        EXPECT_EQ(target.At(0, 0), 0x00112233u) << depth;
    }
}

TEST(BitBlt, OperationsActOnAll32Bits) {
    const struct {
        DWORD rop;
        uint32_t result;
    } rows[] = {{DSTINVERT, ~0x8000FF00u},
                {WHITENESS, 0xFFFFFFFF},
                {BLACKNESS, 0},
                {SRCINVERT, 0x8000FF00u ^ 0xF0112233u},
                {NOTSRCCOPY, ~0xF0112233u}};
    for (const auto& row : rows) {
        Canvas source(1, 1);
        source.Fill(0xF0112233);
        Canvas target(1, 1);
        target.Fill(0x8000FF00);
        EXPECT_TRUE(BitBlt(target.dc, 0, 0, 1, 1, source.dc, 0, 0, row.rop));
        EXPECT_EQ(target.At(0, 0), row.result) << std::hex << row.rop;
    }
}

TEST(BitBlt, WritesOnlyWhereThereIsASourcePixel) {
    Canvas source(2, 2);
    source.Number(1);
    Canvas target(4, 4);
    target.Fill(9);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 4, 4, source.dc, -1, -1, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{9, 9, 9, 9,  //
                                     9, 1, 2, 9,  //
                                     9, 3, 4, 9,  //
                                     9, 9, 9, 9}));
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 4, 4, source.dc, 100, INT32_MIN, SRCCOPY));
    EXPECT_EQ(target.At(0, 0), 9u);
}

TEST(BitBlt, AnOperationWithoutASourceFillsTheWholeRectangle) {
    Canvas source(1, 1);
    Canvas target(3, 1);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 3, 1, source.dc, 50, 50, WHITENESS));
    EXPECT_EQ(target.Words(), (Words{0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}));
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 3, 1, nullptr, 0, 0, BLACKNESS));
    EXPECT_EQ(target.Words(), (Words{0, 0, 0}));
}

TEST(BitBlt, NegativeExtentsCoverTheStartAndWhatIsBeforeIt) {
    Canvas source(4, 1);
    source.Number(1);
    Canvas target(4, 1);
    EXPECT_TRUE(BitBlt(target.dc, 2, 0, -2, 1, source.dc, 3, 0, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{0, 3, 4, 0}));
    EXPECT_TRUE(PatBlt(target.dc, 0, 0, -1, -1, WHITENESS));
    EXPECT_EQ(target.Words(), (Words{0xFFFFFFFF, 3, 4, 0}));
}

TEST(BitBlt, ZeroExtentsSucceedAndDrawNothing) {
    Canvas source(2, 2);
    source.Fill(5);
    Canvas target(2, 2);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 0, 2, source.dc, 0, 0, SRCCOPY));
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 2, 0, source.dc, 0, 0, SRCCOPY));
    EXPECT_TRUE(StretchBlt(target.dc, 0, 0, 2, 2, source.dc, 0, 0, 0, 2, SRCCOPY));
    EXPECT_TRUE(PatBlt(target.dc, 0, 0, 0, 0, WHITENESS));
    EXPECT_EQ(target.Words(), (Words{0, 0, 0, 0}));
}

TEST(BitBlt, AWrongContextFails) {
    Canvas canvas(2, 2);
    EXPECT_FALSE(BitBlt(nullptr, 0, 0, 1, 1, canvas.dc, 0, 0, SRCCOPY));
    EXPECT_FALSE(BitBlt(canvas.dc, 0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
    EXPECT_FALSE(
        BitBlt(canvas.dc, 0, 0, 1, 1, reinterpret_cast<HDC>(canvas.bitmap), 0, 0, SRCCOPY));
    EXPECT_FALSE(PatBlt(nullptr, 0, 0, 1, 1, PATCOPY));
}

TEST(BitBlt, AnOverlappingCopyReadsTheSourceFirst) {
    for (const int dx : {-2, -1, 0, 1}) {
        for (const int dy : {-2, -1, 0, 1}) {
            Canvas canvas(6, 6);
            canvas.Number(1);
            Words expected = canvas.Words();
            const Words before = expected;
            for (int y = 0; y < 3; ++y) {
                for (int x = 0; x < 3; ++x) {
                    expected[static_cast<size_t>((2 + dy + y) * 6 + 2 + dx + x)] =
                        before[static_cast<size_t>((2 + y) * 6 + 2 + x)];
                }
            }
            EXPECT_TRUE(BitBlt(canvas.dc, 2 + dx, 2 + dy, 3, 3, canvas.dc, 2, 2, SRCCOPY));
            EXPECT_EQ(canvas.Words(), expected) << dx << " " << dy;
        }
    }
}

TEST(BitBlt, AnOverlappingCopyThroughAClipReadsTheSourceFirst) {
    Canvas canvas(1, 6);
    canvas.Number(1);
    HRGN parts = CreateRectRgn(0, 1, 1, 2);
    HRGN second = CreateRectRgn(0, 3, 1, 5);
    CombineRgn(parts, parts, second, RGN_OR);
    SelectObject(canvas.dc, parts);
    EXPECT_TRUE(BitBlt(canvas.dc, 0, 1, 1, 5, canvas.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(canvas.Words(), (Words{1, 1, 3, 3, 4, 6}));
    DeleteObject(parts);
    DeleteObject(second);
}

TEST(BitBlt, TwoHostContextsOnOneMemoryOverlapToo) {
    uint32_t memory[6] = {1, 2, 3, 4, 5, 6};
    HDC whole = CreateHostDC({memory, 6, 1, 24, false});
    HDC part = CreateHostDC({memory + 1, 4, 1, 16, false});
    EXPECT_TRUE(BitBlt(part, 0, 0, 4, 1, whole, 0, 0, SRCCOPY));
    EXPECT_EQ(Words(memory, memory + 6), (Words{1, 1, 2, 3, 4, 6}));
    DeleteDC(whole);
    DeleteDC(part);
}

TEST(BitBlt, TheSourcesClipIsIgnored) {
    Canvas source(2, 1);
    source.Fill(7);
    HRGN nothing = CreateRectRgn(0, 0, 0, 0);
    SelectObject(source.dc, nothing);
    Canvas target(2, 1);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 2, 1, source.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{7, 7}));
    SelectObject(target.dc, nothing);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 2, 1, source.dc, 0, 0, BLACKNESS));
    EXPECT_EQ(target.Words(), (Words{7, 7}));
    DeleteObject(nothing);
}

TEST(StretchBlt, RepeatsAndDropsPixelsByTheNearestRule) {
    Canvas source(4, 1);
    source.Number(1);
    Canvas target(6, 1);
    EXPECT_TRUE(StretchBlt(target.dc, 0, 0, 6, 1, source.dc, 0, 0, 4, 1, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{1, 1, 2, 3, 3, 4}));
    target.Fill(0);
    EXPECT_TRUE(StretchBlt(target.dc, 0, 0, 2, 1, source.dc, 0, 0, 4, 1, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{1, 3, 0, 0, 0, 0}));
}

TEST(StretchBlt, IsTheSameInOnePieceAndInBands) {
    constexpr int kSide = 1501, kFrom = 17, kBand = 100;  // 9 MB at once, which goes past the caches
    const Canvas source(kFrom, kFrom), whole(kSide + 2, kSide + 2), bands(kSide + 2, kSide + 2);
    source.Number(0x81000000);
    const auto stretch = [&](const Canvas& to) {
        EXPECT_TRUE(StretchBlt(to.dc, 1, 1, kSide, kSide, source.dc, 0, 0, kFrom, kFrom, SRCCOPY));
    };
    stretch(whole);
    for (int top = 0; top < kSide + 2; top += kBand) {
        const int saved = SaveDC(bands.dc);
        IntersectClipRect(bands.dc, 0, top, kSide + 2, top + kBand);
        stretch(bands);
        RestoreDC(bands.dc, saved);
    }
    EXPECT_EQ(whole.At(0, 5), 0u);
    EXPECT_EQ(whole.At(1, 1), 0x81000000);
    EXPECT_EQ(whole.At(kSide, kSide), 0x81000000 + kFrom * kFrom - 1);
    EXPECT_EQ(whole.At(kSide + 1, kSide), 0u);
    EXPECT_TRUE(whole.Words() == bands.Words());
}

TEST(StretchBlt, NeverMixesPixelsInAnyMode) {
    Canvas source(2, 1);
    source.Put(0, 0, 0x000000);
    source.Put(1, 0, 0xFFFFFF);
    for (const int mode : {BLACKONWHITE, WHITEONBLACK, COLORONCOLOR, HALFTONE}) {
        Canvas target(1, 1);
        SetStretchBltMode(target.dc, mode);
        EXPECT_TRUE(StretchBlt(target.dc, 0, 0, 1, 1, source.dc, 0, 0, 2, 1, SRCCOPY));
        EXPECT_EQ(target.At(0, 0), 0u) << mode;
    }
}

TEST(StretchBlt, OppositeSignsMirror) {
    Canvas source(3, 2);
    source.Number(1);
    Canvas target(3, 2);
    EXPECT_TRUE(StretchBlt(target.dc, 2, 0, -3, 2, source.dc, 0, 0, 3, 2, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{3, 2, 1, 6, 5, 4}));
    EXPECT_TRUE(StretchBlt(target.dc, 0, 0, 3, 2, source.dc, 0, 1, 3, -2, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{4, 5, 6, 1, 2, 3}));
    EXPECT_TRUE(StretchBlt(target.dc, 2, 1, -3, -2, source.dc, 2, 1, -3, -2, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{1, 2, 3, 4, 5, 6}));
}

TEST(StretchBlt, MirrorsInPlace) {
    Canvas canvas(4, 1);
    canvas.Number(1);
    EXPECT_TRUE(StretchBlt(canvas.dc, 3, 0, -4, 1, canvas.dc, 0, 0, 4, 1, SRCCOPY));
    EXPECT_EQ(canvas.Words(), (Words{4, 3, 2, 1}));
}

TEST(StretchBlt, ClippingDoesntChangeTheScale) {
    Canvas source(4, 1);
    source.Number(1);
    Canvas whole(8, 1);
    EXPECT_TRUE(StretchBlt(whole.dc, 0, 0, 8, 1, source.dc, 0, 0, 4, 1, SRCCOPY));
    Canvas part(3, 1);
    EXPECT_TRUE(StretchBlt(part.dc, -3, 0, 8, 1, source.dc, 0, 0, 4, 1, SRCCOPY));
    EXPECT_EQ(part.Words(), (Words{whole.At(3, 0), whole.At(4, 0), whole.At(5, 0)}));
    Canvas beyond(8, 1);
    EXPECT_TRUE(StretchBlt(beyond.dc, 0, 0, 8, 1, source.dc, 2, 0, 4, 1, SRCCOPY));
    EXPECT_EQ(beyond.Words(), (Words{3, 3, 4, 4, 0, 0, 0, 0}));
}

TEST(StretchBlt, AHugeRectangleCostsOnlyWhatIsSeen) {
    Canvas source(2, 2);
    source.Number(1);
    Canvas target(2, 2);
    EXPECT_TRUE(StretchBlt(target.dc, -1000000000, -1000000000, 2000000000, 2000000000, source.dc,
                           0, 0, 2, 2, SRCCOPY));
    // The middle of the picture stands at the target's corner.
    EXPECT_EQ(target.Words(), (Words{4, 4, 4, 4}));
    EXPECT_TRUE(StretchBlt(target.dc, INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN, source.dc,
                           INT32_MIN, INT32_MAX, INT32_MIN, INT32_MAX, SRCINVERT));
}

TEST(PatBlt, UsesTheSelectedBrushAndClearsAlpha) {
    Canvas canvas(2, 1);
    canvas.Fill(0xFF0000FF);
    HGDIOBJ old = SelectObject(canvas.dc, GetStockObject(GRAY_BRUSH));
    EXPECT_TRUE(PatBlt(canvas.dc, 0, 0, 1, 1, PATCOPY));
    EXPECT_EQ(canvas.At(0, 0), 0x00808080u);
    EXPECT_TRUE(PatBlt(canvas.dc, 1, 0, 1, 1, PATINVERT));
    EXPECT_EQ(canvas.At(1, 0), 0xFF80807Fu);
    SelectObject(canvas.dc, old);
}

TEST(PatBlt, ANullBrushDrawsNothing) {
    Canvas canvas(1, 1);
    canvas.Fill(5);
    SelectObject(canvas.dc, GetStockObject(NULL_BRUSH));
    EXPECT_TRUE(PatBlt(canvas.dc, 0, 0, 1, 1, PATCOPY));
    EXPECT_EQ(canvas.At(0, 0), 5u);
    EXPECT_TRUE(PatBlt(canvas.dc, 0, 0, 1, 1, DSTINVERT)) << "this one needs no brush";
    EXPECT_EQ(canvas.At(0, 0), ~5u);
}

TEST(PatBlt, RefusesAnOperationThatNeedsASource) {
    Canvas canvas(1, 1);
    EXPECT_FALSE(PatBlt(canvas.dc, 0, 0, 1, 1, SRCCOPY));
    EXPECT_FALSE(PatBlt(canvas.dc, 0, 0, 1, 1, MERGECOPY));
}

// A brush whose colour tells where it was asked for.
class PositionBrush final : public Brush {
public:
    PositionBrush() : Brush(LOGBRUSH{BS_PATTERN, 0, 0}) {}
    void Row(const DeviceContext&, int32_t x, int32_t y, int32_t count,
             uint32_t* colors) const override {
        for (int32_t i = 0; i < count; ++i) colors[i] = static_cast<uint32_t>(y * 1000 + x + i);
    }
};

TEST(PatBlt, AsksAPatternForColoursByDeviceCoordinates) {
    Canvas canvas(600, 3);
    canvas.Fill(0xFF000000);
    const GdiRef<PositionBrush> brush = Enter(std::make_unique<PositionBrush>());
    SelectObject(canvas.dc, brush->Handle());
    DeleteObject(brush->Handle());
    EXPECT_TRUE(PatBlt(canvas.dc, 1, 1, 599, 1, PATCOPY));
    EXPECT_EQ(canvas.At(0, 1), 0xFF000000u);
    for (int x = 1; x < 600; ++x) ASSERT_EQ(canvas.At(x, 1), static_cast<uint32_t>(1000 + x));
    EXPECT_EQ(canvas.At(5, 2), 0xFF000000u);
}

TEST(Monochrome, ZeroAndOneTakeTheTargetsTextAndBackgroundColours) {
    Canvas mono(CreateBitmap(2, 1, 1, 1, "\x40"));
    Canvas target(2, 1);
    FindContext(target.dc)->state.textColor = RGB(1, 2, 3);
    FindContext(target.dc)->state.backColor = RGB(4, 5, 6);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 2, 1, mono.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{0x010203, 0x040506}));
}

TEST(Monochrome, TheSourcesBackgroundColourBecomesOne) {
    Canvas source(3, 1);
    source.Put(0, 0, 0xFF010203);
    source.Put(1, 0, 0x00FFFFFF);
    FindContext(source.dc)->state.backColor = RGB(1, 2, 3);
    Canvas mono(CreateBitmap(3, 1, 1, 1, nullptr));
    EXPECT_TRUE(BitBlt(mono.dc, 0, 0, 3, 1, source.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(mono.Words(), (Words{1, 0, 0}));
}

TEST(Monochrome, ADibSectionOfOneBitHasColoursOfItsOwn) {
    DibInfo info = DibOf(2, 1, 1);
    info.colors[0] = {0, 0, 0xFF, 0};
    info.colors[1] = {0xFF, 0, 0, 0};
    Canvas source(info);
    source.Put(1, 0, 1);
    Canvas target(2, 1);
    EXPECT_TRUE(BitBlt(target.dc, 0, 0, 2, 1, source.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(target.Words(), (Words{0xFF0000, 0x0000FF}));
    target.Put(0, 0, 0x2000F0);
    EXPECT_TRUE(BitBlt(source.dc, 0, 0, 2, 1, target.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(source.Words(), (Words{1, 1})) << "the nearest of its two";
}

}  // namespace
}  // namespace vxgui::gdi
