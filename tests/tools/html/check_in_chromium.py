"""Uses a skin's page as a visitor does: check_in_chromium.py CHROMIUM VXGUI FOLDER SKIN..."""

import re
import subprocess
import sys
from pathlib import Path

from browser import Browser

VISIBLE = "[...document.querySelectorAll('{}')].filter((e) => e.checkVisibility()).length"


def count(browser, selector):
    return browser.value(VISIBLE.format(selector))


def visibility(browser, selector):
    return browser.value(f"getComputedStyle(document.querySelector('{selector}')).visibility")


def check_pictures(browser):
    broken = browser.value("""(async () => {
        const images = [...document.images];
        const decoded = await Promise.allSettled(images.map((image) => image.decode()));
        return images.filter((image, i) => decoded[i].status !== "fulfilled" ||
                             image.naturalWidth < 1 || image.naturalHeight < 1)
                     .map((image) => image.alt);
    })()""")
    assert broken == [], broken
    return browser.value("document.images.length")


def check_filter(browser, items):
    name = browser.value("document.querySelectorAll('.item h3')[1].textContent")
    browser.press("/", "Slash", "/")
    assert browser.value("document.activeElement.id") == "filter"
    browser.call("Input.insertText", text=name.upper())
    shown = browser.value("[...document.querySelectorAll('.item:not([hidden]) h3')]"
                          ".map((e) => e.textContent)")
    assert name in shown and len(shown) < items, shown
    assert count(browser, ".item") == len(shown)
    assert f"{len(shown)} of {items}" in browser.value("document.querySelector('#found').textContent")
    browser.call("Input.insertText", text=" nothing is called so")
    assert count(browser, ".item") == 0 and count(browser, "#none") == 1
    browser.press("Escape", "Escape")
    assert count(browser, ".item") == items and count(browser, "#none") == 0


def check_margins(browser):
    first = ".item .picture:not(.nothing)"
    marks = first + " .margins"
    browser.call("Input.dispatchMouseEvent", type="mouseMoved", x=2, y=2)
    assert visibility(browser, marks) == "hidden"
    browser.move_to(first)
    assert visibility(browser, marks) == "visible"
    browser.call("Input.dispatchMouseEvent", type="mouseMoved", x=2, y=2)
    assert visibility(browser, marks) == "hidden"
    # Without a mouse: the button of an item, and a key for all of them.
    browser.value("document.querySelector('.toggle').focus()")
    browser.press("Enter", "Enter", "\r")
    assert visibility(browser, marks) == "visible"
    assert browser.value("document.querySelector('.toggle').ariaPressed") == "true"
    browser.press("Enter", "Enter", "\r")
    browser.press("m", "KeyM", "m")
    assert browser.value("document.querySelector('#margins').checked")
    assert visibility(browser, ".item:last-of-type .margins") == "visible"
    browser.press("m", "KeyM", "m")
    assert visibility(browser, marks) == "hidden"


def check_marks_lie_on_the_margins(browser):
    """Where a nine-slice line is drawn, at every zoom: at the margin, times the zoom."""
    for zoom in ("3", "1"):
        browser.value(f"document.querySelector('#zoom').value = '{zoom}';"
                      "document.querySelector('#zoom').dispatchEvent(new Event('change'))")
        left, width, image = browser.value("""(() => {
            const picture = document.querySelector(".item:not(.glyph-only) .picture:not(.nothing)");
            const line = getComputedStyle(picture.querySelector(".margins"), "::before");
            const own = (name) => Number(getComputedStyle(picture).getPropertyValue(name));
            return [parseFloat(line.left) - own("--l") * own("--zoom"),
                    parseFloat(line.right) - own("--r") * own("--zoom"),
                    picture.querySelector("img").getBoundingClientRect().width -
                    picture.querySelector("img").getAttribute("width") * own("--zoom")];
        })()""")
        assert abs(left) < 0.01 and abs(width) < 0.01 and abs(image) < 0.01, (left, width, image)


def choose(browser, field, value):
    browser.value(f"document.querySelector('#{field}').value = '{value}';"
                  f"document.querySelector('#{field}').dispatchEvent(new Event('change'))")


def check_choices(browser, items):
    choose(browser, "state", "Pressed")
    assert count(browser, ".cell") == 3 * items
    choose(browser, "state", "")
    assert count(browser, ".cell") == 27 * items
    choose(browser, "ground", "dark")
    ground = "getComputedStyle(document.querySelector('.picture:not(.nothing)')).backgroundColor"
    assert browser.value(ground) == "rgb(0, 0, 0)"
    choose(browser, "ground", "checks")


def luminance(browser, what):
    numbers = re.findall(r"\d+", browser.value(f"getComputedStyle(document.body).{what}"))
    return sum(int(number) for number in numbers[:3])


def check_dark_and_light(browser):
    for scheme, chosen, dark in (("light", "", False), ("dark", "", True), ("dark", "light", False),
                                 ("light", "dark", True)):
        browser.call("Emulation.setEmulatedMedia",
                     features=[{"name": "prefers-color-scheme", "value": scheme}])
        choose(browser, "theme", chosen)
        ground, ink = luminance(browser, "backgroundColor"), luminance(browser, "color")
        assert (ground < 150 and ink > 500) if dark else (ground > 600 and ink < 200), (ground, ink)
    choose(browser, "theme", "")


def check_narrow(browser):
    """On a telephone nothing stands beyond the right edge."""
    browser.call("Emulation.setDeviceMetricsOverride", width=390, height=800, deviceScaleFactor=1,
                 mobile=False)
    wide = browser.value("document.documentElement.scrollWidth")
    assert wide <= 390, wide
    browser.call("Emulation.clearDeviceMetricsOverride")


def check(browser, tool, folder, skin):
    out = Path(folder).resolve() / re.sub(r"[^A-Za-z0-9]", "_", Path(skin).name)
    subprocess.run([tool, "gallery", skin, "--html", out], check=True, stdout=subprocess.DEVNULL)
    address = (out / "index.html").as_uri()
    browser.open(address)
    items = browser.value("document.querySelectorAll('.item').length")
    pictures = check_pictures(browser)
    check_filter(browser, items)
    check_margins(browser)
    check_marks_lie_on_the_margins(browser)
    check_choices(browser, items)
    check_dark_and_light(browser)
    check_narrow(browser)
    outside = [url for url in browser.requests() if url != address and not url.startswith("data:")]
    assert outside == [] and browser.complaints() == [], (outside, browser.complaints())
    print(f"{skin}: {items} items, {pictures} pictures")


if __name__ == "__main__":
    with Browser(sys.argv[1]) as chromium:
        for skin in sys.argv[4:]:
            check(chromium, sys.argv[2], sys.argv[3], skin)
