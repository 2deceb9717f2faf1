// A host that loads any picture that the library reads (BMP, GIF, ICO, CUR, JPEG, PNG, TGA, TIFF)
// and paints it over a chequered ground, with an alpha and a key colour.
// Usage: picture IN [OUT.png [ALPHA [KEY]]], ALPHA 0 to 255, KEY as RRGGBB.

#include <cstdio>
#include <cstdlib>

#include "vxgui/vxgui.h"

using namespace vxgui;

namespace {

struct Options {
    const char* input;
    const char* output = "picture.png";
    uint8_t alpha = 255;
    int32_t key = -1;  ///< a COLORREF, or none
};

// RRGGBB as a COLORREF, which has red in its lowest byte.
int32_t KeyOf(const char* text) {
    const auto rgb = static_cast<int32_t>(std::strtol(text, nullptr, 16));
    return (rgb >> 16 & 0xFF) | (rgb & 0xFF00) | (rgb & 0xFF) << 16;
}

void PaintGround(gdi::HDC dc, int32_t width, int32_t height) {
    constexpr int32_t kCell = 8;
    const gdi::HBRUSH light = gdi::CreateSolidBrush(0xFFFFFF);
    const gdi::HBRUSH dark = gdi::CreateSolidBrush(0xC8C8C8);
    for (int32_t y = 0; y < height; y += kCell) {
        for (int32_t x = 0; x < width; x += kCell) {
            const gdi::RECT cell{x, y, x + kCell, y + kCell};
            gdi::FillRect(dc, &cell, (x + y) / kCell % 2 == 0 ? light : dark);
        }
    }
    gdi::DeleteObject(light);
    gdi::DeleteObject(dark);
}

// HIMETRIC, in which pictures give their size, to pixels of 96 to an inch.
int32_t PixelsOf(int32_t himetric) { return (himetric * 96 + 1270) / 2540; }

bool Paint(const Options& options) {
    const Ref<ole::Picture> picture = Global().LoadPicture2(options.input);
    if (!picture) {
        std::fprintf(stderr, "%s: no picture that can be read\n", options.input);
        return false;
    }
    const int32_t width = PixelsOf(picture->Width()), height = PixelsOf(picture->Height());
    const auto canvas = New<cAlphaDIBSection>();
    if (!canvas->Create(width, height)) return false;
    PaintGround(canvas->hDC(), width, height);
    Global().PaintPicture(canvas->hDC(), picture, 0, 0, width, height, 0, 0, -1, -1, options.alpha,
                          options.key);
    const auto bitmap = New<GpBitmap>();
    if (!bitmap->FromHBITMAP(canvas->hDIB()) || !bitmap->Image()->SaveToFile_Png(options.output)) {
        std::fprintf(stderr, "%s: can't be written\n", options.output);
        return false;
    }
    std::printf("%s: %d x %d\n", options.output, width, height);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: picture IN [OUT.png [ALPHA [KEY]]]\n");
        return 2;
    }
    Options options{argv[1]};
    if (argc > 2) options.output = argv[2];
    if (argc > 3) options.alpha = static_cast<uint8_t>(std::atoi(argv[3]));
    if (argc > 4) options.key = KeyOf(argv[4]);
    return Paint(options) ? 0 : 1;
}
