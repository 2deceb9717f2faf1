"""Checks a skin's page without a browser: check_page.py VXGUI FOLDER SKIN...

That every element is closed, that nothing is asked of the outside, that ids are unique and links
meet, that form fields have labels and pictures descriptions, and that each picture is a whole PNG.
"""

import base64
import re
import struct
import subprocess
import sys
import zlib
from html.parser import HTMLParser
from pathlib import Path

VOID = {"meta", "link", "img", "input", "br"}
STATES = ["Normal", "MouseOver", "Pressed", "Disabled", "Default", "Focus", "FocusPressed",
          "Group", "FocusMouseOver"]


class Page(HTMLParser):
    def __init__(self):
        super().__init__(convert_charrefs=True)
        self.open, self.elements = [], []

    def handle_starttag(self, tag, attributes):
        names = [name for name, _ in attributes]
        assert len(names) == len(set(names)), f"{tag}: an attribute stands twice"
        self.elements.append((tag, dict(attributes), list(self.open)))
        if tag not in VOID:
            self.open.append(tag)

    def handle_endtag(self, tag):
        assert self.open and self.open[-1] == tag, f"</{tag}> closes <{self.open[-1:]}>"
        self.open.pop()

    def all(self, tag):
        return [attributes for name, attributes, _ in self.elements if name == tag]


def png_size(source):
    """The width and height of a data URI's PNG, whose pixels are all there."""
    kind, _, text = source.partition(",")
    assert kind == "data:image/png;base64", kind[:40]
    data = base64.b64decode(text, validate=True)
    assert data[:8] == b"\x89PNG\r\n\x1a\n" and data[-8:-4] == b"IEND"
    width, height = struct.unpack(">II", data[16:24])
    at, pixels = 8, b""
    while at < len(data):
        size, name = struct.unpack(">I4s", data[at:at + 8])
        pixels += data[at + 8:at + 8 + size] if name == b"IDAT" else b""
        at += 12 + size
    depth, colour = data[24], data[25]
    channels = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}[colour]
    row = (width * channels * depth + 7) // 8 + 1
    assert len(zlib.decompress(pixels)) == row * height
    return width, height


def check_outside(text, page):
    for tag, attributes, _ in page.elements:
        for name in ("src", "href"):
            value = attributes.get(name)
            assert value is None or value.startswith(("data:image/png", "#")), (tag, value[:60])
    assert not re.search(r"url\(|@import|https?://|fetch\(|XMLHttp", text)


def check_names(page):
    ids = [a["id"] for _, a, _ in page.elements if "id" in a]
    assert len(ids) == len(set(ids)), "an id stands twice"
    for link in page.all("a"):
        assert link["href"][1:] in ids, link
    for image in page.all("img"):
        assert image["alt"], "a picture without a description"
    for tag, attributes, parents in page.elements:
        if tag in ("input", "select"):
            assert "label" in parents or "aria-label" in attributes, attributes


def check_items(page, scale):
    cells = [a for a in page.all("figure") if a.get("class") == "cell"]
    items = page.all("article")
    assert items and len(cells) == 27 * len(items), (len(items), len(cells))
    assert [cell["data-state"] for cell in cells] == STATES * (3 * len(items))
    for image in page.all("img"):
        width, height = png_size(image["src"])
        for pixels, shown in ((width, image["width"]), (height, image["height"])):
            assert abs(pixels - int(shown) * scale) <= 1, (image["alt"], pixels, shown)
    assert len({item["id"] for item in items}) == len(items)
    return len(items)


def check(tool, folder, skin, scale):
    out = Path(folder) / re.sub(r"[^A-Za-z0-9]", "_", Path(skin).name)
    subprocess.run([tool, "gallery", skin, "--html", out, "--scale", str(scale)], check=True)
    assert [path.name for path in out.iterdir()] == ["index.html"]
    text = (out / "index.html").read_text(encoding="utf-8")
    assert "{{" not in text, "a field of the template is left"
    page = Page()
    page.feed(text)
    assert not page.open, page.open
    check_outside(text, page)
    check_names(page)
    print(f"{skin}: {check_items(page, scale)} items, {len(text)} characters")


def compiled(tool, folder, skin):
    path = Path(folder) / "compiled.vxs"
    path.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run([tool, "compile", skin, "-o", path], check=True, stdout=subprocess.DEVNULL)
    return str(path)


if __name__ == "__main__":
    tool, folder, *skins = sys.argv[1:]
    skins.append(compiled(tool, folder, skins[0]))
    for n, skin in enumerate(skins):
        check(tool, folder, skin, [1, 2, 1.5][n % 3])
