#include <gtest/gtest.h>

#include <thread>

#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {
namespace {

/// Puts a code page in force for one test.
class WithPage {
public:
    explicit WithPage(const char* name) : before_(AnsiCodePage()) { SetAnsiCodePage(name); }
    ~WithPage() { SetAnsiCodePage(before_); }

private:
    std::string before_;
};

TEST(AnsiCodePage, IsWesternEuropeanAtFirst) {
    std::thread([] {
        EXPECT_EQ(AnsiCodePage(), "CP1252");
        EXPECT_EQ(AnsiFromText("né €"), "n\xE9 \x80");
        EXPECT_EQ(TextFromAnsi("n\xE9 \x80"), String("né €"));
    }).join();
}

TEST(AnsiCodePage, BelongsToItsApartment) {
    const WithPage page("GBK");
    std::thread([] { EXPECT_EQ(AnsiCodePage(), "CP1252"); }).join();
    EXPECT_EQ(AnsiCodePage(), "GBK");
}

TEST(AnsiCodePage, ConvertsDoubleBytes) {
    const WithPage page("GBK");
    EXPECT_EQ(AnsiFromText("确 定"), "\xC8\xB7 \xB6\xA8");
    EXPECT_EQ(TextFromAnsi("\xC8\xB7 \xB6\xA8"), String("确 定"));
}

TEST(AnsiCodePage, RefusesAnUnknownNameAndKeepsTheOld) {
    const WithPage page("GBK");
    EXPECT_FALSE(SetAnsiCodePage("no such page"));
    EXPECT_EQ(AnsiCodePage(), "GBK");
    EXPECT_EQ(AnsiFromText("定"), "\xB6\xA8");
}

TEST(AnsiCodePage, WritesAQuestionMarkForEachCharacterThatItLacks) {
    const WithPage page("CP1252");
    EXPECT_EQ(AnsiFromText("a确定b"), "a??b");
    EXPECT_EQ(AnsiFromText("😀"), "?");  // two units, one character
    EXPECT_EQ(AnsiFromText(String(u"x\xD800"
                                  u"y\xDC00")),
              "x?y?");
}

TEST(AnsiCodePage, ReadsAnUnknownByteAsTheReplacementCharacter) {
    const WithPage page("CP1252");
    EXPECT_EQ(TextFromAnsi("a\x81"
                           "b"),
              String(u"a\uFFFDb"));
}

TEST(AnsiCodePage, ReadsACutDoubleByteAsTheReplacementCharacter) {
    const WithPage page("GBK");
    EXPECT_EQ(TextFromAnsi("\xB6\xA8\xB6"), String(u"定\uFFFD"));
}

TEST(AnsiCodePage, KeepsZeroesAndLongTexts) {
    const WithPage page("GBK");
    std::string bytes("a\0b", 3);
    for (int i = 0; i < 3000; ++i) bytes += "\xB6\xA8";
    const String text = TextFromAnsi(bytes);
    EXPECT_EQ(text.size(), 3003u);
    EXPECT_EQ(text[1], u'\0');
    EXPECT_EQ(AnsiFromText(text), bytes);
}

TEST(AnsiCodePage, EndsAShiftedCodePageInItsFirstState) {
    const WithPage page("ISO-2022-JP");
    EXPECT_EQ(AnsiFromText("日"), "\x1B$BF|\x1B(B");
    EXPECT_EQ(AnsiFromText("a"), "a");
}

TEST(AnsiCodePage, ConvertsAnEmptyTextToAnEmptyOne) {
    EXPECT_EQ(AnsiFromText(String()), "");
    EXPECT_EQ(TextFromAnsi(""), String());
}

TEST(TextFromCodePage, ReadsAnyPageThatIsKnown) {
    String text("old");
    EXPECT_TRUE(TextFromCodePage("\xA5\xFD", "BIG5", &text));
    EXPECT_EQ(text, String("先"));
}

TEST(TextFromCodePage, LeavesTheTextAloneForAnUnknownPage) {
    String text("old");
    EXPECT_FALSE(TextFromCodePage("x", "no such page", &text));
    EXPECT_EQ(text, String("old"));
}

}  // namespace
}  // namespace vxgui::kernel
