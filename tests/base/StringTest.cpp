#include "vxgui/base/String.h"

#include <gtest/gtest.h>

#include "vxgui/base/Utf.h"

namespace vxgui {
namespace {

TEST(StringTest, IsMadeFromUtf8AndCountsUnits) {
    const String text = "a\xC3\xA9\xE7\xA1\xAE\xF0\x9F\x98\x80";  // a, e acute, a Chinese sign, an emoji
    EXPECT_EQ(text.size(), 5u);
    EXPECT_EQ(text.Utf8(), "a\xC3\xA9\xE7\xA1\xAE\xF0\x9F\x98\x80");
}

TEST(StringTest, MalformedUtf8BecomesReplacementCharacters) {
    EXPECT_EQ(String("\xFF"), String(u"\xFFFD"));
    EXPECT_EQ(String("\xE7\xA1"), String(u"\xFFFD"));
    EXPECT_EQ(String("\xC0\x80"), String(u"\xFFFD\xFFFD"));
    EXPECT_EQ(String("\xED\xA0\x80"), String(u"\xFFFD\xFFFD\xFFFD"));  // a surrogate in UTF-8
    EXPECT_EQ(String("\xE7" "A"), String(u"\xFFFD" u"A"));
}

TEST(StringTest, ALoneSurrogateBecomesAReplacementCharacterInUtf8) {
    EXPECT_EQ(String(std::u16string(1, char16_t(0xD800))).Utf8(), "\xEF\xBF\xBD");
    EXPECT_EQ(String(std::u16string(1, char16_t(0xDC00))).Utf8(), "\xEF\xBF\xBD");
}

TEST(StringTest, PartsAreClampedToTheText) {
    const String text = "skin.tga";
    EXPECT_EQ(text.Right(4), ".tga");
    EXPECT_EQ(text.Right(99), text);
    EXPECT_EQ(text.Left(99), text);
    EXPECT_EQ(text.Mid(5), "tga");
    EXPECT_EQ(text.Mid(99), "");
}

TEST(StringTest, SplitKeepsEmptyParts) {
    const auto parts = String(",a,,").Split(u',');
    ASSERT_EQ(parts.size(), 4u);
    EXPECT_EQ(parts[1], "a");
    EXPECT_EQ(String("").Split(u',').size(), 1u);
}

TEST(StringTest, TrimCutsBlanksAlone) {
    EXPECT_EQ(String("  a b ").Trim(), "a b");
    EXPECT_EQ(String("   ").Trim(), "");
    EXPECT_EQ(String("\ta").Trim(), "\ta");
}

TEST(StringTest, CaseIsFoldedBeyondAscii) {
    EXPECT_TRUE(String("MouseOver").EqualsNoCase("MOUSEOVER"));
    EXPECT_TRUE(String("\xC3\x84").EqualsNoCase("\xC3\xA4"));    // A umlaut
    EXPECT_TRUE(String("\xD0\x96").EqualsNoCase("\xD0\xB6"));    // Cyrillic zhe
    EXPECT_FALSE(String("a").EqualsNoCase("b"));
}

TEST(StringTest, EmbeddedZeroIsKept) {
    const String text(std::u16string(u"a\0b", 3));
    EXPECT_EQ(text.size(), 3u);
    EXPECT_EQ(text.Utf8().size(), 3u);
}

TEST(UtfTest, RecognisesWellFormedText) {
    EXPECT_TRUE(IsUtf8("plain"));
    EXPECT_TRUE(IsUtf8("\xF4\x8F\xBF\xBF"));
    EXPECT_FALSE(IsUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(IsUtf8("\xE0\x80\x80"));
}

TEST(UtfTest, EveryCodePointComesBack) {
    for (char32_t code = 0; code <= 0x10FFFF; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF) continue;
        std::string utf8;
        AppendUtf8(utf8, code);
        ASSERT_EQ(Utf8FromUtf16(Utf16FromUtf8(utf8)), utf8) << static_cast<uint32_t>(code);
    }
}

}  // namespace
}  // namespace vxgui
