#!/usr/bin/env python3
"""Draws the art of the Aurora skin: run it in any folder, it writes beside itself.

Nothing is needed but Python 3. Each function draws one strip; `main` says what file it becomes.
"""
import math
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "art"))

from canvas import (Canvas, across, box, circle, colour, corners, down, everywhere, inset, line,
                    moved, polygon, ramp, solid, strip)
from writers import write_bmp, write_png, write_tga

EDGE, NIGHT, SLATE, STEEL, FOG = "#0a1018", "#18222f", "#263549", "#3a4e67", "#5b7390"
MINT, CYAN, VIOLET, SNOW = "#3ff0b0", "#38c6f4", "#8f7bff", "#eef6fc"
AURORA = [(0.0, colour(MINT)), (0.5, colour(CYAN)), (1.0, colour(VIOLET))]


def tone(top, bottom, y0, y1):
    return down(y0, y1, [(0.0, colour(top)), (1.0, colour(bottom))])


# Buttons: a raised plate with a soft shadow; the light under it wakes when the mouse comes.

BUTTON_FACES = {
    "normal": (STEEL, SLATE), "over": ("#47607e", "#2c3e56"), "pressed": ("#1b2736", "#22303f"),
    "disabled": ("#2b3746", "#27323f"), "default": (STEEL, SLATE), "focus": (STEEL, SLATE),
}


def button(state):
    frame = Canvas(40, 34)
    plate = box(4, 3, 36, 29, 7)
    if state == "focus":
        frame.glow(plate, 4, solid(CYAN), 0.9)
    else:
        frame.glow(moved(plate, 0, 1.5), 4, solid("#000000"), 0.15 if state == "disabled" else 0.4)
    frame.fill(plate, tone(*BUTTON_FACES[state], 3, 29))
    if state == "pressed":
        frame.stroke(plate, 3, down(3, 12, [(0, colour("#000000", 0.45)), (1, colour("#000000", 0))]))
    else:
        frame.stroke(inset(plate, 1), 1, down(3, 16, [(0, colour(SNOW, 0.3)), (1, colour(SNOW, 0.03))]))
    rim = {"default": CYAN, "focus": CYAN, "disabled": "#1c2530"}.get(state, EDGE)
    frame.stroke(plate, 1, solid(rim))
    if state in ("over", "focus"):
        frame.fill(box(11, 25.5, 29, 27.5, 1), solid(MINT), 0.9)
    if state == "default":
        frame.fill(box(11, 25.5, 29, 27.5, 1), solid(CYAN), 0.55)
    return frame


# Check boxes and radio buttons: glyphs, so that the caption stands beside them.

def well(frame, shape, state):
    """The sunken ground of a check box or radio button."""
    lit = state in ("over", "focus")
    if state == "focus":
        frame.glow(shape, 2.2, solid(CYAN), 0.9)
    frame.fill(shape, solid("#2b3746") if state == "disabled" else tone("#0f1722", "#1d2937", 2, 18))
    frame.stroke(shape, 1.2, solid(CYAN if lit else "#3a4655" if state == "disabled" else FOG))


def lit(shape, frame):
    """The ground of a check box or radio button that is set."""
    frame.glow(shape, 2, solid(MINT), 0.35)
    frame.fill(shape, down(2, 18, [(0, colour("#5ff7c2")), (1, colour("#1fb48a"))]))
    frame.stroke(shape, 1, solid("#0c5f4a"))


def checkbox(state):
    frame = Canvas(20, 20)
    shape = box(3, 3, 17, 17, 3.5)
    if state in ("checked", "mixed"):
        lit(shape, frame)
    else:
        well(frame, shape, state)
    if state == "checked":
        frame.fill(line([(6.2, 10.2), (8.9, 13.0), (13.8, 7.0)], 2.2), solid("#062b22"))
    if state == "mixed":
        frame.fill(line([(6.8, 10), (13.2, 10)], 2.4), solid("#062b22"))
    return frame


def radio(state):
    frame = Canvas(20, 20)
    shape = circle(10, 10, 7)
    if state in ("checked", "mixed"):
        lit(shape, frame)
    else:
        well(frame, shape, state)
    if state == "checked":
        frame.fill(circle(10, 10, 3), solid("#062b22"))
    if state == "mixed":
        frame.fill(circle(10, 10, 3), solid("#062b22"), 0.5)
    return frame


MARKS = ("normal", "over", "checked", "disabled", "focus", "mixed")


# Tabs: one rim colour all round, so that the picture may carry its alpha in a PNG.

