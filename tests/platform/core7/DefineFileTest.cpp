#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "vxgui/platform/core7.h"

namespace vxgui::core7 {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Ref<DefineFile> Load(const String& text) {
    const auto file = CreateDefineFile();
    file->LoadText(text);
    return file;
}

constexpr char kSkin[] =
    "; a skin\n"
    "[Personality]\n"
    "Wallpaper = paper.bmp\n"
    "\n"
    "[Start Button]\n"
    "Image=start.tga\n"
    "FrameCount=5\n"
    "Size = 9.5\n";

TEST(DefineFileTest, AValueIsFoundBySectionAndKey) {
    const auto file = Load(kSkin);
    EXPECT_EQ(file->GetString("Personality", "Wallpaper", ""), "paper.bmp");
    EXPECT_EQ(file->GetString("Start Button", "Image", ""), "start.tga");
    EXPECT_EQ(file->GetInteger("Start Button", "FrameCount", "1"), 5);
    EXPECT_EQ(file->GetNumber("Start Button", "Size", "0"), 9.5);
}

TEST(DefineFileTest, WhatIsAbsentHasTheDefault) {
    const auto file = Load(kSkin);
    EXPECT_EQ(file->GetString("Personality", "Image", "none.bmp"), "none.bmp");
    EXPECT_EQ(file->GetString("Nowhere", "Image", "none.bmp"), "none.bmp");
    EXPECT_EQ(file->GetInteger("Personality", "FrameCount", "-1"), -1);
    EXPECT_EQ(file->GetNumber("Nowhere", "Size", "7.25"), 7.25);
    EXPECT_EQ(file->GetInteger("Nowhere", "GlyphAlign", ""), 0);
}

TEST(DefineFileTest, AnEmptyValueIsThereAndReadsAsZero) {
    const auto file = Load("[a]\nkey=\n");
    EXPECT_EQ(file->GetString("a", "key", "default"), "");
    EXPECT_EQ(file->GetInteger("a", "key", "7"), 0);
}

TEST(DefineFileTest, NamesAreComparedWithoutRegardToCase) {
    const auto file = Load(u"[Taskbar \x00C9\x0416]\nImage \x03A3=x\n");
    EXPECT_EQ(file->GetString(u"TASKBAR \x00E9\x0436", u"iMAGE \x03C3", ""), "x");
}

TEST(DefineFileTest, SectionsAndKeysKeepTheirOrderAndSpelling) {
    const auto file = Load("[Zebra]\nTwo=2\nOne=1\n[apple]\n[Zebra]\nThree=3\n");
    EXPECT_THAT(file->SectionNames(), ElementsAre("Zebra", "apple"));
    EXPECT_THAT(file->KeyNames("ZEBRA"), ElementsAre("Two", "One", "Three"));
    EXPECT_THAT(file->KeyNames("apple"), IsEmpty());
    EXPECT_THAT(file->KeyNames("nowhere"), IsEmpty());
}

TEST(DefineFileTest, SectionsOfOneNameAreOneSection) {
    const auto file = Load("[a]\nx=1\n[b]\nx=2\n[A]\ny=3\n");
    EXPECT_THAT(file->SectionNames(), ElementsAre("a", "b"));
    EXPECT_EQ(file->GetInteger("a", "y", "0"), 3);
    EXPECT_THAT(file->Problems(), IsEmpty());
}

TEST(DefineFileTest, OfKeysOfOneNameTheFirstCountsAndTheOthersAreReported) {
    const auto file = Load("[a]\nx=1\nX=2\n[b]\nx=3\n[a]\nx=4\n");
    EXPECT_EQ(file->GetInteger("a", "x", "0"), 1);
    EXPECT_THAT(file->KeyNames("a"), ElementsAre("x"));
    ASSERT_EQ(file->Problems().size(), 2u);
    EXPECT_EQ(file->Problems()[0].line, 3);
    EXPECT_EQ(file->Problems()[0].text, "the key stands already in line 2, which counts");
    EXPECT_EQ(file->Problems()[1].line, 7);
}

TEST(DefineFileTest, KeysBeforeTheFirstHeaderBelongToTheEmptyName) {
    const auto file = Load("loose=1\n[a]\nx=2\n");
    EXPECT_EQ(file->GetInteger("", "loose", "0"), 1);
    EXPECT_THAT(file->SectionNames(), ElementsAre("a"));
    EXPECT_EQ(file->PositionOf("").line, 0);
    EXPECT_EQ(file->PositionOf("", "loose").line, 1);
}

TEST(DefineFileTest, ASectionMayHaveTheEmptyName) {
    const auto file = Load("loose=1\n[]\nx=2\n");
    EXPECT_THAT(file->SectionNames(), ElementsAre(""));
    EXPECT_THAT(file->KeyNames(""), ElementsAre("loose", "x"));
    EXPECT_EQ(file->PositionOf("").line, 2);
}

TEST(DefineFileTest, AnEmptyTextHasNoSections) {
    for (const char* text : {"", "\n\n", "; nothing\n"}) {
        const auto file = CreateDefineFile();
        EXPECT_TRUE(file->LoadText(text));
        EXPECT_THAT(file->SectionNames(), IsEmpty());
        EXPECT_THAT(file->Problems(), IsEmpty());
    }
}

TEST(DefineFileTest, AnotherTextReplacesTheFirst) {
    const auto file = Load("[a]\nx=1\nbroken\n");
    EXPECT_TRUE(file->LoadText("[b]\n"));
    EXPECT_THAT(file->SectionNames(), ElementsAre("b"));
    EXPECT_EQ(file->GetString("a", "x", "gone"), "gone");
    EXPECT_THAT(file->Problems(), IsEmpty());
}

struct ValueCase {
    const char* line;
    const char* value;
};

TEST(DefineFileTest, BlanksAndOnePairOfQuotesAreTakenOffAValue) {
    const ValueCase cases[] = {
        {"k=v", "v"},
        {"  k  =  v  ", "v"},
        {"\tk\t=\tv w\t", "v w"},
        {"k=\"v\"", "v"},
        {"k = \" v \" ", " v "},
        {"k='v'", "v"},
        {"k=\"\"v\"\"", "\"v\""},
        {"k=\"", "\""},
        {"k=\"\"", ""},
        {"k=\"v'", "\"v'"},
        {"k=v\"w\"", "v\"w\""},
        {"k=a=b", "a=b"},
        {"k==", "="},
        {"k=[a]", "[a]"},
        {"k=255,0,0 ; red", "255,0,0 ; red"},
        {"k=;", ";"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Load(String("[s]\n") + c.line)->GetString("s", "k", "?"), c.value) << c.line;
    }
}

struct IntegerCase {
    const char* value;
    int32_t integer;
};

TEST(DefineFileTest, AnIntegerIsTheLeadingNumberRoundedHalfToEven) {
    const IntegerCase cases[] = {
        {"12", 12},
        {"-7", -7},
        {"2.5", 2},
        {"3.5", 4},
        {"-2.5", -2},
        {"1e3", 1000},
        {"12px", 12},
        {"255 ; white", 255},
        {"3,4", 3},
        {"yes", 0},
        {"&hFF", 255},
        {"&HFFFF", -1},
        {"0xFF", 0},
        {"2147483647", 2147483647},
        {"2147483648", INT32_MIN},
        {"4294967295", -1},
        {"-2147483649", INT32_MAX},
        {"1e30", 0},
        {"1e999", 0},
    };
    for (const auto& c : cases) {
        const auto file = Load(String("[s]\nk=") + c.value);
        EXPECT_EQ(file->GetInteger("s", "k", "99"), c.integer) << c.value;
        EXPECT_EQ(file->GetInteger("s", "absent", c.value), c.integer) << c.value;
    }
}

TEST(DefineFileTest, ALineHasNoLongestLength) {
    const std::string value(1000000, 'v');
    EXPECT_EQ(Load("[s]\nk=" + value)->GetString("s", "k", ""), String(value));
}

TEST(DefineFileTest, LinesEndAsOnAnySystem) {
    const auto file = Load("[a]\r\nx=1\ry=2\n\r\nz=3");
    EXPECT_THAT(file->KeyNames("a"), ElementsAre("x", "y", "z"));
    EXPECT_EQ(file->GetString("a", "x", ""), "1");
    EXPECT_EQ(file->PositionOf("a", "y").line, 3);
    EXPECT_EQ(file->PositionOf("a", "z").line, 5);
}

TEST(DefineFileTest, PositionsCountLinesAndUnitsFromOne) {
    const auto file = Load(u"; \x786E\n  [ Start ]\n\t key = 1\n\x786E\xD83D\xDE00=2\n[start]\n");
    EXPECT_EQ(file->PositionOf("start").line, 2);
    EXPECT_EQ(file->PositionOf("start").column, 5);
    EXPECT_EQ(file->PositionOf("Start", "KEY").line, 3);
    EXPECT_EQ(file->PositionOf("Start", "KEY").column, 3);
    EXPECT_EQ(file->PositionOf("Start", u"\x786E\xD83D\xDE00").column, 1);
    EXPECT_EQ(file->PositionOf("Start", "other").line, 0);
    EXPECT_EQ(file->PositionOf("other", "key").line, 0);
    EXPECT_EQ(file->PositionOf("other").line, 0);
}

TEST(DefineFileTest, WhatCannotBeReadIsReportedWithItsPlace) {
    using namespace std::string_view_literals;
    const struct {
        std::u16string_view text;
        int32_t line, column;
        const char* problem;
    } cases[] = {
        {u"[a]\n  nonsense\n[z]\nk=1"sv, 2, 3,
         "neither a section, a key with a value nor a comment"},
        {u"[a]\n\t= 5\n[z]\nk=1"sv, 2, 2, "a value without a key"},
        {u"[a]\n\n [b \n[z]\nk=1"sv, 3, 2, "the section header has no closing bracket"},
        {u"[a] x\n[z]\nk=1"sv, 1, 5, "text behind a section header is ignored"},
        {u"[a]\nx=1\0 2\n[z]\nk=1"sv, 2, 4, "binary data; the line is ignored"},
        {u"[a]\n;\0\n[z]\nk=1"sv, 2, 2, "binary data; the line is ignored"},
    };
    for (const auto& c : cases) {
        const auto file = CreateDefineFile();
        EXPECT_TRUE(file->LoadText(c.text)) << c.problem;
        ASSERT_EQ(file->Problems().size(), 1u) << c.problem;
        EXPECT_EQ(file->Problems()[0].text, c.problem);
        EXPECT_EQ(file->Problems()[0].line, c.line) << c.problem;
        EXPECT_EQ(file->Problems()[0].column, c.column) << c.problem;
        EXPECT_EQ(file->GetInteger("z", "k", "0"), 1) << "reading must go on: " << c.problem;
    }
}

TEST(DefineFileTest, AHeaderMayBeFollowedByAComment) {
    const auto file = Load("[a] ; the first\nx=1\n[b];\n");
    EXPECT_THAT(file->Problems(), IsEmpty());
    EXPECT_THAT(file->SectionNames(), ElementsAre("a", "b"));
}

TEST(DefineFileTest, KeysBehindAnUnterminatedHeaderStayOutOfTheSectionBefore) {
    const auto file = Load("[a]\nx=1\n[b\nx=2\n");
    EXPECT_EQ(file->GetInteger("a", "x", "0"), 1);
    EXPECT_EQ(file->GetInteger("b", "x", "0"), 2);
}

TEST(DefineFileTest, ProblemsAreListedUpToABound) {
    std::string text;
    for (int i = 0; i < 5000; ++i) text += "?\n";
    const auto file = Load(text);
    ASSERT_EQ(file->Problems().size(), 1001u);
    EXPECT_EQ(file->Problems().back().text, "there are more problems, which are not listed");
    EXPECT_EQ(file->Problems().back().line, 1001);
}

TEST(DescribeProblemTest, NamesWhatIsKnown) {
    EXPECT_EQ(DescribeProblem("a.uis", {3, 7, "oops"}), "a.uis:3:7: oops");
    EXPECT_EQ(DescribeProblem("", {3, 7, "oops"}), "3:7: oops");
    EXPECT_EQ(DescribeProblem("a.uis", {0, 0, "oops"}), "a.uis: oops");
    EXPECT_EQ(DescribeProblem("", {0, 0, "oops"}), "oops");
}

// Sets other limits for the length of a test.
class DefineLimitsTest : public ::testing::Test {
protected:
    ~DefineLimitsTest() override { ApartmentDefineLimits() = DefineLimits(); }
};

TEST_F(DefineLimitsTest, AreFourMebibytesAndAHundredThousandKeysAtFirst) {
    EXPECT_EQ(ApartmentDefineLimits().bytes, 4194304u);
    EXPECT_EQ(ApartmentDefineLimits().keys, 100000u);
}

TEST_F(DefineLimitsTest, ATextBeyondTheLengthIsRefused) {
    ApartmentDefineLimits().bytes = 8;
    const auto file = CreateDefineFile();
    EXPECT_TRUE(file->LoadText("[a]\nx=12"));
    EXPECT_FALSE(file->LoadText("[a]\nx=123"));
    EXPECT_THAT(file->SectionNames(), IsEmpty());
    ASSERT_EQ(file->Problems().size(), 1u);
    EXPECT_EQ(file->Problems()[0].line, 0);
    EXPECT_EQ(file->Problems()[0].text, "the text is longer than the limit allows");
}

TEST_F(DefineLimitsTest, TooManyKeysAreRefusedWithThePlaceOfTheFirstTooMany) {
    ApartmentDefineLimits().keys = 3;
    const auto file = CreateDefineFile();
    EXPECT_TRUE(file->LoadText("[a]\nx=1\ny=2\n"));
    EXPECT_FALSE(file->LoadText("[a]\nx=1\ny=2\n z=3\nw=4\n"));
    EXPECT_THAT(file->SectionNames(), IsEmpty());
    EXPECT_EQ(file->GetString("a", "x", "gone"), "gone");
    ASSERT_EQ(file->Problems().size(), 1u);
    EXPECT_EQ(file->Problems()[0].line, 4);
    EXPECT_EQ(file->Problems()[0].column, 2);
}

TEST_F(DefineLimitsTest, AHundredThousandKeysAreRead) {
    std::string text = "[a]\n";
    for (int i = 1; i < 100000; ++i)
        text += "key" + std::to_string(i) + "=" + std::to_string(i) + "\n";
    const auto file = CreateDefineFile();
    EXPECT_TRUE(file->LoadText(text));
    EXPECT_EQ(file->GetInteger("a", "key99999", "0"), 99999);
    EXPECT_FALSE(file->LoadText(text + "one=more"));
}

// The lines of a text, found without the reader under test; "\r\n" does not occur in it.
std::vector<String> PlainLines(const String& text) { return text.Split(u'\n'); }

// Any soup of meaningful characters can be read, and every position points at its name.
TEST(DefineFileTest, PositionsPointAtTheNamesOfAnyText) {
    const std::u16string alphabet = u"ab[]=;\"' \t\n\n\x786E";
    std::mt19937 random(1);
    for (int round = 0; round < 5000; ++round) {
        std::u16string soup;
        for (size_t left = random() % 60; left > 0; --left)
            soup += alphabet[random() % alphabet.size()];
        const auto file = Load(soup);
        const auto lines = PlainLines(soup);
        const auto at = [&](DefinePosition position, size_t size) {
            return lines.at(static_cast<size_t>(position.line - 1))
                .Mid(static_cast<size_t>(position.column - 1), size);
        };
        for (const String& section : file->SectionNames()) {
            ASSERT_EQ(at(file->PositionOf(section), section.size()), section);
            for (const String& key : file->KeyNames(section)) {
                ASSERT_EQ(at(file->PositionOf(section, key), key.size()), key);
            }
        }
        for (const DefineProblem& problem : file->Problems()) {
            ASSERT_EQ(at({problem.line, problem.column}, 1).size(), 1u);
        }
    }
}

}  // namespace
}  // namespace vxgui::core7
