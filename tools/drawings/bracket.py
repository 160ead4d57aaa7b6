"""A bearing bracket on an A3 sheet, in millimetres: front and top view, a section, dimensions, notes and a title block."""
import math

from .dxf import Drawing

WIDTH, DEPTH, BASE = 160.0, 90.0, 14.0
UPRIGHT = 16.0          # thickness
AXIS = 80.0             # height of the bore's axis above the ground
EYE, BORE = 38.0, 22.0  # radii
FRONT, TOP, SIDE = (48.0, 150.0), (48.0, 34.0), (262.0, 150.0)


def make():
    d = Drawing("AC1018", LUNITS=2, LUPREC=2, AUNITS=0, AUPREC=1, MEASUREMENT=1, INSUNITS=4, LTSCALE=1.0, CLAYER="OUTLINE",
                CELTYPE="ByLayer", CECOLOR=256, CELWEIGHT=-1, TEXTSTYLE="Standard", DIMSTYLE="Standard", PSTYLEMODE=1,
                LWDISPLAY=1, TEXTSIZE=3.5, DIMTXT=2.5, DIMASZ=2.5)
    d.style("Standard", "drafter.shx")
    d.style("TITLE", "drafter.shx", 0, 0.9)
    d.linetype("CENTER", "Center ____ _ ____ _ ____", 12, -2, 2, -2)
    d.linetype("HIDDEN", "Hidden __ __ __ __ __", 3, -1.5)
    d.linetype("PHANTOM", "Phantom ____ _ _ ____", 12, -2, 2, -2, 2, -2)
    for layer in (("0", 7), ("OUTLINE", 7, "Continuous", 50), ("HIDDEN", 3, "HIDDEN", 25), ("CENTER", 1, "CENTER", 18),
                  ("DIMENSIONS", 4, "Continuous", 18), ("HATCHING", 8, "Continuous", 13, 0x6E8CA8),
                  ("SECTION", 6, "PHANTOM", 35), ("TEXT", 2, "Continuous", 25), ("FRAME", 7, "Continuous", 70),
                  ("FASTENERS", 30, "Continuous", 25, 0xD2691E)):
        d.add_layer(*layer)
    front(d)
    top(d)
    section(d)
    sheet(d)
    d.layout("Model", d.model)
    d.layout("A3 Sheet", d.paper, "monochrome.ctb")
    return d


def eye_tangent(foot):
    """Where the straight side from `foot` touches the eye."""
    dx, dy = foot[0], foot[1] - AXIS
    apart = math.hypot(dx, dy)
    angle = math.atan2(dy, dx) + math.acos(EYE / apart) * (1 if foot[0] < 0 else -1) * -1
    return EYE * math.cos(angle), AXIS + EYE * math.sin(angle), math.degrees(angle)


def center_cross(d, x, y, radius, beyond=4.0):
    reach = radius + beyond
    d.line(x - reach, y, x + reach, y, layer="CENTER")
    d.line(x, y - reach, x, y + reach, layer="CENTER")