def tab(state):
    frame = Canvas(36, 30)
    top = 1 if state in ("selected", "focus") else 4
    shape = corners(1, top, 35, 34, (8, 8, 0, 0))
    faces = {"normal": ("#243246", "#1b2634"), "over": ("#33475f", "#233145"),
             "selected": ("#3f5673", "#2b3c52"), "disabled": ("#202a36", "#1e2731"),
             "focus": ("#466082", "#2b3c52")}
    frame.fill(shape, tone(*faces[state], top, 30))
    frame.stroke(inset(shape, 1), 1, down(top, top + 10, [(0, colour(SNOW, 0.22)), (1, colour(SNOW, 0))]))
    frame.stroke(shape, 1, solid(EDGE))
    if state in ("selected", "focus"):
        frame.fill(box(9, 2.4, 27, 4.6, 1.1), solid(MINT if state == "selected" else CYAN))
    return frame


# Scroll bar: hard edges and a colour key.

def thumb(state):
    frame = Canvas(18, 40)
    faces = {"normal": (STEEL, SLATE), "over": ("#4c6788", "#31455f"), "pressed": ("#2f8f8d", "#1f6a72"),
             "disabled": ("#2a3543", "#252f3b")}
    shape = box(1, 1, 17, 39, 4)
    frame.fill(shape, across(1, 17, [(0, colour(faces[state][0])), (1, colour(faces[state][1]))]))
    frame.stroke(inset(shape, 1), 1, across(1, 17, [(0, colour(SNOW, 0.28)), (0.5, colour(SNOW, 0.02)), (1, colour(SNOW, 0.02))]))
    for y in range(8, 32, 4):  # ridges four rows apart: the middle tiles without a joint
        frame.fill(box(6, y + 1, 12, y + 2), solid("#000000"), 0.35)
        frame.fill(box(6, y + 2, 12, y + 3), solid(SNOW), 0.22)
    frame.stroke(shape, 1, solid(EDGE))
    return frame


def arrow_plate(state):
    frame = Canvas(20, 20)
    faces = {"normal": (STEEL, SLATE), "over": ("#4c6788", "#31455f"), "pressed": ("#1b2736", "#243447"),
             "disabled": ("#2a3543", "#252f3b")}
    shape = box(1, 1, 19, 19, 3)
    frame.fill(shape, tone(*faces[state], 1, 19))
    frame.stroke(inset(shape, 1), 1, down(1, 10, [(0, colour(SNOW, 0.25)), (1, colour(SNOW, 0.02))]))
    frame.stroke(shape, 1, solid(EDGE))
    return frame


def arrow_mark(strength):
    frame = Canvas(11, 8)
    frame.fill(line([(2, 5.6), (5.5, 2.2), (9, 5.6)], 1.9), solid(SNOW), strength)
    return frame


# Progress: a sunken track, and a fill whose stripes meet at every sixteenth column.

def track(_state):
    frame = Canvas(24, 20)
    shape = box(1, 1, 23, 19, 6)
    frame.fill(shape, tone("#0b121b", "#1b2736", 1, 19))
    frame.stroke(shape, 1, solid("#05090e"))
    frame.stroke(inset(shape, 1), 1, down(12, 19, [(0, colour(SNOW, 0)), (1, colour(SNOW, 0.14))]))
    return frame


def progress(state):
    frame = Canvas(48, 20)
    shape = box(3, 3, 45, 17, 4.5)
    high, low = ("#54f3bc", "#1ea98c") if state == "normal" else ("#66747f", "#414d58")
    frame.fill(shape, tone(high, low, 3, 17))

    def stripes(x, y):
        phase = (x + y) % 16
        cover = max(0.0, min(1.0, min(phase, 8 - phase) + 0.5))
        return colour(SNOW, 0.22 * cover)

    frame.fill(shape, stripes)
    frame.fill(box(3, 3, 45, 10, 4.5), solid(SNOW), 0.14)
    frame.stroke(shape, 1, solid("#0c5f4a" if state == "normal" else "#2b343d"))
    return frame


# Edit frame: opaque inside, keyed corners, one frame below the other.

def edit(state):
    frame = Canvas(26, 24)
    shape = box(0, 0, 26, 24, 3)
    frame.fill(shape, solid("#1f2833") if state == "disabled" else tone("#0f1620", "#141d29", 0, 24))
    rims = {"normal": "#44566c", "over": FOG, "disabled": "#333f4d", "focus": CYAN}
    frame.stroke(shape, 2 if state == "focus" else 1, solid(rims[state]))
    if state != "focus":
        frame.fill(box(2, 1, 24, 3), down(1, 3, [(0, colour("#000000", 0.5)), (1, colour("#000000", 0))]))
    return frame


# Panel: a woven ground that tiles every eight pixels both ways.

def panel(_state):
    frame = Canvas(48, 48)
    shape = box(1, 1, 47, 47, 9)
    frame.fill(shape, solid(NIGHT))

    def weave(x, y):
        u, v = (x - 12) % 8 - 4, (y - 12) % 8 - 4
        return colour(SNOW, 0.05) if (abs(u) < 1) != (abs(v) < 1) else colour("#000000", 0.04)

    frame.fill(inset(shape, 2), weave)
    frame.stroke(shape, 1.6, solid(EDGE))
    frame.stroke(inset(shape, 1.6), 1, solid(FOG), 0.35)
    return frame


