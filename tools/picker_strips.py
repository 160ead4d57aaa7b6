"""The picture strips of the arrowhead and block pickers, as rows of (r, g, b) pixels.

Each strip is one image wide; its images are stacked one above the other. make_bitmaps.py writes them. At the agreed
size every pixel is set as it stands here; larger strips are drawn from the same strokes, with smooth edges.
"""
import math

PAPER = (255, 255, 255)
INK = (0, 0, 0)
DETAIL = (0, 102, 184)


def outward(value, middle):
    """The pixel nearest to `value`, of two the one farther from `middle`, so that mirrored lines match."""
    return math.floor(value + 0.5) if value > middle else math.ceil(value - 0.5)


class Image:
    """A small picture on paper. Coordinates are pixels from the left top."""

    def __init__(self, width, height):
        self.rows = [[PAPER] * width for _ in range(height)]

    def dot(self, x, y, ink=INK):
        self.rows[y][x] = ink

    def line(self, x0, y0, x1, y1, ink=INK):
        steps = max(abs(x1 - x0), abs(y1 - y0), 1)
        middle_x, middle_y = len(self.rows[0]) // 2, len(self.rows) // 2
        for i in range(steps + 1):
            self.dot(outward(x0 + (x1 - x0) * i / steps, middle_x), outward(y0 + (y1 - y0) * i / steps, middle_y), ink)

    def slash(self, x, y, half_width):
        """A slash across a line's end, `half_width` pixels wide to each side of its middle."""
        for dy in range(-5, 6):
            self.line(x - dy - half_width, y + dy, x - dy + half_width, y + dy)

    def polygon(self, *corners, fill=None, ink=INK):
        """The outline through `corners`, filled with `fill` unless that is None."""
        if fill:
            for y in range(min(c[1] for c in corners), max(c[1] for c in corners) + 1):
                for x in range(min(c[0] for c in corners), max(c[0] for c in corners) + 1):
                    if inside(x, y, corners):
                        self.dot(x, y, fill)
        for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
            self.line(x0, y0, x1, y1, ink)

    def circle(self, x, y, radius, fill=None, ink=INK):
        """A circle around the pixel x, y; filled with `fill` unless that is None."""
        reach = int(radius) + 1
        for dy in range(-reach, reach + 1):
            for dx in range(-reach, reach + 1):
                distance = (dx * dx + dy * dy) ** 0.5
                if abs(distance - radius) < 0.5:
                    self.dot(x + dx, y + dy, ink)
                elif distance < radius and fill:
                    self.dot(x + dx, y + dy, fill)


class LargerImage:
    """The same calls at another size: keeps the strokes and draws them smoothly.

    Coordinates are still pixels of the agreed size; the middle of pixel x lies at x + 0.5.
    """
    SAMPLES = 5  # of a pixel, each way

    def __init__(self, width, height, size):
        self.scale = size / width
        self.size = size, size + height - width
        self.pen = max(1, round(self.scale))  # pixels
        self.strokes = []  # (whether a place is covered, ink), later ones on top

    def snapped(self, at):
        """The coordinate nearest to `at` where a stroke of the pen covers whole pixels."""
        return (round((at + 0.5) * self.scale - self.pen / 2) + self.pen / 2) / self.scale - 0.5

    def dot(self, x, y, ink=INK):
        self.strokes.append((lambda px, py, half: abs(px - x) <= 0.5 and abs(py - y) <= 0.5, ink))

    def line(self, x0, y0, x1, y1, ink=INK):
        ends = [self.snapped(at) for at in (x0, y0, x1, y1)]
        self.strokes.append((lambda px, py, half: to_segment(px, py, *ends) <= half, ink))

    def slash(self, x, y, half_width):
        ends = x + 5, y - 5, x - 5, y + 5
        self.strokes.append((lambda px, py, half: to_segment(px, py, *ends) <= half + half_width * 0.75, INK))

    def polygon(self, *corners, fill=None, ink=INK):
        if fill:
            self.strokes.append((lambda px, py, half: inside(px, py, corners), fill))
        for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
            self.line(x0, y0, x1, y1, ink)

    def circle(self, x, y, radius, fill=None, ink=INK):
        if fill:
            self.strokes.append((lambda px, py, half: math.hypot(px - x, py - y) <= radius, fill))
        self.strokes.append((lambda px, py, half: abs(math.hypot(px - x, py - y) - radius) <= half, ink))

    def rendered(self):
        half = self.pen / self.scale / 2
        return [[self.pixel(x, y, self.scale, half) for x in range(self.size[0])] for y in range(self.size[1])]

    def pixel(self, x, y, scale, half):
        total = [0, 0, 0]
        for row in range(self.SAMPLES):
            for column in range(self.SAMPLES):
                px = (x + (column + 0.5) / self.SAMPLES) / scale - 0.5
                py = (y + (row + 0.5) / self.SAMPLES) / scale - 0.5
                color = next((ink for covers, ink in reversed(self.strokes) if covers(px, py, half)), PAPER)
                total = [sum(parts) for parts in zip(total, color)]
        return tuple(round(part / self.SAMPLES ** 2) for part in total)


