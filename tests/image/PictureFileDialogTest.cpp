#include <gtest/gtest.h>

#include "vxgui/frame/Services.h"
#include "vxgui/frame/VxGuiGlobal.h"

namespace vxgui {
namespace {

/// What the dialog object was asked last, and what it answers.
struct Asked {
    String fileName, caption, filter;
    int32_t filterIndex = 0, flag = 0, options = 0;
    intptr_t owner = 0;
    int made = 0;
};
Asked gAsked;
int32_t gChosenFilter = 0;
int32_t gResult = 0;

class ActedDialogs final : public core7::Dialogs {
public:
    ActedDialogs() { ++gAsked.made; }
    void OpenFile(String& fileName, const String& caption, const String& filter,
                  int32_t& filterIndex, const String& folder, const String& extension,
                  const String& templateName, intptr_t owner, int32_t flag, int32_t options,
                  int32_t& result) override {
        EXPECT_TRUE(folder.empty() && extension.empty() && templateName.empty());
        gAsked = {fileName, caption, filter, filterIndex, flag, options, owner, gAsked.made};
        if (gChosenFilter != 0) filterIndex = gChosenFilter;
        if (gResult != 0) fileName = "chosen.png";
        result = gResult;
    }
};

class OpenPicture : public testing::Test {
protected:
    OpenPicture() {
        gServices.createDialogs = []() -> Ref<core7::Dialogs> { return New<ActedDialogs>(); };
    }
    ~OpenPicture() override { gServices = {}; }
};

TEST_F(OpenPicture, FilterIsThatToTheLetter) {
    EXPECT_EQ(Global().PictureFileFilter().Utf8(),
              "所有文件:*.*|图像文件:*.bmp;*.emf;*.gif;*.ico;*.jpg;*.jpe;*.jpeg;jif;jfif;thm;"
              "*.png;*.tga;*.tif;*.tiff;*.wbm;wbmp;*.wmf;*.xbm;*.xpm|BMP 文件:*.bmp|EMF 文件:*.emf"
              "|GIF 文件:*.gif|ICO 文件:*.ico|JPG 文件:*.jpg;*.jpe;*.jpeg;jif;jfif;thm"
              "|PNG 文件:*.png|TGA 文件:*.tga|TIF 文件:*.tif;*.tiff|WBMP 文件:*.wbm;wbmp"
              "|WMF 文件:*.wmf|XBM 文件:*.xbm|XPM 文件:*.xpm");
}

TEST_F(OpenPicture, AsksAndRemembersTheKindChosen) {
    gResult = 1;
    gChosenFilter = 8;
    String name = "before.png";
    EXPECT_TRUE(Global().ShowOpenPictureFile(name));
    EXPECT_EQ(name, "chosen.png");
    EXPECT_EQ(gAsked.fileName, "before.png");
    EXPECT_EQ(gAsked.caption, u"打开图像文件");
    EXPECT_EQ(gAsked.filter, Global().PictureFileFilter());
    EXPECT_EQ(gAsked.filterIndex, 2);
    EXPECT_EQ(gAsked.owner, -1);
    EXPECT_EQ(gAsked.flag, -1);
    EXPECT_EQ(gAsked.options, 4096);

    gResult = 0;
    gChosenFilter = 0;
    EXPECT_FALSE(Global().ShowOpenPictureFile(name, 7, "Open one"));
    EXPECT_EQ(gAsked.caption, "Open one");
    EXPECT_EQ(gAsked.filterIndex, 8);
    EXPECT_EQ(gAsked.owner, 7);
    EXPECT_EQ(gAsked.made, 1);
}

TEST(OpenPictureWithoutAToolkit, IsAsIfCancelled) {
    String name = "before.png";
    const auto dialogs = core7::CreateDialogs();
    int32_t filter = 3, result = 9;
    dialogs->OpenFile(name, "", "", filter, "", "", "", -1, -1, core7::kFileMustExist, result);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(name, "before.png");
    EXPECT_EQ(filter, 3);
}

}  // namespace
}  // namespace vxgui
