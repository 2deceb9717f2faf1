/** @file
 * The library for programs in C, and for languages that call C: loads a skin, lists its items, and
 * draws them with their captions into memory of the caller's.
 *
 * Text is UTF-8. Whatever gets NULL where a handle was expected answers that it failed, and so does
 * whatever can't do its work; vxgui_last_error then says why. Nothing is thrown and nothing aborts.
 *
 * Threads: a skin with its items is for one thread at a time, and any thread may be the next.
 * Different skins may be used at the same time. vxgui_last_error is the calling thread's own.
 */
#ifndef VXGUI_VXGUI_C_H
#define VXGUI_VXGUI_C_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#define VXGUI_C_API __attribute__((visibility("default")))

/** Of this header: major * 100 + minor. A library of the same major version and a minor one that is
 * no lower has all that is declared here. */
#define VXGUI_C_VERSION 902
/** Of the library that is running. */
VXGUI_C_API int32_t vxgui_version(void);

/** What kept the thread's last call that failed from its work; "" before the first one. A line for
 * each thing, "FILE:LINE:COLUMN: error: what is wrong and what was expected". Valid until the
 * thread's next call that fails. */
VXGUI_C_API const char* vxgui_last_error(void);

typedef struct vxgui_skin vxgui_skin;
typedef struct vxgui_item vxgui_item;

/** Loads the define file of a theme set, a compiled skin, the UIS file of a skin with its taskbar,
 * or a style of a module, "res:MODULE:STYLE". NULL when it can't be painted whole. */
VXGUI_C_API vxgui_skin* vxgui_skin_load(const char* path);
/** Its items, and the texts that they answer, end with it. NULL is taken, and does nothing. */
VXGUI_C_API void vxgui_skin_free(vxgui_skin* skin);

/** -1 when that fails. */
VXGUI_C_API int32_t vxgui_skin_item_count(const vxgui_skin* skin);
/** Counted from 0; NULL outside. */
VXGUI_C_API vxgui_item* vxgui_skin_item(vxgui_skin* skin, int32_t index);
/** By its name or by its section in the skin's file, in any case. NULL when there is none, with the
 * names of those that there are in vxgui_last_error. */
VXGUI_C_API vxgui_item* vxgui_skin_find_item(vxgui_skin* skin, const char* name);

typedef enum vxgui_kind {
    VXGUI_KIND_CONTROL = 0, /**< for the host's own windows */
    VXGUI_KIND_DESKTOP = 1  /**< a part of the taskbar or the start menu */
} vxgui_kind;

/** What the skin's author calls the item, else its section. NULL when that fails. */
VXGUI_C_API const char* vxgui_item_name(const vxgui_item* item);
/** A text to show the item with, "" for one that carries none. NULL when that fails. */
VXGUI_C_API const char* vxgui_item_caption(const vxgui_item* item);
/** A vxgui_kind; -1 when that fails. */
VXGUI_C_API int32_t vxgui_item_kind(const vxgui_item* item);

typedef enum vxgui_state {
    VXGUI_STATE_NORMAL = 0,
    VXGUI_STATE_MOUSE_OVER = 1,
    VXGUI_STATE_PRESSED = 2,
    VXGUI_STATE_DISABLED = 3,
    VXGUI_STATE_DEFAULT = 4,
    VXGUI_STATE_FOCUS = 5,
    VXGUI_STATE_FOCUS_PRESSED = 6,
    VXGUI_STATE_GROUP = 7,
    VXGUI_STATE_FOCUS_MOUSE_OVER = 8,
    VXGUI_STATE_COUNT = 9
} vxgui_state;

/** "Normal", "MouseOver" ...; NULL for a number that is no state. */
VXGUI_C_API const char* vxgui_state_name(int32_t state);
/** 1 when the item has a picture to show in that state, 0 when it hasn't, -1 when that fails. */
VXGUI_C_API int32_t vxgui_item_shows(vxgui_item* item, int32_t state);

/** The size in pixels at which nothing of the item is stretched. Answers 1; 0 when that fails. */
VXGUI_C_API int32_t vxgui_item_size(vxgui_item* item, int32_t* width, int32_t* height);

/** The caller's pixels, four bytes each: blue, green, red and alpha, the colours premultiplied. */
typedef struct vxgui_pixels {
    void* top;        /**< the top row; a multiple of 4 */
    int32_t width;    /**< pixels, above 0 */
    int32_t height;   /**< pixels, above 0 */
    ptrdiff_t stride; /**< bytes from a row to the one below: a multiple of 4, below 0 too */
} vxgui_pixels;

/** Where an item goes, in pixels from the top left; up to 32767 each way. Any of it may lie outside
 * of the caller's pixels, where nothing is drawn. */
typedef struct vxgui_rectangle {
    int32_t x, y, width, height;
} vxgui_rectangle;

/** Draws an item in a state over what the pixels hold, and a caption in the item's font and colours
 * inside its margins, unless that is NULL or "". A "&" underlines the letter behind it. Nothing
 * outside of the rectangle is touched. Where all of it was opaque it stays so; else what the item
 * leaves clear, or half so, lets the pixels shine through. Answers 1; 0 when that fails. */
VXGUI_C_API int32_t vxgui_item_draw(vxgui_item* item, int32_t state, const char* caption,
                                    const vxgui_pixels* pixels, const vxgui_rectangle* rectangle);

#ifdef __cplusplus
}
#endif

#endif
