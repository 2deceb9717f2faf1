#include <gtest/gtest.h>

#include "generated/Places.h"
#include "vxgui/base/String.h"
#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/ThemeSetFile.h"

namespace vxgui {
namespace {

/// The real kernel on a machine where the module of the flat functions isn't installed.
class KernelWithoutFlatModule : public kernel::Kernel {
public:
    kernel::HMODULE GetModuleHandleA(const char* name) override {
        return IsAbsent(name) ? nullptr : kernel::RealKernel().GetModuleHandleA(name);
    }
    kernel::HMODULE LoadLibraryA(const char* name) override {
        if (!IsAbsent(name)) return kernel::RealKernel().LoadLibraryA(name);
        ++asked;
        return nullptr;
    }
    BOOL FreeLibrary(kernel::HMODULE module) override {
        return kernel::RealKernel().FreeLibrary(module);
    }
    kernel::FARPROC GetProcAddress(kernel::HMODULE module, const char* name) override {
        return kernel::RealKernel().GetProcAddress(module, name);
    }
    String GetModuleFileNameA(kernel::HMODULE module) override {
        return kernel::RealKernel().GetModuleFileNameA(module);
    }
    int MessageBox(const String& text, const String&, UINT) override {
        boxes.push_back(text.Utf8());
        return kernel::IDOK;
    }
    void ExitProcess(UINT) override { ADD_FAILURE() << "nobody ends the program"; }

    int asked = 0;
    std::vector<std::string> boxes;

private:
    static bool IsAbsent(const char* name) { return String(name).EqualsNoCase("GDIPLUS.DLL"); }
};

class WithoutFlatModule : public testing::Test {
protected:
    WithoutFlatModule() { StartAfresh(&kernel_); }
    ~WithoutFlatModule() override { StartAfresh(nullptr); }

    static void StartAfresh(kernel::Kernel* kernel) {
        UnbindAllStubs();
        gGdiplusModule = nullptr;
        gGdipToken = 0;
        kernel::SetKernel(kernel);
    }

    KernelWithoutFlatModule kernel_;
};

std::vector<uint32_t> Painted(ThemeItem& item, int32_t state) {
    std::vector<uint32_t> pixels(150 * 50, 0xFF7F5F3F);
    const gdi::HDC dc = gdi::CreateHostDC({pixels.data(), 150, 50, 600, false});
    item.State(state);
    item.DrawBackground(dc, 0, 0, 150, 50, -1, -1);
    int32_t right = 150, bottom = 50;
    item.DrawText(dc, "Caption", 0, -1, 0, 0, right, bottom);
    gdi::DeleteDC(dc);
    return pixels;
}

bool LosesAPicture(const ThemeItem& with, const ThemeItem& without) {
    return (with.Image() && !without.Image()) || (with.Glyph() && !without.Glyph());
}

TEST_F(WithoutFlatModule, ASkinIsLoadedAndPaintedAsEver) {
    const String path = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";
    const Ref<ThemeSet> without = LoadThemeSetFile(path);
    std::vector<std::vector<uint32_t>> pictures;
    for (int32_t n = 1; n <= without->ThemeItems()->Count(); ++n)
        for (int32_t state = 0; state < E_ItemStateMax; ++state)
            pictures.push_back(Painted(*without->ThemeItems()->Item(n), state));
    EXPECT_TRUE(kernel_.boxes.empty()) << kernel_.boxes.front();
    StartAfresh(nullptr);
    const Ref<ThemeSet> with = LoadThemeSetFile(path);
    size_t same = 0, picture = 0, losing = 0;
    for (int32_t n = 1; n <= with->ThemeItems()->Count(); ++n) {
        const bool lost =
            LosesAPicture(*with->ThemeItems()->Item(n), *without->ThemeItems()->Item(n));
        losing += lost;
        for (int32_t state = 0; state < E_ItemStateMax; ++state, ++picture) {
            const bool equal = Painted(*with->ThemeItems()->Item(n), state) == pictures[picture];
            same += equal;
            EXPECT_TRUE(equal || lost) << "item " << n << ", state " << state;
        }
    }
    EXPECT_EQ(losing, 3u) << "three pictures are PNG, which the flat functions alone can read";
    EXPECT_GE(same, pictures.size() - 3 * E_ItemStateMax);
}

}  // namespace
}  // namespace vxgui