def front(d):
    x0, y0 = FRONT
    cx = x0 + WIDTH / 2
    d.layer = "OUTLINE"
    d.polyline([(x0, y0), (x0 + WIDTH, y0), (x0 + WIDTH, y0 + BASE), (x0, y0 + BASE)], closed=True)
    left = eye_tangent((-52.0, BASE))
    right = eye_tangent((52.0, BASE))
    d.line(cx - 52, y0 + BASE, cx + left[0], y0 + left[1])
    d.line(cx + 52, y0 + BASE, cx + right[0], y0 + right[1])
    d.arc(cx, y0 + AXIS, EYE, right[2], left[2])
    d.circle(cx, y0 + AXIS, BORE)
    d.circle(cx, y0 + AXIS, BORE + 1.5)
    for i in range(6):
        a = math.radians(60 * i + 30)
        x, y = cx + 30 * math.cos(a), y0 + AXIS + 30 * math.sin(a)
        d.circle(x, y, 2.5, layer="FASTENERS")
        d.arc(x, y, 3.0, 100, 10, layer="FASTENERS")
        d.line(x - 4 * math.cos(a), y - 4 * math.sin(a), x + 4 * math.cos(a), y + 4 * math.sin(a), layer="CENTER")
    d.circle(cx, y0 + AXIS, 30, layer="CENTER")
    center_cross(d, cx, y0 + AXIS, EYE, 6)
    for side in (-1, 1):
        x = cx + side * 62
        d.line(x - 5.5, y0, x - 5.5, y0 + 9, layer="HIDDEN")
        d.line(x + 5.5, y0, x + 5.5, y0 + 9, layer="HIDDEN")
        d.polyline([(x - 9, y0 + BASE), (x - 9, y0 + 9), (x + 9, y0 + 9), (x + 9, y0 + BASE)], layer="HIDDEN")
        d.line(x, y0 - 4, x, y0 + BASE + 4, layer="CENTER")
    d.line(cx - 4, y0 + BASE, cx - 4, y0 + AXIS - EYE, layer="HIDDEN")
    d.line(cx + 4, y0 + BASE, cx + 4, y0 + AXIS - EYE, layer="HIDDEN")
    d.linear(x0, y0, x0 + WIDTH, y0, -14)
    d.linear(cx - 62, y0, cx + 62, y0, -7, words="124 %%p0.1")
    d.linear(x0, y0, x0, y0 + BASE, 8, angle=90)
    d.linear(x0, y0, cx, y0 + AXIS, 18, angle=90, words="80 %%p0.05")
    d.diameter(cx, y0 + AXIS, BORE, 40, words="%%c44 H7", reach=26)
    d.diameter(cx, y0 + AXIS, 30, 150, words="6 x M6 / %%c60", reach=16)
    d.text(cx + 46, y0 + AXIS + 24, 2.5, "R38", layer="DIMENSIONS")
    for y, sign in ((y0 - 9, 1), (y0 + AXIS + EYE + 10, -1)):
        d.line(cx, y, cx, y + sign * 6, layer="SECTION")
    d.text(cx + 3, y0 + AXIS + EYE + 6, 5, "A", layer="TEXT")
    d.text(cx + 3, y0 - 9, 5, "A", layer="TEXT")


def top(d):
    x0, y0 = TOP
    r, bulge = 12.0, math.tan(math.pi / 8)
    d.layer = "OUTLINE"
    w, h = WIDTH, DEPTH
    d.polyline([(x0 + r, y0), (x0 + w - r, y0, bulge), (x0 + w, y0 + r), (x0 + w, y0 + h - r, bulge), (x0 + w - r, y0 + h),
                (x0 + r, y0 + h, bulge), (x0, y0 + h - r), (x0, y0 + r, bulge)], closed=True)
    cx = x0 + w / 2
    d.rectangle(cx - 52, y0 + 50, cx + 52, y0 + 50 + UPRIGHT)
    d.rectangle(cx - 4, y0 + 10, cx + 4, y0 + 50)
    for side in (-1, 1):
        d.line(cx + side * EYE, y0 + 50, cx + side * EYE, y0 + 50 + UPRIGHT)
        d.line(cx + side * BORE, y0 + 50, cx + side * BORE, y0 + 50 + UPRIGHT, layer="HIDDEN")
        for y in (y0 + 18, y0 + h - 14):
            x = cx + side * 62
            d.circle(x, y, 5.5)
            d.circle(x, y, 9)
            center_cross(d, x, y, 9, 3)
    d.line(cx, y0 - 6, cx, y0 + h + 6, layer="CENTER")
    d.line(x0 - 6, y0 + 58, x0 + w + 6, y0 + 58, layer="CENTER")
    d.linear(x0 + w, y0, x0 + w, y0 + h, -16, angle=90)
    d.linear(x0 + w - 18, y0 + 18, x0 + w - 18, y0 + h - 14, -26, angle=90)
    d.linear(cx + 52, y0 + 50, cx + 52, y0 + 66, -12, angle=90)
    d.diameter(cx - 62, y0 + 18, 5.5, 215, words="4 x %%c11 / %%c18 x 5", reach=11)
    d.text(x0 + 3, y0 + h + 5, 2.5, "4 x R12", layer="DIMENSIONS")


def hatch(d, x1, y1, x2, y2, pitch=2.6):
    """Lines at 45 degrees within a rectangle."""
    start = math.floor((y1 - x2) / pitch) * pitch
    c = start
    while c < y2 - x1:
        left, right = max(x1, y1 - c), min(x2, y2 - c)
        if right - left > 0.05:
            d.line(left, left + c, right, right + c, layer="HATCHING")
        c += pitch


