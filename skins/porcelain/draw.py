#!/usr/bin/env python3
"""Draws the art of the Porcelain skin: run it in any folder, it writes beside itself.

White glaze, cobalt ink, a thread of gold. Nothing is needed but Python 3. Each function draws one
frame in a state; `PICTURES` says which frames make a picture.
"""
import math
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "art"))

from canvas import (Canvas, across, box, circle, colour, corners, everywhere, fade, inset, line, mix, moved,
                    polygon, solid, strip, turned, union)
from plates import gradient, ringed, veiled
from waves import waves
from writers import write_bmp, write_packed_tga, write_png

WHITE, GLAZE, WASH, MIST = "#ffffff", "#f1f5fb", "#dfe8f6", "#c3d2ea"
PALE, SKY, COBALT, INK, NIGHT = "#8fa9db", "#4f74c4", "#2447a2", "#16307c", "#0d1d52"
GOLD, SUN = "#c8a04a", "#f3dda0"

PLAIN = ("normal",)
STATES = ("normal", "over", "pressed", "disabled")
ALL_STATES = STATES + ("default", "focus", "focus pressed", "group")


# What everything is made of.

def glazed(frame, shape, top, bottom, pair=(WHITE, WASH)):
    """A white body, with the light of a window on its upper part."""
    frame.fill(shape, gradient(pair, top, bottom))
    middle = top + (bottom - top) * 0.45
    frame.fill(lambda x, y: max(shape(x, y) + 2, y - middle), fade(WHITE, 0.9, 0.25, top, middle))


def rimmed(frame, shape, rim=COBALT, inner=COBALT, strength=0.35):
    """A painter's double line: a firm one at the edge, a fine one inside."""
    frame.stroke(shape, 1.2, solid(rim))
    frame.stroke(inset(shape, 2.4), 0.8, solid(inner), strength)


def inked(frame, shape, top, bottom, pair=(COBALT, INK)):
    """A body full of cobalt."""
    frame.fill(shape, gradient(pair, top, bottom))
    middle = top + (bottom - top) * 0.5
    frame.fill(lambda x, y: max(shape(x, y) + 2, y - middle), fade(WHITE, 0.22, 0.04, top, middle))


def tiled_ink(frame, shape, bottom, top_rows, bottom_rows):
    """Cobalt whose light and shade stay in the rows that aren't tiled."""
    frame.fill(shape, solid(COBALT))
    frame.fill(lambda x, y: max(shape(x, y) + 1, y - top_rows), fade(WHITE, 0.26, 0, 0, top_rows))
    frame.fill(lambda x, y: max(shape(x, y), bottom - bottom_rows - y), fade(INK, 0, 1, bottom - bottom_rows, bottom))


def waved(frame, shape, radius, text, strength, x0=0, y0=0):
    lines = waves(radius)
    frame.fill(shape, lambda x, y: colour(text, strength * lines(x - x0, y - y0)))


def cup(frame, shape, state, top, bottom):
    """A plate in any of the states."""
    if state.startswith("focus"):
        ringed(frame, shape, GOLD, 0.85)
    else:
        frame.glow(moved(shape, 0, 1), 2.5, solid(NIGHT), 0.22)
    if state.endswith("pressed"):
        inked(frame, shape, top, bottom)
        rimmed(frame, shape, NIGHT, SUN if state.startswith("focus") else WHITE, 0.75)
        return
    glazed(frame, shape, top, bottom, (WHITE, MIST) if state == "over" else (WHITE, WASH))
    lit = state in ("over", "focus", "default")
    rimmed(frame, shape, COBALT, GOLD if lit else COBALT, 0.95 if lit else 0.35)


def dimmed(frame, state, strength=0.5):
    return veiled(frame, strength) if state == "disabled" else frame


def blossom(cx, cy, reach, petals=8):
    """Petals around a middle."""
    shapes = []
    for n in range(petals):
        angle = 2 * math.pi * n / petals
        x, y = cx + math.sin(angle) * reach * 0.62, cy - math.cos(angle) * reach * 0.62
        shapes.append(line([(cx + math.sin(angle) * reach * 0.34, cy - math.cos(angle) * reach * 0.34), (x, y)],
                           reach * 0.38))
    return union(*shapes)


