"""The pictures of the toolkit's own buttons and of its alert, as rows of (r, g, b) pixels.

Each is described by shapes in a grid of its agreed size and drawn at any size without smoothing: the colour of the corner
is the one that is left out when a button paints, so no pixel may lie between it and a stroke.
"""
KEY = (255, 0, 255)
EDGE, FILL = (38, 46, 64), (255, 255, 255)
BLUE, ORANGE = (0, 102, 184), (230, 108, 44)
YELLOW, AMBER = (255, 205, 60), (150, 96, 0)

# The pointer of both buttons, its tip at 0, 0.
POINTER = ((0, 0), (0, 9.4), (2.2, 7.4), (3.8, 10.7), (5.4, 10), (3.8, 6.8), (6.7, 6.8))


def inside(x, y, corners):
    """Whether a place lies in a polygon, by counting the edges to its right."""
    odd = False
    for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
        if (y0 > y) != (y1 > y) and x < x0 + (y - y0) * (x1 - x0) / (y1 - y0):
            odd = not odd
    return odd


class Picture:
    """A square picture of `size` pixels; shapes are given in a grid of `grid` units a side."""

    def __init__(self, size, grid):
        self.size, self.scale = size, size / grid
        self.rows = [[KEY] * size for _ in range(size)]

    def put(self, x, y, color):
        if 0 <= x < self.size and 0 <= y < self.size:
            self.rows[y][x] = color

    def covered(self, covers):
        """The pixels whose middle `covers`, in units of the grid."""
        return {(x, y) for y in range(self.size) for x in range(self.size)
                if covers((x + 0.5) / self.scale, (y + 0.5) / self.scale)}

    def shape(self, covers, fill, edge):
        """Fills what is covered, and draws an edge just around it."""
        area = self.covered(covers)
        reach = max(1, round(self.scale))
        for x, y in area:
            for dy in range(-reach, reach + 1):
                for dx in range(-reach, reach + 1):
                    if abs(dx) + abs(dy) <= reach and (x + dx, y + dy) not in area:
                        self.put(x + dx, y + dy, edge)
        for x, y in area:
            self.put(x, y, fill)

    def box(self, left, top, right, bottom, color):
        """A bar whose edges are rounded to whole pixels; it is one pixel wide at least."""
        x0, y0 = round(left * self.scale), round(top * self.scale)
        x1, y1 = max(x0 + 1, round(right * self.scale)), max(y0 + 1, round(bottom * self.scale))
        for y in range(y0, y1):
            for x in range(x0, x1):
                self.put(x, y, color)

    def pointer(self, x, y):
        corners = tuple((x + px, y + py) for px, py in POINTER)
        self.shape(lambda px, py: inside(px, py, corners), FILL, EDGE)


def pick(size):
    """A pointer whose tip is on a point."""
    picture = Picture(size, 16)
    picture.box(1, 4, 9, 5, BLUE)
    picture.box(4, 1, 5, 9, BLUE)
    picture.pointer(5, 4.1)
    picture.box(3, 3, 6, 6, ORANGE)
    picture.rows[0][0] = KEY
    return picture.rows


def pick_set(size):
    """A pointer on a dashed window of selection."""
    picture = Picture(size, 16)
    for at in range(1, 15, 4):
        for line in (1, 12):
            picture.box(at, line, at + 2, line + 1, BLUE)
        for line in (1, 14):
            if at < 12:
                picture.box(line, at, line + 1, at + 2, BLUE)
    picture.pointer(6, 3.1)
    return picture.rows


def plot_stamp(size):
    """A rubber stamp above the line that it left."""
    picture = Picture(size, 16)
    handle = ((6.2, 2), (9.8, 2), (9.2, 6.6), (6.8, 6.6))
    picture.shape(lambda x, y: inside(x, y, handle), ORANGE, EDGE)
    plate = ((3, 7.6), (13, 7.6), (13, 10.4), (3, 10.4))
    picture.shape(lambda x, y: inside(x, y, plate), FILL, EDGE)
    picture.box(2, 13, 14, 14.4, BLUE)
    return picture.rows


def window_pick(size):
    """A window between two corners, and the pointer on the second."""
    picture = Picture(size, 16)
    for line in (2, 9):
        picture.box(1, line, 11, line + 1, BLUE)
    for line in (1, 10):
        picture.box(line, 2, line + 1, 10, BLUE)
    picture.box(0.4, 1.4, 2.6, 3.6, ORANGE)
    picture.pointer(8, 5)
    picture.rows[0][0] = KEY
    return picture.rows


def drop_layers(size):
    """A stack of two sheets, and an arrow that comes down on it."""
    picture = Picture(size, 16)
    for top, fill in ((9, ORANGE), (6.6, FILL)):
        sheet = ((8, top - 2.4), (14, top + 1.4), (8, top + 5.2), (2, top + 1.4))
        picture.shape(lambda x, y, sheet=sheet: inside(x, y, sheet), fill, EDGE)
    picture.box(7, 1, 9, 5, BLUE)
    arrow = ((4.6, 4.6), (11.4, 4.6), (8, 8.4))
    for x, y in picture.covered(lambda px, py: inside(px, py, arrow)):
        picture.put(x, y, BLUE)
    return picture.rows


def warning(size):
    """A triangle with an exclamation mark."""
    picture = Picture(size, 32)
    corners = ((16, 4), (28, 27), (4, 27))
    picture.shape(lambda x, y: inside(x, y, corners), YELLOW, AMBER)
    picture.box(15, 11, 17, 20, EDGE)
    picture.box(15, 22, 17, 24, EDGE)
    return picture.rows


def wizard(size):
    """A wand that leaves three sparks, in a grid of 16, as (r, g, b) pixels with the key for what is clear."""
    picture = Picture(size, 16)
    wand = ((2, 12.6), (10.2, 4.4), (11.6, 5.8), (3.4, 14))
    picture.shape(lambda x, y: inside(x, y, wand), BLUE, EDGE)
    for x, y in ((12, 2), (14, 8), (6, 2)):
        picture.box(x - 0.5, y - 1.5, x + 0.5, y + 1.5, ORANGE)
        picture.box(x - 1.5, y - 0.5, x + 1.5, y + 0.5, ORANGE)
    return picture.rows


def search(size):
    """A magnifying glass, in a grid of 16."""
    picture = Picture(size, 16)
    for x, y in picture.covered(lambda x, y: 3.4 <= ((x - 6.5) ** 2 + (y - 6.5) ** 2) ** 0.5 <= 4.9):
        picture.put(x, y, EDGE)
    handle = ((9.4, 10.8), (10.8, 9.4), (14.6, 13.2), (13.2, 14.6))
    for x, y in picture.covered(lambda x, y: inside(x, y, handle)):
        picture.put(x, y, EDGE)
    return picture.rows


def clear(size):
    """A cross, in a grid of 16."""
    picture = Picture(size, 16)
    for x, y in picture.covered(lambda x, y: 3.5 <= x <= 12.5 and 3.5 <= y <= 12.5 and
                                min(abs(x - y), abs(x + y - 16)) < 1.1):
        picture.put(x, y, EDGE)
    return picture.rows
