#include <algorithm>

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

constexpr DWORD Blend(uint32_t constant, bool perPixel) {
    return constant << 16 | (perPixel ? 1u << 24 : 0u);
}

uint32_t PlainConstant(uint32_t s, uint32_t d, uint32_t c) {
    return (s * c + d * (255 - c) + 127) / 255;
}

uint32_t PlainPremultiplied(uint32_t s, uint32_t a, uint32_t d, uint32_t c) {
    const uint32_t scaled = (s * c + 127) / 255;
    const uint32_t alpha = (a * c + 127) / 255;
    return std::min(255u, scaled + (d * (255 - alpha) + 127) / 255);
}

uint32_t Byte(uint32_t word, int shift) { return word >> shift & 0xFF; }

TEST(AlphaBlend, ConstantAlphaOverTheWholeDomain) {
    Canvas source(256, 256);
    Canvas target(256, 256);
    for (uint32_t c = 0; c < 256; ++c) {
        for (int32_t y = 0; y < 256; ++y) {
            uint32_t* s = source.View().Row32(y);
            uint32_t* d = target.View().Row32(y);
            for (uint32_t x = 0; x < 256; ++x) {
                // Each byte has a pair of its own; together they have all pairs.
                s[x] = x * 0x01010101u;
                const auto row = static_cast<uint32_t>(y);
                d[x] = row | (255 - row) << 8 | (row ^ 0x55) << 16 | (row ^ 0xAA) << 24;
            }
        }
        ASSERT_TRUE(
            AlphaBlend(target.dc, 0, 0, 256, 256, source.dc, 0, 0, 256, 256, Blend(c, false)));
        for (int32_t y = 0; y < 256; ++y) {
            const auto row = static_cast<uint32_t>(y);
            const uint32_t before[] = {row, 255 - row, row ^ 0x55, row ^ 0xAA};
            const uint32_t* d = target.View().Row32(y);
            for (uint32_t x = 0; x < 256; ++x) {
                for (int i = 0; i < 4; ++i) {
                    ASSERT_EQ(Byte(d[x], i * 8), PlainConstant(x, before[i], c))
                        << "s " << x << " d " << before[i] << " constant " << c;
                }
            }
        }
    }
}

// For each alpha, all pairs of source and destination in the colour bytes.
void CheckPremultiplied(uint32_t alpha, uint32_t constant) {
    Canvas source(256, 64);
    Canvas target(256, 64);
    const auto pixel = [](int32_t x, int32_t y) { return static_cast<uint32_t>(y * 256 + x); };
    for (int32_t y = 0; y < 64; ++y) {
        for (int32_t x = 0; x < 256; ++x) {
            const uint32_t at = pixel(x, y);
            const uint32_t s = at & 0xFF;
            const uint32_t d = at >> 8;  // 0 to 63, spread over the three bytes
            source.View().Row32(y)[x] = s * 0x010101u | alpha << 24;
            target.View().Row32(y)[x] = d | (d + 64) << 8 | (d + 128) << 16 | (d + 192) << 24;
        }
    }
    ASSERT_TRUE(
        AlphaBlend(target.dc, 0, 0, 256, 64, source.dc, 0, 0, 256, 64, Blend(constant, true)));
    for (int32_t y = 0; y < 64; ++y) {
        for (int32_t x = 0; x < 256; ++x) {
            const uint32_t s = pixel(x, y) & 0xFF;
            const uint32_t d = pixel(x, y) >> 8;
            const uint32_t word = target.View().Row32(y)[x];
            ASSERT_EQ(Byte(word, 0), PlainPremultiplied(s, alpha, d, constant));
            ASSERT_EQ(Byte(word, 8), PlainPremultiplied(s, alpha, d + 64, constant));
            ASSERT_EQ(Byte(word, 16), PlainPremultiplied(s, alpha, d + 128, constant));
            ASSERT_EQ(Byte(word, 24), PlainPremultiplied(alpha, alpha, d + 192, constant))
                << "alpha " << alpha << " constant " << constant;
        }
    }
}

TEST(AlphaBlend, PremultipliedSourceOverTheDomain) {
    for (uint32_t alpha = 0; alpha < 256; alpha += 3) CheckPremultiplied(alpha, 255);
    for (uint32_t constant = 0; constant < 256; constant += 15) {
        for (const uint32_t alpha : {0u, 1u, 127u, 128u, 254u, 255u}) {
            CheckPremultiplied(alpha, constant);
        }
    }
}

