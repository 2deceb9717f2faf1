#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "generated/Places.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/SkinParts.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui {
namespace {

using testing::EndsWith;

#ifdef VXGUI_STYLES_FOLDER
const bool kBuilt = true;
#else
const bool kBuilt = false;
#endif

const char* const kStyles[] = {"blue", "homestead", "metallic"};

/// The styles as the build made them, found as every host finds them.
class DefaultStyles : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override {
        if (!kBuilt) GTEST_SKIP() << "the styles take Python 3 and the tool to build";
        skin->DefFile(String("res:DefaultStyles:") + GetParam());
        skin->InitializeXPTaskbar();
        ASSERT_NE(skin->UisFile(), nullptr);
    }
    core7::DefineFile& FileOf(const SkinPart& part) {
        return part.inUis ? *skin->UisFile() : *skin->TaskbarFile();
    }

    Ref<SkinDef> skin = New<SkinDef>();
};
INSTANTIATE_TEST_SUITE_P(Each, DefaultStyles, testing::ValuesIn(kStyles),
                         [](const auto& info) { return std::string(info.param); });

std::vector<uint32_t> Painted(ThemeItem& item, int32_t state, int32_t width, int32_t height) {
    std::vector<uint32_t> pixels(static_cast<size_t>(width) * height, 0xFF123456);
    const gdi::HDC dc =
        gdi::CreateHostDC({pixels.data(), width, height, std::ptrdiff_t{width} * 4, false});
    item.State(state);
    item.DrawBackground(dc, 0, 0, width, height, -1, -1);
    gdi::DeleteDC(dc);
    for (uint32_t& pixel : pixels) pixel |= 0xFF000000;
    return pixels;
}

bool PaintsSomething(ThemeItem& item, int32_t width, int32_t height) {
    for (int32_t state = 0; state < E_ItemStateMax; ++state) {
        const auto pixels = Painted(item, state, width, height);
        if (std::any_of(pixels.begin(), pixels.end(), [](uint32_t p) { return p != 0xFF123456; }))
            return true;
    }
    return false;
}

TEST_P(DefaultStyles, ModuleIsFoundWithTheLibrarysData) {
    const String path = FindStyleModule("DefaultStyles.dll", "");
    EXPECT_THAT(path.Utf8(), EndsWith("share/vxgui/DefaultStyles.dll"));
    EXPECT_TRUE(core7::ThePathService().FileExists(path));
}

TEST_P(DefaultStyles, TextsAreReadWithoutAProblem) {
    EXPECT_TRUE(skin->UisFile()->Problems().empty());
    EXPECT_TRUE(skin->TaskbarFile()->Problems().empty());
}

TEST_P(DefaultStyles, HaveASectionWithPicturesForEachPart) {
    for (const SkinPart& part : SkinParts()) {
        EXPECT_GT(FileOf(part).PositionOf(part.name).line, 0) << part.name;
        const Ref<ThemeItem> item = skin->Item(part.name);
        ASSERT_NE(item, nullptr) << part.name;
        ASSERT_NE(item->Image(), nullptr) << part.name;
        EXPECT_NE(item->Image()->hDIB(), nullptr) << part.name;
        EXPECT_EQ(item->Glyph() != nullptr,
                  !FileOf(part).GetString(part.name, "GlyphImage", "").empty());
    }
    EXPECT_EQ(skin->TaskbarFile()->SectionNames().size(), 31u);
}

TEST_P(DefaultStyles, StripsHoldTheirFramesAndFramesTheirMargins) {
    for (const SkinPart& part : SkinParts()) {
        const Ref<ThemeItem> item = skin->Item(part.name);
        ASSERT_GE(item->FrameCount(), 1) << part.name;
        EXPECT_EQ(item->Image()->Width() % item->FrameCount(), 0) << part.name;
        EXPECT_LT(item->ImageMarginLeft() + item->ImageMarginRight(), item->ImageWidth())
            << part.name;
        EXPECT_LT(item->ImageMarginTop() + item->ImageMarginBottom(), item->ImageHeight())
            << part.name;
        if (!item->Glyph()) continue;
        EXPECT_EQ(item->Glyph()->Width() % item->GlyphFrames(), 0) << part.name;
    }
}

