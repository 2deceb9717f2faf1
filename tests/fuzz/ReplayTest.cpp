#include "generated/Places.h"
#include "tests/fuzz/Replay.h"

#include <gtest/gtest.h>

#include "vxgui/platform/codecs.h"
#include "vxgui/platform/core7.h"

namespace vxgui::fuzz {
namespace {

const std::string kRoot = VXGUI_SOURCE_DIR;

/// Where a fuzzer starts: its own files, or the tests' pictures of all formats.
std::string SeedsOf(const std::string& name) {
    const std::string own = kRoot + "/fuzz/seeds/" + name;
    return std::filesystem::exists(own) ? own : kRoot + "/tests/data/images";
}

// Each fuzzer runs over the files that it starts from and over all that ever broke it.
class ReplayTest : public testing::TestWithParam<std::string> {
protected:
    ReplayTest() { SetSmallLimits(); }
    ~ReplayTest() override {
        codecs::ApartmentDecodeLimits() = {};
        core7::ApartmentDefineLimits() = {};
    }
};

TEST_P(ReplayTest, SeedsAndFindingsAreTakenOrRefused) {
    EXPECT_GT(Replay(GetParam(), SeedsOf(GetParam())), 0u);
    Replay(GetParam(), kRoot + "/tests/data/fuzz/" + GetParam());
}

INSTANTIATE_TEST_SUITE_P(Fuzzers, ReplayTest, testing::ValuesIn(FuzzerNames()),
                         [](const auto& info) { return info.param; });

TEST(Fuzzers, AreAllInTheList) { EXPECT_EQ(FuzzerNames().size(), 18u); }

}  // namespace
}  // namespace vxgui::fuzz
