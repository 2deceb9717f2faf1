/* A program of plain Xlib with a skinned button, in C: the library paints into an XImage's memory.
 * Usage: x11 SKIN ITEM [CAPTION [--screenshot FILE.ppm]] */

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "vxgui/vxgui_c.h"

enum { MARGIN = 20 };

typedef struct host {
    Display* display;
    Window window;
    vxgui_item* item;
    const char* caption;
    int width, height;
    int over, down;
} host;

static int state_of(const host* host) {
    if (host->down) return VXGUI_STATE_PRESSED;
    return host->over ? VXGUI_STATE_MOUSE_OVER : VXGUI_STATE_NORMAL;
}

/* The window's picture, the button on a plain ground; XDestroyImage frees it. */
static XImage* paint(const host* host) {
    const int screen = DefaultScreen(host->display);
    const size_t count = (size_t)host->width * (size_t)host->height;
    uint32_t* const pixels = malloc(count * 4);
    if (!pixels) return NULL;
    for (size_t i = 0; i < count; ++i) pixels[i] = 0xFFE8ECF1;

    const vxgui_pixels target = {pixels, host->width, host->height, host->width * 4};
    const vxgui_rectangle box = {MARGIN, MARGIN, host->width - 2 * MARGIN,
                                 host->height - 2 * MARGIN};
    if (box.width > 0 && box.height > 0 &&
        !vxgui_item_draw(host->item, state_of(host), host->caption, &target, &box))
        fprintf(stderr, "%s\n", vxgui_last_error());
    return XCreateImage(host->display, DefaultVisual(host->display, screen),
                        (unsigned)DefaultDepth(host->display, screen), ZPixmap, 0, (char*)pixels,
                        (unsigned)host->width, (unsigned)host->height, 32, 0);
}

static void show(const host* host) {
    XImage* const image = paint(host);
    if (!image) return;
    XPutImage(host->display, host->window, DefaultGC(host->display, DefaultScreen(host->display)),
              image, 0, 0, 0, 0, (unsigned)host->width, (unsigned)host->height);
    XDestroyImage(image);
}

/* What the server shows, as a portable pixmap. */
static int screenshot(const host* host, const char* file) {
    XImage* const image = XGetImage(host->display, host->window, 0, 0, (unsigned)host->width,
                                    (unsigned)host->height, AllPlanes, ZPixmap);
    FILE* const out = fopen(file, "wb");
    if (!image || !out) return 1;
    fprintf(out, "P6 %d %d 255\n", host->width, host->height);
    for (int y = 0; y < host->height; ++y) {
        for (int x = 0; x < host->width; ++x) {
            const unsigned long pixel = XGetPixel(image, x, y);
            const unsigned char rgb[3] = {(unsigned char)(pixel >> 16), (unsigned char)(pixel >> 8),
                                          (unsigned char)pixel};
            fwrite(rgb, 1, 3, out);
        }
    }
    XDestroyImage(image);
    return fclose(out) == 0 ? 0 : 1;
}

static int is_over(const host* host, int x, int y) {
    return x >= MARGIN && y >= MARGIN && x < host->width - MARGIN && y < host->height - MARGIN;
}

static void follow(host* host, const XEvent* event) {
    switch (event->type) {
        case MotionNotify:
            host->over = is_over(host, event->xmotion.x, event->xmotion.y);
            break;
        case LeaveNotify:
            host->over = 0;
            break;
        case ButtonPress:
            host->down = host->over;
            break;
        case ButtonRelease:
            if (host->down && host->over) puts("clicked"), fflush(stdout);
            host->down = 0;
            break;
        case ConfigureNotify:
            host->width = event->xconfigure.width;
            host->height = event->xconfigure.height;
            break;
        default:
            break;
    }
}

static int work(host* host, const char* file) {
    Atom closing = XInternAtom(host->display, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(host->display, host->window, &closing, 1);
    XSelectInput(host->display, host->window,
                 ExposureMask | PointerMotionMask | LeaveWindowMask | ButtonPressMask |
                     ButtonReleaseMask | StructureNotifyMask);
    XMapWindow(host->display, host->window);
    for (;;) {
        XEvent event;
        XNextEvent(host->display, &event);
        if (event.type == ClientMessage && (Atom)event.xclient.data.l[0] == closing) return 0;
        follow(host, &event);
        show(host);
        if (file && event.type == Expose) return screenshot(host, file);
    }
}

int main(int argc, char** argv) {
    if (argc < 3) {
        fprintf(stderr, "usage: x11 SKIN ITEM [CAPTION [--screenshot FILE.ppm]]\n");
        return 2;
    }
    vxgui_skin* const skin = vxgui_skin_load(argv[1]);
    vxgui_item* const item = skin ? vxgui_skin_find_item(skin, argv[2]) : NULL;
    Display* const display = item ? XOpenDisplay(NULL) : NULL;
    if (!display) {
        fprintf(stderr, "%s\n",
                item ? "no display; the variable DISPLAY was expected to name one"
                     : vxgui_last_error());
        vxgui_skin_free(skin);
        return 1;
    }
    host host = {display, 0, item, argc > 3 ? argv[3] : argv[2], 160, 74, 0, 0};
    host.window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, 160, 74, 0, 0, 0);
    XStoreName(display, host.window, "VxGUI in plain Xlib");
    const int shot = argc > 5 && strcmp(argv[4], "--screenshot") == 0;
    const int status = work(&host, shot ? argv[5] : NULL);
    XCloseDisplay(display);
    vxgui_skin_free(skin);
    return status;
}
