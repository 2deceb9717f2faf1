#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

#include "vxgui/platform/known_memory.h"
#include "vxgui/platform/memory.h"

namespace vxgui::kernel {
namespace {

/// Three pages of memory, the middle one with a protection of the test's own.
class ThreePages {
public:
    explicit ThreePages(int protection)
        : size_(static_cast<size_t>(sysconf(_SC_PAGESIZE))),
          begin_(static_cast<char*>(mmap(nullptr, 3 * size_, PROT_READ | PROT_WRITE,
                                         MAP_PRIVATE | MAP_ANONYMOUS, -1, 0))) {
        mprotect(begin_ + size_, size_, protection);
    }
    ~ThreePages() { munmap(begin_, 3 * size_); }

    size_t Size() const { return size_; }
    char* begin() const { return begin_; }
    char* Middle() const { return begin_ + size_; }
    char* Last() const { return begin_ + 2 * size_; }

private:
    size_t size_;
    char* begin_;
};

TEST(MemoryProbe, OrdinaryMemoryIsThere) {
    char block[100] = "unchanged";
    EXPECT_FALSE(IsBadReadPtr(block, sizeof block));
    EXPECT_FALSE(IsBadWritePtr(block, sizeof block));
    EXPECT_STREQ(block, "unchanged");
}

TEST(MemoryProbe, NothingIsAlwaysThere) {
    EXPECT_FALSE(IsBadReadPtr(nullptr, 0));
    EXPECT_FALSE(IsBadWritePtr(nullptr, 0));
}

TEST(MemoryProbe, NullAndAbsurdSizesAreNot) {
    char block[4];
    EXPECT_TRUE(IsBadReadPtr(nullptr, 1));
    EXPECT_TRUE(IsBadReadPtr(block, SIZE_MAX));
    EXPECT_TRUE(IsBadReadPtr(block, SIZE_MAX / 2));
    EXPECT_TRUE(IsBadReadPtr(reinterpret_cast<void*>(UINTPTR_MAX - 1), 1));
    EXPECT_TRUE(IsBadWritePtr(reinterpret_cast<void*>(16), 4));
}

TEST(MemoryProbe, BlockThatRunsIntoAForbiddenPageIsBadFromItsFirstByteInIt) {
    const ThreePages pages(PROT_NONE);
    EXPECT_FALSE(IsBadReadPtr(pages.begin(), pages.Size()));
    EXPECT_TRUE(IsBadReadPtr(pages.begin(), pages.Size() + 1));
    EXPECT_TRUE(IsBadReadPtr(pages.Last() - 1, 2));
    EXPECT_FALSE(IsBadReadPtr(pages.Last(), pages.Size()));
    EXPECT_TRUE(IsBadReadPtr(pages.begin(), 3 * pages.Size()));
}

TEST(MemoryProbe, ReadOnlyMemoryCanBeReadAndNotWritten) {
    const ThreePages pages(PROT_READ);
    EXPECT_FALSE(IsBadReadPtr(pages.begin(), 3 * pages.Size()));
    EXPECT_TRUE(IsBadWritePtr(pages.begin(), 3 * pages.Size()));
    EXPECT_FALSE(IsBadWritePtr(pages.begin(), pages.Size()));
}

TEST(MemoryProbe, UnmappedMemoryIsBad) {
    const ThreePages pages(PROT_READ);
    munmap(pages.Middle(), pages.Size());
    EXPECT_TRUE(IsBadReadPtr(pages.Middle(), 1));
    EXPECT_TRUE(IsBadReadPtr(pages.begin(), 3 * pages.Size()));
}

TEST(MemoryProbe, WhatTheThreadKnowsToBeThereIsNotAskedFor) {
    auto* const nowhere = reinterpret_cast<char*>(uintptr_t{4096});
    {
        const KnownMemory outer(nowhere, 100);
        const KnownMemory inner(nowhere + 200, 10);
        EXPECT_FALSE(IsBadReadPtr(nowhere, 100));
        EXPECT_FALSE(IsBadWritePtr(nowhere + 200, 10));
        EXPECT_TRUE(IsBadReadPtr(nowhere, 101));
        EXPECT_TRUE(IsBadReadPtr(nowhere - 1, 2));
        EXPECT_TRUE(IsBadReadPtr(nowhere + 199, 2));
        EXPECT_TRUE(IsBadReadPtr(nowhere + 50, SIZE_MAX / 4));
    }
    EXPECT_TRUE(IsBadReadPtr(nowhere, 100));
}

}  // namespace
}  // namespace vxgui::kernel
