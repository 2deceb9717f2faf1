#include "vxgui/base/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace vxgui {
namespace {

struct Case {
    const char* text;
    double leading;
    bool numeric;
};

const Case kCases[] = {
    // Decimal forms.
    {"0", 0, true},
    {"255", 255, true},
    {"-1", -1, true},
    {"+7", 7, true},
    {"3.75", 3.75, true},
    {".5", 0.5, true},
    {"-.5", -0.5, true},
    {"5.", 5, true},
    {"1e3", 1000, true},
    {"1E+3", 1000, true},
    {"25e-1", 2.5, true},
    {"007", 7, true},
    // Blanks around a number, and a number that ends early.
    {"  12  ", 12, true},
    {"\t12\t", 12, true},
    {"12px", 12, false},
    {"12 34", 12, false},
    {"1e", 1, false},
    {"1e+", 1, false},
    {"1.2.3", 1.2, false},
    {"4;remark", 4, false},
    {"0xFF", 0, false},
    // Commas group digits but end the leading number.
    {"3,4", 3, true},
    {"1,234,567.5", 1, true},
    {"-1,5", -1, true},
    {",5", 0, false},
    {"5,", 5, false},
    {"1,,2", 1, false},
    {"1,-2", 1, false},
    {"3, 4", 3, false},
    {"1.5,2", 1.5, false},
    // Hexadecimal: up to four digits are 16 bits wide, more are 32.
    {"&hF", 15, true},
    {"&HfF", 255, true},
    {"&h7FFF", 32767, true},
    {"&hFFFF", -1, true},
    {"&h8000", -32768, true},
    {"&h0FFFF", 65535, true},
    {"&h10000", 65536, true},
    {"&h7FFFFFFF", 2147483647, true},
    {"&h80000000", -2147483648.0, true},
    {"&hFFFFFFFF", -1, true},
    {"&h1FFFFFFFE", -2, true},
    {" &h10 ", 16, true},
    {"&h10g", 16, false},
    {"&hFF,1", 255, false},
    {"-&hF", 0, false},
    {"& h10", 0, false},
    // No number at all.
    {"", 0, false},
    {"   ", 0, false},
    {"-", 0, false},
    {"+-5", 0, false},
    {"- 5", 0, false},
    {".", 0, false},
    {"e5", 0, false},
    {"&", 0, false},
    {"&h", 0, false},
    {"&h;", 0, false},
    {"red", 0, false},
    {"inf", 0, false},
    {"nan", 0, false},
    // What no double holds.
    {"1e999", 0, true},
    {"-1e999", 0, true},
    {"1e-999", 0, true},
};

TEST(LeadingNumberTest, IsTheValueOfTheLongestNumericBeginning) {
    for (const Case& c : kCases)
        EXPECT_EQ(LeadingNumber(c.text), c.leading) << '"' << c.text << '"';
}

TEST(IsNumericTest, AsksForANumberFromEndToEnd) {
    for (const Case& c : kCases) EXPECT_EQ(IsNumeric(c.text), c.numeric) << '"' << c.text << '"';
}

TEST(LeadingNumberTest, AnEmbeddedNulEndsTheNumber) {
    EXPECT_EQ(LeadingNumber(String(std::u16string(u"12\0"
                                                  u"34",
                                                  5))),
              12);
    EXPECT_FALSE(IsNumeric(String(std::u16string(u"12\0", 3))));
}

TEST(LeadingNumberTest, DigitsOfOtherScriptsAreNone) {
    EXPECT_EQ(LeadingNumber(u"\xFF11\xFF12"), 0);
    EXPECT_FALSE(IsNumeric(u"\x0661"));
}

// Units whose low byte is an ASCII digit or sign must not be taken for it.
TEST(LeadingNumberTest, WideUnitsAreNotCutToBytes) {
    EXPECT_EQ(LeadingNumber(u"1\x0132"), 1);
    EXPECT_FALSE(IsNumeric(u"\x0126h10"));
    EXPECT_EQ(LeadingNumber(u"&h1\x0141"), 1);
}

TEST(LeadingNumberTest, AVeryLongNumberIsReadWhole) {
    const String digits = std::string(300, '9');
    EXPECT_NEAR(LeadingNumber(digits) / 1e300, 1, 1e-12);
    EXPECT_TRUE(IsNumeric(digits));
    EXPECT_EQ(LeadingNumber(String("0.") + String(std::string(100000, '0')) + "1"), 0);
}

TEST(LeadingNumberTest, WholeNumbersReadBackExactly) {
    std::mt19937 random(1);
    for (int i = 0; i < 10000; ++i) {
        const auto value = static_cast<int32_t>(random());
        ASSERT_EQ(LeadingNumber(String::FromInt(value)), value);
        ASSERT_TRUE(IsNumeric(String::FromInt(value)));
    }
}

// Any soup of the characters that numbers are made of gives a finite value.
TEST(LeadingNumberTest, IsFiniteForAnyText) {
    const std::string alphabet = "0123456789+-.,eE&hHaF \t";
    std::mt19937 random(2);
    for (int i = 0; i < 50000; ++i) {
        std::string text;
        for (size_t left = random() % 12; left > 0; --left)
            text += alphabet[random() % alphabet.size()];
        ASSERT_TRUE(std::isfinite(LeadingNumber(text))) << text;
        if (!IsNumeric(text)) continue;
        ASSERT_NE(text.find_first_of("0123456789aeEF"), std::string::npos) << text;
    }
}

}  // namespace
}  // namespace vxgui