def section(d):
    x0, y0 = SIDE
    u1, u2 = x0 + 24, x0 + 24 + UPRIGHT
    topmost = y0 + AXIS + EYE
    d.layer = "OUTLINE"
    d.polyline([(x0, y0), (x0 + DEPTH, y0), (x0 + DEPTH, y0 + BASE), (u2, y0 + BASE), (u2, topmost), (u1, topmost), (u1, y0 + BASE),
                (x0, y0 + BASE)], closed=True)
    for y in (y0 + AXIS - BORE, y0 + AXIS + BORE):
        d.line(u1, y, u2, y)
    for side in (-1, 1):
        edge = y0 + AXIS + side * (BORE + 1.5)
        inner = y0 + AXIS + side * BORE
        d.line(u1, edge, u1 + 1.5, inner)
        d.line(u2, edge, u2 - 1.5, inner)
    d.polyline([(u2, y0 + AXIS - EYE), (x0 + DEPTH - 10, y0 + BASE)])
    hatch(d, x0, y0, x0 + DEPTH, y0 + BASE)
    hatch(d, u1, y0 + BASE, u2, y0 + AXIS - BORE)
    hatch(d, u1, y0 + AXIS + BORE, u2, topmost)
    d.line(x0 + 6, y0 + AXIS, x0 + 64, y0 + AXIS, layer="CENTER")
    for y in (y0 + AXIS + 30, y0 + AXIS - 30):
        d.line(u1 - 4, y, u2 + 4, y, layer="CENTER")
        for off in (-2.5, 2.5):
            d.line(u1, y + off, u2, y + off, layer="FASTENERS")
    d.linear(u1, topmost, u2, topmost, 8)
    d.linear(x0, y0, x0 + DEPTH, y0, -14)
    d.linear(x0 + DEPTH, y0, u2, topmost, -14, angle=90)
    d.text(x0 + 45, y0 - 26, 5, "SECTION A-A", align=1, layer="TEXT", style="TITLE")


def sheet(d):
    d.layer = "FRAME"
    d.rectangle(0, 0, 420, 297, weight=18)
    d.rectangle(20, 10, 410, 287)
    for i in range(1, 6):
        x = 20 + 390 * i / 6
        d.line(x, 5, x, 10, weight=18)
        d.line(x, 287, x, 292, weight=18)
    for i in range(6):
        x = 20 + 390 * (i + 0.5) / 6
        for y in (7.5, 289.5):
            d.text(x, y, 2.5, str(i + 1), align=1, middle=True, layer="TEXT")
    for i, letter in enumerate("DCBA"):
        y = 10 + 277 * (i + 0.5) / 4
        d.text(15, y, 2.5, letter, align=1, middle=True, layer="TEXT")
    x, y = 230, 10
    d.rectangle(x, y, 410, y + 48)
    for row in (12, 24, 36):
        d.line(x, y + row, 410, y + row, weight=25)
    for column, low, high in ((290, 0, 36), (350, 0, 24), (380, 0, 12)):
        d.line(column, y + low, column, y + high, weight=25)
    d.layer = "TEXT"
    d.text(320, y + 42, 6, "BEARING BRACKET", align=1, middle=True, style="TITLE")
    for tx, ty, small, words in ((232, 30, "MATERIAL", "EN-GJS-400-15"), (292, 30, "FINISH", "PRIMED, BORE BARE"),
                                 (232, 18, "DRAWN", "M. OKAFOR"), (292, 18, "CHECKED", "L. SVENSSON"),
                                 (352, 18, "DATE", "2024-05-17"), (232, 6, "TOLERANCES", "ISO 2768-mK"),
                                 (292, 6, "DRAWING NO.", "VB-2041-03"), (352, 6, "SCALE", "1:1"), (382, 6, "SHEET", "1 / 1")):
        d.text(tx, y + ty + 2.2, 1.8, small, color=8)
        d.text(tx, y + ty - 3.4, 3, words)
    d.paragraph(232, 118, 2.8, 150, "{\\LNOTES}\\P1. All edges broken 0.5 x 45%%d unless shown.\\P2. Casting radii R3.\\P"
                                    "3. Bore machined together with its cap, VB-2041-04.\\P4. Pressure tightness not required.")
    d.line(238, 76, 242, 70)
    d.line(242, 70, 248, 80)
    d.line(248, 80, 258, 80)
    d.text(250, 81.5, 2.5, "Ra 1.6")
    d.entity("POINT", [("AcDbPoint", d.point3(10, FRONT[0] + WIDTH / 2, FRONT[1] + AXIS))], layer="CENTER",
             xdata=[(1001, "PE_URL"), (1000, "https://example.org/parts/vb-2041")])
    d.applications.append("PE_URL")
