#include "vxgui/pixels/Scratch.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <thread>

namespace vxgui {
namespace {

TEST(Scratch, ABlockThatWasGivenBackServesAgain) {
    void* const block = scratch::Take(5000);
    scratch::Give(block, 5000);
    void* const again = scratch::Take(6000);
    EXPECT_EQ(again, block);
    void* const other = scratch::Take(6000);
    EXPECT_NE(other, again);
    scratch::Give(again, 6000);
    scratch::Give(other, 6000);
}

TEST(Scratch, BlocksBeginAtLinesOfTheCache) {
    for (const size_t size : {size_t{0}, size_t{1}, size_t{5000}, scratch::kKeptBytes + 1}) {
        void* const block = scratch::Take(size);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % 64, 0u) << size;
        std::memset(block, 0xFF, size);
        scratch::Give(block, size);
    }
}

TEST(Scratch, MoreBlocksThanAreKeptComeAndGo) {
    for (const size_t size : {size_t{100}, scratch::kKeptBytes / 3, scratch::kKeptBytes * 2}) {
        void* blocks[scratch::kKeptBlocks * 2];
        std::set<void*> distinct;
        for (void*& block : blocks) distinct.insert(block = scratch::Take(size));
        EXPECT_EQ(distinct.size(), std::size(blocks));
        for (void* const block : blocks) scratch::Give(block, size);
    }
}

TEST(Scratch, AVectorMayEndAfterItsThreadsBlocks) {
    std::thread([] {
        // Made before the thread's blocks, so that it goes after them.
        thread_local ScratchVector<int>* late = nullptr;
        struct Ends {
            ~Ends() { delete late; }
        };
        thread_local Ends ends;
        static_cast<void>(ends);
        late = new ScratchVector<int>(3000, 7);
        EXPECT_EQ((*late)[2999], 7);
    }).join();
}

}  // namespace
}  // namespace vxgui
