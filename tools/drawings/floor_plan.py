"""The ground floor of a small house, in inches with architectural units: walls, doors, windows, fixtures, furniture,
dimensions and room names."""
import math

from .dxf import Drawing

FOOT = 12.0
WIDTH, DEPTH = 40 * FOOT, 28 * FOOT
OUTER, INNER = 6.0, 4.5


def feet(value):
    """A length as 12'-6 1/2\"."""
    half = round(value * 2)
    whole, fraction = divmod(half, 2)
    ft, inches = divmod(whole, 12)
    return f"{ft}'-{inches}{' 1/2' if fraction else ''}\""


def make():
    d = Drawing("AC1015", LUNITS=4, LUPREC=4, AUNITS=1, AUPREC=2, MEASUREMENT=0, INSUNITS=1, LTSCALE=24.0, CLAYER="A-WALL",
                CELTYPE="ByLayer", CECOLOR=256, CELWEIGHT=-1, TEXTSTYLE="Standard", DIMSTYLE="ARCHITECTURAL", PSTYLEMODE=1,
                LWDISPLAY=1, TEXTSIZE=6.0, DIMTXT=5.0, DIMASZ=4.0)
    d.style("Standard", "drafter.shx")
    d.style("ROOMS", "drafteru.shx")
    d.style("TITLE", "tahoma.ttf", family="Tahoma")
    d.linetype("DASHED", "Dashed __ __ __ __", 0.5, -0.25)
    d.linetype("CENTER", "Center ____ _ ____ _", 1.25, -0.25, 0.25, -0.25)
    d.linetype("HIDDEN", "Hidden _ _ _ _ _", 0.25, -0.125)
    for layer in (("0", 7), ("A-WALL", 7, "Continuous", 50), ("A-WALL-PATT", 8, "Continuous", 9), ("A-DOOR", 3, "Continuous", 25),
                  ("A-GLAZ", 4, "Continuous", 25), ("A-FLOR-STRS", 2, "Continuous", 18), ("A-FLOR-FIXT", 6, "Continuous", 18),
                  ("A-FURN", 30, "Continuous", 13), ("A-GRID", 1, "CENTER", 13), ("A-ROOF-OVHD", 8, "DASHED", 13),
                  ("DIMENSIONS", 5, "Continuous", 13), ("A-ANNO", 7, "Continuous", 25)):
        d.add_layer(*layer)
    d.dim_style("ARCHITECTURAL", "_ArchTick", "_ArchTick", "_Dot")
    d.dim.update(text=5.0, arrow=4.0, gap=3.0, beyond=3.0, format=feet)
    blocks(d)
    walls(d)
    openings(d)
    fixtures(d)
    furniture(d)
    annotation(d)
    d.layout("Model", d.model)
    d.layout("Ground floor", d.paper, "screening.ctb", "ARCH_D_(36.00_x_24.00_Inches)", (36, 24))
    return d


def in_block(d, name, draw):
    before, layer = d.open, d.layer
    d.open, d.layer = d.block(name), "0"
    draw()
    d.open, d.layer = before, layer


def blocks(d):
    def door():
        d.rectangle(0, 0, 1.5, 36)
        d.arc(0, 0, 36, 0, 90)

    def window():
        d.rectangle(0, 0, 48, OUTER)
        d.line(0, 2, 48, 2)
        d.line(0, 4, 48, 4)
        d.line(24, 2, 24, 4)
        d.line(-2, -1.5, 50, -1.5)

    def toilet():
        d.rectangle(-10, 0, 10, 8)
        d.ellipse(0, 17, 0, 10, 0.72)
        d.ellipse(0, 17, 0, 7, 0.7)

    def tub():
        d.rectangle(0, 0, 60, 30)
        d.polyline([(6, 4), (48, 4, 0.45), (48, 26), (6, 26)], closed=True)
        d.circle(10, 15, 1.5)

    def basin():
        d.rectangle(-12, 0, 12, 20)
        d.ellipse(0, 10.5, 8.5, 0, 0.72)
        d.circle(0, 15, 1)

    def stove():
        d.rectangle(0, 0, 30, 25)
        for x in (8, 22):
            for y, r in ((8, 4), (17.5, 3)):
                d.circle(x, y, r)
                d.circle(x, y, r * 0.5)

    def sink():
        d.rectangle(0, 0, 33, 22)
        for x in (2, 17.5):
            d.rectangle(x, 3, x + 13.5, 18)
            d.circle(x + 6.75, 10, 1.2)
        d.line(16.5, 20, 16.5, 12)

    def bed():
        d.rectangle(-30, 0, 30, 80)
        for x in (-26, 4):
            d.polyline([(x, 66), (x + 22, 66), (x + 22, 76), (x, 76)], closed=True)
        d.line(-30, 60, 30, 60)
        d.polyline([(-30, 60), (-12, 52), (30, 58)])

    def sofa():
        d.rectangle(0, 0, 84, 36)
        d.rectangle(6, 0, 78, 28)
        for x in (30, 54):
            d.line(x, 0, x, 28)

    def chair():
        d.polyline([(-9, -9), (9, -9), (9, 9, 0.25), (-9, 9)], closed=True)
        d.line(-9, 6, 9, 6)

    def bubble():
        d.circle(0, 0, 9)

    for name, draw in (("DOOR36", door), ("WINDOW48", window), ("TOILET", toilet), ("TUB", tub), ("BASIN", basin), ("STOVE", stove),
                       ("SINK", sink), ("BED", bed), ("SOFA", sofa), ("CHAIR", chair), ("GRID-BUBBLE", bubble)):
        in_block(d, name, draw)


