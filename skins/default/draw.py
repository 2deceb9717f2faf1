#!/usr/bin/env python3
"""Draws the built-in styles: draw.py OUT writes the folder that is packed as their module.

Nothing is needed but Python 3. Each function draws one frame, of a scheme and in a state; `PARTS`
says which frames make a picture. The define files are templates with the scheme's colours.
"""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "art"))

from canvas import (Canvas, across, box, circle, colour, corners, down, everywhere, fade, inset, line,
                    polygon, ramp, solid, strip, turned, union)
from plates import bar, gradient, raised, ringed, stops, sunken, veiled
from schemes import SCHEMES
from writers import write_bmp, write_packed_tga

PLAIN = ("normal",)
STATES = ("normal", "over", "pressed", "disabled")
ALL_STATES = STATES + ("default", "focus", "focus pressed", "group")


# Menus, and the lists that stand on panels.

def menu_background(scheme, _state):
    """A panel with a tinted gutter for icons at its left."""
    frame = Canvas(48, 32)
    shape = box(0, 0, 48, 32, 3)
    frame.fill(shape, gradient(scheme.panel, 0, 32))
    frame.fill(lambda x, y: max(shape(x, y), x - 27),
               across(0, 27, [(0, colour(scheme.gutter[0])), (1, colour(scheme.gutter[1]))]))
    frame.fill(box(26, 1, 27, 31), solid(scheme.line), 0.7)
    frame.stroke(inset(shape, 1), 1, solid("#ffffff"), 0.85)
    frame.stroke(shape, 1, solid(scheme.frame))
    return frame


def selection(scheme, state, width=32, height=26):
    frame = Canvas(width, height)
    shape = box(0.5, 0.5, width - 0.5, height - 0.5, 4)
    if state == "over":
        raised(frame, shape, scheme.select, scheme.select_rim, 0, height, 0.42, 0)
    if state == "pressed":
        sunken(frame, box(0.5, 0.5, width - 0.5, height - 1.5, 4), scheme.select_pressed, scheme.select_rim,
               0, height)
    return frame


def group_background(scheme, _state):
    frame = Canvas(32, 32)
    shape = box(0, 0, 32, 32, 5)
    frame.fill(shape, gradient((scheme.panel[0], scheme.places[1]), 0, 32))
    frame.stroke(inset(shape, 1), 1, solid("#ffffff"), 0.9)
    frame.stroke(shape, 1, solid(scheme.frame))
    return frame


# The start panel: a heading, two lists side by side, and a foot.

def user_pane(scheme, _state):
    frame = Canvas(96, 60)
    shape = corners(0, 0, 96, 60, (9, 9, 0, 0))
    frame.fill(shape, gradient(scheme.head, 0, 60))
    frame.fill(lambda x, y: max(shape(x, y), y - 30), fade("#ffffff", 0.4, 0.08, 0, 30))
    frame.fill(shape, fade(scheme.glow, 0, 0.28, 34, 58))
    frame.stroke(inset(shape, 1), 1, fade("#ffffff", 0.75, 0.05, 0, 40))
    frame.stroke(shape, 1, solid(scheme.frame))
    frame.fill(box(1, 57, 95, 58), solid("#000000"), 0.18)
    frame.fill(box(1, 58, 95, 60), solid(scheme.glow), 0.85)
    return frame


def prog_list(scheme, _state):
    frame = Canvas(24, 24)
    frame.fill(everywhere(), gradient(scheme.panel, 0, 24))
    frame.fill(box(0, 0, 1, 24), solid(scheme.frame))
    frame.fill(box(1, 0, 24, 1), solid("#ffffff"))
    return frame


def places_list(scheme, _state):
    frame = Canvas(24, 24)
    frame.fill(everywhere(), gradient(scheme.places, 0, 24))
    frame.fill(box(0, 0, 1, 24), solid(scheme.line))
    frame.fill(box(1, 0, 2, 24), solid("#ffffff"), 0.9)
    frame.fill(box(23, 0, 24, 24), solid(scheme.frame))
    return frame


