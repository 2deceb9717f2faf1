#include <gtest/gtest.h>

#include "tests/memory/FailingMemory.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/text/AlphaShadow.h"
#include "vxgui/text/ShadowText.h"

namespace vxgui::test {
namespace {

/// The text of the one box that `work` shows when its first allocation fails.
template <class Work>
std::string ReportOf(Work work) {
    static std::vector<std::string> texts;
    texts.clear();
    kernel::SetMessageBoxFunction([](const String& text, const String&, UINT) {
        texts.push_back(text.Utf8());
        return kernel::IDOK;
    });
    {
        const FailingMemory failing(0);
        work();
        EXPECT_TRUE(FailingMemory::Happened());
    }
    kernel::SetMessageBoxFunction(nullptr);
    EXPECT_EQ(texts.size(), 1u);
    return texts.empty() ? "" : texts.front();
}

void ExpectOutOfMemoryIn(const std::string& report, const std::string& procedure) {
    EXPECT_NE(report.find("modDraw::" + procedure + " "), std::string::npos) << report;
    EXPECT_NE(report.find("错误代码:7 0x7"), std::string::npos) << report;
}

// More than a thread keeps, so that the memory is asked for anew.
constexpr int32_t kWidth = 1200, kHeight = 1000;

TEST(ShadowReport, ABuilderThatFailsNamesItselfAndLeavesThePixels) {
    std::vector<uint32_t> pixels(size_t{kWidth} * kHeight, 0x12345678);
    const std::vector<uint32_t> before = pixels;
    const std::string soft = ReportOf([&] {
        MakeAlphaShadowXP(pixels.data(), kWidth, kHeight, 3, 3, {1, 2, 3, 255});
    });
    ExpectOutOfMemoryIn(soft, "Public Sub MakeAlphaShadowXP");
    const std::string forward =
        ReportOf([&] { MakeAlphaShadow2(pixels.data(), kWidth, kHeight, 3, 3, -1); });
    ExpectOutOfMemoryIn(forward, "Public Sub MakeAlphaShadow2");
    EXPECT_EQ(pixels, before);
}

TEST(ShadowReport, ThePainterThatFailsNamesItselfAndAnswersNothing) {
    std::vector<uint32_t> pixels(size_t{100} * 40, 0xFFFFFFFF);
    const std::vector<uint32_t> before = pixels;
    const gdi::HDC dc = gdi::CreateHostDC({pixels.data(), 100, 40, 400, false});
    gdi::RECT rect{5, 5, 95, 35};
    const ShadowTextArguments arguments{"text", -1, 0, 0, 0xFF, 2, 2, 1, 1};
    int32_t height = -1;
    const std::string report = ReportOf([&] { height = DrawShadowTextA(dc, rect, arguments); });
    ExpectOutOfMemoryIn(report, "Public Function DrawShadowTextA");
    EXPECT_EQ(height, 0);
    EXPECT_EQ(pixels, before);
    gdi::DeleteDC(dc);
}

}  // namespace
}  // namespace vxgui::test