# Banner: northern lights on a plain field, copied once and the rest filled.

def banner(_state):
    frame = Canvas(168, 72)
    frame.fill(everywhere(), solid(NIGHT))

    def lights(x, y):
        u = (x - 84) / 84
        fall = max(0.0, 1 - abs(u)) ** 1.4
        crest = 34 + 9 * math.sin(x / 19.0) - 5 * math.sin(x / 7.3 + 1)
        rise = crest - y
        body = math.exp(-rise / 15) if rise > 0 else math.exp(rise / 3.2)
        rays = 0.72 + 0.28 * math.sin(x * 0.9 + 3 * math.sin(x / 11))
        keep = max(0.0, min(1.0, min(y - 3, 69 - y) / 6))
        return ramp(AURORA, x / 168)[:3] + (min(1.0, 0.95 * body * fall * rays) * keep,)

    frame.fill(everywhere(), lights)
    for x, y, r in ((22, 14, .8), (41, 22, .6), (63, 10, .9), (97, 12, .7), (121, 20, .9), (143, 11, .7), (80, 21, .5), (132, 31, .5)):
        frame.fill(circle(x + .5, y + .5, r), solid(SNOW), 0.8)
    ridge = [(6, 66), (30, 50), (44, 58), (70, 44), (92, 59), (112, 49), (134, 60), (162, 66)]

    def hills(x, y):
        for (ax, ay), (bx, by) in zip(ridge, ridge[1:]):
            if ax <= x < bx:
                return (ay + (by - ay) * (x - ax) / (bx - ax)) - y
        return 9.0

    frame.fill(lambda x, y: max(hills(x, y), y - 67), solid("#0c131c"))
    frame.stroke(box(0, 0, 168, 72), 1, solid(EDGE))
    frame.stroke(box(1, 1, 167, 71), 1, solid(FOG), 0.3)
    return frame


# Tooltip: a shadow that fades to nothing, which only a file with straight alpha can hold.

def tooltip(_state):
    frame = Canvas(40, 36)
    shape = box(7, 5, 33, 28, 5)
    frame.glow(moved(shape, 0, 2), 7, solid("#000000"), 0.55)
    frame.fill(shape, tone("#33465d", "#223042", 5, 28))
    frame.stroke(shape, 1, solid(MINT), 0.8)
    return frame


# Header and status bar: whole rectangles, no transparency; the status bar lets its ground through.

def header(state):
    frame = Canvas(32, 26)
    faces = {"normal": ("#2f4057", "#212e3f"), "over": ("#3c526e", "#293a50"),
             "pressed": ("#1c2736", "#223145"), "disabled": ("#28323f", "#252e39")}
    frame.fill(everywhere(), tone(*faces[state], 0, 26))
    frame.fill(box(0, 0, 32, 1), solid(SNOW), 0.16)
    frame.fill(box(0, 24, 32, 26), solid({"normal": VIOLET, "over": CYAN, "pressed": MINT, "disabled": STEEL}[state]), 0.9)
    for x in range(4, 28, 8):  # a fine dot every eighth column, so that the tiling can be seen to meet
        frame.fill(box(x + 3, 5, x + 4, 6), solid(SNOW), 0.12)
    frame.fill(box(31, 3, 32, 23), solid(EDGE))
    return frame


def status(_state):
    frame = Canvas(24, 24)
    frame.fill(everywhere(), tone("#1b2634", "#101823", 0, 24))
    frame.fill(box(0, 0, 24, 1), solid(CYAN), 0.7)
    return frame


def main():
    plates = ("normal", "over", "pressed", "disabled")
    pictures = (
        (write_tga, "button.tga", button, tuple(BUTTON_FACES), False),
        (write_tga, "checkbox.tga", checkbox, MARKS, True),
        (write_tga, "radio.tga", radio, MARKS, False),
        (write_png, "tab.png", tab, ("normal", "over", "selected", "disabled", "focus"), True),
        (write_bmp, "thumb.bmp", thumb, plates, False),
        (write_bmp, "arrow.bmp", arrow_plate, plates, False),
        (write_png, "arrow-mark.png", arrow_mark, (0.85, 1.0, 0.6, 0.3), True),
        (write_bmp, "track.bmp", track, ("normal",), False),
        (write_tga, "progress.tga", progress, ("normal", "disabled"), True),
        (write_bmp, "edit.bmp", edit, ("normal", "over", "disabled", "focus"), True),
        (write_png, "panel.png", panel, ("normal",), False),
        (write_tga, "banner.tga", banner, ("normal",), False),
        (write_tga, "tooltip.tga", tooltip, ("normal",), False),
        (write_bmp, "header.bmp", header, plates, False),
        (write_bmp, "status.bmp", status, ("normal",), False),
    )
    for write, name, draw, states, vertical in pictures:
        write(strip([draw(state) for state in states], vertical), os.path.join(HERE, name))


if __name__ == "__main__":
    main()
