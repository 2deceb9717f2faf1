/* A host in C outside the tree: it sees the installed header and libraries alone. */
#include <stdio.h>
#include <string.h>

#include "vxgui/vxgui_c.h"

int main(void) {
    vxgui_skin* const skin = vxgui_skin_load("nowhere.theme");
    const int told = !skin && strstr(vxgui_last_error(), "nowhere.theme: error: ") != NULL;
    printf("library %d, %s\n", (int)vxgui_version(), told ? "tells its error" : "says nothing");
    vxgui_skin_free(skin);
    return told ? 0 : 1;
}
