#include <array>
#include <cstring>
#include <limits>

#include "ShapesTestSupport.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

constexpr int kHigh = std::numeric_limits<int32_t>::max();

// Two regions and a target, deleted at the end; nothing may be left in the table.
class Regions : public testing::Test {
protected:
    void TearDown() override {
        for (HRGN region : {a, b, target}) EXPECT_TRUE(DeleteObject(region));
        EXPECT_EQ(HandleTable::LiveCount(), before);
    }

    RECT BoxOf(HRGN region) {
        RECT box{-1, -1, -1, -1};
        GetRgnBox(region, &box);
        return box;
    }

    // Stock objects come with first use and stay.
    HGDIOBJ stock = GetStockObject(WHITE_BRUSH);
    const size_t before = HandleTable::LiveCount();
    HRGN a = CreateRectRgn(0, 0, 10, 10);
    HRGN b = CreateRectRgn(5, 5, 15, 15);
    HRGN target = CreateRectRgn(0, 0, 0, 0);
};

TEST_F(Regions, CombiningAnswersTheKindOfTheResult) {
    EXPECT_EQ(CombineRgn(target, a, b, RGN_AND), SIMPLEREGION);
    EXPECT_EQ(BoxOf(target), (RECT{5, 5, 10, 10}));
    EXPECT_EQ(CombineRgn(target, a, b, RGN_OR), COMPLEXREGION);
    EXPECT_EQ(BoxOf(target), (RECT{0, 0, 15, 15}));
    EXPECT_EQ(CombineRgn(target, a, a, RGN_XOR), NULLREGION);
    EXPECT_EQ(CombineRgn(target, a, b, RGN_DIFF), COMPLEXREGION);
    EXPECT_FALSE(PtInRegion(target, 5, 5));
    EXPECT_TRUE(PtInRegion(target, 4, 9));
}

TEST_F(Regions, CopyIgnoresTheSecondSource) {
    EXPECT_EQ(CombineRgn(target, a, nullptr, RGN_COPY), SIMPLEREGION);
    EXPECT_TRUE(EqualRgn(target, a));
    EXPECT_EQ(CombineRgn(target, a, b, RGN_OR), COMPLEXREGION);
    EXPECT_EQ(CombineRgn(a, target, a, RGN_COPY), COMPLEXREGION);
    EXPECT_TRUE(EqualRgn(target, a));
}

TEST_F(Regions, TheTargetMayBeASource) {
    EXPECT_EQ(CombineRgn(a, a, b, RGN_AND), SIMPLEREGION);
    EXPECT_EQ(BoxOf(a), (RECT{5, 5, 10, 10}));
    EXPECT_EQ(CombineRgn(b, a, b, RGN_DIFF), NULLREGION);
}

TEST_F(Regions, WrongSourcesAndModesLeaveTheTarget) {
    SetRectRgn(target, 1, 1, 2, 2);
    EXPECT_EQ(CombineRgn(target, a, nullptr, RGN_OR), ERROR);
    EXPECT_EQ(CombineRgn(target, nullptr, b, RGN_COPY), ERROR);
    EXPECT_EQ(CombineRgn(nullptr, a, b, RGN_OR), ERROR);
    EXPECT_EQ(CombineRgn(target, a, b, 9), ERROR);
    EXPECT_EQ(BoxOf(target), (RECT{1, 1, 2, 2}));
}

TEST_F(Regions, CreationPutsCornersInOrder) {
    HRGN reversed = CreateRectRgn(10, 10, 0, 0);
    EXPECT_TRUE(EqualRgn(reversed, a));
    EXPECT_TRUE(SetRectRgn(reversed, 15, 5, 5, 15));
    EXPECT_TRUE(EqualRgn(reversed, b));
    const RECT rect{10, 0, 0, 10};
    HRGN indirect = CreateRectRgnIndirect(&rect);
    EXPECT_TRUE(EqualRgn(indirect, a));
    EXPECT_EQ(CreateRectRgnIndirect(nullptr), nullptr);
    DeleteObject(reversed);
    DeleteObject(indirect);
}

TEST_F(Regions, RightAndBottomEdgesAreOutside) {
    EXPECT_TRUE(PtInRegion(a, 0, 0));
    EXPECT_TRUE(PtInRegion(a, 9, 9));
    EXPECT_FALSE(PtInRegion(a, 10, 9));
    EXPECT_FALSE(PtInRegion(a, 9, 10));
}

