/* A host in plain C, without a window: lists the items of a skin, or draws one of them with a
 * caption into memory of its own and saves it as a portable pixmap. Usage: c_host SKIN [ITEM [STATE
 * [CAPTION [OUT.ppm]]]], STATE as "Normal", "MouseOver" ... */

#include <stdio.h>
#include <string.h>

#include "vxgui/vxgui_c.h"

enum { WIDTH = 160, HEIGHT = 74, MARGIN = 20 };

static void list_item(vxgui_item* item) {
    int32_t width, height;
    vxgui_item_size(item, &width, &height);
    printf("%s (%s), %d x %d:", vxgui_item_name(item),
           vxgui_item_kind(item) == VXGUI_KIND_DESKTOP ? "desktop" : "control", (int)width,
           (int)height);
    for (int32_t state = 0; state < VXGUI_STATE_COUNT; ++state)
        if (vxgui_item_shows(item, state) == 1) printf(" %s", vxgui_state_name(state));
    printf("\n");
}

static int list_items(vxgui_skin* skin) {
    const int32_t count = vxgui_skin_item_count(skin);
    for (int32_t i = 0; i < count; ++i) list_item(vxgui_skin_item(skin, i));
    return 0;
}

/* VXGUI_STATE_COUNT when it is no state's name. */
static int32_t state_of(const char* name) {
    int32_t state = 0;
    while (state < VXGUI_STATE_COUNT && strcmp(vxgui_state_name(state), name) != 0) ++state;
    return state;
}

static int save(const uint32_t* pixels, const char* file) {
    FILE* const out = fopen(file, "wb");
    if (!out) return 0;
    fprintf(out, "P6 %d %d 255\n", WIDTH, HEIGHT);
    for (int i = 0; i < WIDTH * HEIGHT; ++i) {
        const unsigned char rgb[3] = {(unsigned char)(pixels[i] >> 16),
                                      (unsigned char)(pixels[i] >> 8), (unsigned char)pixels[i]};
        fwrite(rgb, 1, 3, out);
    }
    return fclose(out) == 0;
}

static int draw_item(vxgui_skin* skin, const char* name, const char* state, const char* caption,
                     const char* file) {
    static uint32_t pixels[WIDTH * HEIGHT];
    for (int i = 0; i < WIDTH * HEIGHT; ++i) pixels[i] = 0xFFE8ECF1;

    vxgui_item* const item = vxgui_skin_find_item(skin, name);
    const vxgui_pixels target = {pixels, WIDTH, HEIGHT, WIDTH * 4};
    const vxgui_rectangle box = {MARGIN, MARGIN, WIDTH - 2 * MARGIN, HEIGHT - 2 * MARGIN};
    if (!item || !vxgui_item_draw(item, state_of(state), caption, &target, &box)) {
        fprintf(stderr, "%s\n", vxgui_last_error());
        return 1;
    }
    if (!save(pixels, file)) {
        fprintf(stderr, "%s: can't be written\n", file);
        return 1;
    }
    printf("%s: %d x %d\n", file, WIDTH, HEIGHT);
    return 0;
}

int main(int argc, char** argv) {
    if (argc < 2) {
        fprintf(stderr, "usage: c_host SKIN [ITEM [STATE [CAPTION [OUT.ppm]]]]\n");
        return 2;
    }
    if (vxgui_version() < VXGUI_C_VERSION) {
        fprintf(stderr, "libvxgui %d is older than this program, which was built with %d\n",
                (int)vxgui_version(), VXGUI_C_VERSION);
        return 1;
    }
    vxgui_skin* const skin = vxgui_skin_load(argv[1]);
    if (!skin) {
        fprintf(stderr, "%s\n", vxgui_last_error());
        return 1;
    }
    const int status = argc < 3
                           ? list_items(skin)
                           : draw_item(skin, argv[2], argc > 3 ? argv[3] : "Normal",
                                       argc > 4 ? argv[4] : "", argc > 5 ? argv[5] : "item.ppm");
    vxgui_skin_free(skin);
    return status;
}
