#include "vxgui/platform/gdi/PixelBlocks.h"
#include "vxgui/platform/limits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <thread>

#include "GdiTestSupport.h"

namespace vxgui::gdi {
namespace {

TEST(PixelBlocks, ABlockThatWasGivenBackServesAgainAndIsZeroed) {
    PixelBlock block = TakePixels(5000);
    std::memset(block.bits, 0xFF, 5000);
    const uint8_t* bits = block.bits;
    GivePixelsBack(block);
    block = TakePixels(4000);
    EXPECT_EQ(block.bits, bits);
    EXPECT_GE(block.capacity, 4000u);
    EXPECT_TRUE(std::all_of(block.bits, block.bits + 4000, [](uint8_t b) { return b == 0; }));
    GivePixelsBack(block);
}

TEST(PixelBlocks, OfSeveralThatServeTheOneUsedLastComesFirst) {
    const PixelBlock first = TakePixels(5000), second = TakePixels(5000);
    GivePixelsBack(first);
    GivePixelsBack(second);
    const PixelBlock again = TakePixels(5000);
    EXPECT_EQ(again.bits, second.bits);
    GivePixelsBack(again);
}

TEST(PixelBlocks, BlocksBeginAtLinesOfTheCache) {
    for (const size_t size : {1u, 100u, 5000u, 300000u}) {
        const PixelBlock cleared = TakePixels(size), raw = TakeRawPixels(size);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(cleared.bits) % 64, 0u) << size;
        EXPECT_EQ(reinterpret_cast<uintptr_t>(raw.bits) % 64, 0u) << size;
        GivePixelsBack(cleared);
        GivePixelsBack(raw);
    }
}

TEST(PixelBlocks, LargeBlocksBeginAtHugePagesAndAreAllThere) {
    constexpr size_t kHugePage = size_t{2} << 20;
    for (const size_t size : {kHugePage - 1, kHugePage, kHugePage + 1, kHugePage * 5 / 2}) {
        const PixelBlock block = TakePixels(size);
        const auto place = reinterpret_cast<uintptr_t>(block.bits);
        EXPECT_EQ(place % (size < kHugePage ? 64 : kHugePage), 0u) << size;
        EXPECT_EQ(std::count(block.bits, block.bits + size, 0), static_cast<ptrdiff_t>(size));
        std::memset(block.bits, 0xFF, size);
        GivePixelsBack(block);
    }
}

TEST(PixelBlocks, NoneForNothingAndForTheAbsurd) {
    EXPECT_EQ(TakePixels(0).bits, nullptr);
    EXPECT_EQ(TakePixels(ApartmentLimits().bitmapBytes + 1).bits, nullptr);
    EXPECT_EQ(TakeRawPixels(SIZE_MAX).bits, nullptr);
    GivePixelsBack({});
}

TEST(PixelBlocks, ASmallBitmapDoesntHoldALargeBlock) {
    const PixelBlock large = TakePixels(4u << 20);
    GivePixelsBack(large);
    const PixelBlock small = TakePixels(100);
    EXPECT_LT(small.capacity, 4u << 20);
    GivePixelsBack(small);
}

TEST(PixelBlocks, HostMemoryIsNeverFreed) {
    uint8_t host[16] = {1};
    GivePixelsBack({host, sizeof(host), false});
    EXPECT_EQ(host[0], 1);
}

TEST(PixelBlocks, MoreBlocksThanAreKeptComeAndGo) {
    for (int round = 0; round < 3; ++round) {
        PixelBlock blocks[kKeptBlocks * 3];
        std::set<uint8_t*> distinct;
        for (PixelBlock& block : blocks) {
            block = TakePixels(kKeptBytes / 3);
            distinct.insert(block.bits);
        }
        EXPECT_EQ(distinct.size(), kKeptBlocks * 3);
        for (const PixelBlock& block : blocks) GivePixelsBack(block);
    }
}

TEST(PixelBlocks, ARepaintsScratchSurfacesUseTheSameMemory) {
    std::set<void*> memory;
    for (int i = 0; i < 50; ++i) {
        Canvas a(100 + i % 3, 40);
        Canvas b(100 + i % 3, 40);
        memory.insert(a.bits);
        memory.insert(b.bits);
    }
    EXPECT_LE(memory.size(), 6u);
}

TEST(PixelBlocks, ContextsAndBitmapsUseTheSamePlacesAgain) {
    std::set<const void*> places;
    for (int i = 0; i < 50; ++i) {
        Canvas canvas(10, 10);
        const GdiRef<DeviceContext> dc = FindContext(canvas.dc);
        places.insert(dc.get());
        places.insert(dc->state.bitmap.get());
    }
    EXPECT_LE(places.size(), 4u);
}

struct DropsLate {
    HBITMAP bitmap = nullptr;
    HDC dc = nullptr;
    ~DropsLate() {
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
};

TEST(PixelBlocks, ABitmapMayBeDroppedWhenItsThreadHasEnded) {
    DeleteDC(CreateCompatibleDC(nullptr));  // enters the stock objects that a fresh context has
    const size_t before = HandleTable::LiveCount();
    std::thread([] {
        // Made before the thread's store, so that it goes after it.
        thread_local DropsLate late;
        late.dc = CreateCompatibleDC(nullptr);
        late.bitmap = CreateBitmap(10, 10, 1, 32, nullptr);
        DeleteObject(CreateBitmap(10, 10, 1, 32, nullptr));
    }).join();
    EXPECT_EQ(HandleTable::LiveCount(), before);
}

}  // namespace
}  // namespace vxgui::gdi