def wall(d, x1, y1, x2, y2, gaps=()):
    """A wall within the rectangle, broken by `gaps` (from, to) along its length."""
    along_x = x2 - x1 >= y2 - y1
    at = x1 if along_x else y1
    for low, high in list(sorted(gaps)) + [(x2 if along_x else y2, None)]:
        if low > at:
            corners = [(at, y1), (low, y1), (low, y2), (at, y2)] if along_x else [(x1, at), (x2, at), (x2, low), (x1, low)]
            d.polyline(corners, closed=True, layer="A-WALL")
            d.solid(corners, layer="A-WALL-PATT")
        at = high if high is not None else at


# Inner faces: the hall and stairs stand in the middle, living and kitchen on the left, two bedrooms on the right.
V1, V2 = 204.0, 288.0   # inner walls that run up
H1, H2 = 168.0, 204.0   # inner walls that run across


def walls(d):
    wall(d, 0, 0, WIDTH, OUTER, [(48, 96), (120, 168), (228, 264), (324, 372), (396, 444)])
    wall(d, 0, DEPTH - OUTER, WIDTH, DEPTH, [(60, 108), (132, 180), (324, 372), (396, 444)])
    wall(d, 0, OUTER, OUTER, DEPTH - OUTER, [(60, 108), (246, 294)])
    wall(d, WIDTH - OUTER, OUTER, WIDTH, DEPTH - OUTER, [(66, 114), (246, 294)])
    wall(d, V1, OUTER, V1 + INNER, DEPTH - OUTER, [(96, 144), (228, 264)])
    wall(d, V2, OUTER, V2 + INNER, DEPTH - OUTER, [(120, 156), (210, 246)])
    wall(d, OUTER, H1, V1, H1 + INNER, [(84, 156)])
    wall(d, V2 + INNER, H1, WIDTH - OUTER, H1 + INNER)
    wall(d, V1 + INNER, H2 + 66, V2, H2 + 66 + INNER, [(216, 252)])


def openings(d):
    for x, y in ((48, 0), (120, 0), (324, 0), (396, 0)):
        d.insert("WINDOW48", x, y, layer="A-GLAZ")
    for x in (60, 132, 324, 396):
        d.insert("WINDOW48", x + 48, DEPTH, rotation=180, layer="A-GLAZ")
    for y in (60, 246):
        d.insert("WINDOW48", 0, y + 48, rotation=270, layer="A-GLAZ")
    for y in (66, 246):
        d.insert("WINDOW48", WIDTH, y, rotation=90, layer="A-GLAZ")
    d.insert("DOOR36", 228, OUTER, layer="A-DOOR")
    d.insert("DOOR36", V1, 264, rotation=180, layer="A-DOOR")
    d.insert("DOOR36", V2 + INNER, 120, rotation=0, layer="A-DOOR")
    d.insert("DOOR36", V2 + INNER, 246, scale=1, scale_y=-1, layer="A-DOOR")
    d.insert("DOOR36", 252, H2 + 66, rotation=180, layer="A-DOOR")
    for x in (84, 156):
        d.line(x, H1, x, H1 + INNER, layer="A-DOOR")
    d.line(84, H1 + INNER / 2, 156, H1 + INNER / 2, layer="A-ROOF-OVHD")


def fixtures(d):
    d.layer = "A-FLOR-FIXT"
    d.polyline([(OUTER, 186), (OUTER + 25, 186), (OUTER + 25, DEPTH - OUTER - 25), (178, DEPTH - OUTER - 25), (178, DEPTH - OUTER)])
    d.insert("SINK", 67, DEPTH - OUTER - 24)
    d.insert("STOVE", OUTER, 230, rotation=-90)
    d.rectangle(148, DEPTH - OUTER - 30, 178, DEPTH - OUTER)
    d.text(163, DEPTH - OUTER - 15, 5, "REF", align=1, middle=True)
    y = DEPTH - OUTER
    d.insert("TUB", V2 - 30, y, rotation=-90, scale_y=1)
    d.insert("TOILET", V1 + INNER + 28, y, rotation=180)
    d.insert("BASIN", V1 + INNER, H2 + 66 + INNER + 20, rotation=-90)
    d.layer = "A-FLOR-STRS"
    x1, x2, low = V1 + INNER + 40, V2, 60
    for i in range(14):
        d.line(x1, low + 10 * i, x2, low + 10 * i)
    d.line(x1, low, x1, low + 130)
    d.polyline([(x1 + 20, low + 5), (x1 + 20, low + 125)])
    d.solid([(x1 + 20, low + 130), (x1 + 17, low + 122), (x1 + 23, low + 122)])
    d.text(x1 + 20, low - 8, 5, "UP 14R", align=1)


