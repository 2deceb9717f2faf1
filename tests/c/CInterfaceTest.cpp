#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <thread>

#include "generated/Places.h"
#include "vxgui/base/Error.h"
#include "vxgui/c/Border.h"
#include "vxgui/frame/Version.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ItemPainter.h"
#include "vxgui/theme/skin/Skin.h"
#include "vxgui/vxgui_c.h"

extern "C" int32_t version_of_c(void);
extern "C" int32_t functions_of_c(void);

namespace vxgui {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr int32_t kWidth = 140, kHeight = 50;
constexpr vxgui_rectangle kBox{10, 8, 120, 34};
const std::string kSkins = VXGUI_SOURCE_DIR "/skins/";
const std::string kAurora = kSkins + "aurora/aurora.theme";

using Pixels = std::vector<uint32_t>;

vxgui_pixels Over(Pixels& pixels) { return {pixels.data(), kWidth, kHeight, kWidth * 4}; }

struct Free {
    void operator()(vxgui_skin* skin) const { vxgui_skin_free(skin); }
};
using OwnSkin = std::unique_ptr<vxgui_skin, Free>;

OwnSkin Load(const std::string& path) {
    OwnSkin skin(vxgui_skin_load(path.c_str()));
    EXPECT_TRUE(skin) << vxgui_last_error();
    return skin;
}

Pixels Drawn(vxgui_item* item, int32_t state, const char* caption, uint32_t ground = 0xFF405060) {
    Pixels pixels(kWidth * kHeight, ground);
    const vxgui_pixels target = Over(pixels);
    EXPECT_EQ(vxgui_item_draw(item, state, caption, &target, &kBox), 1) << vxgui_last_error();
    return pixels;
}

TEST(CInterface, CompilesAsC11WithTheLibrarysVersion) {
    EXPECT_EQ(version_of_c(), LibraryVersion());
    EXPECT_EQ(vxgui_version(), LibraryVersion());
    EXPECT_TRUE(functions_of_c());
}

TEST(CInterface, ListsTheItemsOfAThemeSet) {
    const OwnSkin skin = Load(kAurora);
    ASSERT_EQ(vxgui_skin_item_count(skin.get()), 14);
    vxgui_item* const first = vxgui_skin_item(skin.get(), 0);
    EXPECT_STREQ(vxgui_item_name(first), "PushButton");
    EXPECT_STREQ(vxgui_item_caption(first), "确 定 &OK");
    EXPECT_EQ(vxgui_item_kind(first), VXGUI_KIND_CONTROL);
    EXPECT_EQ(vxgui_skin_find_item(skin.get(), "pushBUTTON"), first);
    EXPECT_EQ(vxgui_skin_find_item(skin.get(), "Theme_01"), first);
}

TEST(CInterface, TellsControlsFromPartsOfTheDesktop) {
    const OwnSkin skin = Load(kSkins + "porcelain/porcelain.uis");
    int32_t count[2] = {};
    for (int32_t i = 0; i < vxgui_skin_item_count(skin.get()); ++i)
        ++count[vxgui_item_kind(vxgui_skin_item(skin.get(), i))];
    EXPECT_EQ(count[VXGUI_KIND_CONTROL], 11);
    EXPECT_EQ(count[VXGUI_KIND_DESKTOP], 33);
}

TEST(CInterface, LoadsACompiledSkinAndAStyleOfAModule) {
    const std::string path = testing::TempDir() + "vxgui_c_interface.vxs";
    SaveCompiledSkin({LoadSkin(kAurora).set, "[Theme_01]\nName=PushButton\n"}, path);
    const OwnSkin compiled = Load(path);
    std::filesystem::remove(path);
    const OwnSkin loose = Load(kAurora);
    EXPECT_EQ(Drawn(vxgui_skin_item(compiled.get(), 0), 1, "OK"),
              Drawn(vxgui_skin_item(loose.get(), 0), 1, "OK"));
#ifdef VXGUI_STYLES_FOLDER
    EXPECT_EQ(vxgui_skin_item_count(Load("res:DefaultStyles:metallic").get()), 33);
#endif
}

TEST(CInterface, NamesTheStatesAndTellsWhichAnItemShows) {
    const OwnSkin skin = Load(kAurora);
    vxgui_item* const button = vxgui_skin_item(skin.get(), 0);
    EXPECT_STREQ(vxgui_state_name(VXGUI_STATE_MOUSE_OVER), "MouseOver");
    EXPECT_STREQ(vxgui_state_name(VXGUI_STATE_FOCUS_MOUSE_OVER), "FocusMouseOver");
    EXPECT_EQ(vxgui_item_shows(button, VXGUI_STATE_PRESSED), 1);
    EXPECT_EQ(vxgui_item_shows(button, VXGUI_STATE_GROUP), 0);
}

TEST(CInterface, AnswersTheSizeOfOneFrame) {
    const OwnSkin skin = Load(kAurora);
    const Ref<ThemeItem> item = LoadSkin(kAurora).items[0].item;
    int32_t width = 0, height = 0;
    ASSERT_EQ(vxgui_item_size(vxgui_skin_item(skin.get(), 0), &width, &height), 1);
    EXPECT_EQ(width, item->ImageWidth());
    EXPECT_EQ(height, item->ImageHeight());
}

TEST(CInterface, DrawsWhatTheLibraryDraws) {
    const OwnSkin skin = Load(kAurora);
    const Ref<ThemeItem> item = LoadSkin(kAurora).items[0].item;
    for (const uint32_t ground : {0xFF405060u, 0u, 0x80102030u}) {
        for (int32_t state = 0; state < VXGUI_STATE_COUNT; ++state) {
            Pixels expected(kWidth * kHeight, ground);
            PaintItem(*item, state, "&OK", {expected.data(), kWidth, kHeight, kWidth * 4, false},
                      {10, 8, 130, 42});
            EXPECT_EQ(Drawn(vxgui_skin_item(skin.get(), 0), state, "&OK", ground), expected);
        }
    }
}

TEST(CInterface, DrawsNoCaptionForNullAndForAnEmptyText) {
    const OwnSkin skin = Load(kAurora);
    vxgui_item* const button = vxgui_skin_item(skin.get(), 0);
    EXPECT_EQ(Drawn(button, 0, nullptr), Drawn(button, 0, ""));
    EXPECT_NE(Drawn(button, 0, nullptr), Drawn(button, 0, "OK"));
}

TEST(CInterface, TellsFileLineAndCureOfASkinThatIsWrong) {
    EXPECT_EQ(vxgui_skin_load(VXGUI_SOURCE_DIR "/tests/data/broken/uis/broken.uis"), nullptr);
    EXPECT_THAT(vxgui_last_error(),
                HasSubstr("broken.xp:29:1: error: image \"start.tga\" is not there: a file in the "
                          "folder of the skin was expected"));
    EXPECT_EQ(vxgui_skin_load("/nowhere.theme"), nullptr);
    EXPECT_STREQ(vxgui_last_error(),
                 "/nowhere.theme: error: is not there; the define file of a theme set, a compiled "
                 "skin, the UIS file of a skin or res:MODULE:STYLE was expected");
}

TEST(CInterface, ListsTheNamesWhenAnItemIsNotThere) {
    const OwnSkin skin = Load(kAurora);
    EXPECT_EQ(vxgui_skin_find_item(skin.get(), "Nothing"), nullptr);
    EXPECT_THAT(vxgui_last_error(), HasSubstr("no item \"Nothing\"; the items are PushButton, "));
    for (const int32_t index : {-1, 14, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(vxgui_skin_item(skin.get(), index), nullptr);
        EXPECT_THAT(vxgui_last_error(), HasSubstr("a number from 0 to 13 was expected"));
    }
}

TEST(CInterface, TakesNullEverywhereAndSaysWhatWasExpected) {
    const OwnSkin skin = Load(kAurora);
    vxgui_item* const button = vxgui_skin_item(skin.get(), 0);
    Pixels pixels(kWidth * kHeight);
    const vxgui_pixels target = Over(pixels);
    int32_t side;
    vxgui_skin_free(nullptr);
    const auto says = [](auto result, auto failed, const char* expected) {
        EXPECT_EQ(result, failed);
        EXPECT_THAT(vxgui_last_error(), HasSubstr(expected));
    };
    says(vxgui_skin_load(nullptr), nullptr, "path of a skin's file was expected");
    says(vxgui_skin_item_count(nullptr), -1, "vxgui_skin_load");
    says(vxgui_skin_item(nullptr, 0), nullptr, "vxgui_skin_load");
    says(vxgui_skin_find_item(nullptr, "x"), nullptr, "vxgui_skin_load");
    says(vxgui_skin_find_item(skin.get(), nullptr), nullptr, "the name of an item");
    says(vxgui_item_name(nullptr), nullptr, "vxgui_skin_item");
    says(vxgui_item_caption(nullptr), nullptr, "vxgui_skin_find_item");
    says(vxgui_item_kind(nullptr), -1, "vxgui_skin_item");
    says(vxgui_item_shows(nullptr, 0), -1, "vxgui_skin_item");
    says(vxgui_item_size(nullptr, &side, &side), 0, "vxgui_skin_item");
    says(vxgui_item_size(button, nullptr, &side), 0, "where the width goes");
    says(vxgui_item_size(button, &side, nullptr), 0, "where the height goes");
    says(vxgui_item_draw(nullptr, 0, "", &target, &kBox), 0, "vxgui_skin_item");
    says(vxgui_item_draw(button, 0, "", nullptr, &kBox), 0, "a vxgui_pixels");
    says(vxgui_item_draw(button, 0, "", &target, nullptr), 0, "a vxgui_rectangle");
}

TEST(CInterface, RefusesStatesThatAreNone) {
    const OwnSkin skin = Load(kAurora);
    for (const int32_t state : {-1, 9, INT32_MAX}) {
        EXPECT_EQ(vxgui_state_name(state), nullptr);
        EXPECT_EQ(vxgui_item_shows(vxgui_skin_item(skin.get(), 0), state), -1);
        EXPECT_THAT(vxgui_last_error(), HasSubstr("a number from 0 to 8 was expected"));
    }
}

TEST(CInterface, RefusesPixelsAndRectanglesThatCantBe) {
    const OwnSkin skin = Load(kAurora);
    vxgui_item* const button = vxgui_skin_item(skin.get(), 0);
    Pixels pixels(kWidth * kHeight);
    const auto refused = [&](const vxgui_pixels& target, const vxgui_rectangle& box) {
        return vxgui_item_draw(button, 0, "OK", &target, &box) == 0;
    };
    EXPECT_TRUE(refused({nullptr, kWidth, kHeight, kWidth * 4}, kBox));
    EXPECT_TRUE(refused({pixels.data(), kWidth, kHeight, kWidth * 2}, kBox));
    EXPECT_THAT(vxgui_last_error(), HasSubstr("140 by 50, 280 bytes a row"));
    EXPECT_TRUE(refused(Over(pixels), {0, 0, INT32_MAX, 34}));
    EXPECT_TRUE(refused(Over(pixels), {0, 0, 120, -1}));
    EXPECT_TRUE(refused(Over(pixels), {INT32_MIN, 0, 120, 34}));
    EXPECT_THAT(vxgui_last_error(), HasSubstr("-32767 to 32767 were expected"));
    EXPECT_EQ(pixels, Pixels(kWidth * kHeight));
}

TEST(CInterface, DrawsAnItemThatIsMuchLargerThanThePixels) {
    const OwnSkin skin = Load(kAurora);
    Pixels pixels(kWidth * kHeight);
    const vxgui_pixels target = Over(pixels);
    const vxgui_rectangle box{-16000, -16000, 32767, 32767};
    EXPECT_EQ(vxgui_item_draw(vxgui_skin_item(skin.get(), 0), 0, "OK", &target, &box), 1);
    EXPECT_NE(pixels, Pixels(kWidth * kHeight));
}

TEST(CInterface, KeepsErrorsOfThreadsApart) {
    EXPECT_EQ(vxgui_state_name(-1), nullptr);
    const std::string own = vxgui_last_error();
    std::string before = "unset", after;
    std::thread([&] {
        before = vxgui_last_error();
        vxgui_skin_load("/other.theme");
        after = vxgui_last_error();
    }).join();
    EXPECT_EQ(before, "");
    EXPECT_THAT(after, StartsWith("/other.theme"));
    EXPECT_EQ(vxgui_last_error(), own);
}

TEST(CInterface, DrawsInThreadsAtOnceWithASkinEach) {
    const OwnSkin skin = Load(kAurora);
    const Pixels expected = Drawn(vxgui_skin_item(skin.get(), 0), 1, "OK");
    std::atomic<int> right = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            const OwnSkin own = Load(kAurora);
            for (int round = 0; round < 20; ++round)
                right += Drawn(vxgui_skin_item(own.get(), 0), 1, "OK") == expected;
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(right, 80);
}

TEST(CInterface, ASkinOutlivesTheThreadThatLoadedIt) {
    OwnSkin skin;
    std::thread([&] { skin = Load(kAurora); }).join();
    const OwnSkin own = Load(kAurora);
    EXPECT_EQ(Drawn(vxgui_skin_item(skin.get(), 0), 2, "OK"),
              Drawn(vxgui_skin_item(own.get(), 0), 2, "OK"));
    std::thread([&] { skin.reset(); }).join();
}

TEST(Border, TurnsWhateverIsThrownIntoAResultAndAText) {
    const auto says = [](auto work, const char* text) {
        EXPECT_EQ(c::Guarded(-1, work), -1);
        EXPECT_STREQ(vxgui_last_error(), text);
    };
    says([]() -> int { throw Error(ErrorNumber::InvalidCall, "Source", "what"); }, "Source: what");
    says([]() -> int { throw std::runtime_error("plain"); }, "plain");
    says([]() -> int { throw 7; }, "error: of no kind that is known");
    says([]() -> int { throw std::bad_alloc(); },
         "error: no memory is left; a smaller skin or picture was expected");
    EXPECT_EQ(c::Guarded(-1, [] { return 4; }), 4);
}

}  // namespace
}  // namespace vxgui
