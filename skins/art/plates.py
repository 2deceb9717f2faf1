"""Raised plates with soft light, of which buttons, menus and panels are made."""
from canvas import (Canvas, box, colour, down, everywhere, fade, inset, moved, ramp, solid)


def gradient(pair, top, bottom):
    """From the first colour of a pair at y `top` to the second at y `bottom`."""
    return down(top, bottom, [(0, colour(pair[0])), (1, colour(pair[1]))])


def stops(colours):
    """Colours as stops for a bar: a thin lit edge, a long middle, a thin dark edge."""
    places = (0.0, 0.14, 0.5, 0.86, 1.0)
    return [(place, colour(text)) for place, text in zip(places, colours)]


def bar(width, height, colours, rim):
    """A bar across the screen: lit along its upper edge, with a dark line above and below."""
    frame = Canvas(width, height)
    shade = stops(colours)
    frame.fill(everywhere(), lambda x, y: ramp(shade, (y - 1) / (height - 2)))
    frame.fill(box(0, 0, width, height * 0.46), fade("#ffffff", 0.22, 0.04, 0, height * 0.46))
    frame.fill(box(0, 0, width, 1), solid(rim))
    frame.fill(box(0, 1, width, 2), solid("#ffffff"), 0.55)
    frame.fill(box(0, height - 1, width, height), solid(rim), 0.8)
    return frame


def raised(frame, shape, pair, rim, top, bottom, gloss=0.5, shadow=0.35):
    """A plate that stands above its ground and is lit from above."""
    if shadow:
        frame.glow(moved(shape, 0, 1.2), 2.6, solid("#000000"), shadow)
    frame.fill(shape, gradient(pair, top, bottom))
    middle = top + (bottom - top) * 0.5
    frame.fill(lambda x, y: max(shape(x, y) + 1, y - middle), fade("#ffffff", gloss, gloss * 0.2, top, middle))
    frame.fill(inset(shape, 1.5), fade("#ffffff", 0, gloss * 0.3, top + (bottom - top) * 0.7, bottom))
    frame.stroke(inset(shape, 1), 1, fade("#ffffff", gloss * 1.3, gloss * 0.15, top, bottom))
    frame.stroke(shape, 1, solid(rim))


def sunken(frame, shape, pair, rim, top, bottom):
    """A plate that is pressed into its ground."""
    frame.fill(moved(shape, 0, 1), solid("#ffffff"), 0.3)
    frame.fill(shape, gradient(pair, top, bottom))
    frame.fill(inset(shape, 1), fade("#000000", 0.34, 0, top, top + 7))
    frame.stroke(shape, 1, solid(rim))


def ringed(frame, shape, text, strength=0.9):
    """A light around a plate that has the focus."""
    frame.glow(shape, 2.6, solid(text), strength)


def veiled(canvas, strength):
    """The picture with that share of its strength: for what can't be used."""
    canvas.pixels = [[tuple(c * strength for c in pixel) for pixel in row] for row in canvas.pixels]
    return canvas
