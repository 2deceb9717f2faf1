#include "vxgui/theme/SkinConfinement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/TemporaryFolder.h"
#include "tests/theme/SkinPictures.h"
#include "vxgui/platform/core7.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSetFile.h"
#include "vxgui/theme/lint/CheckSkin.h"

namespace vxgui {
namespace {

namespace fs = std::filesystem;

/// A folder with a skin's folder in it and pictures in both.
class SkinConfinement : public testing::Test {
protected:
    SkinConfinement() {
        for (const char* name : {"secret.tga", "skin/own.tga", "skin/sub/own.tga"})
            files.Write(name, test::TgaBytes({200, 100, 50, 127}));
        fs::create_symlink("../secret.tga", Native("skin/link.tga"));
        fs::create_symlink("own.tga", Native("skin/inner.tga"));
        fs::create_directory_symlink("..", Native("skin/up"));
        ConfineSkins(true);
    }
    ~SkinConfinement() override { ConfineSkins(false); }

    fs::path Native(const std::string& name) const { return files.Path(name).Utf8(); }

    bool ThemeSetLoads(const std::string& picture) const {
        const String path = files.Write(
            "skin/a.theme", "[ThemeSet]\nThemes=1\n[Theme_01]\nFrames=1\nImage=" + picture + "\n");
        return LoadThemeSetFile(path)->Item("Theme_01")->Image() != nullptr;
    }
    bool UisLoads(const std::string& picture) const {
        const Ref<core7::DefineFile> file = core7::CreateDefineFile();
        file->LoadText("[Part]\nFrameCount=1\nImage=" + picture + "\n");
        const Ref<ThemeItem> item = New<ThemeItem>();
        item->FromUis(file, files.Path("skin"), "Part", "");
        return item->Image() != nullptr;
    }
    Ref<SkinDef> StartedUp(const std::string& taskbar, const std::string& image) const {
        files.Write("skin/a.uis",
                    "[XPTaskbar]\nFile=" + taskbar + "\n[Personality]\nWallpaper=" + image + "\n");
        for (const char* name : {"skin/bar.xp", "bar.xp"})
            files.Write(name, "[Taskbar.Horz]\nImage=" + image + "\n");
        const Ref<SkinDef> skin = New<SkinDef>();
        skin->SkinPath(files.Path("skin"));
        skin->SkinName("a");
        skin->DefFile("a.uis");
        skin->InitializeXPTaskbar();
        return skin;
    }
    std::vector<std::string> Warnings(const std::string& name, const std::string& text) const {
        std::vector<std::string> warnings;
        for (const lint::Finding& finding : lint::CheckSkin(files.Write("skin/" + name, text)))
            if (finding.text.Utf8().find("outside the folder") != std::string::npos)
                warnings.push_back(finding.text.Utf8());
        return warnings;
    }

    const test::TemporaryFolder files;
};

struct Case {
    const char* picture;
    bool inside;
};
constexpr Case kCases[] = {
    {"own.tga", true},
    {"sub\\own.tga", true},
    {"sub/../own.tga", true},
    {"../skin/own.tga", true},
    {"inner.tga", true},
    {"../secret.tga", false},
    {"sub/../../secret.tga", false},
    {"..\\secret.tga", false},
    {"link.tga", false},
    {"up/secret.tga", false},
};

TEST_F(SkinConfinement, WhatLeadsOutOfTheFolderCountsAsMissing) {
    for (const Case& c : kCases) {
        EXPECT_EQ(ThemeSetLoads(c.picture), c.inside) << c.picture;
        EXPECT_EQ(UisLoads(c.picture), c.inside) << c.picture;
    }
    EXPECT_FALSE(UisLoads(Native("secret.tga").string()));
}

TEST_F(SkinConfinement, HostsThatDontAskForItReadAnything) {
    ConfineSkins(false);
    for (const Case& c : kCases) {
        EXPECT_TRUE(ThemeSetLoads(c.picture)) << c.picture;
        EXPECT_TRUE(UisLoads(c.picture)) << c.picture;
    }
    EXPECT_TRUE(UisLoads(Native("secret.tga").string()));
}

TEST_F(SkinConfinement, ATaskbarOutsideOrWithAPictureOutsideIsNotUsed) {
    EXPECT_EQ(StartedUp("bar.xp", "own.tga")->SkinName(), "a");
    EXPECT_TRUE(StartedUp("bar.xp", "own.tga")->HaveWallpaper());
    EXPECT_NE(StartedUp("../bar.xp", "own.tga")->SkinName(), "a");
    EXPECT_NE(StartedUp("bar.xp", "../secret.tga")->SkinName(), "a");
    EXPECT_FALSE(StartedUp("bar.xp", "link.tga")->HaveWallpaper());
    ConfineSkins(false);
    EXPECT_EQ(StartedUp("../bar.xp", "../secret.tga")->SkinName(), "a");
    EXPECT_TRUE(StartedUp("bar.xp", "link.tga")->HaveWallpaper());
}

TEST_F(SkinConfinement, TheCheckWarnsOfEach) {
    for (const Case& c : kCases) {
        const auto warnings =
            Warnings("a.theme", std::string("[ThemeSet]\nThemes=1\n[Theme_01]\nFrames=1\nImage=") +
                                    c.picture + "\n");
        EXPECT_EQ(warnings.size(), c.inside ? 0u : 1u) << c.picture;
    }
    files.Write("bar.xp", "[Taskbar.Horz]\nImage=own.tga\n");
    EXPECT_EQ(Warnings("b.uis", "[XPTaskbar]\nFile=../bar.xp\n[Personality]\nWallpaper=" +
                                    Native("secret.tga").string() + "\n")
                  .size(),
              2u);
}

TEST(IsWithin, GoesByWhereAFileReallyIs) {
    const test::TemporaryFolder folder;
    folder.Write("in/file", "");
    folder.Write("inner/file", "");
    EXPECT_TRUE(core7::IsWithin(folder.Path("in/file"), folder.Path("in")));
    EXPECT_TRUE(core7::IsWithin(folder.Path("IN/FILE"), folder.Path("in/")));
    EXPECT_TRUE(core7::IsWithin(folder.Path("in/none"), folder.Path("in")));
    EXPECT_FALSE(core7::IsWithin(folder.Path("inner/file"), folder.Path("in")));
    EXPECT_FALSE(core7::IsWithin(folder.Path("in"), folder.Path("in/file")));
    fs::create_symlink("ring", folder.Path("in/ring").Utf8());
    EXPECT_FALSE(core7::IsWithin(folder.Path("in/ring/x"), folder.Path("in")));
    EXPECT_TRUE(core7::IsWithin("some/file", ""));
    EXPECT_FALSE(core7::IsWithin("/etc/passwd", ""));
}

}  // namespace
}  // namespace vxgui