def separator(scheme, _state):
    """A groove that fades out at both ends."""
    frame = Canvas(64, 8)

    def faded(text):
        ends, middle = colour(text, 0), colour(text)
        return across(0, 64, [(0, ends), (0.3, middle), (0.7, middle), (1, ends)])

    frame.fill(box(0, 3, 64, 4), faded(scheme.line))
    frame.fill(box(0, 4, 64, 5), faded("#ffffff"), 0.8)
    return frame


def more_programs(scheme, state):
    frame = Canvas(40, 30)
    frame.fill(everywhere(), solid(scheme.panel[1]))
    frame.fill(everywhere(), fade(scheme.places[1], 0, 0.55, 4, 30))
    frame.fill(box(0, 0, 1, 30), solid(scheme.frame))
    if state in ("over", "pressed"):
        lit = selection(scheme, state, 36, 24)
        for y in range(24):
            for x in range(36):
                above, below = lit.pixels[y][x], frame.pixels[y + 3][x + 2]
                frame.pixels[y + 3][x + 2] = tuple(a + b * (1 - above[3]) for a, b in zip(above, below))
    return frame


def more_programs_arrow(scheme, state):
    frame = Canvas(18, 18)
    shape = polygon([(5.5, 3.2), (13.4, 9), (5.5, 14.8)])
    body = lambda x, y: shape(x, y) - 1.2
    pair = scheme.arrow[::-1] if state == "pressed" else scheme.arrow
    raised(frame, body, pair, pair[1], 2, 16, 0.7 if state == "over" else 0.45, 0.3)
    return veiled(frame, 0.4) if state == "disabled" else frame


def bottom_bar(scheme, _state):
    frame = Canvas(64, 42)
    shape = corners(0, 0, 64, 42, (0, 0, 9, 9))
    frame.fill(shape, gradient(scheme.foot, 0, 42))
    frame.fill(lambda x, y: max(shape(x, y), y - 18), fade("#ffffff", 0.26, 0.03, 0, 18))
    frame.stroke(shape, 1, solid(scheme.frame))
    frame.fill(box(1, 0, 63, 1), solid(scheme.glow), 0.85)
    frame.fill(box(1, 1, 63, 2), solid("#ffffff"), 0.3)
    return frame


def logon_button(scheme, state):
    frame = Canvas(30, 30)
    shape = box(3, 3, 27, 27, 7)
    if state == "over":
        ringed(frame, shape, scheme.glow, 0.8)
    if state == "pressed":
        sunken(frame, shape, scheme.ink_pressed, scheme.frame, 3, 27)
    else:
        raised(frame, shape, scheme.task_over if state == "over" else scheme.task, scheme.task_rim, 3, 27,
               0.5, 0.25)
    return veiled(frame, 0.45) if state == "disabled" else frame


def logon_background(scheme, _state):
    frame = Canvas(32, 48)
    frame.fill(everywhere(), gradient(scheme.foot, 0, 48))
    frame.fill(box(0, 0, 32, 20), fade("#ffffff", 0.24, 0.02, 0, 20))
    frame.fill(box(0, 0, 32, 1), solid(scheme.glow), 0.7)
    return frame


# The start button: a dark pill whose edge begins to glow.

def start_button(scheme, state):
    frame = Canvas(64, 34)
    shape = box(3, 3, 61, 31, 14)
    pair = {"over": scheme.ink_over, "pressed": scheme.ink_pressed}.get(state, scheme.ink)
    if state == "over":
        ringed(frame, shape, scheme.glow, 0.75)
    if state == "pressed":
        sunken(frame, shape, pair, scheme.bar_rim, 3, 31)
        frame.fill(inset(shape, 1), fade(scheme.glow, 0, 0.22, 15, 31))
    else:
        raised(frame, shape, pair, scheme.bar_rim, 3, 31, 0.34, 0.4)
        frame.fill(inset(shape, 1), fade(scheme.glow, 0, 0.42 if state == "over" else 0.2, 15, 31))
    return veiled(frame, 0.55) if state == "disabled" else frame


