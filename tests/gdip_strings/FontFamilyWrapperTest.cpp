#include <gtest/gtest.h>

#include "tests/support/GdiplusSession.h"
#include "vxgui/gdip/GpFontCollection.h"
#include "vxgui/platform/core7_files.h"

namespace vxgui {
namespace {

class FontFamilyWrapper : public testing::Test {
protected:
    test::GdiplusSession session_;
};
class FontCollectionWrapper : public FontFamilyWrapper {};

TEST_F(FontFamilyWrapper, ReadsItsMeasures) {
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    ASSERT_TRUE(family->CreateFontFamily("Noto Sans Tai Tham"));
    EXPECT_EQ(family->GetFamilyName(), "Noto Sans Tai Tham");
    EXPECT_EQ(family->EmHeight(), 1000);
    EXPECT_EQ(family->Ascent(), 1034);
    EXPECT_EQ(family->Descent(), 520);
    EXPECT_EQ(family->LineSpacing(), 1589);
    EXPECT_EQ(family->GetEmHeight(1), 1000);
    EXPECT_EQ(family->GetCellAscent(1), 1034);
    EXPECT_EQ(family->GetCellDescent(1), 520);
    EXPECT_EQ(family->GetLineSpacing(1), 1589);
    EXPECT_TRUE(family->IsStyleAvailable(3));
}

TEST_F(FontFamilyWrapper, AnEmptyOneAnswersNothing) {
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    EXPECT_EQ(family->GetFamilyName(), "");
    EXPECT_EQ(family->EmHeight(), 0);
    EXPECT_EQ(family->Ascent(), 0);
    EXPECT_EQ(family->Descent(), 0);
    EXPECT_EQ(family->LineSpacing(), 0);
    EXPECT_FALSE(family->IsStyleAvailable(0));
    EXPECT_EQ(family->Status, gdiplus::InvalidParameter);
}

TEST_F(FontFamilyWrapper, CreatingEndsTheOldFamilyFirst) {
    const Ref<GpFontFamily> family = New<GpFontFamily>();
    ASSERT_TRUE(family->CreateGenericSerifFamily());
    EXPECT_EQ(family->GetFamilyName(), "DejaVu Serif");
    ASSERT_TRUE(family->CreateGenericSansSerifFamily());
    EXPECT_EQ(family->GetFamilyName(), "DejaVu Sans");
    ASSERT_TRUE(family->CreateGenericMonospaceFamily());
    EXPECT_EQ(family->GetFamilyName(), "DejaVu Sans Mono");
    EXPECT_FALSE(family->CreateFontFamily("No Such Font"));
    EXPECT_EQ(family->Handle(), nullptr);
}

TEST_F(FontCollectionWrapper, GivesTheInstalledFamilies) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    const int32_t count = fonts->GetFamilyCount();
    ASSERT_GT(count, 3);
    EXPECT_FALSE(fonts->FontFamily(0)->GetFamilyName().empty());
    EXPECT_TRUE(fonts->FontFamily(count - 1));
    EXPECT_EQ(fonts->FontFamily(count), nullptr);
    EXPECT_EQ(fonts->FontFamily(-1), nullptr);
}

TEST_F(FontCollectionWrapper, AFamilyThatItHandsOutIsDeletedByItsHolder) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    fonts->FontFamily(1)->Dispose();
    EXPECT_EQ(fonts->FontFamily(1)->GetFamilyName(), "") << "the handle that they share is dead";
}

TEST_F(FontCollectionWrapper, FillsTheCallersArray) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    int32_t sought = 2, found = 0;
    gdiplus::GpFontFamily* families[2] = {};
    EXPECT_TRUE(fonts->GetFamilies(sought, families, &found));
    EXPECT_EQ(found, 2);
    EXPECT_NE(families[1], nullptr);
    EXPECT_FALSE(fonts->GetFamilies(sought, nullptr, &found));
    EXPECT_EQ(fonts->Status, gdiplus::InvalidParameter);
}

TEST_F(FontCollectionWrapper, AddsFontsOnlyWhenItIsPrivate) {
    const String file = "/usr/share/fonts/truetype/noto/NotoSansThaana-Regular.ttf";
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    EXPECT_FALSE(fonts->PrivateAddFontFile(file));
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    ByteArray bytes;
    ASSERT_TRUE(core7::ReadWholeFile(file, &bytes));
    const auto size = static_cast<int32_t>(bytes.size());
    EXPECT_FALSE(fonts->PrivateAddFontFile(file));
    EXPECT_FALSE(fonts->PrivateAddMemoryFont(bytes.data(), size));
    EXPECT_EQ(fonts->Status, gdiplus::Ok) << "no flat call";
    ASSERT_TRUE(fonts->NewPrivateFontCollection());
    EXPECT_EQ(fonts->GetFamilyCount(), 0) << "only the installed ones are counted";
    EXPECT_TRUE(fonts->PrivateAddFontFile(file));
    EXPECT_TRUE(fonts->PrivateAddMemoryFont(bytes.data(), size));
    EXPECT_FALSE(fonts->PrivateAddFontFile("/no/such/file"));
    EXPECT_EQ(fonts->Status, gdiplus::FileNotFound);
}

TEST_F(FontCollectionWrapper, DisposeEndsFamiliesAndPrivateFonts) {
    const Ref<GpFontCollection> fonts = New<GpFontCollection>();
    ASSERT_TRUE(fonts->NewPrivateFontCollection());
    gdiplus::GpFontCollection* handle = fonts->Handle();
    fonts->Dispose();
    EXPECT_EQ(fonts->Handle(), nullptr);
    EXPECT_EQ(gdiplus::GdipDeletePrivateFontCollection(&handle), gdiplus::InvalidParameter);
    ASSERT_TRUE(fonts->GetInstalledFontCollection());
    const Ref<GpFontFamily> family = fonts->FontFamily(0);
    fonts->Dispose();
    EXPECT_EQ(fonts->GetFamilyCount(), 0);
    EXPECT_EQ(family->GetFamilyName(), "");
}

}  // namespace
}  // namespace vxgui