TEST_P(DefaultStyles, PartsPaintAtTheirOwnSizeAndAtALargerOne) {
    for (const SkinPart& part : SkinParts()) {
        const Ref<ThemeItem> item = skin->Item(part.name);
        EXPECT_TRUE(PaintsSomething(*item, item->ImageWidth(), item->ImageHeight())) << part.name;
        EXPECT_TRUE(PaintsSomething(*item, item->ImageWidth() + 37, item->ImageHeight() + 11))
            << part.name;
    }
}

// A colour stronger than its alpha would shine as a fringe.
TEST_P(DefaultStyles, EdgesAreClean) {
    for (const SkinPart& part : SkinParts()) {
        const Ref<ThemeItem> item = skin->Item(part.name);
        if (item->TransMode() != PerPixel) continue;
        cAlphaDIBSection& image = *item->Image();
        int fringes = 0;
        for (int32_t y = 0; y < image.Height(); ++y) {
            for (int32_t x = 0; x < image.Width(); ++x) {
                const auto pixel = static_cast<uint32_t>(image.GetPixel(x, y));
                const uint32_t most = std::max({pixel & 255, pixel >> 8 & 255, pixel >> 16 & 255});
                fringes += most > pixel >> 24;
            }
        }
        EXPECT_EQ(fringes, 0) << part.name;
    }
}

TEST_P(DefaultStyles, ColoursAndFontsOfItemsAreThere) {
    for (const SkinPart& part : SkinParts()) {
        const bool captioned = FileOf(part).PositionOf(part.name, "NormalColour").line > 0;
        if (!captioned) continue;
        const Ref<ThemeItem> item = skin->Item(part.name);
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            if (state == E_ItemStateGroup) continue;  // most have no frame for it
            EXPECT_NE(item->StateColour(state), -1) << part.name << " " << state;
            EXPECT_NE(item->StateFont(state), nullptr) << part.name << " " << state;
        }
    }
    for (int32_t n : {skin->SystemFonts().SystemCaption, skin->SystemFonts().SystemMenu})
        EXPECT_NE(skin->SystemFont(n), nullptr);
    EXPECT_NE(skin->SysColour("Window"), 0);
}

TEST_P(DefaultStyles, TaskButtonsLookDifferentInEachOfTheEightStates) {
    const Ref<ThemeItem> item = skin->Item("Taskbar.ButtonHorz");
    std::set<std::vector<uint32_t>> looks;
    for (int32_t state = 0; state <= E_ItemStateGroup; ++state)
        looks.insert(Painted(*item, state, 100, 30));
    EXPECT_EQ(looks.size(), 8u);
}

TEST(DefaultStylesTogether, HaveBarsAndStartButtonsOfTheirOwn) {
    if (!kBuilt) GTEST_SKIP() << "the styles take Python 3 and the tool to build";
    std::set<std::vector<uint32_t>> bars, buttons;
    for (const char* style : kStyles) {
        const Ref<SkinDef> skin = New<SkinDef>();
        skin->DefFile(String("res:DefaultStyles:") + style);
        skin->InitializeXPTaskbar();
        const auto add = [&](auto& looks, const char* part) {
            const Ref<ThemeItem> item = skin->Item(part);
            ASSERT_NE(item, nullptr);
            looks.insert(Painted(*item, E_ItemStateNormal, 64, 34));
        };
        add(bars, "Taskbar.Horz");
        add(buttons, "Taskbar.StartButton");
    }
    EXPECT_EQ(bars.size(), 3u);
    EXPECT_EQ(buttons.size(), 3u);
}

TEST(DefaultStylesTogether, WithoutASkinTheBlueOneIsUsed) {
    if (!kBuilt) GTEST_SKIP() << "the styles take Python 3 and the tool to build";
    const Ref<SkinDef> skin = New<SkinDef>();
    skin->InitializeXPTaskbar();
    EXPECT_EQ(skin->DefFile(), "res:DefaultStyles:blue");
    EXPECT_NE(skin->Item("Taskbar.Horz")->Image(), nullptr);
}

}  // namespace
}  // namespace vxgui
