#include <filesystem>
#include <functional>

#include "generated/Places.h"
#include "tests/support/FailingFiles.h"
#include "tests/support/GdiplusSession.h"
#include "tests/tools/SampleSurface.h"
#include "vxgui/gdip/GpImage.h"
#include "vxgui/platform/core7.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui::tool {
namespace {

namespace fs = std::filesystem;
using test::FailingFiles;

const std::string kAurora = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";

/// One way in which the library or the tool writes a file.
struct Way {
    std::string name;
    std::function<bool(const std::string& path)> save;
};

bool ToolWrites(std::vector<std::string> arguments, const std::string& path) {
    arguments.insert(arguments.end(), {"-o", path});
    return Call(std::move(arguments)).status == 0;
}

bool SavesDefine(const std::string& path) {
    const Ref<core7::DefineEditor> editor = core7::CreateDefineEditor();
    editor->LoadText("[a]\nb=1\n");
    return editor->Save(path);
}

bool SavesSkin(const std::string& path) {
    try {
        SaveCompiledSkin({LoadThemeSetFile(kAurora), {}}, path);
        return true;
    } catch (const Error&) {
        return false;
    }
}

bool SavesPicture(const std::string& path) {
    return SurfaceWith(SamplePicture())->SavePictureSafely(path);
}

bool Encodes(const char* form, const std::string& path) {
    const Ref<GpImage> image = New<GpImage>();
    return image->FromFile(kImages + "png-rgba-8.png") && image->SaveToFile(path, form);
}

std::vector<Way> Ways() {
    std::vector<Way> ways{
        {"define editor", SavesDefine},
        {"compiled skin", SavesSkin},
        {"surface", SavesPicture},
        {"gallery",
         [](auto& path) {
             return ToolWrites({"gallery", kAurora}, path);
         }},
        {"convert",
         [](auto& path) {
             return ToolWrites({"convert", kImages + "png-rgba-8.png"}, path);
         }},
        {"compile",
         [](auto& path) {
             return ToolWrites({"compile", kAurora}, path);
         }},
    };
    for (const char* form : {"image/bmp", "image/png", "image/jpeg", "image/gif", "image/tiff"})
        ways.push_back({form, [form](const std::string& path) { return Encodes(form, path); }});
    return ways;
}

// A picture's ending says its form to the tool.
std::string NameFor(const Way& way) {
    return way.name == "convert" ? "kept.tga" : way.name == "gallery" ? "kept.png" : "kept";
}

TEST(Saving, WhateverIsSavedAFailureAtAnyStepLosesNothing) {
    const test::GdiplusSession session;
    const ByteArray old{'o', 'l', 'd'};
    for (const Way& way : Ways()) {
        for (int step = 0;; ++step) {
            ASSERT_LT(step, 100) << way.name;
            const std::string path = WriteBytes(NameFor(way), old);
            const FailingFiles files(step);
            const bool saved = way.save(path);
            EXPECT_EQ(BytesOfFile(path) == old, !saved) << way.name << ", step " << step;
            if (!files.Happened()) {
                EXPECT_TRUE(saved) << way.name;
                EXPECT_GE(step, 5) << way.name << ": a sync and a rename at the least";
                break;
            }
        }
    }
    for (const auto& entry : fs::directory_iterator(Folder()))
        EXPECT_EQ(entry.path().extension() == ".tmp", false) << entry.path();
}

TEST(Saving, TheBmpOfASurfaceIsLeftInPartByTheOperationThatSaysSo) {
    const Ref<cAlphaDIBSection> surface = SurfaceWith(SamplePicture());
    const std::string path = Folder() + "part.bmp";
    fs::remove(path);
    {
        const FailingFiles files(3);
        EXPECT_FALSE(surface->SavePicture(path));
    }
    ByteArray whole;
    ASSERT_TRUE(surface->SaveToByteArray(whole));
    const ByteArray part = BytesOfFile(path);
    EXPECT_GT(part.size(), 0u);
    EXPECT_LT(part.size(), whole.size());
    EXPECT_TRUE(std::equal(part.begin(), part.end(), whole.begin()));
}

TEST(Saving, TheSafeFormOfASurfaceWritesTheSameFile) {
    const Ref<cAlphaDIBSection> surface = SurfaceWith(SamplePicture());
    ASSERT_TRUE(surface->SavePicture(Folder() + "one.bmp"));
    ASSERT_TRUE(surface->SavePictureSafely(Folder() + "other.bmp"));
    EXPECT_EQ(BytesOfFile(Folder() + "one.bmp"), BytesOfFile(Folder() + "other.bmp"));
    EXPECT_FALSE(surface->SavePictureSafely(Folder() + "nowhere/other.bmp"))
        << "and raises nothing";
    EXPECT_FALSE(New<cAlphaDIBSection>()->SavePictureSafely(Folder() + "other.bmp"));
}

}  // namespace
}  // namespace vxgui::tool