def flower(frame, cx, cy, reach, petal, middle=GOLD):
    frame.fill(blossom(cx, cy, reach), solid(petal))
    frame.fill(circle(cx, cy, reach * 0.22), solid(middle))


# Controls.

def button(state):
    frame = Canvas(44, 34)
    shape = box(3, 3, 41, 30, 7)
    if state == "group":
        cup(frame, box(9, 3, 41, 30, 7), "normal", 3, 30)
        shape = box(3, 3, 37, 30, 7)
    cup(frame, shape, state, 3, 30)
    return dimmed(frame, state)


def hover(state):
    """A breath of blue behind what is touched."""
    frame = Canvas(28, 26)
    shape = box(1, 1, 27, 25, 5)
    if state in ("over", "pressed"):
        frame.fill(shape, solid(PALE), 0.22)
        frame.stroke(shape, 1, solid(PALE), 0.4)
    return frame


def mark_ground(frame, shape, state):
    glazed(frame, shape, 3, 19, (WHITE, MIST if state == "over" else WASH))
    frame.stroke(shape, 1.3, solid(COBALT))
    if state == "over":
        frame.stroke(inset(shape, 2.2), 0.9, solid(GOLD), 0.9)


def check_box(state):
    frame = Canvas(24, 22)
    shape = box(5, 4, 19, 18, 3.5)
    mark_ground(frame, shape, state)
    if state == "pressed":
        frame.fill(line([(8.2, 11.2), (11, 14.2), (16.2, 7.6)], 2.3), solid(COBALT))
    return dimmed(frame, state)


def radio_button(state):
    frame = Canvas(24, 22)
    mark_ground(frame, circle(12, 11, 7.2), state)
    if state == "pressed":
        flower(frame, 12, 11, 5.2, COBALT)
    return dimmed(frame, state)


def tab(state):
    frame = Canvas(44, 32)
    top = 2 if state in ("pressed", "focus") else 6
    shape = corners(2, top, 42, 40, (9, 9, 0, 0))
    glazed(frame, shape, top, 34, (WHITE, WHITE if top == 2 else WASH))
    frame.stroke(shape, 1.2, solid(COBALT))
    frame.stroke(inset(shape, 2.4), 0.8, solid(GOLD if top == 2 or state == "over" else COBALT),
                 0.9 if top == 2 or state == "over" else 0.3)
    return dimmed(frame, state, 0.55)


def edit(state):
    frame = Canvas(28, 26)
    shape = box(1, 1, 27, 25, 4)
    if state == "focus":
        ringed(frame, inset(shape, 2), GOLD)
    frame.fill(inset(shape, 1), gradient((GLAZE, WHITE), 2, 14))
    if state == "focus":
        frame.stroke(inset(shape, 2.2), 1, solid(GOLD))
    frame.stroke(inset(shape, 1), 1.2, solid(PALE if state == "normal" else COBALT))
    return dimmed(frame, state, 0.6)


def scroll_thumb(state):
    frame = Canvas(20, 44)
    shape = box(2, 2, 18, 42, 7)
    if state == "pressed":
        inked(frame, shape, 2, 42)
    else:
        frame.fill(shape, across(2, 18, [(0, colour(WHITE)), (1, colour(MIST if state == "over" else WASH))]))
    rimmed(frame, shape, COBALT, GOLD if state == "over" else WHITE if state == "pressed" else COBALT, 0.6)
    return dimmed(frame, state, 0.55)


def scroll_mark(state):
    frame = Canvas(12, 12)
    flower(frame, 6, 6, 5.4, WHITE if state == "pressed" else COBALT if state == "over" else SKY)
    return dimmed(frame, state, 0.55)


def progress_track(_state):
    frame = Canvas(28, 20)
    shape = box(1, 1, 27, 19, 8)
    frame.fill(shape, gradient((WASH, WHITE), 1, 19))
    frame.stroke(shape, 1.2, solid(COBALT))
    return frame