TEST_F(Regions, ARectangleThatOnlyTouchesIsNotInside) {
    const RECT touching{10, 0, 20, 10};
    const RECT sharing{9, 9, 20, 20};
    const RECT reversed{20, 20, 9, 9};
    EXPECT_FALSE(RectInRegion(a, &touching));
    EXPECT_TRUE(RectInRegion(a, &sharing));
    EXPECT_TRUE(RectInRegion(a, &reversed));
    EXPECT_FALSE(RectInRegion(a, nullptr));
}

TEST_F(Regions, OffsetMovesOrFailsWhole) {
    EXPECT_EQ(OffsetRgn(a, -3, 4), SIMPLEREGION);
    EXPECT_EQ(BoxOf(a), (RECT{-3, 4, 7, 14}));
    EXPECT_EQ(OffsetRgn(a, kHigh, 0), ERROR);
    EXPECT_EQ(BoxOf(a), (RECT{-3, 4, 7, 14}));
    EXPECT_EQ(OffsetRgn(target, kHigh, kHigh), NULLREGION);
}

TEST_F(Regions, DataIsTheHeaderAndTheRectangles) {
    CombineRgn(target, a, b, RGN_OR);
    const DWORD size = GetRegionData(target, 0, nullptr);
    ASSERT_EQ(size, 32u + 3 * 16);
    std::array<char, 32 + 3 * 16 + 4> buffer;
    buffer.fill(0x5A);
    EXPECT_EQ(GetRegionData(target, size - 1, buffer.data()), 0u);
    EXPECT_EQ(buffer[0], 0x5A);
    EXPECT_EQ(GetRegionData(target, size + 4, buffer.data()), size);
    EXPECT_EQ(buffer[size], 0x5A);
    RGNDATAHEADER header;
    RECT rects[3];
    std::memcpy(&header, buffer.data(), sizeof(header));
    std::memcpy(rects, buffer.data() + sizeof(header), sizeof(rects));
    EXPECT_EQ(header.dwSize, 32u);
    EXPECT_EQ(header.iType, 1u);
    EXPECT_EQ(header.nCount, 3u);
    EXPECT_EQ(header.nRgnSize, 48u);
    EXPECT_EQ(header.rcBound, (RECT{0, 0, 15, 15}));
    EXPECT_EQ(rects[0], (RECT{0, 0, 10, 5}));
    EXPECT_EQ(rects[1], (RECT{0, 5, 15, 10}));
    EXPECT_EQ(rects[2], (RECT{5, 10, 15, 15}));
}

TEST_F(Regions, DataOfAnEmptyRegionIsTheHeaderAlone) {
    RGNDATAHEADER header;
    EXPECT_EQ(GetRegionData(target, sizeof(header), &header), 32u);
    EXPECT_EQ(header.nCount, 0u);
    EXPECT_EQ(header.rcBound, RECT{});
}

TEST_F(Regions, StaleAndWrongHandlesFail) {
    HRGN stale = CreateRectRgn(0, 0, 1, 1);
    DeleteObject(stale);
    RECT box{7, 7, 7, 7};
    const auto brush = static_cast<HRGN>(stock);
    for (HRGN wrong : {stale, brush, HRGN{}}) {
        EXPECT_EQ(CombineRgn(wrong, a, b, RGN_OR), ERROR);
        EXPECT_EQ(CombineRgn(target, wrong, b, RGN_OR), ERROR);
        EXPECT_EQ(CombineRgn(target, a, wrong, RGN_OR), ERROR);
        EXPECT_FALSE(EqualRgn(wrong, wrong));
        EXPECT_FALSE(SetRectRgn(wrong, 0, 0, 1, 1));
        EXPECT_EQ(OffsetRgn(wrong, 1, 1), ERROR);
        EXPECT_EQ(GetRgnBox(wrong, &box), ERROR);
        EXPECT_FALSE(PtInRegion(wrong, 0, 0));
        EXPECT_FALSE(RectInRegion(wrong, &box));
        EXPECT_EQ(GetRegionData(wrong, 0, nullptr), 0u);
    }
    EXPECT_EQ(box, (RECT{7, 7, 7, 7}));
    EXPECT_EQ(GetRgnBox(a, nullptr), ERROR);
}

}  // namespace
}  // namespace vxgui::gdi
