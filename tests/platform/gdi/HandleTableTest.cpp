#include "vxgui/platform/gdi/HandleTable.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/StockObjects.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

std::unique_ptr<Pen> APen() { return std::make_unique<Pen>(LOGPEN{PS_SOLID, {1, 0}, 0}); }

TEST(HandleTable, FindsWhatItsHandleNames) {
    const GdiRef<Pen> pen = Enter(APen());
    EXPECT_EQ(Find<Pen>(pen->Handle()).get(), pen.get());
    EXPECT_EQ(FindAny(pen->Handle()).get(), pen.get());
    EXPECT_TRUE(DeleteObject(pen->Handle()));
}

TEST(HandleTable, AHandleOfAnotherKindIsRefused) {
    const GdiRef<Pen> pen = Enter(APen());
    EXPECT_FALSE(Find<Bitmap>(pen->Handle()));
    EXPECT_FALSE(FindContext(static_cast<HDC>(pen->Handle())));
    DeleteObject(pen->Handle());
}

TEST(HandleTable, AStaleHandleFailsEvenWhenItsPlaceIsUsedAgain) {
    HGDIOBJ first = Enter(APen())->Handle();
    EXPECT_TRUE(DeleteObject(first));
    EXPECT_FALSE(FindAny(first));
    EXPECT_FALSE(DeleteObject(first));
    HGDIOBJ second = Enter(APen())->Handle();
    EXPECT_NE(first, second);
    EXPECT_FALSE(FindAny(first));
    EXPECT_TRUE(DeleteObject(second));
}

TEST(HandleTable, ForgedHandlesAreRefused) {
    int here = 0;
    EXPECT_FALSE(FindAny(nullptr));
    EXPECT_FALSE(FindAny(&here));
    for (uintptr_t value :
         {uintptr_t{1}, uintptr_t{0x12345678}, ~uintptr_t{0}, ~uintptr_t{0} >> 1}) {
        EXPECT_FALSE(FindAny(reinterpret_cast<void*>(value)));
    }
}

TEST(HandleTable, AReferenceOutlivesTheHandle) {
    GdiRef<Pen> pen = Enter(APen());
    HGDIOBJ handle = pen->Handle();
    EXPECT_TRUE(DeleteObject(handle));
    EXPECT_FALSE(FindAny(handle));
    EXPECT_EQ(pen->Description().lopnWidth.x, 1);
}

TEST(HandleTable, ThreadsMayLookUpWhileOthersDelete) {
    const size_t before = HandleTable::LiveCount();
    std::atomic<HGDIOBJ> shared{nullptr};
    std::atomic<bool> done{false};
    std::thread reader([&] {
        while (!done) {
            if (const GdiRef<Pen> pen = Find<Pen>(shared.load())) {
                EXPECT_EQ(pen->Description().lopnWidth.x, 1);
            }
        }
    });
    for (int i = 0; i < 20000; ++i) {
        shared = Enter(APen())->Handle();
        DeleteObject(shared);
    }
    done = true;
    reader.join();
    EXPECT_EQ(HandleTable::LiveCount(), before);
}

TEST(Contexts, AFreshContextHasTheStockObjects) {
    HDC dc = CreateCompatibleDC(nullptr);
    ASSERT_NE(dc, nullptr);
    BITMAP record{};
    EXPECT_EQ(GetObjectA(GetCurrentObject(dc, OBJ_BITMAP), sizeof(record), &record),
              kBitmapRecordSize);
    EXPECT_EQ(record.bmWidth, 1);
    EXPECT_EQ(record.bmHeight, 1);
    EXPECT_EQ(record.bmBitsPixel, 1);
    EXPECT_EQ(GetCurrentObject(dc, OBJ_BRUSH), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(dc, OBJ_PEN), GetStockObject(BLACK_PEN));
    EXPECT_EQ(GetCurrentObject(dc, OBJ_FONT), GetStockObject(SYSTEM_FONT));
    const DcState& state = FindContext(dc)->state;
    EXPECT_EQ(state.backMode, OPAQUE);
    EXPECT_EQ(state.arcDirection, 1);
    EXPECT_EQ(state.polyFillMode, ALTERNATE);
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_FALSE(DeleteDC(dc));
}

}  // namespace
}  // namespace vxgui::gdi