def progress(_state):
    """Waves that run along: sixteen columns to a wave."""
    frame = Canvas(48, 24)
    shape = box(3, 3, 45, 21, 6)
    frame.fill(shape, solid(SKY))
    frame.fill(lambda x, y: max(shape(x, y), 16 - y), fade(COBALT, 0, 0.8, 16, 21))
    waved(frame, shape, 8, WHITE, 0.45, 8, 4)
    frame.stroke(shape, 1, solid(INK))
    return frame


def header(state):
    frame = Canvas(32, 28)
    if state == "pressed":
        frame.fill(everywhere(), gradient((COBALT, INK), 0, 28))
    else:
        frame.fill(everywhere(), gradient((WHITE, MIST if state == "over" else WASH), 0, 28))
    frame.fill(box(0, 25, 32, 26), solid(GOLD))
    frame.fill(box(0, 26.4, 32, 28), solid(COBALT))
    frame.fill(box(31, 4, 32, 22), solid(PALE))
    return frame


def tooltip(_state):
    frame = Canvas(36, 32)
    shape = box(5, 4, 31, 25, 5)
    frame.glow(moved(shape, 0, 2), 5, solid(NIGHT), 0.4)
    frame.fill(shape, gradient((WHITE, "#fbf3dd"), 4, 25))
    frame.stroke(shape, 1, solid(GOLD))
    return frame


def caption(state):
    """The head of a window: cobalt with waves, and a gold thread below."""
    frame = Canvas(64, 36)
    shape = corners(0, 0, 64, 36, (8, 8, 0, 0))
    tiled_ink(frame, shape, 36, 12, 8)
    waved(frame, lambda x, y: max(shape(x, y) + 2, y - 32), 8, WHITE, 0.16, 0, 4)
    if state == "disabled":
        frame.fill(shape, solid(PALE), 0.55)
    frame.stroke(shape, 1.2, solid(NIGHT))
    frame.fill(box(1, 33, 63, 34), solid(GOLD))
    frame.fill(box(1, 34, 63, 36), solid(WHITE))
    return frame


# Menus and lists.

def menu_background(_state):
    frame = Canvas(48, 32)
    shape = box(0, 0, 48, 32, 5)
    frame.fill(shape, gradient((WHITE, GLAZE), 0, 32))
    frame.fill(lambda x, y: max(inset(shape, 2)(x, y), x - 27), solid(WASH))
    frame.fill(box(26.5, 3, 27.3, 29), solid(GOLD), 0.9)
    frame.stroke(shape, 1.2, solid(COBALT))
    return frame


def selection(state):
    frame = Canvas(32, 26)
    shape = box(1, 1, 31, 25, 5)
    if state == "over":
        glazed(frame, shape, 1, 25, (WHITE, MIST))
        frame.stroke(shape, 1.1, solid(COBALT))
        frame.stroke(inset(shape, 2.2), 0.8, solid(GOLD), 0.95)
    if state == "pressed":
        inked(frame, shape, 1, 25)
        frame.stroke(shape, 1.1, solid(NIGHT))
        frame.stroke(inset(shape, 2.2), 0.8, solid(WHITE), 0.6)
    return frame


def group_background(_state):
    frame = Canvas(32, 32)
    shape = box(0, 0, 32, 32, 6)
    glazed(frame, shape, 0, 32, (WHITE, WASH))
    frame.stroke(shape, 1.2, solid(COBALT))
    frame.stroke(inset(shape, 2.4), 0.8, solid(GOLD), 0.7)
    return frame


# The start panel.

def user_pane(_state):
    """Large waves; they repeat every thirty-two columns and sixteen rows."""
    frame = Canvas(128, 64)
    shape = corners(0, 0, 128, 64, (11, 11, 0, 0))
    tiled_ink(frame, shape, 64, 16, 16)
    waved(frame, lambda x, y: max(shape(x, y) + 2, y - 59), 16, WHITE, 0.2, 0, 12)
    frame.stroke(shape, 1.2, solid(NIGHT))
    frame.fill(box(1, 60, 127, 61.2), solid(GOLD))
    frame.fill(box(1, 62, 127, 64), solid(WHITE))
    return frame


def prog_list(_state):
    frame = Canvas(24, 24)
    frame.fill(everywhere(), solid(WHITE))
    frame.fill(box(0, 0, 1.2, 24), solid(INK))
    return frame


