#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "tests/support/GdiplusSession.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::gdiplus {
namespace {

/// A flat function, called with null handles and addresses and with zeros.
struct FlatFunction {
    std::string name;
    std::function<Status()> call;
};

template <class... Arguments>
FlatFunction WithNothing(const char* name, Status (*function)(Arguments...)) {
    return {name, [function] { return function(Arguments()...); }};
}

// What answers no status, the shut-down and the memory calls, has nothing to refuse.
template <class Result, class... Arguments>
FlatFunction WithNothing(const char* name, Result (*)(Arguments...)) {
    return {name, [] { return InvalidParameter; }};
}

std::vector<FlatFunction> EveryFunction() {
#define VXGUI_FLAT(Name) WithNothing(#Name, Name),
    return {VXGUI_GDIPLUS_FUNCTIONS(VXGUI_FLAT)};
#undef VXGUI_FLAT
}

void PrintTo(const FlatFunction& function, std::ostream* out) { *out << function.name; }

class WrongArguments : public testing::TestWithParam<FlatFunction> {};

TEST_P(WrongArguments, AreRefused) {
    const test::GdiplusSession session;
    const Status status = GetParam().call();
    EXPECT_TRUE(status == InvalidParameter || status == NotImplemented) << status;
}

INSTANTIATE_TEST_SUITE_P(Nothing, WrongArguments, testing::ValuesIn(EveryFunction()),
                         [](const auto& info) { return info.param.name; });

TEST(GdiplusFunctions, AreEachInTheModuleOnce) {
    std::vector<std::string> names;
    for (const kernel::Export* at = kGdiplusExports; at->name; ++at) names.push_back(at->name);
    EXPECT_EQ(names.size(), EveryFunction().size());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

}  // namespace
}  // namespace vxgui::gdiplus