def furniture(d):
    d.layer = "A-FURN"
    d.insert("SOFA", 34, 14)
    d.insert("SOFA", 14, 140, rotation=-90, scale=0.8)
    d.rectangle(54, 70, 100, 94)
    d.ellipse(152, 80, 0, 28, 0.85)
    d.rectangle(60, 206, 132, 242)
    for x in (78, 114):
        d.insert("CHAIR", x, 254)
        d.insert("CHAIR", x, 194, rotation=180)
    d.insert("BED", 400, 86, rotation=0)
    d.rectangle(346, 146, 366, 166)
    d.rectangle(434, 146, 454, 166)
    d.insert("BED", 396, 252, rotation=0)
    d.rectangle(300, 290, 330, 330)
    d.rectangle(V2 + INNER, 10, V2 + INNER + 26, 110, linetype="HIDDEN")
    for i in range(8):
        d.line(V2 + INNER + 4, 16 + 12 * i, V2 + INNER + 22, 20 + 12 * i)


def room(d, x, y, name, size):
    d.text(x, y, 8, name, align=1, middle=True, style="ROOMS", layer="A-ANNO")
    if size:
        d.text(x, y - 11, 5, size, align=1, middle=True, layer="A-ANNO")


def annotation(d):
    room(d, 120, 130, "LIVING ROOM", "16'-6\" x 13'-6\"")
    room(d, 100, 284, "KITCHEN", "16'-6\" x 13'-1 1/2\"")
    room(d, 228, 212, "HALL", None)
    room(d, V1 + 38, 282, "BATH", None)
    room(d, 400, 52, "BEDROOM 1", "15'-1 1/2\" x 13'-6\"")
    room(d, 400, 210, "BEDROOM 2", "15'-1 1/2\" x 13'-1 1/2\"")
    d.layer = "A-GRID"
    for i, x in enumerate((OUTER / 2, V1 + INNER / 2, V2 + INNER / 2, WIDTH - OUTER / 2)):
        d.line(x, -14, x, DEPTH + 76)
        d.insert("GRID-BUBBLE", x, DEPTH + 85, attributes=[("GRID", str(i + 1), x, DEPTH + 85, 8)])
    for letter, y in (("A", OUTER / 2), ("B", H1 + INNER / 2), ("C", DEPTH - OUTER / 2)):
        d.line(-76, y, WIDTH + 14, y)
        d.insert("GRID-BUBBLE", -85, y, attributes=[("GRID", letter, -85, y, 8)])
    axes = (OUTER / 2, V1 + INNER / 2, V2 + INNER / 2, WIDTH - OUTER / 2)
    for a, b in zip(axes, axes[1:]):
        d.linear(a, DEPTH, b, DEPTH, 30)
    d.linear(0, DEPTH, WIDTH, DEPTH, 52)
    rows = (OUTER / 2, H1 + INNER / 2, DEPTH - OUTER / 2)
    for a, b in zip(rows, rows[1:]):
        d.linear(0, a, 0, b, 30, angle=90)
    d.linear(0, 0, 0, DEPTH, 52, angle=90)
    stops = (0, 48, 96, 120, 168, 228, 264, 324, 372, 396, 444, WIDTH)
    for a, b in zip(stops, stops[1:]):
        d.linear(a, 0, b, 0, -30)
    d.polyline([(-24, -24), (WIDTH + 24, -24), (WIDTH + 24, DEPTH + 24), (-24, DEPTH + 24)], closed=True, layer="A-ROOF-OVHD")
    d.layer = "A-ANNO"
    d.text(WIDTH / 2, -78, 14, "GROUND FLOOR PLAN", align=1, style="TITLE")
    d.line(WIDTH / 2 - 110, -84, WIDTH / 2 + 110, -84, weight=70)
    d.text(WIDTH / 2, -96, 6, "SCALE 1/4\" = 1'-0\"", align=1)
    x, y = WIDTH + 66, DEPTH + 30
    d.circle(x, y, 18)
    d.solid([(x, y + 26), (x - 7, y - 14), (x, y - 6)])
    d.polyline([(x, y + 26), (x + 7, y - 14), (x, y - 6)], closed=True)
    d.text(x, y + 34, 10, "N", align=1, middle=True)