TEST(AlphaBlend, RefusesNegativeExtents) {
    Canvas source(4, 4);
    Canvas target(4, 4);
    const struct {
        int w, h, sw, sh;
    } rows[] = {{-1, 1, 1, 1}, {1, -1, 1, 1}, {1, 1, -1, 1}, {1, 1, 1, -1}};
    for (const auto& r : rows) {
        EXPECT_FALSE(
            AlphaBlend(target.dc, 2, 2, r.w, r.h, source.dc, 2, 2, r.sw, r.sh, Blend(255, false)));
    }
}

TEST(AlphaBlend, RefusesASourceThatIsntWhollyInside) {
    Canvas source(4, 4);
    Canvas target(4, 4);
    const struct {
        int x, y, w, h;
    } rows[] = {{-1, 0, 2, 2},
                {0, -1, 2, 2},
                {3, 0, 2, 2},
                {0, 3, 2, 2},
                {0, 0, 5, 1},
                {INT32_MAX, 0, 1, 1},
                {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}};
    for (const auto& r : rows) {
        EXPECT_FALSE(
            AlphaBlend(target.dc, 0, 0, 2, 2, source.dc, r.x, r.y, r.w, r.h, Blend(255, false)));
    }
    EXPECT_TRUE(AlphaBlend(target.dc, 0, 0, 2, 2, source.dc, 2, 2, 2, 2, Blend(255, false)));
}

TEST(AlphaBlend, RefusesOverlapOnOneSurfaceOnly) {
    Canvas canvas(4, 1);
    canvas.Number(1);
    EXPECT_FALSE(AlphaBlend(canvas.dc, 1, 0, 2, 1, canvas.dc, 0, 0, 2, 1, Blend(255, false)));
    EXPECT_TRUE(AlphaBlend(canvas.dc, 2, 0, 2, 1, canvas.dc, 0, 0, 2, 1, Blend(255, false)));
    EXPECT_EQ(canvas.Words(), (std::vector<uint32_t>{1, 2, 1, 2}));
}

TEST(AlphaBlend, ZeroExtentsSucceed) {
    Canvas source(2, 2);
    source.Fill(0xFFFFFFFF);
    Canvas target(2, 2);
    EXPECT_TRUE(AlphaBlend(target.dc, 0, 0, 0, 2, source.dc, 0, 0, 2, 2, Blend(255, true)));
    EXPECT_TRUE(AlphaBlend(target.dc, 0, 0, 2, 2, source.dc, 0, 0, 2, 0, Blend(255, true)));
    EXPECT_EQ(target.At(0, 0), 0u);
}

TEST(AlphaBlend, StretchingRepeatsAndDrops) {
    Canvas source(2, 1);
    source.Put(0, 0, 0xFF000010);
    source.Put(1, 0, 0xFF000020);
    Canvas target(4, 1);
    EXPECT_TRUE(AlphaBlend(target.dc, 0, 0, 4, 1, source.dc, 0, 0, 2, 1, Blend(255, true)));
    EXPECT_EQ(target.Words(),
              (std::vector<uint32_t>{0xFF000010, 0xFF000010, 0xFF000020, 0xFF000020}));
}

TEST(AlphaBlend, KeepsToTheClipAndTheTarget) {
    Canvas source(9, 9);
    source.Fill(0xFFFFFFFF);
    GuardedHost host(4, 4, true, false);
    EXPECT_TRUE(AlphaBlend(host.dc, -3, -3, 9, 9, source.dc, 0, 0, 9, 9, Blend(255, true)));
    EXPECT_TRUE(host.Intact());
    Canvas target(2, 1);
    HRGN region = CreateRectRgn(1, 0, 2, 1);
    SelectObject(target.dc, region);
    DeleteObject(region);
    EXPECT_TRUE(AlphaBlend(target.dc, 0, 0, 2, 1, source.dc, 0, 0, 2, 1, Blend(255, true)));
    EXPECT_EQ(target.Words(), (std::vector<uint32_t>{0, 0xFFFFFFFF}));
}

TEST(AlphaBlend, OnlyThePublishedFunctionIsTaken) {
    Canvas source(1, 1);
    Canvas target(1, 1);
    for (const DWORD packed : {0x00FF0001u, 0x00FF0100u, 0x02FF0000u, 0xFFFF0000u}) {
        EXPECT_FALSE(AlphaBlend(target.dc, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, packed));
    }
    Canvas shallow(1, 1, 24);
    EXPECT_FALSE(AlphaBlend(target.dc, 0, 0, 1, 1, shallow.dc, 0, 0, 1, 1, Blend(255, true)))
        << "no alpha to go by";
    EXPECT_TRUE(AlphaBlend(target.dc, 0, 0, 1, 1, shallow.dc, 0, 0, 1, 1, Blend(255, false)));
    EXPECT_FALSE(AlphaBlend(nullptr, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, Blend(255, false)));
    EXPECT_FALSE(AlphaBlend(target.dc, 0, 0, 1, 1, nullptr, 0, 0, 1, 1, Blend(255, false)));
}