def places_list(_state):
    frame = Canvas(40, 40)
    frame.fill(everywhere(), solid(GLAZE))
    waved(frame, everywhere(), 8, PALE, 0.22, 4, 4)
    frame.fill(box(0, 0, 1, 40), solid(GOLD), 0.8)
    frame.fill(box(38.8, 0, 40, 40), solid(INK))
    return frame


def separator(_state):
    """A line that thins out at both ends."""
    frame = Canvas(64, 8)

    def faded(text):
        ends, middle = colour(text, 0), colour(text, 0.9)
        return across(0, 64, [(0, ends), (0.35, middle), (0.65, middle), (1, ends)])

    frame.fill(box(0, 3.2, 64, 4.2), faded(COBALT))
    return frame


def more_programs(state):
    frame = Canvas(40, 30)
    frame.fill(everywhere(), solid(WHITE))
    frame.fill(everywhere(), fade(WASH, 0, 0.8, 4, 30))
    frame.fill(box(0, 0, 1.2, 30), solid(INK))
    if state in ("over", "pressed"):
        shape = box(3, 3, 37, 27, 5)
        if state == "pressed":
            inked(frame, shape, 3, 27)
        else:
            glazed(frame, shape, 3, 27, (WHITE, MIST))
        frame.stroke(shape, 1.1, solid(COBALT))
        frame.stroke(inset(shape, 2.2), 0.8, solid(WHITE if state == "pressed" else GOLD), 0.8)
    return frame


def more_programs_arrow(state):
    frame = Canvas(18, 18)
    shape = polygon([(6, 4), (13, 9), (6, 14)])
    body = lambda x, y: shape(x, y) - 1.2
    frame.fill(body, solid({"over": SKY, "pressed": WHITE}.get(state, COBALT)))
    frame.stroke(body, 1, solid(GOLD), 0.9 if state == "over" else 0.0)
    return dimmed(frame, state, 0.4)


def bottom_bar(_state):
    frame = Canvas(64, 44)
    shape = corners(0, 0, 64, 44, (0, 0, 11, 11))
    tiled_ink(frame, shape, 44, 8, 12)
    waved(frame, lambda x, y: max(shape(x, y) + 2, 4 - y), 8, WHITE, 0.13, 0, 4)
    frame.stroke(shape, 1.2, solid(NIGHT))
    frame.fill(box(1, 0, 63, 2), solid(WHITE))
    frame.fill(box(1, 2.8, 63, 4), solid(GOLD))
    return frame


def logon_button(state):
    frame = Canvas(30, 30)
    cup(frame, box(3, 3, 27, 27, 8), state, 3, 27)
    return dimmed(frame, state)


def logon_background(_state):
    frame = Canvas(32, 48)
    tiled_ink(frame, everywhere(), 48, 8, 8)
    waved(frame, everywhere(), 8, WHITE, 0.13)
    frame.fill(box(0, 45, 32, 46.2), solid(GOLD))
    frame.fill(box(0, 46.6, 32, 48), solid(WHITE))
    return frame


# The taskbar.

def edge(frame, length):
    """The rim of the bar: gold between two lines of cobalt."""
    frame.fill(box(0, 0, length, 1.3), solid(INK))
    frame.fill(box(0, 1.3, length, 2.4), solid(SUN))
    frame.fill(box(0, 2.4, length, 3), solid(GOLD))
    frame.fill(box(0, 3.4, length, 4), solid(PALE))


def taskbar(_state):
    """Waves that repeat every sixteen columns and eight rows behind the rim."""
    frame = Canvas(32, 37)
    frame.fill(everywhere(), solid(GLAZE))
    waved(frame, box(0, 5, 32, 37), 8, SKY, 0.36, 0, 5)
    edge(frame, 32)
    return frame


def start_button(state):
    frame = Canvas(64, 34)
    shape = box(3, 3, 61, 31, 13)
    if state == "over":
        ringed(frame, shape, GOLD, 0.9)
    else:
        frame.glow(moved(shape, 0, 1), 2.6, solid(NIGHT), 0.35)
    inked(frame, shape, 3, 31, {"over": (SKY, COBALT), "pressed": (NIGHT, INK)}.get(state, (COBALT, INK)))
    frame.stroke(shape, 1.2, solid(NIGHT))
    frame.stroke(inset(shape, 2.4), 0.9, solid(SUN if state == "over" else GOLD), 0.95)
    return dimmed(frame, state, 0.5)


