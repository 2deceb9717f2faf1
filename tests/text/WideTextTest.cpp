#include "vxgui/text/WideText.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/text/WideKernel.h"

namespace vxgui {
namespace {

struct SeenCall {
    std::u16string text;
    int count = -2;
    UINT flags = 0;
};
SeenCall seen;

int ActedDrawTextW(gdi::HDC, char16_t* text, int count, gdi::RECT* rect, UINT flags) {
    seen = {count < 0 ? std::u16string(text) : std::u16string(text, text + count), count, flags};
    rect->right = 77;
    return 33;
}

TEST(WideText, IsBoundToTheNamedLibraries) {
    WideKernel acted(2);
    acted.Add("user32").exports["DrawTextW"] = AsExport(ActedDrawTextW);
    OnFreshThread(acted, [&] {
        gdi::RECT rect{};
        EXPECT_EQ(DrawTextWide(nullptr, "ab", -1, rect, 5), 33);
        EXPECT_EQ(rect.right, 77);
        EXPECT_EQ(seen.text, u"ab");
        EXPECT_EQ(seen.count, -1);
        EXPECT_EQ(seen.flags, 5u);
    });
}

TEST(WideText, WithoutWideFunctionsAsksTheCompanionWhateverTheLibrary) {
    WideKernel acted(1);
    acted.Add("user32").exports["DrawTextW"] = nullptr;
    acted.Add("unicows.dll").exports["DrawTextW"] = AsExport(ActedDrawTextW);
    OnFreshThread(acted, [&] {
        gdi::RECT rect{};
        EXPECT_EQ(DrawTextWide(nullptr, "ab", 1, rect, 0), 33);
        EXPECT_EQ(seen.text, u"a");
        // The library is loaded once.
        ExtTextOutWide(nullptr, 0, 0, 0, rect, "x", 1);
        EXPECT_EQ(std::count(acted.calls.begin(), acted.calls.end(), "load unicows.dll"), 1);
    });
}

TEST(WideText, AMissingFunctionGivesNoughtFromEveryCall) {
    WideKernel acted(2);
    OnFreshThread(acted, [] {
        gdi::RECT rect{1, 2, 3, 4};
        EXPECT_EQ(DrawTextWide(nullptr, "ab", -1, rect, 0), 0);
        EXPECT_EQ(ExtTextOutWide(nullptr, 0, 0, 4, rect, "ab", 2), 0);
        EXPECT_EQ(TabbedTextOutWide(nullptr, 0, 0, u"ab", 0), 0);
        EXPECT_EQ(GetTabbedTextExtentWide(nullptr, u"ab"), 0u);
        EXPECT_EQ(rect.right, 3);
    });
}

TEST(WideText, AFunctionThatAppearsLaterIsFound) {
    WideKernel acted(2);
    OnFreshThread(acted, [&] {
        gdi::RECT rect{};
        EXPECT_EQ(DrawTextWide(nullptr, "ab", -1, rect, 0), 0);
        acted.Add("user32").exports["DrawTextW"] = AsExport(ActedDrawTextW);
        EXPECT_EQ(DrawTextWide(nullptr, "ab", -1, rect, 0), 33);
    });
}

TEST(WideText, ASecondCallLooksNothingUp) {
    WideKernel acted(2);
    acted.Add("user32").exports["DrawTextW"] = AsExport(ActedDrawTextW);
    OnFreshThread(acted, [&] {
        gdi::RECT rect{};
        DrawTextWide(nullptr, "ab", -1, rect, 0);
        const size_t asked = acted.calls.size();
        DrawTextWide(nullptr, "cd", -1, rect, 0);
        EXPECT_EQ(acted.calls.size(), asked);
    });
}

TEST(WideText, AnEmptyTextIsPassedThrough) {
    WideKernel acted(2);
    acted.Add("user32").exports["DrawTextW"] = AsExport(ActedDrawTextW);
    OnFreshThread(acted, [] {
        gdi::RECT rect{};
        EXPECT_EQ(DrawTextWide(nullptr, "", 0, rect, 0), 33);
        EXPECT_EQ(seen.count, 0);
    });
}

TEST(WideText, NeverReadsPastTheText) {
    WideKernel acted(2);
    acted.Add("user32").exports["DrawTextW"] = AsExport(ActedDrawTextW);
    OnFreshThread(acted, [] {
        gdi::RECT rect{};
        DrawTextWide(nullptr, "abc", 99, rect, gdi::DT_MODIFYSTRING);
        EXPECT_EQ(seen.text, u"abc");
    });
}

}  // namespace
}  // namespace vxgui
