#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <exception>
#include <numeric>
#include <vector>

#include "tests/memory/FailingMemory.h"
#include "vxgui/base/Error.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::test {

/// The allocations of `work` that are to fail: one from each place in the code, or all of them
/// when the environment has VXGUI_EVERY_ALLOCATION, which takes minutes to hours.
template <class Work>
std::vector<size_t> AllocationsOf(Work& work) {
    const CountingMemory counting;
    work();
    std::vector<size_t> numbers = CountingMemory::FirstOfEachPlace();
    if (!std::getenv("VXGUI_EVERY_ALLOCATION")) return numbers;
    numbers.resize(CountingMemory::Count());
    std::iota(numbers.begin(), numbers.end(), size_t{0});
    return numbers;
}

/// Runs `work`, which may raise errors of the library and nothing else.
template <class Work>
bool EndsWell(Work& work) {
    try {
        work();
    } catch (const Error&) {
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

/// Runs `work` with a failing allocation, for one after the other of those that it makes: each run
/// ends, raises nothing but errors of the library, and leaves no memory and no handle behind.
/// `check` looks after each whether all can be done again, and leaves everything as it was.
template <class Work, class Check>
void FailEverywhere(Work work, Check check) {
    // Some failures are told in a box, which nobody is here to read.
    kernel::SetMessageBoxFunction([](const String&, const String&, UINT) { return kernel::IDOK; });
    for (int warm = 0; warm < 3; ++warm) work();
    const std::vector<size_t> numbers = AllocationsOf(work);
    ASSERT_GT(numbers.size(), 3u);
    const int64_t blocks = LiveBlocks();
    const size_t handles = gdi::HandleTable::LiveCount();
    size_t happened = 0;
    for (const bool onwards : {false, true}) {
        for (const size_t n : numbers) {
            const auto where = [&] {
                return "allocation " + std::to_string(n) + (onwards ? " and on" : "");
            };
            bool endedWell = false;
            {
                const FailingMemory failing(n, onwards);
                endedWell = EndsWell(work);
            }
            happened += FailingMemory::Happened();
            check();
            EXPECT_LE(LiveBlocks(), blocks) << "memory is left behind by " << where();
            EXPECT_LE(gdi::HandleTable::LiveCount(), handles) << "handles are, by " << where();
            EXPECT_TRUE(endedWell) << "no error of the library, at " << where();
            if (testing::Test::HasFailure()) FAIL() << where();
        }
    }
    kernel::SetMessageBoxFunction(nullptr);
    EXPECT_GE(happened, numbers.size());
    testing::Test::RecordProperty("allocations", std::to_string(numbers.size()));
}

}  // namespace vxgui::test