def to_segment(x, y, x0, y0, x1, y1):
    """Distance of a place from a line."""
    dx, dy = x1 - x0, y1 - y0
    length = dx * dx + dy * dy
    along = max(0, min(1, ((x - x0) * dx + (y - y0) * dy) / length)) if length else 0
    return math.hypot(x - x0 - along * dx, y - y0 - along * dy)


def inside(x, y, corners):
    """Whether a point lies in a polygon, by counting the edges to its right."""
    odd = False
    for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
        if (y0 > y) != (y1 > y) and x < x0 + (y - y0) * (x1 - x0) / (y1 - y0):
            odd = not odd
    return odd


# Arrowheads: 15 by 15 pixels. The tip is at the left, at TIP; the dimension line runs to the right edge at MIDDLE.
# The first and the last row stay paper, since neighbours share one.
ARROW_SIZE, TIP, MIDDLE, END = 15, 1, 7, 14


def arrow(draw, line_from=None):
    """What draws an arrowhead: `draw`, and its dimension line from `line_from` on (None for no line)."""
    def on(image):
        if line_from is not None:
            image.line(line_from, MIDDLE, END, MIDDLE)
        draw(image)
        return image
    return on


def triangle(image, fill=None):
    image.polygon((TIP, MIDDLE), (9, MIDDLE - 4), (9, MIDDLE + 4), fill=fill)


def strokes(image, x, dy):
    image.line(TIP, MIDDLE, x, MIDDLE - dy)
    image.line(TIP, MIDDLE, x, MIDDLE + dy)


def box(image, fill=None):
    image.polygon((2, MIDDLE - 4), (10, MIDDLE - 4), (10, MIDDLE + 4), (2, MIDDLE + 4), fill=fill)


def datum(image, fill=None):
    image.polygon((2, MIDDLE - 5), (2, MIDDLE + 5), (7, MIDDLE), fill=fill)


def integral(image):
    """A lying S through the line's end."""
    for x, y in ((3, 10), (3, 11), (4, 12), (5, 12), (6, 11), (6, 10), (7, 9), (7, 8), (7, 7), (7, 6), (7, 5), (8, 4),
                 (8, 3), (9, 2), (10, 2), (11, 3), (11, 4)):
        image.dot(x, y)


def origin(image, rings):
    image.circle(5, MIDDLE, 4)
    if rings == 2:
        image.circle(5, MIDDLE, 2)


