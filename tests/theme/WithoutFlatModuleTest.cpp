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

std::vector<std::vector<uint32_t>> AllPainted(const ThemeSet& set) {
    std::vector<std::vector<uint32_t>> pictures;
    for (int32_t n = 1; n <= set.ThemeItems()->Count(); ++n)
        for (int32_t state = 0; state < E_ItemStateMax; ++state)
            pictures.push_back(Painted(*set.ThemeItems()->Item(n), state));
    return pictures;
}

TEST_F(WithoutFlatModule, ASkinIsLoadedAndPaintedAsEver) {
    const String path = VXGUI_SOURCE_DIR "/skins/aurora/aurora.theme";
    const Ref<ThemeSet> with = LoadThemeSetFile(path);
    const auto expected = AllPainted(*with);
    StartAfresh(&kernel_);
    const Ref<ThemeSet> without = LoadThemeSetFile(path);
    const auto pictures = AllPainted(*without);
    EXPECT_TRUE(kernel_.boxes.empty()) << kernel_.boxes.front();
    size_t losing = 0;
    for (int32_t n = 1; n <= with->ThemeItems()->Count(); ++n) {
        if (LosesAPicture(*with->ThemeItems()->Item(n), *without->ThemeItems()->Item(n))) {
            ++losing;
            continue;
        }
        const size_t first = static_cast<size_t>(n - 1) * E_ItemStateMax;
        for (size_t state = 0; state < E_ItemStateMax; ++state)
            EXPECT_EQ(pictures[first + state], expected[first + state]) << n << ", " << state;
    }
    EXPECT_EQ(losing, 3u) << "three pictures are PNG, which the flat functions alone can read";
}

}  // namespace
}  // namespace vxgui
