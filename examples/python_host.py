#!/usr/bin/env python3
"""A host in Python, over the C interface by ctypes: lists the items of a skin, or draws one of them
with a caption into memory of its own and saves it as a PNG.
Usage: python_host.py SKIN [ITEM [STATE [CAPTION [OUT.png]]]]
The variable VXGUI_LIBRARY names libvxgui.so where the system doesn't find it by itself."""
import ctypes
import ctypes.util
import os
import struct
import sys
import zlib

WIDTH, HEIGHT, MARGIN, GROUND = 160, 74, 20, 0xFFE8ECF1


class Pixels(ctypes.Structure):
    _fields_ = [("top", ctypes.c_void_p), ("width", ctypes.c_int32), ("height", ctypes.c_int32),
                ("stride", ctypes.c_ssize_t)]


class Rectangle(ctypes.Structure):
    _fields_ = [(name, ctypes.c_int32) for name in ("x", "y", "width", "height")]


def load_library():
    path = os.environ.get("VXGUI_LIBRARY") or ctypes.util.find_library("vxgui")
    if not path:
        sys.exit("libvxgui isn't there; VXGUI_LIBRARY was expected to name it")
    try:
        library = ctypes.CDLL(path)
    except OSError as error:
        sys.exit(str(error))
    handle, text, number = ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int32
    for name, result, arguments in (
            ("last_error", text, []),
            ("skin_load", handle, [text]),
            ("skin_free", None, [handle]),
            ("skin_item_count", number, [handle]),
            ("skin_item", handle, [handle, number]),
            ("skin_find_item", handle, [handle, text]),
            ("item_name", text, [handle]),
            ("item_kind", number, [handle]),
            ("item_size", number, [handle, ctypes.POINTER(number), ctypes.POINTER(number)]),
            ("item_shows", number, [handle, number]),
            ("item_draw", number, [handle, number, text, ctypes.POINTER(Pixels),
                                   ctypes.POINTER(Rectangle)]),
            ("state_name", text, [number])):
        function = getattr(library, "vxgui_" + name)
        function.restype, function.argtypes = result, arguments
    return library


VXGUI = load_library()


def required(result):
    """What a function of the library answered; its error, as an exception, where it failed."""
    if result in (None, 0, -1):
        raise ValueError(VXGUI.vxgui_last_error().decode())
    return result


def state_names():
    return [VXGUI.vxgui_state_name(state).decode() for state in range(9)]


def state_of(name):
    if name not in state_names():
        raise ValueError(f"no state {name}; one of {', '.join(state_names())} was expected")
    return state_names().index(name)


def list_items(skin):
    for index in range(VXGUI.vxgui_skin_item_count(skin)):
        item = required(VXGUI.vxgui_skin_item(skin, index))
        width, height = ctypes.c_int32(), ctypes.c_int32()
        required(VXGUI.vxgui_item_size(item, width, height))
        kind = ("control", "desktop")[VXGUI.vxgui_item_kind(item)]
        shown = [name for state, name in enumerate(state_names())
                 if VXGUI.vxgui_item_shows(item, state) == 1]
        print(f"{VXGUI.vxgui_item_name(item).decode()} ({kind}), {width.value} x {height.value}: "
              + " ".join(shown))


def png_of(pixels):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    rows = b"".join(b"\0" + b"".join(struct.pack(">I", pixels[y * WIDTH + x])[1:] for x in range(WIDTH))
                    for y in range(HEIGHT))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def draw_item(skin, name, state="Normal", caption="", output="item.png"):
    item = required(VXGUI.vxgui_skin_find_item(skin, name.encode()))
    pixels = (ctypes.c_uint32 * (WIDTH * HEIGHT))(*[GROUND] * (WIDTH * HEIGHT))
    target = Pixels(ctypes.addressof(pixels), WIDTH, HEIGHT, WIDTH * 4)
    box = Rectangle(MARGIN, MARGIN, WIDTH - 2 * MARGIN, HEIGHT - 2 * MARGIN)
    required(VXGUI.vxgui_item_draw(item, state_of(state), caption.encode(), target, box))
    with open(output, "wb") as file:
        file.write(png_of(pixels))
    print(f"{output}: {WIDTH} x {HEIGHT}")


def main(arguments):
    if not arguments:
        sys.exit(__doc__)
    skin = required(VXGUI.vxgui_skin_load(arguments[0].encode()))
    try:
        draw_item(skin, *arguments[1:]) if len(arguments) > 1 else list_items(skin)
    finally:
        VXGUI.vxgui_skin_free(skin)


if __name__ == "__main__":
    try:
        main(sys.argv[1:])
    except ValueError as error:
        sys.exit(str(error))
