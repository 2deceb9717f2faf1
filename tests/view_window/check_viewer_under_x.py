#!/usr/bin/env python3
"""Works the viewer on a real X display by mouse and keys, and edits the skin under it.

check_viewer_under_x.py TOOL SKIN_FOLDER. Exit status 77 where the display can't be had."""
import os
import shutil
import subprocess
import sys
import tempfile
import time

GROUND = (255, 0, 255)  # no pixel of the button is that
GRIP = 10               # what the grips take beyond the item


class Screen:
    """A virtual display, its mouse and its keys."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x860x24", "-nolisten", "tcp"],
            pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        os.environ["QT_QPA_PLATFORM"] = "xcb"
        os.environ.pop("WAYLAND_DISPLAY", None)

    def hand(self, *words):
        return subprocess.run(["xdotool", *map(str, words)], check=True, timeout=30,
                              capture_output=True, text=True).stdout.strip()

    def picture(self):
        data = subprocess.run(["import", "-window", "root", "-depth", "8", "ppm:-"], check=True,
                              timeout=30, capture_output=True).stdout
        _, width, height, _ = data.split(maxsplit=4)[:4]
        return Picture(int(width), int(height), data[-int(width) * int(height) * 3:])


class Picture:
    def __init__(self, width, height, pixels):
        self.width, self.height, self.pixels = width, height, pixels

    def row(self, y, left, right):
        return self.pixels[(y * self.width + left) * 3:(y * self.width + right) * 3]

    def crop(self, box):
        left, top, right, bottom = box
        return [self.row(y, left, right) for y in range(top, bottom)]

    def item(self):
        """The box of what isn't ground on the stage, less the grips."""
        ground = bytes(GROUND)
        rows = [y for y in range(self.height) if ground * 20 in self.row(y, 0, self.width)]
        top, bottom = rows[0], rows[-1] + 1
        line = self.row(top, 0, self.width)
        left = next(x for x in range(self.width) if line[x * 3:x * 3 + 3] == ground)
        right = next(x for x in range(self.width - 1, 0, -1) if line[x * 3:x * 3 + 3] == ground) + 1
        whole = ground * (right - left)
        inside = [y for y in range(top, bottom) if self.row(y, left, right) != whole]
        columns = [x for x in range(left, right)
                   if any(self.row(y, x, x + 1) != ground for y in inside)]
        return columns[0], inside[0], columns[-1] + 1 - GRIP, inside[-1] + 1 - GRIP


class Viewer:
    def __init__(self, screen, tool, skin, log):
        self.screen = screen
        self.skin = skin
        self.process = subprocess.Popen([tool, "view", "--background=#FF00FF", skin], stderr=log)
        self.window = screen.hand("search", "--sync", "--onlyvisible", "--pid",
                                  self.process.pid).split("\n")[-1]
        screen.hand("windowmove", "--sync", self.window, 20, 20)
        screen.hand("windowfocus", "--sync", self.window)
        screen.hand("mousemove", 30, 845)
        self.box = self.settled().item()

    def settled(self):
        """A picture that stays as it is for a while."""
        last = self.screen.picture()
        for _ in range(40):
            time.sleep(0.15)
            now = self.screen.picture()
            if now.pixels == last.pixels:
                return now
            last = now
        sys.exit("the screen doesn't come to rest")

    def item(self):
        return self.settled().crop(self.box)

    def middle(self):
        return (self.box[0] + self.box[2]) // 2, (self.box[1] + self.box[3]) // 2

    def title(self):
        return self.screen.hand("getwindowname", self.window)

    def edit(self, old, new):
        with open(self.skin, encoding="utf-8") as file:
            text = file.read()
        assert old in text, old
        with open(self.skin, "w", encoding="utf-8") as file:
            file.write(text.replace(old, new, 1))

    def wait(self, what, condition):
        for _ in range(60):
            if condition():
                return
            time.sleep(0.15)
        sys.exit("never came: " + what)


def check(condition, what):
    if not condition:
        sys.exit("failed: " + what)
    print("ok:", what)


def check_mouse(viewer):
    hand = viewer.screen.hand
    normal = viewer.item()
    hand("mousemove", *viewer.middle())
    over = viewer.item()
    check(over != normal, "the control shows the mouse over it")
    hand("mousedown", 1)
    pressed = viewer.item()
    check(pressed not in (normal, over), "the control shows that it is pressed")
    hand("mouseup", 1)
    hand("mousemove", viewer.middle()[0], viewer.box[1] - 40)
    check(viewer.item() != normal, "the control keeps the focus")
    hand("click", 1)
    check(viewer.item() == normal, "the control is as it was after a click beside it")


def check_keys(viewer):
    before = viewer.item()
    viewer.screen.hand("key", "F2")
    viewer.screen.hand("type", "--delay", "40", "Cancel")
    check(viewer.item() != before, "the caption is what was typed")


def check_drag(viewer):
    hand = viewer.screen.hand
    left, top, right, bottom = viewer.box
    hand("mousemove", right + 4, viewer.middle()[1])
    hand("mousedown", 1)
    hand("mousemove", right + 34, viewer.middle()[1])
    hand("mousemove", right + 64, viewer.middle()[1])
    hand("mouseup", 1)
    hand("mousemove", 30, 845)
    viewer.box = viewer.settled().item()
    check(viewer.box[2] - viewer.box[0] == right - left + 60, "dragging made the control wider")
    check(viewer.box[3] - viewer.box[1] == bottom - top, "and left its height")


def check_edits(viewer, log):
    before = viewer.item()
    viewer.edit("FrameOrder=0,", "FrameOrder=3,")
    viewer.wait("the saved edit on the screen", lambda: viewer.item() != before)
    print("ok: a saved edit is on the screen")
    good = viewer.item()
    check("0 errors, 1 warning" in viewer.title(), "the title tells of the frame that is unused now")
    viewer.edit("Image=button.tga", "Image=buton.tga")
    viewer.wait("the error in the title", lambda: "1 error" in viewer.title())
    check(viewer.item() == good, "a broken edit leaves the last good skin on the screen")
    with open(log, encoding="utf-8") as lines:
        text = lines.read()
    check("aurora.theme:81:1: error: " in text and "buton.tga" in text, "and says what is wrong")
    viewer.edit("Image=buton.tga", "Image=button.tga")
    viewer.wait("the mended skin", lambda: "0 errors" in viewer.title())
    check(viewer.item() == good, "the mended skin is on the screen")


def check_colours(viewer):
    before = viewer.item()
    viewer.screen.hand("key", "alt+h")
    viewer.screen.hand("key", "--repeat", "6", "--delay", "30", "Prior")
    check(viewer.item() != before, "the hue turns live")


def main():
    tool, folder = sys.argv[1:]
    for needed in ("Xvfb", "xdotool", "import"):
        if not shutil.which(needed):
            print("skipped:", needed, "isn't there")
            sys.exit(77)
    with tempfile.TemporaryDirectory() as work:
        skin = shutil.copytree(folder, os.path.join(work, "skin"))
        screen = Screen()
        try:
            log = os.path.join(work, "log")
            with open(log, "w", encoding="utf-8") as lines:
                viewer = Viewer(screen, tool, os.path.join(skin, "aurora.theme"), lines)
            check_mouse(viewer)
            check_keys(viewer)
            check_drag(viewer)
            check_edits(viewer, log)
            check_colours(viewer)
            screen.hand("key", "ctrl+q")
            check(viewer.process.wait(timeout=20) == 0, "the window closed by Ctrl+Q")
        finally:
            screen.server.terminate()


if __name__ == "__main__":
    main()
