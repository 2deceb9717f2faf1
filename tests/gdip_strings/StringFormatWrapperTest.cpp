#include <gtest/gtest.h>

#include <functional>

#include "tests/support/Errors.h"
#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui {
namespace {

class StringFormatWrapper : public testing::Test {
protected:
    test::GdiplusSession session_;
};

TEST_F(StringFormatWrapper, ANewOneHoldsACopyOfTheDefault) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    gdiplus::GpStringFormat* shared = nullptr;
    gdiplus::GdipStringFormatGetGenericDefault(&shared);
    EXPECT_NE(format->Handle(), nullptr);
    EXPECT_NE(format->Handle(), shared);
    EXPECT_EQ(format->FormatFlags(), 0);
    EXPECT_EQ(format->Trimming(), gdiplus::StringTrimmingCharacter);
    EXPECT_TRUE(format->SetFormatFlags(5));
    EXPECT_EQ(New<GpStringFormat>()->FormatFlags(), 0);
}

TEST_F(StringFormatWrapper, CopiesTheTypographicFormat) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    ASSERT_TRUE(format->GetGenericTypographic());
    EXPECT_EQ(format->FormatFlags(), 0x6004);
    EXPECT_EQ(format->Trimming(), gdiplus::StringTrimmingNone);
    ASSERT_TRUE(format->GetGenericDefault());
    EXPECT_EQ(format->FormatFlags(), 0);
}

TEST_F(StringFormatWrapper, PropertiesKeepTheirValues) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    format->Alignment(gdiplus::StringAlignmentFar);
    format->LineAlignment(gdiplus::StringAlignmentCenter);
    format->FormatFlags(0x1000);
    format->Trimming(gdiplus::StringTrimmingEllipsisPath);
    format->HotkeyPrefix(2);
    format->DigitSubstitution(gdiplus::StringDigitSubstituteNational);
    EXPECT_EQ(format->Alignment(), gdiplus::StringAlignmentFar);
    EXPECT_EQ(format->GetLineAlignment(), gdiplus::StringAlignmentCenter);
    EXPECT_EQ(format->FormatFlags(), 0x1000);
    EXPECT_EQ(format->Trimming(), gdiplus::StringTrimmingEllipsisPath);
    EXPECT_EQ(format->HotkeyPrefix(), 2);
    EXPECT_EQ(format->DigitSubstitution(), gdiplus::StringDigitSubstituteNational);
}

TEST_F(StringFormatWrapper, ReadingTheLineAlignmentAnswers0AndSetsTheAlignment) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    format->LineAlignment(gdiplus::StringAlignmentFar);
    EXPECT_EQ(format->LineAlignment(), 0);
    EXPECT_EQ(format->Alignment(), gdiplus::StringAlignmentFar);
    EXPECT_EQ(format->GetLineAlignment(), gdiplus::StringAlignmentFar);
}

TEST_F(StringFormatWrapper, SetterPropertiesRaiseError5) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    format->Dispose();
    const std::function<void()> setters[] = {
        [&] { format->Alignment(gdiplus::StringAlignmentFar); },
        [&] { format->LineAlignment(gdiplus::StringAlignmentFar); },
        [&] { format->FormatFlags(1); },
        [&] { format->Trimming(gdiplus::StringTrimmingNone); },
        [&] { format->HotkeyPrefix(1); },
        [&] { format->DigitSubstitution(gdiplus::StringDigitSubstituteNone); },
        [&] { format->LineAlignment(); },
    };
    for (const auto& set : setters) EXPECT_EQ(test::RaisedBy(set), 5);
    EXPECT_FALSE(format->SetAlignment(gdiplus::StringAlignmentFar));
    EXPECT_EQ(format->Status, gdiplus::InvalidParameter);
    EXPECT_EQ(format->GetAlignment(), 0);
}

TEST_F(StringFormatWrapper, PassesTabStopsDigitsAndRanges) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    const float stops[] = {4, 5};
    float first = 0, got[2] = {};
    ASSERT_TRUE(format->SetTabStops(2, 3, stops));
    EXPECT_EQ(format->GetTabStopCount(), 2);
    ASSERT_TRUE(format->GetTabStops(2, &first, got));
    EXPECT_EQ(first, 3);
    EXPECT_EQ(got[1], 5);
    gdiplus::LANGID language = 0;
    ASSERT_TRUE(format->SetDigitSubstitution(gdiplus::StringDigitSubstituteTraditional, 0x41E));
    EXPECT_EQ(format->GetDigitSubstitution(&language), gdiplus::StringDigitSubstituteTraditional);
    EXPECT_EQ(language, 0x41E);
    const gdiplus::CharacterRange ranges[] = {{0, 1}, {2, 3}};
    ASSERT_TRUE(format->SetMeasurableCharacterRanges(2, ranges));
    EXPECT_EQ(format->GetMeasurableCharacterRangeCount(), 2);
}

