#include "vxgui/platform/gdi/WordRows.h"

#include "GdiTestSupport.h"
#include "vxgui/platform/gdi_merge.h"

namespace vxgui::gdi {
namespace {

constexpr int32_t kSide = 5;

class Adder final : public WordMerger {
public:
    void Merge(const uint32_t* source, uint32_t* target, int32_t count) override {
        for (int32_t i = 0; i < count; ++i) target[i] += source[i] * 3;
    }
};

using Paint = void (*)(const Canvas& target, const Canvas& source, const PlainArea& area);

void Blit(const Canvas& target, const Canvas& source, const PlainArea& a) {
    EXPECT_TRUE(
        BitBlt(target.dc, a.x, a.y, a.width, a.height, source.dc, a.sourceX, a.sourceY, SRCCOPY));
}
void Draw(const Canvas& target, const Canvas& source, const PlainArea& a) {
    DIBSECTION record{};
    GetObjectA(source.bitmap, sizeof record, &record);
    HDRAWDIB drawer = DrawDibOpen();
    EXPECT_TRUE(DrawDibDraw(drawer, target.dc, a.x, a.y, a.width, a.height, &record.dsBmih,
                            source.bits, a.sourceX, a.sourceY, a.width, a.height, 0));
    DrawDibClose(drawer);
}
void Merge(const Canvas& target, const Canvas& source, const PlainArea& a) {
    Adder adder;
    MergeBlt(target.dc, a.x, a.y, a.width, a.height, source.dc, a.sourceX, a.sourceY, a.width,
             a.height, adder);
}

/// The target's words after `paint`; `clipped` to all of it, which changes nothing.
std::vector<uint32_t> After(Paint paint, const PlainArea& area, int32_t height, bool clipped) {
    Canvas target(kSide, height), source(kSide, kSide);
    target.Number(0x40000001);
    source.Number(0x10000001);
    HRGN whole = CreateRectRgn(0, 0, kSide, kSide);
    if (clipped) SelectObject(target.dc, whole);
    paint(target, source, area);
    DeleteObject(whole);
    return target.Words();
}

// What is clipped takes the way that serves all blits.
TEST(WordRows, GiveWhatAClipAroundAllOfTheTargetGives) {
    for (const Paint paint : {Blit, Draw, Merge}) {
        for (int32_t n = 0; n < 3 * 3 * 3 * 3 * 2; ++n) {
            const int32_t at[] = {-1, 0, 3};
            const PlainArea area{at[n % 3], at[n / 3 % 3], 2, 2, at[n / 9 % 3], at[n / 27 % 3]};
            const int32_t height = n < 81 ? kSide : -kSide;
            EXPECT_EQ(After(paint, area, height, false), After(paint, area, height, true))
                << area.x << " " << area.y << " from " << area.sourceX << " " << area.sourceY
                << ", height " << height;
        }
    }
}

TEST(WordRows, ArePlainBlitsInsideBothAlone) {
    Canvas target(kSide, kSide), source(kSide, kSide), other(kSide, kSide, 24);
    const GdiRef<DeviceContext> dc = FindContext(target.dc);
    const auto whole = [&](const PixelTarget& from, const PlainArea& area) {
        return WholeWordRows(*dc, from, area).has_value();
    };
    EXPECT_TRUE(whole(source.View(), {0, 0, kSide, kSide, 0, 0}));
    EXPECT_TRUE(whole(source.View(), {4, 4, 1, 1, 0, 0}));
    EXPECT_FALSE(whole(source.View(), {4, 4, 2, 1, 0, 0}));
    EXPECT_FALSE(whole(source.View(), {0, 0, 1, 2, 4, 4}));
    EXPECT_FALSE(whole(source.View(), {0, 0, INT32_MAX, 1, 1, 0}));
    EXPECT_FALSE(whole(source.View(), {INT32_MAX, 0, 1, 1, INT32_MIN, 0}));
    EXPECT_FALSE(whole(target.View(), {0, 0, 1, 1, 2, 2})) << "they share memory";
    EXPECT_FALSE(whole(other.View(), {0, 0, 1, 1, 0, 0})) << "not words";
    HRGN clip = CreateRectRgn(0, 0, kSide, kSide);
    SelectObject(target.dc, clip);
    EXPECT_FALSE(whole(source.View(), {0, 0, 1, 1, 0, 0}));
    DeleteObject(clip);
}

TEST(WordRows, ThatLieBehindOneAnotherInBothAreOneRun) {
    Canvas target(kSide, kSide), source(kSide, kSide), topDown(kSide, -kSide);
    const GdiRef<DeviceContext> dc = FindContext(target.dc);
    const auto runs = [&](const Canvas& from, const PlainArea& area) {
        int count = 0;
        WholeWordRows(*dc, from.View(), area)->ForEachRun([&](const uint32_t*, uint32_t*, int32_t) {
            ++count;
        });
        return count;
    };
    EXPECT_EQ(runs(source, {0, 0, kSide, kSide, 0, 0}), 1);
    EXPECT_EQ(runs(source, {0, 0, kSide - 1, kSide, 0, 0}), kSide);
    EXPECT_EQ(runs(topDown, {0, 0, kSide, kSide, 0, 0}), kSide);
}

}  // namespace
}  // namespace vxgui::gdi
