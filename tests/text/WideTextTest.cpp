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

/// What came to the calls of one line besides their text.
std::vector<int64_t> arguments;

BOOL ActedExtTextOutW(gdi::HDC, int x, int y, UINT options, const gdi::RECT* rect,
                      const char16_t* text, UINT count, const int* advances) {
    seen = {std::u16string(text, count), static_cast<int>(count), options};
    arguments = {x, y, rect->left, rect->bottom, advances == nullptr};
    return 1;
}
LONG ActedTabbedTextOutW(gdi::HDC, int x, int y, const char16_t* text, int count, int tabCount,
                         const int* tabs, int origin) {
    seen = {std::u16string(text, static_cast<size_t>(count)), count, 0};
    arguments = {x, y, tabCount, tabs == nullptr, origin};
    return 44;
}
DWORD ActedGetTabbedTextExtentW(gdi::HDC, const char16_t* text, int count, int tabCount,
                                const int* tabs) {
    seen = {std::u16string(text, static_cast<size_t>(count)), count, 0};
    arguments = {tabCount, tabs == nullptr};
    return 0x00110022;
}

void ExportAll(WideKernel& acted, const char* user, const char* gdi) {
    ActedModule& first = acted.Add(user);
    first.exports["DrawTextW"] = AsExport(ActedDrawTextW);
    first.exports["TabbedTextOutW"] = AsExport(ActedTabbedTextOutW);
    first.exports["GetTabbedTextExtentW"] = AsExport(ActedGetTabbedTextExtentW);
    ActedModule& second = std::string(gdi) == user ? first : acted.Add(gdi);
    second.exports["ExtTextOutW"] = AsExport(ActedExtTextOutW);
}

void ExpectFourCalls() {
    gdi::RECT rect{1, 2, 3, 4};
    EXPECT_EQ(DrawTextWide(nullptr, "ab", -1, rect, 5), 33);
    EXPECT_EQ(ExtTextOutWide(nullptr, 7, 8, 4, {1, 2, 3, 4}, "abc", 2), 1);
    EXPECT_EQ(seen.text, u"ab");
    EXPECT_EQ(seen.flags, 4u);
    EXPECT_EQ(arguments, (std::vector<int64_t>{7, 8, 1, 4, 1})) << "without advances";
    EXPECT_EQ(TabbedTextOutWide(nullptr, 7, 8, u"a\tb", 9), 44);
    EXPECT_EQ(seen.text, u"a\tb");
    EXPECT_EQ(arguments, (std::vector<int64_t>{7, 8, 0, 1, 9})) << "without tab positions";
    EXPECT_EQ(GetTabbedTextExtentWide(nullptr, u"a\tb"), 0x00110022u);
    EXPECT_EQ(seen.text, u"a\tb");
    EXPECT_EQ(arguments, (std::vector<int64_t>{0, 1}));
}

TEST(WideText, TheFourCallsPassTheirArgumentsOn) {
    WideKernel acted(2);
    ExportAll(acted, "user32", "gdi32");
    OnFreshThread(acted, ExpectFourCalls);
}

TEST(WideText, TheCompanionHasAllFour) {
    WideKernel acted(1);
    ExportAll(acted, "unicows.dll", "unicows.dll");
    OnFreshThread(acted, ExpectFourCalls);
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
