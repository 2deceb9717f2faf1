"""A small painter for skin art: shapes are distance functions, edges are smooth, no dependencies.

A shape is a function of a point that answers the signed distance to its outline, negative
inside; a paint is a function of a point that answers straight (red, green, blue, alpha), each
from 0 to 1. Points are pixel centres.
"""
import math


class Canvas:
    """Premultiplied float pixels, top row first."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.pixels = [[(0.0, 0.0, 0.0, 0.0)] * width for _ in range(height)]

    def fill(self, shape, paint, opacity=1.0):
        """Paints the inside of a shape over what is there."""
        for y in range(self.height):
            for x in range(self.width):
                cover = coverage(shape(x + 0.5, y + 0.5)) * opacity
                if cover > 0:
                    self._over(x, y, paint(x + 0.5, y + 0.5), cover)

    def stroke(self, shape, width, paint, opacity=1.0):
        """Paints a line of the given width inside the outline."""
        self.fill(lambda x, y: max(shape(x, y), -shape(x, y) - width), paint, opacity)

    def glow(self, shape, radius, paint, opacity=1.0):
        """A soft light or shadow that fades out over `radius` pixels outside the shape."""
        for y in range(self.height):
            for x in range(self.width):
                distance = max(0.0, shape(x + 0.5, y + 0.5))
                if distance < radius:
                    fade = 1 - distance / radius
                    self._over(x, y, paint(x + 0.5, y + 0.5), fade * fade * opacity)

    def erase(self, shape):
        for y in range(self.height):
            for x in range(self.width):
                keep = 1 - coverage(shape(x + 0.5, y + 0.5))
                self.pixels[y][x] = tuple(c * keep for c in self.pixels[y][x])

    def paste(self, other, left, top):
        for y in range(other.height):
            for x in range(other.width):
                self.pixels[top + y][left + x] = other.pixels[y][x]

    def _over(self, x, y, colour, cover):
        red, green, blue, alpha = colour
        alpha *= cover
        below = self.pixels[y][x]
        above = (red * alpha, green * alpha, blue * alpha, alpha)
        self.pixels[y][x] = tuple(a + b * (1 - alpha) for a, b in zip(above, below))

    def straight(self, x, y):
        """The pixel as straight 8-bit (red, green, blue, alpha)."""
        red, green, blue, alpha = self.pixels[y][x]
        if alpha <= 0:
            return (0, 0, 0, 0)
        return tuple(byte(c / alpha) for c in (red, green, blue)) + (byte(alpha),)

    def flattened(self, x, y, key):
        """The pixel for a file without alpha: the key where it is more clear than not, else
        opaque, so that no half-keyed fringe is left."""
        red, green, blue, alpha = self.straight(x, y)
        return (red, green, blue) if alpha >= 128 else key


def strip(frames, vertical=False):
    """One picture of equal frames, side by side or one below the other."""
    width, height = frames[0].width, frames[0].height
    whole = Canvas(width, height * len(frames)) if vertical else Canvas(width * len(frames), height)
    for index, frame in enumerate(frames):
        whole.paste(frame, 0 if vertical else index * width, index * height if vertical else 0)
    return whole


def turned(canvas):
    """The picture with its two directions exchanged: what ran across runs down."""
    other = Canvas(canvas.height, canvas.width)
    other.pixels = [list(column) for column in zip(*canvas.pixels)]
    return other


def byte(value):
    return max(0, min(255, int(value * 255 + 0.5)))


def coverage(distance):
    return max(0.0, min(1.0, 0.5 - distance))


# Shapes.

def box(left, top, right, bottom, radius=0.0):
    return corners(left, top, right, bottom, (radius,) * 4)


def corners(left, top, right, bottom, radii):
    """A box with a radius for each corner: top left, top right, bottom right, bottom left."""
    cx, cy = (left + right) / 2, (top + bottom) / 2
    hw, hh = (right - left) / 2, (bottom - top) / 2

    def distance(x, y):
        dx, dy = x - cx, y - cy
        radius = radii[(1 if dy < 0 else 2) if dx > 0 else (0 if dy < 0 else 3)]
        qx, qy = abs(dx) - hw + radius, abs(dy) - hh + radius
        return min(max(qx, qy), 0.0) + math.hypot(max(qx, 0.0), max(qy, 0.0)) - radius

    return distance


def circle(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) - radius


def line(points, width):
    """A line through the points with round ends and joints."""

    def distance(x, y):
        return min(_segment(x, y, a, b) for a, b in zip(points, points[1:])) - width / 2

    return distance


def polygon(points):
    """A convex polygon, its points clockwise on the screen."""

    def distance(x, y):
        worst = -1e9
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            length = math.hypot(bx - ax, by - ay)
            worst = max(worst, ((y - ay) * (bx - ax) - (x - ax) * (by - ay)) / -length)
        return worst

    return distance


def everywhere():
    return lambda x, y: -1e9


def union(*shapes):
    return lambda x, y: min(shape(x, y) for shape in shapes)


def inset(shape, by):
    return lambda x, y: shape(x, y) + by


def moved(shape, dx, dy):
    return lambda x, y: shape(x - dx, y - dy)


def _segment(x, y, a, b):
    (ax, ay), (bx, by) = a, b
    dx, dy = bx - ax, by - ay
    t = max(0.0, min(1.0, ((x - ax) * dx + (y - ay) * dy) / (dx * dx + dy * dy or 1)))
    return math.hypot(x - ax - t * dx, y - ay - t * dy)


# Paints.

def colour(text, alpha=1.0):
    """'#rrggbb' as a colour."""
    return tuple(int(text[i:i + 2], 16) / 255 for i in (1, 3, 5)) + (alpha,)


def solid(text, alpha=1.0):
    value = colour(text, alpha)
    return lambda x, y: value


def mix(a, b, t):
    return tuple(p + (q - p) * t for p, q in zip(a, b))


def ramp(stops, t):
    """The colour at t from 0 to 1 along [(place, colour), ...]."""
    t = max(stops[0][0], min(stops[-1][0], t))
    for (p, a), (q, b) in zip(stops, stops[1:]):
        if t <= q:
            return mix(a, b, (t - p) / (q - p) if q > p else 0)
    return stops[-1][1]


def down(top, bottom, stops):
    """A gradient from y `top` to y `bottom`."""
    return lambda x, y: ramp(stops, (y - top) / (bottom - top))


def fade(text, start, end, top, bottom):
    """One colour whose strength runs from `start` at y `top` to `end` at y `bottom`."""
    return down(top, bottom, [(0, colour(text, start)), (1, colour(text, end))])


def across(left, right, stops):
    return lambda x, y: ramp(stops, (x - left) / (right - left))
