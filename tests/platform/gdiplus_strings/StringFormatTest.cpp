#include "tests/platform/gdiplus_strings/StringFixture.h"

namespace vxgui::gdiplus {
namespace {

class StringFormats : public StringFixture {
protected:
    GpStringFormat* Make(INT flags = 0, LANGID language = 0) {
        GpStringFormat* format = nullptr;
        EXPECT_EQ(GdipCreateStringFormat(flags, language, &format), Ok);
        return Keep(format);
    }
};

// One setting with its getter and setter; values from 0 to `last` are good.
template <class Value, class Result>
void ExpectChoice(GpStringFormat* format, GpStringFormat* shared,
                  GpStatus (*set)(GpStringFormat*, Value),
                  GpStatus (*get)(const GpStringFormat*, Result*), int first, int last) {
    Result value{};
    EXPECT_EQ(get(format, &value), Ok);
    EXPECT_EQ(value, first);
    for (int i = 0; i <= last; ++i) {
        EXPECT_EQ(set(format, static_cast<Value>(i)), Ok);
        EXPECT_EQ(get(format, &value), Ok);
        EXPECT_EQ(value, i);
    }
    EXPECT_EQ(set(format, static_cast<Value>(last + 1)), InvalidParameter);
    EXPECT_EQ(set(format, static_cast<Value>(-1)), InvalidParameter);
    EXPECT_EQ(get(format, &value), Ok);
    EXPECT_EQ(value, last) << "what is refused changes nothing";
    EXPECT_EQ(set(shared, static_cast<Value>(0)), AccessDenied);
    EXPECT_EQ(get(format, nullptr), InvalidParameter);
    for (GpStringFormat* wrong : WrongHandles<GpStringFormat>(nullptr)) {
        EXPECT_EQ(get(wrong, &value), InvalidParameter);
        EXPECT_EQ(set(wrong, static_cast<Value>(0)), InvalidParameter);
    }
}

TEST_F(StringFormats, KeepTheirChoices) {
    GpStringFormat *format = Make(), *shared = nullptr;
    ASSERT_EQ(GdipStringFormatGetGenericDefault(&shared), Ok);
    ExpectChoice(format, shared, GdipSetStringFormatAlign, GdipGetStringFormatAlign, 0, 2);
    ExpectChoice(format, shared, GdipSetStringFormatLineAlign, GdipGetStringFormatLineAlign, 0, 2);
    ExpectChoice(format, shared, GdipSetStringFormatTrimming, GdipGetStringFormatTrimming, 1, 5);
    ExpectChoice(format, shared, GdipSetStringFormatHotkeyPrefix, GdipGetStringFormatHotkeyPrefix,
                 0, 2);
}

TEST_F(StringFormats, KeepAnyFlags) {
    GpStringFormat* format = Make(0x7FFF, 0x409);
    INT flags = 0;
    EXPECT_EQ(GdipGetStringFormatFlags(format, &flags), Ok);
    EXPECT_EQ(flags, 0x7FFF);
    EXPECT_EQ(GdipSetStringFormatFlags(format, 5), Ok);
    EXPECT_EQ(GdipGetStringFormatFlags(format, &flags), Ok);
    EXPECT_EQ(flags, 5);
    EXPECT_EQ(GdipGetStringFormatFlags(format, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatFlags(nullptr, &flags), InvalidParameter);
    EXPECT_EQ(GdipSetStringFormatFlags(nullptr, 0), InvalidParameter);
    EXPECT_EQ(GdipCreateStringFormat(0, 0, nullptr), InvalidParameter);
}

TEST_F(StringFormats, TwoAreGenericAndShared) {
    GpStringFormat *first = nullptr, *second = nullptr, *typographic = nullptr;
    ASSERT_EQ(GdipStringFormatGetGenericDefault(&first), Ok);
    EXPECT_EQ(GdipDeleteStringFormat(first), Ok);
    ASSERT_EQ(GdipStringFormatGetGenericDefault(&second), Ok);
    EXPECT_EQ(first, second) << "deleting it does nothing";
    ASSERT_EQ(GdipStringFormatGetGenericTypographic(&typographic), Ok);
    EXPECT_NE(first, typographic);
    INT flags = -1;
    StringTrimming trimming = StringTrimmingWord;
    EXPECT_EQ(GdipGetStringFormatFlags(first, &flags), Ok);
    EXPECT_EQ(flags, 0);
    EXPECT_EQ(GdipGetStringFormatTrimming(first, &trimming), Ok);
    EXPECT_EQ(trimming, StringTrimmingCharacter);
    EXPECT_EQ(GdipGetStringFormatFlags(typographic, &flags), Ok);
    EXPECT_EQ(flags, 0x6004) << "no black box to fit, whole lines, no clip";
    EXPECT_EQ(GdipGetStringFormatTrimming(typographic, &trimming), Ok);
    EXPECT_EQ(trimming, StringTrimmingNone);
    EXPECT_EQ(GdipStringFormatGetGenericDefault(nullptr), InvalidParameter);
    EXPECT_EQ(GdipStringFormatGetGenericTypographic(nullptr), InvalidParameter);
}

TEST_F(StringFormats, ClonesAreIndependent) {
    GpStringFormat *format = Make(3), *clone = nullptr;
    GdipSetStringFormatAlign(format, StringAlignmentFar);
    const CharacterRange range{1, 2};
    GdipSetStringFormatMeasurableCharacterRanges(format, 1, &range);
    ASSERT_EQ(GdipCloneStringFormat(format, &clone), Ok);
    Keep(clone);
    EXPECT_EQ(GdipSetStringFormatAlign(format, StringAlignmentNear), Ok);
    EXPECT_EQ(GdipDeleteStringFormat(format), Ok);
    EXPECT_EQ(GdipDeleteStringFormat(format), InvalidParameter);
    StringAlignment align = StringAlignmentNear;
    INT flags = 0, ranges = 0;
    GdipGetStringFormatAlign(clone, &align);
    GdipGetStringFormatFlags(clone, &flags);
    GdipGetStringFormatMeasurableCharacterRangeCount(clone, &ranges);
    EXPECT_EQ(align, StringAlignmentFar);
    EXPECT_EQ(flags, 3);
    EXPECT_EQ(ranges, 1);
    EXPECT_EQ(GdipCloneStringFormat(nullptr, &clone), InvalidParameter);
    EXPECT_EQ(GdipCloneStringFormat(Make(), nullptr), InvalidParameter);
}

TEST_F(StringFormats, KeepTabStops) {
    GpStringFormat* format = Make();
    INT count = -1;
    EXPECT_EQ(GdipGetStringFormatTabStopCount(format, &count), Ok);
    EXPECT_EQ(count, 0);
    const REAL stops[] = {10, 20.5f, 30};
    ASSERT_EQ(GdipSetStringFormatTabStops(format, 7, 3, stops), Ok);
    EXPECT_EQ(GdipGetStringFormatTabStopCount(format, &count), Ok);
    EXPECT_EQ(count, 3);
    REAL first = 0, got[3] = {0, 0, -1};
    ASSERT_EQ(GdipGetStringFormatTabStops(format, 2, &first, got), Ok);
    EXPECT_EQ(first, 7);
    EXPECT_EQ(std::vector<REAL>(got, got + 3), (std::vector<REAL>{10, 20.5f, -1}));
    ASSERT_EQ(GdipGetStringFormatTabStops(format, 9, &first, got), Ok) << "as many as there are";
    EXPECT_EQ(got[2], 30);
}

TEST_F(StringFormats, TabStopsLieAhead) {
    GpStringFormat* format = Make();
    const REAL back[] = {10, -1};
    REAL first = 0, got = 0;
    INT count = -1;
    EXPECT_EQ(GdipSetStringFormatTabStops(format, 0, 2, back), NotImplemented);
    EXPECT_EQ(GdipGetStringFormatTabStopCount(format, &count), Ok);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(GdipSetStringFormatTabStops(format, 0, 2, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetStringFormatTabStops(format, 0, -1, back), InvalidParameter);
    EXPECT_EQ(GdipSetStringFormatTabStops(nullptr, 0, 1, back), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatTabStops(nullptr, 1, &first, &got), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatTabStops(format, 1, nullptr, &got), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatTabStops(format, 1, &first, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatTabStopCount(format, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatTabStopCount(nullptr, &count), InvalidParameter);
}

TEST_F(StringFormats, KeepADigitSubstitution) {
    GpStringFormat* format = Make();
    LANGID language = 9;
    StringDigitSubstitute substitute = StringDigitSubstituteNone;
    EXPECT_EQ(GdipGetStringFormatDigitSubstitution(format, &language, &substitute), Ok);
    EXPECT_EQ(language, 0);
    EXPECT_EQ(substitute, StringDigitSubstituteUser);
    EXPECT_EQ(GdipSetStringFormatDigitSubstitution(format, 0x401, StringDigitSubstituteNational),
              Ok);
    EXPECT_EQ(GdipGetStringFormatDigitSubstitution(format, &language, nullptr), Ok);
    EXPECT_EQ(GdipGetStringFormatDigitSubstitution(format, nullptr, &substitute), Ok);
    EXPECT_EQ(language, 0x401);
    EXPECT_EQ(substitute, StringDigitSubstituteNational);
    EXPECT_EQ(
        GdipSetStringFormatDigitSubstitution(format, 0, static_cast<StringDigitSubstitute>(4)),
        InvalidParameter);
    EXPECT_EQ(GdipSetStringFormatDigitSubstitution(nullptr, 0, StringDigitSubstituteUser),
              InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatDigitSubstitution(nullptr, &language, &substitute),
              InvalidParameter);
}

TEST_F(StringFormats, KeepUpTo32Ranges) {
    GpStringFormat* format = Make();
    const std::vector<CharacterRange> ranges(33);
    INT count = -1;
    EXPECT_EQ(GdipSetStringFormatMeasurableCharacterRanges(format, 32, ranges.data()), Ok);
    EXPECT_EQ(GdipGetStringFormatMeasurableCharacterRangeCount(format, &count), Ok);
    EXPECT_EQ(count, 32);
    EXPECT_EQ(GdipSetStringFormatMeasurableCharacterRanges(format, 33, ranges.data()),
              ValueOverflow);
    EXPECT_EQ(GdipSetStringFormatMeasurableCharacterRanges(format, 1, nullptr), InvalidParameter);
    EXPECT_EQ(GdipSetStringFormatMeasurableCharacterRanges(nullptr, 1, ranges.data()),
              InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatMeasurableCharacterRangeCount(format, nullptr), InvalidParameter);
    EXPECT_EQ(GdipGetStringFormatMeasurableCharacterRangeCount(nullptr, &count), InvalidParameter);
    EXPECT_EQ(GdipDeleteStringFormat(nullptr), InvalidParameter);
}

}  // namespace
}  // namespace vxgui::gdiplus