TEST(AlphaBlend, MixesIntoOtherDepths) {
    Canvas source(1, 1);
    source.Fill(0xFF0000FF);
    Canvas deep(1, 1, 24);
    deep.Fill(0xFF0000);
    EXPECT_TRUE(AlphaBlend(deep.dc, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, Blend(128, false)));
    EXPECT_EQ(deep.At(0, 0), (PlainConstant(0, 255, 128) << 16 | PlainConstant(255, 0, 128)));
    DibInfo info = DibOf(1, 1, 8);
    info.colors[4] = {0x7E, 0, 0x7E, 0};
    info.colors[5] = {0xFF, 0xFF, 0xFF, 0};
    Canvas indexed(info);
    indexed.Fill(5);
    EXPECT_TRUE(AlphaBlend(indexed.dc, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, Blend(255, false)));
    EXPECT_EQ(indexed.At(0, 0), 4u) << "the nearest colour";
}

TEST(TransparentBlt, LeavesThePixelsOfTheKeyAlone) {
    Canvas source(4, 1);
    source.Put(0, 0, 0x00FF00FF);
    source.Put(1, 0, 0x80FF00FF);
    source.Put(2, 0, 0x80FF00FE);
    source.Put(3, 0, 0x00112233);
    Canvas target(4, 1);
    target.Fill(7);
    EXPECT_TRUE(TransparentBlt(target.dc, 0, 0, 4, 1, source.dc, 0, 0, 4, 1, 0xFFFF00FF));
    EXPECT_EQ(target.Words(), (std::vector<uint32_t>{7, 7, 0x80FF00FE, 0x00112233}));
}

TEST(TransparentBlt, TheKeyHasRedLowest) {
    Canvas source(1, 1);
    source.Fill(0x112233);
    Canvas target(1, 1);
    target.Fill(7);
    EXPECT_TRUE(TransparentBlt(target.dc, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, 0x332211));
    EXPECT_EQ(target.At(0, 0), 7u);
    EXPECT_TRUE(TransparentBlt(target.dc, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, 0x112233));
    EXPECT_EQ(target.At(0, 0), 0x112233u);
}

TEST(TransparentBlt, FailsOnNegativeExtents) {
    Canvas source(4, 4);
    Canvas target(4, 4);
    EXPECT_FALSE(TransparentBlt(target.dc, 2, 2, -1, 1, source.dc, 0, 0, 1, 1, 0));
    EXPECT_FALSE(TransparentBlt(target.dc, 2, 2, 1, -1, source.dc, 0, 0, 1, 1, 0));
    EXPECT_FALSE(TransparentBlt(target.dc, 2, 2, 1, 1, source.dc, 2, 2, -1, 1, 0));
    EXPECT_FALSE(TransparentBlt(target.dc, 2, 2, 1, 1, source.dc, 2, 2, 1, -1, 0));
    EXPECT_FALSE(TransparentBlt(nullptr, 0, 0, 1, 1, source.dc, 0, 0, 1, 1, 0));
    EXPECT_FALSE(TransparentBlt(target.dc, 0, 0, 1, 1, nullptr, 0, 0, 1, 1, 0));
}

TEST(TransparentBlt, ClipsASourceThatIsPartlyOutside) {
    Canvas source(2, 1);
    source.Number(1);
    Canvas target(4, 1);
    target.Fill(7);
    EXPECT_TRUE(TransparentBlt(target.dc, 0, 0, 4, 1, source.dc, -1, 0, 4, 1, 2));
    EXPECT_EQ(target.Words(), (std::vector<uint32_t>{7, 1, 2, 7}));
}

TEST(TransparentBlt, StretchesByRepeatingAndReadsItsSourceFirst) {
    Canvas canvas(4, 1);
    canvas.Number(1);
    EXPECT_TRUE(TransparentBlt(canvas.dc, 0, 0, 4, 1, canvas.dc, 0, 0, 2, 1, 0x990000));
    EXPECT_EQ(canvas.Words(), (std::vector<uint32_t>{1, 1, 2, 2}));
}

}  // namespace
}  // namespace vxgui::gdi
