"""Pictures of toolbar buttons, drawn on a grid of 16 by 16 with smooth edges: rows of (r, g, b, a) pixels.

Lines are nearly grey, because greys are turned round on dark bars; colors read on light and dark alike.
"""
import math

INK = (72, 84, 104)
PAPER = (250, 250, 252)
BLUE = (0, 122, 204)
ORANGE = (230, 108, 44)
SAND = (232, 176, 72)
SAMPLES = 6  # in each direction of a pixel


def box(left, top, right, bottom):
    return lambda x, y: left <= x <= right and top <= y <= bottom


def frame(left, top, right, bottom, line=1):
    outer, inner = box(left, top, right, bottom), box(left + line, top + line, right - line, bottom - line)
    return lambda x, y: outer(x, y) and not inner(x, y)


def polygon(*corners):
    def inside(x, y):
        odd = False
        for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
            if (y0 > y) != (y1 > y) and x < x0 + (y - y0) * (x1 - x0) / (y1 - y0):
                odd = not odd
        return odd

    return inside


def line(x0, y0, x1, y1, width):
    dx, dy = x1 - x0, y1 - y0

    def near(x, y):
        t = max(0.0, min(1.0, ((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy)))
        return (x - x0 - t * dx) ** 2 + (y - y0 - t * dy) ** 2 <= width * width / 4

    return near


def ring(cx, cy, radius, width, first=0, last=360):
    """Degrees go from the right down and around."""

    def near(x, y):
        angle = math.degrees(math.atan2(y - cy, x - cx)) % 360
        on = abs(math.hypot(x - cx, y - cy) - radius) <= width / 2
        return on and (first <= angle <= last or first <= angle + 360 <= last)

    return near


def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) <= radius


def mirrored(shapes):
    return [((lambda x, y, shape=shape: shape(16 - x, y)), color) for shape, color in shapes]


def sheet():
    return [(polygon((3, 1), (10, 1), (13, 4), (13, 15), (3, 15)), INK),
            (polygon((4, 2), (9, 2), (9, 5), (12, 5), (12, 14), (4, 14)), PAPER),
            (polygon((10, 2.4), (11.6, 4), (10, 4)), PAPER)]


def new():
    return sheet()


def open_folder():
    return [(polygon((1, 3), (6, 3), (7.5, 5), (14, 5), (14, 14), (1, 14)), INK),
            (polygon((2, 4), (5.5, 4), (7, 6), (13, 6), (13, 13), (2, 13)), SAND),
            (polygon((4, 8), (15.6, 8), (13.4, 14), (1.6, 14)), INK),
            (polygon((4.7, 9), (14.2, 9), (12.7, 13), (3, 13)), (246, 204, 116))]


def save():
    return [(polygon((1, 1), (13, 1), (15, 3), (15, 15), (1, 15)), BLUE),
            (box(4, 1, 11, 6), PAPER), (box(8, 2, 10, 5), BLUE), (box(4, 9, 12, 15), PAPER),
            (box(5, 11, 11, 12), INK), (box(5, 13, 11, 14), INK)]


def export():
    return sheet() + [(box(6, 9, 11, 11), ORANGE), (polygon((11, 6.5), (15.6, 10), (11, 13.5)), ORANGE)]


def undo():
    return [(ring(8.5, 9, 4.6, 2, 195, 430), BLUE), (polygon((1, 8.6), (8, 8.6), (4.2, 2.4)), BLUE)]


def redo():
    return mirrored(undo())


def extents():
    corners = []
    for flip_x in (False, True):
        for flip_y in (False, True):
            for part in (box(1, 1, 5, 2), box(1, 1, 2, 5)):
                corners.append(((lambda x, y, p=part, fx=flip_x, fy=flip_y:
                                 p(16 - x if fx else x, 16 - y if fy else y)), INK))
    return corners + [(frame(4, 4, 12, 12, 2), BLUE)]


def glass():
    return [(line(10, 10, 14, 14, 2.6), INK), (disc(6.5, 6.5, 5.5), INK), (disc(6.5, 6.5, 4.3), PAPER)]


def zoom_in():
    return glass() + [(box(4, 6, 9, 7), BLUE), (box(6, 4, 7, 9), BLUE)]


def zoom_out():
    return glass() + [(box(4, 6, 9, 7), BLUE)]


def select_window():
    dashes = [(box(at, edge, at + 2, edge + 1), INK) for at in (2, 5, 8, 11) for edge in (2, 12)]
    dashes += [(box(edge, at, edge + 1, at + 2), INK) for at in (2, 5, 8, 11) for edge in (2, 12)]
    return dashes + [(polygon((7, 6), (7, 15.4), (9.2, 13.4), (10.6, 16), (12.2, 15.2), (11, 12.8), (14, 12.8)), BLUE)]


def measure():
    ticks = [(box(at, 6, at + 1, 8 if at % 4 else 9), INK) for at in (3, 5, 7, 8, 10, 12)]
    return [(box(1, 5, 15, 12), INK), (box(2, 6, 14, 11), SAND)] + ticks


def properties():
    rows = []
    for y, knob in ((2, 10), (7, 5), (12, 8)):
        rows += [(box(1, y, 15, y + 1), INK), (box(knob - 1, y - 1, knob + 1, y + 2), BLUE)]
    return rows


FILE_BAR = (new, open_folder, save, export, undo, redo)
VIEW_BAR = (extents, zoom_in, zoom_out, select_window, measure, properties)


def drawn(shapes, size):
    """Each pixel is the mean of its samples, the shape painted last on top."""

    def pixel(column, row):
        sums, covered = [0, 0, 0], 0
        for i in range(SAMPLES * SAMPLES):
            x = (column + (i % SAMPLES + 0.5) / SAMPLES) * 16 / size
            y = (row + (i // SAMPLES + 0.5) / SAMPLES) * 16 / size
            color = next((color for shape, color in reversed(shapes) if shape(x, y)), None)
            if color is not None:
                covered += 1
                sums = [total + part for total, part in zip(sums, color)]
        if covered == 0:
            return (0, 0, 0, 0)
        return (*(round(total / covered) for total in sums), round(255 * covered / SAMPLES ** 2))

    return [[pixel(column, row) for column in range(size)] for row in range(size)]


def strip(bar, size):
    """The pictures of a bar, side by side."""
    pictures = [drawn(picture(), size) for picture in bar]
    return [sum(rows, []) for rows in zip(*pictures)]