def star(cx, cy, reach, waist):
    """Four points: two slender rhombs that cross."""
    return union(
        polygon([(cx, cy - reach), (cx + waist, cy), (cx, cy + reach), (cx - waist, cy)]),
        polygon([(cx - reach, cy), (cx, cy - waist), (cx + reach, cy), (cx, cy + waist)]),
        circle(cx, cy, waist * 1.15))


def start_mark(scheme, state):
    """A star with a small companion; the left of the frame is the room before it."""
    frame = Canvas(32, 22)
    large, small = star(21, 11.5, 8.5, 2.5), star(28, 4.5, 3.4, 1.1)
    frame.glow(large, 4.5, solid(scheme.glow), 0.7 if state == "over" else 0.35)
    for shape in (large, small):
        frame.fill(shape, solid(scheme.mark))
    return veiled(frame, {"disabled": 0.45, "pressed": 0.85}.get(state, 1))


# The taskbar.

def horizontal(scheme, _state):
    return bar(16, 34, scheme.bar, scheme.bar_rim)


def quick_launch(scheme, _state):
    frame = Canvas(32, 32)
    shape = box(1, 3, 31, 29, 5)
    frame.fill(shape, fade("#000000", 0.2, 0.05, 3, 29))
    frame.stroke(shape, 1, fade("#000000", 0.28, 0.08, 3, 29))
    frame.fill(box(5, 29, 27, 30), solid("#ffffff"), 0.25)
    return frame


def plate(scheme, faces, rim, state):
    """A button of the taskbar; a group has a second one behind it."""
    frame = Canvas(44, 32)
    right = 38 if state == "group" else 42
    shape = box(2, 3, right, 28, 5)
    if state == "group":
        raised(frame, box(10, 3, 42, 28, 5), faces["normal"], rim, 3, 28, 0.2, 0.25)
    if state.startswith("focus") or state == "over":
        ringed(frame, shape, scheme.glow, 0.5 if state == "over" else 0.9)
    if state.endswith("pressed"):
        sunken(frame, shape, faces["pressed"], rim, 3, 28)
    else:
        lit = state in ("over", "focus")
        raised(frame, shape, faces["over" if lit else "normal"], rim, 3, 28, 0.46, 0.3)
    if state == "default":
        frame.stroke(inset(shape, 1), 1, solid(scheme.glow), 0.8)
    return veiled(frame, 0.5) if state == "disabled" else frame


def task_button(scheme, state):
    faces = {"normal": scheme.task, "over": scheme.task_over, "pressed": scheme.task_pressed}
    return plate(scheme, faces, scheme.task_rim, state)


def flashing_button(scheme, state):
    faces = {"normal": scheme.flash, "over": scheme.flash_over}
    return plate(scheme, faces, scheme.flash_rim, state)


def gripper(scheme, state):
    """Dots in quincunx, eight rows and columns apart, so that the middle repeats."""
    frame = Canvas(12, 34)
    strength = 1.0 if state == "over" else 0.7
    for n in range(3):
        for x, y in ((3.7, 7 + 8 * n), (7.7, 11 + 8 * n)):
            frame.fill(circle(x + 0.6, y + 0.7, 1.2), solid("#ffffff"), 0.75 * strength)
            frame.fill(circle(x, y, 1.2), solid(scheme.bar_rim), 0.75 * strength)
    return frame


def tray(scheme, _state):
    frame = bar(24, 34, scheme.tray, scheme.bar_rim)
    frame.fill(box(0, 1, 1, 33), solid(scheme.bar_rim), 0.8)
    frame.fill(box(1, 2, 2, 33), solid("#ffffff"), 0.4)
    return frame


def size_bar(scheme, state):
    frame = Canvas(16, 6)
    shade = stops(scheme.bar)
    lit = 0.35 if state == "over" else 0.0
    frame.fill(everywhere(), lambda x, y: ramp(shade, 0.1 + y / 8))
    frame.fill(everywhere(), solid("#ffffff"), lit)
    frame.fill(box(0, 0, 16, 1), solid(scheme.bar_rim))
    frame.fill(box(0, 1, 16, 2), solid("#ffffff"), 0.5)
    frame.fill(box(0, 5, 16, 6), solid(scheme.bar_rim), 0.55)
    return frame


