#!/usr/bin/env python3
"""Draws the plain strips that the broken skins name: run it in any folder, it writes beside itself."""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "..", "skins", "art"))

from canvas import Canvas, box, solid, strip
from writers import write_bmp, write_png

SHADES = ("#3a6ea5", "#5b8fc7", "#2c5480", "#9aa7b4")


def plate(width, height, index):
    frame = Canvas(width, height)
    frame.fill(box(0, 0, width, height, 3), solid(SHADES[index % len(SHADES)]))
    return frame


def plates(width, height, count):
    return strip([plate(width, height, index) for index in range(count)])


def main():
    pictures = (
        (write_png, "theme/button.png", plates(20, 20, 4)),
        (write_png, "theme/mark.png", plates(8, 8, 3)),
        (write_png, "theme/wide.png", plates(12, 12, 10)),
        (write_bmp, "theme/strip.bmp", plate(41, 12, 0)),
        (write_bmp, "theme/plain.bmp", plate(16, 16, 0)),
        (write_png, "theme/spare.png", plate(16, 16, 1)),
        (write_bmp, "uis/menu-item.bmp", plates(20, 20, 2)),
        (write_bmp, "uis/pane.bmp", plate(24, 24, 0)),
        (write_bmp, "uis/strip.bmp", plate(41, 12, 0)),
        (write_bmp, "uis/buttons.bmp", plates(10, 20, 9)),
        (write_bmp, "uis/mark.bmp", plate(8, 8, 3)),
        (write_bmp, "uis/spare.bmp", plate(16, 16, 1)),
    )
    for write, name, picture in pictures:
        write(picture, os.path.join(HERE, name))
    for name in ("theme/note.png", "uis/note.bmp"):
        with open(os.path.join(HERE, name), "w") as file:
            file.write("These are words, whatever the name of the file says.\n")


if __name__ == "__main__":
    main()