ARROWHEADS = [
    arrow(lambda image: triangle(image, INK), 9),                   # 0 closed, filled
    arrow(lambda image: image.circle(5, MIDDLE, 4, INK), 5),        # 1 dot
    arrow(lambda image: image.circle(5, MIDDLE, 2, INK), 5),        # 2 small dot
    arrow(lambda image: image.circle(5, MIDDLE, 4), 9),             # 3 open dot
    arrow(lambda image: origin(image, 1), 1),                       # 4 origin: the line goes through
    arrow(lambda image: origin(image, 2), 7),                       # 5 origin 2
    arrow(lambda image: strokes(image, 9, 4), 1),                   # 6 open
    arrow(lambda image: strokes(image, 6, 5), 1),                   # 7 right angle
    arrow(lambda image: strokes(image, 13, 3), 1),                  # 8 30 degrees
    arrow(triangle, 1),                                             # 9 closed: the line goes through
    arrow(lambda image: image.circle(5, MIDDLE, 2), 7),             # 10 small open dot
    arrow(lambda image: None, 1),                                   # 11 none
    arrow(lambda image: image.slash(6, MIDDLE, 0), 3),                        # 12 oblique
    arrow(lambda image: box(image, INK), 10),                       # 13 box, filled
    arrow(box, 10),                                                 # 14 box
    arrow(triangle, 9),                                             # 15 closed, blank
    arrow(lambda image: datum(image, INK), 7),                      # 16 datum triangle, filled
    arrow(datum, 7),                                                # 17 datum triangle
    arrow(integral, 8),                                             # 18 integral
    arrow(lambda image: image.slash(6, MIDDLE, 1), 3),                        # 19 architectural tick
]


def stacked_sharing(images):
    """Neighbouring images share one row: 20 images of 15 are 281 rows."""
    return sum((image[:-1] for image in images), []) + [images[-1][-1]]


def arrowhead_strip():
    return stacked_sharing([draw(Image(ARROW_SIZE, ARROW_SIZE)).rows for draw in ARROWHEADS])


def larger_arrowhead_strip(size):
    """The images at `size`; their first and last row are paper here as well."""
    images = [draw(LargerImage(ARROW_SIZE, ARROW_SIZE, size)).rendered() for draw in ARROWHEADS]
    paper = [PAPER] * size
    return stacked_sharing([[paper] + image[1:-1] + [paper] for image in images])


# Callout blocks: 16 by 17 pixels, stacked without sharing. The letter stands for the text that a callout holds.
BLOCK_WIDTH, BLOCK_HEIGHT = 16, 17


def letter(image, x, y):
    """A small A with its top left at x, y."""
    for row, pattern in enumerate((".#.", "#.#", "###", "#.#", "#.#")):
        for column, mark in enumerate(pattern):
            if mark == "#":
                image.dot(x + column, y + row, DETAIL)


def detail(image):
    """A divided circle: number above, sheet below."""
    image.circle(8, 8, 6.6)
    image.line(2, 8, 14, 8)
    image.line(8, 4, 8, 6, DETAIL)
    image.line(6, 10, 10, 10, DETAIL)
    image.line(6, 12, 10, 12, DETAIL)


def slot(image):
    image.line(5, 4, 11, 4)
    image.line(5, 12, 11, 12)
    for x, y in ((4, 4), (3, 5), (2, 6), (1, 7), (1, 8), (1, 9), (2, 10), (3, 11), (4, 12)):
        image.dot(x, y)
        image.dot(16 - x, y)
    letter(image, 7, 6)


def ring(image):
    image.circle(8, 8, 6.6)
    letter(image, 7, 6)


def square(image):
    image.polygon((2, 2), (14, 2), (14, 14), (2, 14))
    letter(image, 7, 6)


def hexagon(image):
    image.polygon((1, 8), (4, 2), (12, 2), (15, 8), (12, 14), (4, 14))
    letter(image, 7, 6)


def triangle_block(image):
    image.polygon((8, 1), (15, 14), (1, 14))
    letter(image, 7, 8)


BLOCKS = (detail, slot, ring, square, hexagon, triangle_block, lambda image: None)


def block_strip():
    """Six images, then a blank one that the entry for a user's own block is drawn from."""
    rows = []
    for draw in BLOCKS:
        image = Image(BLOCK_WIDTH, BLOCK_HEIGHT)
        draw(image)
        rows += image.rows
    return rows


def larger_block_strip(size):
    """The images `size` wide and one pixel higher."""
    rows = []
    for draw in BLOCKS:
        image = LargerImage(BLOCK_WIDTH, BLOCK_HEIGHT, size)
        draw(image)
        rows += image.rendered()
    return rows
