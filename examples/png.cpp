// A host without a window: paints an item of a skin over pixels of its own and saves them as a PNG.
// Usage: png SKIN ITEM [STATE [CAPTION [OUT.png]]], STATE as "Normal", "MouseOver" ...

#include <cstdio>
#include <vector>

#include "vxgui/vxgui.h"

using namespace vxgui;

namespace {

constexpr int32_t kWidth = 160, kHeight = 74, kMargin = 20;
constexpr uint32_t kGround = 0xFFE8ECF1;

int32_t StateOf(const String& name) {
    int32_t state = 0;
    while (state < E_ItemStateMax && !ThemeItem::StateName(state).EqualsNoCase(name)) ++state;
    return state;
}

bool Save(std::vector<uint32_t>& pixels, const char* output) {
    const auto bitmap = New<GpBitmap>();
    return bitmap->FromScan0(kWidth, kHeight, kWidth * 4, gdiplus::PixelFormat32bppPARGB,
                             reinterpret_cast<BYTE*>(pixels.data())) &&
           bitmap->Image()->SaveToFile_Png(output);
}

int Run(const char* path, const char* name, const char* stateName, const char* caption,
        const char* output) {
    const Skin skin = LoadSkin(path);
    const Ref<ThemeItem> item = FindItem(skin, name);
    const int32_t state = StateOf(stateName);
    if (state == E_ItemStateMax) {
        std::fprintf(stderr, "%s: no state; Normal, MouseOver, Pressed ... was expected\n",
                     stateName);
        return 2;
    }
    std::vector<uint32_t> pixels(kWidth * kHeight, kGround);
    PaintItem(*item, state, caption, {pixels.data(), kWidth, kHeight, kWidth * 4, false},
              {kMargin, kMargin, kWidth - kMargin, kHeight - kMargin});
    if (!Save(pixels, output)) {
        std::fprintf(stderr, "%s: can't be written\n", output);
        return 1;
    }
    std::printf("%s: %d x %d\n", output, kWidth, kHeight);
    return 0;
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc < 3) {
        std::fprintf(stderr, "usage: png SKIN ITEM [STATE [CAPTION [OUT.png]]]\n");
        return 2;
    }
    Global();  // sets the calling thread's apartment up
    return Run(argv[1], argv[2], argc > 3 ? argv[3] : "Normal", argc > 4 ? argv[4] : "",
               argc > 5 ? argv[5] : "item.png");
} catch (const Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
