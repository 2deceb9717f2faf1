"""Blue waves: overlapping circles of rings, row before row, an ornament that tiles both ways."""
import math


def waves(radius, rings=3, thickness=0.13):
    """The strength of the line at a point, from 0 to 1; the pattern repeats every 2 * `radius`
    columns and every `radius` rows."""
    step = radius / 2
    widths = [radius * (1 - 0.06 - n / rings) for n in range(rings)]

    def strength(x, y):
        row = math.floor((y + radius) / step) + 1  # the front rows hide those behind them
        while True:
            left = radius * (row % 2)
            dx = (x - left + radius) % (2 * radius) - radius
            distance = math.hypot(dx, y - row * step)
            if distance <= radius and y <= row * step:
                break
            row -= 1
            if row * step < y:
                return 0.0
        half = radius * thickness / 2
        return max(max(0.0, min(1.0, half + 0.5 - abs(distance - width))) for width in widths)

    return strength
