#include "vxgui/pixels/Multiversion.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <string>
#include <vector>

namespace vxgui {
namespace {

VXGUI_MULTIVERSION(uint32_t, Mixed, (const uint32_t* words, size_t count, uint32_t factor)) {
    uint32_t sum = 0;
    for (size_t i = 0; i < count; ++i) sum += words[i] * factor ^ words[i] >> 3;
    return sum;
}

InstructionSet gSeen;
struct Watcher : SetDependent {
    Watcher() : SetDependent([](InstructionSet set) { gSeen = set; }) {}
};

std::vector<InstructionSet> SetsOfThisMachine() {
    std::vector<InstructionSet> sets;
    for (auto set : {InstructionSet::Plain, InstructionSet::Avx2, InstructionSet::Avx512}) {
        if (set <= MachineInstructionSet()) sets.push_back(set);
    }
    return sets;
}

/// Goes back to the set that was in use.
class Multiversion : public testing::Test {
protected:
    ~Multiversion() override { UseInstructionSet(before); }
    const InstructionSet before = UsedInstructionSet();
};

TEST_F(Multiversion, EveryVersionGivesTheSame) {
    std::vector<uint32_t> words(1001);
    std::iota(words.begin(), words.end(), 0xFFFFFE00u);
    uint32_t sum = 0;
    for (const uint32_t word : words) sum += word * 77 ^ word >> 3;
    for (const InstructionSet set : SetsOfThisMachine()) {
        UseInstructionSet(set);
        EXPECT_EQ(Mixed(words.data(), words.size(), 77), sum) << static_cast<int>(set);
    }
}

TEST_F(Multiversion, TheSetInUseReachesAllThatDependOnIt) {
    static const Watcher watcher;  // stays in the list
    EXPECT_EQ(gSeen, before);
    for (const InstructionSet set : SetsOfThisMachine()) {
        UseInstructionSet(set);
        EXPECT_EQ(gSeen, set);
        EXPECT_EQ(UsedInstructionSet(), set);
    }
}

TEST_F(Multiversion, UnlessATestWantsAnotherTheMachinesBestIsInUse) {
    const char* const wish = std::getenv("VXGUI_TEST_SET");
    if (!wish) {
        EXPECT_EQ(before, MachineInstructionSet());
    } else {
        EXPECT_EQ(before, std::string(wish) == "avx512" ? InstructionSet::Avx512
                          : std::string(wish) == "avx2" ? InstructionSet::Avx2
                                                        : InstructionSet::Plain);
    }
}

}  // namespace
}  // namespace vxgui