def start_mark(state):
    frame = Canvas(34, 24)
    flower(frame, 22, 12, 9.5, WHITE)
    return veiled(frame, {"disabled": 0.5, "pressed": 0.85}.get(state, 1))


def quick_launch(_state):
    frame = Canvas(32, 32)
    shape = box(1, 3, 31, 29, 7)
    frame.fill(shape, solid(WHITE), 0.72)
    frame.stroke(shape, 1, solid(PALE))
    return frame


def task_button(state):
    frame = Canvas(44, 34)
    right = 37 if state == "group" else 41
    if state == "group":
        cup(frame, box(10, 4, 41, 29, 7), "normal", 4, 29)
    cup(frame, box(3, 4, right, 29, 7), state, 4, 29)
    return dimmed(frame, state, 0.6)


def flashing_button(state):
    frame = Canvas(44, 34)
    shape = box(3, 4, 41, 29, 7)
    ringed(frame, shape, GOLD, 0.9)
    glazed(frame, shape, 4, 29, (WHITE if state == "over" else "#fff3d2", SUN))
    rimmed(frame, shape, "#8a6a1f", GOLD, 0.9)
    return frame


def gripper(state):
    """Petals eight rows and columns apart."""
    frame = Canvas(12, 34)
    for n in range(3):
        for x, y in ((4, 7.5 + 8 * n), (8, 11.5 + 8 * n)):
            frame.fill(circle(x, y, 1.4), solid(WHITE))
            frame.fill(circle(x, y, 1.1), solid(GOLD if state == "over" else COBALT))
    return frame


def tray(_state):
    frame = Canvas(32, 37)
    frame.fill(everywhere(), solid("#1c3a90"))
    waved(frame, box(5, 5, 32, 37), 8, WHITE, 0.16, 0, 5)
    edge(frame, 32)
    frame.fill(box(0, 0, 1.2, 37), solid(NIGHT))
    frame.fill(box(2, 3, 3, 37), solid(GOLD))
    return frame


def size_bar(state):
    frame = Canvas(16, 6)
    frame.fill(everywhere(), solid(WHITE if state == "over" else GLAZE))
    frame.fill(box(0, 0, 16, 1.2), solid(COBALT))
    frame.fill(box(0, 2.6, 16, 3.6), solid(GOLD if state == "over" else PALE))
    return frame


def button_arrow(state):
    frame = Canvas(22, 22)
    shape = circle(11, 11, 8)
    if state == "pressed":
        inked(frame, shape, 3, 19)
    else:
        glazed(frame, shape, 3, 19, (WHITE, MIST if state == "over" else WASH))
    frame.stroke(shape, 1.2, solid(NIGHT))
    frame.stroke(inset(shape, 2.2), 0.8, solid(GOLD), 0.95 if state == "over" else 0.5)
    frame.fill(line([(12.5, 7.8), (9.4, 11), (12.5, 14.2)], 1.9), solid(WHITE if state == "pressed" else COBALT))
    return dimmed(frame, state)


def upright(draw):
    return lambda state: turned(draw(state))


# The wallpaper: a dish seen from above, its border of waves cut by the edge of the screen.

def wallpaper(_state):
    frame = Canvas(1000, 600)
    large, small = waves(40, 4, 0.07), waves(16, 3, 0.12)

    def dish(x, y):
        distance = math.hypot((x - 560) / 1.05, y - 250)
        light = max(0.0, min(1.0, 0.62 - (x + 1.4 * y) / 2600))
        body = mix(colour("#cfdcf0"), colour(WHITE), light)
        if distance > 420:
            return mix(body, colour(COBALT), 0.34 * large(x, y))
        if distance > 404:
            return mix(colour(COBALT), body, max(0.0, min(1.0, abs(distance - 412) - 7)))
        if distance > 396:
            return mix(body, colour(GOLD), max(0.0, min(1.0, 2.2 - abs(distance - 400))))
        if distance > 340:
            return mix(body, colour(SKY), 0.4 * small(x, y))
        return mix(body, colour(SKY), 0.85 * max(0.0, min(1.0, 1.6 - abs(distance - 339))))

    frame.fill(everywhere(), dish)
    for n in range(12):
        angle = math.pi * n / 6
        spot(frame, 560 + 1.05 * 300 * math.sin(angle), 250 - 300 * math.cos(angle), 17 if n % 2 else 24)
    return frame


