#include "vxgui/platform/gdiplus/text/LayoutCache.h"

#include "tests/platform/gdiplus_strings/StringCanvas.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"

namespace vxgui::gdiplus {
namespace {

// What is kept of a string must not show when something has changed.
class KeptStrings : public StringCanvas {
protected:
    static constexpr const char16_t* kText = u"Words that are kept";

    test::TestPicture Shown(GpFont* font, GpStringFormat* format, const GpRectF& rect) {
        Clear();
        EXPECT_EQ(Draw(kText, font, rect, format), Ok);
        return Picture();
    }
    // The same as if nothing had been drawn before.
    void ExpectFresh(GpFont* font, GpStringFormat* format, const GpRectF& rect) {
        const test::TestPicture kept = Shown(font, format, rect);
        FontEngine::Here().Layouts().Clear();
        EXPECT_EQ(kept.pixels, Shown(font, format, rect).pixels);
    }
};

TEST_F(KeptStrings, FollowTheirFormat) {
    GpFont* const font = MakeFont(13);
    GpStringFormat* const format = Default();
    const GpRectF rect{5, 5, 180, 50};
    const test::TestPicture before = Shown(font, format, rect);
    GdipSetStringFormatAlign(format, StringAlignmentFar);
    EXPECT_NE(Shown(font, format, rect).pixels, before.pixels);
    ExpectFresh(font, format, rect);
    GdipSetStringFormatAlign(format, StringAlignmentNear);
    EXPECT_EQ(Shown(font, format, rect).pixels, before.pixels);
    const REAL stop = 30;
    GdipSetStringFormatTabStops(format, 7, 1, &stop);
    GdipSetStringFormatFlags(format, StringFormatFlagsDirectionRightToLeft);
    ExpectFresh(font, format, rect);
}

TEST_F(KeptStrings, FollowTheirFontAndRoom) {
    GpStringFormat* const format = Default();
    for (const REAL size : {12.0f, 12.5f, 20.0f}) {
        for (const INT style : {0, 1, 2, 4}) {
            ExpectFresh(MakeFont(size, style), format, {5, 5, 180, 50});
            ExpectFresh(MakeFont(size, style), format, {5, 5, 60, 50});
        }
    }
}

TEST_F(KeptStrings, FollowTheGraphics) {
    GpFont* const font = MakeFont(13);
    GpStringFormat* const format = Default();
    const GpRectF rect{5, 5, 180, 50};
    const auto check = [&](GpStatus status) {
        ASSERT_EQ(status, Ok);
        ExpectFresh(font, format, rect);
    };
    Shown(font, format, rect);
    check(GdipSetTextRenderingHint(graphics_, TextRenderingHintSingleBitPerPixelGridFit));
    check(GdipSetTextRenderingHint(graphics_, TextRenderingHintAntiAlias));
    check(GdipSetTextContrast(graphics_, 12));
    check(GdipTranslateWorldTransform(graphics_, 0.5f, 0.25f, MatrixOrderPrepend));
    check(GdipRotateWorldTransform(graphics_, 10, MatrixOrderPrepend));
}

TEST_F(KeptStrings, AreBounded) {
    Resize(600, 200);
    LayoutCache& kept = FontEngine::Here().Layouts();
    GpFont* const font = MakeFont(30);
    size_t most = 0;
    for (int i = 0; i < 500; ++i) {
        const String text = String("large text ") + String::FromInt(i);
        ASSERT_EQ(Draw(text.data(), font, {0, 0, 0, 0}, Typographic()), Ok);
        most = std::max(most, kept.Cost());
    }
    EXPECT_LE(most, LayoutCache::kBound);
    EXPECT_GT(most, LayoutCache::kBound / 2);  // the masks count
}

}  // namespace
}  // namespace vxgui::gdiplus