TEST_F(StringFormatWrapper, CreateAndCloneMakeFormatsOfTheirOwn) {
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    ASSERT_TRUE(format->Create(7));
    const Ref<GpStringFormat> clone = format->Clone();
    format->FormatFlags(0);
    EXPECT_EQ(clone->FormatFlags(), 7);
    format->Dispose();
    EXPECT_EQ(format->Clone(), nullptr);
}

struct DTRow {
    uint32_t flags;
    int32_t expected;
};

TEST_F(StringFormatWrapper, FromDTFlagsSetsTheAlignments) {
    const DTRow rows[] = {
        {0, 0}, {gdi::DT_CENTER, 1}, {gdi::DT_RIGHT, 2}, {gdi::DT_CENTER | gdi::DT_RIGHT, 1}};
    const DTRow lines[] = {
        {0, 0}, {gdi::DT_VCENTER, 1}, {gdi::DT_BOTTOM, 2}, {gdi::DT_VCENTER | gdi::DT_BOTTOM, 1}};
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    for (const DTRow& row : rows) {
        ASSERT_EQ(format->FromDTFlags(row.flags), gdiplus::Ok);
        EXPECT_EQ(format->GetAlignment(), row.expected) << row.flags;
    }
    for (const DTRow& row : lines) {
        ASSERT_EQ(format->FromDTFlags(row.flags), gdiplus::Ok);
        EXPECT_EQ(format->GetLineAlignment(), row.expected) << row.flags;
    }
}

TEST_F(StringFormatWrapper, FromDTFlagsSetsTheTrimming) {
    const DTRow rows[] = {{0, 0},
                          {gdi::DT_WORDBREAK, 2},
                          {gdi::DT_PATH_ELLIPSIS | gdi::DT_WORDBREAK, 5},
                          {gdi::DT_WORD_ELLIPSIS | gdi::DT_PATH_ELLIPSIS, 4},
                          {gdi::DT_END_ELLIPSIS | gdi::DT_WORD_ELLIPSIS, 3},
                          {gdi::DT_END_ELLIPSIS | gdi::DT_WORDBREAK, 3}};
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    for (const DTRow& row : rows) {
        ASSERT_EQ(format->FromDTFlags(row.flags), gdiplus::Ok);
        EXPECT_EQ(format->GetTrimming(), row.expected) << row.flags;
    }
}

TEST_F(StringFormatWrapper, FromDTFlagsSetsThePrefix) {
    const DTRow rows[] = {{0, 1},
                          {gdi::DT_HIDEPREFIX, 2},
                          {gdi::DT_NOPREFIX, 0},
                          {gdi::DT_NOPREFIX | gdi::DT_HIDEPREFIX, 0}};
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    for (const DTRow& row : rows) {
        ASSERT_EQ(format->FromDTFlags(row.flags), gdiplus::Ok);
        EXPECT_EQ(format->GetHotkeyPrefix(), row.expected) << row.flags;
    }
}

TEST_F(StringFormatWrapper, FromDTFlagsAddsFormatFlags) {
    const DTRow rows[] = {{0, 0},
                          {gdi::DT_SINGLELINE, 0x1000},
                          {gdi::DT_EDITCONTROL, 0x20},
                          {gdi::DT_NOCLIP, 0x4000},
                          {gdi::DT_RTLREADING, 1},
                          {gdi::DT_SINGLELINE | gdi::DT_NOCLIP | gdi::DT_RTLREADING, 0x5001}};
    const Ref<GpStringFormat> format = New<GpStringFormat>();
    for (const DTRow& row : rows) {
        ASSERT_EQ(format->FromDTFlags(row.flags, false, 0x800), gdiplus::Ok);
        EXPECT_EQ(format->GetFormatFlags(), 0x800 | row.expected) << row.flags;
        ASSERT_EQ(format->FromDTFlags(row.flags, true), gdiplus::Ok);
        EXPECT_EQ(format->GetFormatFlags(), row.expected) << "in place of the typographic ones";
    }
}

}  // namespace
}  // namespace vxgui