def spot(frame, cx, cy, reach):
    """A flower on the dish; it touches its own pixels alone, since the dish is large."""
    left, top, size = int(cx - reach) - 2, int(cy - reach) - 2, 2 * int(reach) + 5
    if left < 0 or top < 0 or left + size > frame.width or top + size > frame.height:
        return
    part = Canvas(size, size)
    part.pixels = [row[left:left + size] for row in frame.pixels[top:top + size]]
    flower(part, cx - left, cy - top, reach, SKY)
    frame.paste(part, left, top)


# Where each goes, its frames, and whether it has alpha.
PICTURES = (
    ("controls/Button", button, ALL_STATES, True),
    ("controls/Hover", hover, STATES, True),
    ("controls/CheckBox", check_box, STATES, True),
    ("controls/RadioButton", radio_button, STATES, True),
    ("controls/Tab", tab, STATES + ("default", "focus"), True),
    ("controls/Edit", edit, STATES + ("default", "focus"), True),
    ("controls/ScrollThumb", scroll_thumb, STATES, True),
    ("controls/ScrollMark", scroll_mark, STATES, True),
    ("controls/ProgressTrack", progress_track, PLAIN, True),
    ("controls/Progress", progress, PLAIN, True),
    ("controls/Header", header, ("normal", "over", "pressed"), False),
    ("controls/Tooltip", tooltip, PLAIN, True),
    ("controls/Caption", caption, STATES, True),
    ("taskbar/MenuBackground", menu_background, PLAIN, True),
    ("taskbar/PanelItem", selection, STATES, True),
    ("taskbar/UserPane", user_pane, PLAIN, True),
    ("taskbar/ProgList", prog_list, PLAIN, False),
    ("taskbar/Separator", separator, PLAIN, True),
    ("taskbar/PlacesList", places_list, PLAIN, False),
    ("taskbar/MorePrograms", more_programs, STATES, False),
    ("taskbar/MoreProgramsArrow", more_programs_arrow, STATES, True),
    ("taskbar/BottomBar", bottom_bar, PLAIN, True),
    ("taskbar/LogonButtons", logon_button, STATES, True),
    ("taskbar/LogonBackground", logon_background, PLAIN, False),
    ("taskbar/StartButton", start_button, STATES, True),
    ("taskbar/StartMark", start_mark, STATES, True),
    ("taskbar/Horz", taskbar, PLAIN, False),
    ("taskbar/QuickLaunch", quick_launch, PLAIN, True),
    ("taskbar/Button", task_button, ALL_STATES, True),
    ("taskbar/FlashingButton", flashing_button, ("normal", "over"), True),
    ("taskbar/Rebar", gripper, ("normal", "over"), True),
    ("taskbar/Tray", tray, PLAIN, False),
    ("taskbar/Size", size_bar, ("normal", "over"), False),
    ("taskbar/ButtonArrow", button_arrow, STATES, True),
    ("taskbar/Vert", upright(taskbar), PLAIN, False),
    ("taskbar/RebarVert", upright(gripper), ("normal", "over"), True),
    ("taskbar/TrayVert", upright(tray), PLAIN, False),
    ("taskbar/SizeVert", upright(size_bar), ("normal", "over"), False),
    ("taskbar/ButtonArrowVert", upright(button_arrow), STATES, True),
    ("taskbar/GroupBackground", group_background, PLAIN, True),
)


def main():
    for name, draw, states, alpha in PICTURES:
        write, ending = (write_packed_tga, ".tga") if alpha else (write_bmp, ".bmp")
        write(strip([draw(state) for state in states]), os.path.join(HERE, name + ending))
    write_png(wallpaper("normal"), os.path.join(HERE, "wallpaper.png"))


if __name__ == "__main__":
    main()