def button_arrow(scheme, state):
    """A small orb with a chevron that points to what is hidden."""
    frame = Canvas(22, 22)
    shape = circle(11, 10.5, 7.5)
    if state == "over":
        ringed(frame, shape, scheme.glow, 0.9)
    if state == "pressed":
        sunken(frame, shape, scheme.ink_pressed, scheme.bar_rim, 3, 18)
    else:
        raised(frame, shape, scheme.ink_over if state == "over" else scheme.ink, scheme.bar_rim, 3, 18, 0.4, 0.35)
    frame.fill(line([(12.6, 7.2), (9.3, 10.5), (12.6, 13.8)], 1.9), solid(scheme.mark))
    return veiled(frame, 0.5) if state == "disabled" else frame


def upright(draw):
    """The same for a taskbar at the side of the screen."""
    return lambda scheme, state: turned(draw(scheme, state))


# Name of the picture, its frames, and whether it has alpha.
PARTS = (
    ("MenuBackground", menu_background, PLAIN, True),
    ("MenuItem", selection, STATES, True),
    ("UserPane", user_pane, PLAIN, True),
    ("ProgList", prog_list, PLAIN, False),
    ("PanelItem", selection, STATES, True),
    ("ProgListSeparator", separator, PLAIN, True),
    ("PlacesList", places_list, PLAIN, False),
    ("PlacesListSeparator", separator, PLAIN, True),
    ("MorePrograms", more_programs, STATES, True),
    ("MoreProgramsArrow", more_programs_arrow, STATES, True),
    ("BottomBar", bottom_bar, PLAIN, True),
    ("LogonButtons", logon_button, STATES, True),
    ("LogonBackground", logon_background, PLAIN, False),
    ("StartButton", start_button, STATES, True),
    ("StartMark", start_mark, STATES, True),
    ("Horz", horizontal, PLAIN, False),
    ("QuickLaunch", quick_launch, PLAIN, True),
    ("Button", task_button, ALL_STATES, True),
    ("FlashingButton", flashing_button, ("normal", "over"), True),
    ("Rebar", gripper, ("normal", "over"), True),
    ("Tray", tray, PLAIN, False),
    ("Size", size_bar, ("normal", "over"), False),
    ("ButtonArrow", button_arrow, STATES, True),
    ("Vert", upright(horizontal), PLAIN, False),
    ("RebarVert", upright(gripper), ("normal", "over"), True),
    ("TrayVert", upright(tray), PLAIN, False),
    ("SizeVert", upright(size_bar), ("normal", "over"), False),
    ("ButtonArrowVert", upright(button_arrow), STATES, True),
    ("GroupBackground", group_background, PLAIN, True),
)


def write_text(name, style, scheme, path):
    with open(os.path.join(HERE, name), encoding="ascii") as file:
        text = file.read().format(style=style, **{k: v for k, v in vars(scheme).items() if isinstance(v, str)})
    with open(path, "w", encoding="ascii", newline="\r\n") as file:
        file.write(text)


def main():
    out = sys.argv[1]
    texts, images = os.path.join(out, "TxtFiles"), os.path.join(out, "Image")
    for folder in (texts, images):
        os.makedirs(folder, exist_ok=True)
    for style, scheme in SCHEMES.items():
        write_text("style.ini", style, scheme, os.path.join(texts, style + ".INI"))
        write_text("taskbar.ini", style, scheme, os.path.join(texts, style + "TaskBar.INI"))
        for name, draw, states, alpha in PARTS:
            write, ending = (write_packed_tga, ".tga") if alpha else (write_bmp, ".bmp")
            write(strip([draw(scheme, state) for state in states]),
                  os.path.join(images, f"{style}.{name}{ending}"))


if __name__ == "__main__":
    main()
