/* The header in the language that it is for: it compiles by itself, as C11 and with nothing but
 * warnings that are errors. CInterfaceTest.cpp calls these. */
#include "vxgui/vxgui_c.h"

_Static_assert(VXGUI_STATE_COUNT == 9, "as many states as an item has");

int32_t version_of_c(void) { return VXGUI_C_VERSION; }

/* Each function by its address, so that a declaration that isn't the library's doesn't link. */
int32_t functions_of_c(void) {
    vxgui_skin* (*const load)(const char*) = vxgui_skin_load;
    void (*const end)(vxgui_skin*) = vxgui_skin_free;
    int32_t (*const draw)(vxgui_item*, int32_t, const char*, const vxgui_pixels*,
                          const vxgui_rectangle*) = vxgui_item_draw;
    return load && end && draw;
}
