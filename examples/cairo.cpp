// A cairo program: the library paints items into the memory of an image surface, between drawing of
// cairo's own, on clear pixels as well as on opaque ones.
// Usage: cairo SKIN ITEM [CAPTION [OUT.png [--clear]]]

#include <cairo.h>

#include <cstdio>
#include <cstring>

#include "vxgui/vxgui.h"

using namespace vxgui;

namespace {

constexpr int kWidth = 160, kHeight = 74, kMargin = 20;

void PaintGround(cairo_surface_t* surface) {
    cairo_t* const cr = cairo_create(surface);
    cairo_set_source_rgb(cr, 0xE8 / 255.0, 0xEC / 255.0, 0xF1 / 255.0);
    cairo_paint(cr);
    cairo_destroy(cr);
}

// The format ARGB32 of cairo is the library's: premultiplied, blue lowest in memory.
bool PaintButton(cairo_surface_t* surface, ThemeItem& item, const char* caption) {
    cairo_surface_flush(surface);
    const gdi::HostPixels pixels{cairo_image_surface_get_data(surface), kWidth, kHeight,
                                 cairo_image_surface_get_stride(surface), false};
    const bool painted = PaintItem(item, E_ItemStateNormal, caption, pixels,
                                   {kMargin, kMargin, kWidth - kMargin, kHeight - kMargin});
    cairo_surface_mark_dirty(surface);
    return painted;
}

int Run(const char* path, const char* name, const char* caption, const char* output, bool clear) {
    const Skin skin = LoadSkin(path);
    cairo_surface_t* const surface =
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kWidth, kHeight);
    if (!clear) PaintGround(surface);
    const bool saved = PaintButton(surface, *FindItem(skin, name), caption) &&
                       cairo_surface_write_to_png(surface, output) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    if (!saved) std::fprintf(stderr, "%s: can't be written\n", output);
    return saved ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc < 3) {
        std::fprintf(stderr, "usage: cairo SKIN ITEM [CAPTION [OUT.png [--clear]]]\n");
        return 2;
    }
    Global();  // sets the calling thread's apartment up
    const bool clear = argc > 5 && std::strcmp(argv[5], "--clear") == 0;
    return Run(argv[1], argv[2], argc > 3 ? argv[3] : argv[2], argc > 4 ? argv[4] : "item.png",
               clear);
} catch (const Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
