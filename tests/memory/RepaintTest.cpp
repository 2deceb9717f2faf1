#include "generated/Places.h"
#include "tests/memory/EveryFailure.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui::test {
namespace {

/// A host's window.
class Window {
public:
    Window() : pixels_(size_t{200} * 60) {
        dc_ = gdi::CreateHostDC({pixels_.data(), 200, 60, 800, false});
    }
    ~Window() { gdi::DeleteDC(dc_); }
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Everything that a control asks of its item, in every state.
    void Repaint(ThemeItem& item) {
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            item.State(state);
            item.DrawBackground(dc_, 2, 3, 150, 40, -1, -1);
            int32_t right = 150, bottom = 40;
            item.DrawText(dc_, caption_, 0, -1, 5, 5, right, bottom);
        }
    }
    void Clear() { std::ranges::fill(pixels_, 0xFF808080); }
    const std::vector<uint32_t>& Pixels() const { return pixels_; }

private:
    const String caption_ = "A caption, \xE7\xA1\xAE\xE5\xAE\x9A";
    std::vector<uint32_t> pixels_;
    gdi::HDC dc_;
};

void RepaintWithoutMemory(ThemeItem& item) {
    Window window;
    const auto repaint = [&] { window.Repaint(item); };
    window.Clear();
    repaint();
    const std::vector<uint32_t> expected = window.Pixels();
    FailEverywhere(repaint, [&] {
        window.Clear();
        repaint();
        EXPECT_TRUE(window.Pixels() == expected) << "the next repaint is another";
    });
}

TEST(RepaintWithoutMemory, EachItemOfAThemeSetPaintsTheSameAgain) {
    const Ref<ThemeSet> set = LoadThemeSetFile(VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme");
    for (int32_t i = 1; i <= set->ThemeItems()->Count(); ++i) {
        SCOPED_TRACE(i);
        RepaintWithoutMemory(*set->ThemeItems()->Item(i));
        if (HasFailure()) return;
    }
}

TEST(RepaintWithoutMemory, APartOfATaskbarPaintsTheSameAgain) {
    const Ref<SkinDef> skin = New<SkinDef>();
    skin->SkinPath(VXGUI_SOURCE_DIR "/skins/porcelain");
    skin->SkinName("Porcelain");
    skin->DefFile("porcelain.uis");
    skin->InitializeXPTaskbar();
    const Ref<ThemeItem> part = skin->Item("Taskbar.StartButton");
    ASSERT_NE(part, nullptr);
    RepaintWithoutMemory(*part);
}

}  // namespace
}  // namespace vxgui::test
