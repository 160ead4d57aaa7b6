"""The site of a small community centre, in metres: boundary with bearings, contours, road, buildings, parking, trees. Named plot
styles, several layouts, and layers and linetypes that came with an external reference."""
import math

from .dxf import Drawing

CORNERS = [(12.0, 10.0), (118.0, 6.0), (132.0, 58.0), (96.0, 92.0), (18.0, 84.0)]


def make():
    d = Drawing("AC1015", LUNITS=2, LUPREC=3, AUNITS=4, AUPREC=4, MEASUREMENT=1, INSUNITS=6, LTSCALE=1.0, CLAYER="C-SITE",
                CELTYPE="ByLayer", CECOLOR=256, CELWEIGHT=-1, TEXTSTYLE="Standard", DIMSTYLE="SURVEY", PSTYLEMODE=0,
                LWDISPLAY=1, TEXTSIZE=1.5, DIMTXT=1.2, DIMASZ=1.0)
    d.style("Standard", "drafter.shx")
    d.style("TITLES", "arial.ttf", family="Arial")
    d.style("NOTES", "drafter.shx", big="drafterc.shx", slant=10.0)
    d.linetype("BOUNDARY", "Boundary ____ ____ . ____ ____ .", 3, -0.8, 3, -0.8, 0, -0.8)
    d.linetype("CENTER", "Center ____ _ ____ _", 3, -0.6, 0.6, -0.6)
    d.linetype("DASHED", "Dashed __ __ __", 1.2, -0.6)
    d.linetype("DOT", "Dot . . . . .", 0, -0.5)
    d.linetype("SURVEY|DASHED", "Dashed __ __ __", 1.5, -0.75, flags=16)
    d.linetype("SURVEY|FENCE", "Fence ---- - ---- -", 2, -0.3, 0.3, -0.3, flags=16)
    d.linetype("UTILITIES|WATER", "Water ____ _ _ ____", 3, -0.5, 0.5, -0.5, 0.5, -0.5, flags=16)
    for name in ("Heavy", "Screened 50%", "Thin Grey", "Planting"):
        d.plot_style(name)
    for layer in (("0", 7), ("C-SITE", 7, "Continuous", 35, None, "Normal"), ("C-PROP", 1, "BOUNDARY", 70, None, "Heavy"),
                  ("C-ROAD", 8, "Continuous", 35, None, "Normal"), ("C-ROAD-CNTR", 2, "CENTER", 18, None, "Thin Grey"),
                  ("C-TOPO-MAJR", 34, "Continuous", 25, None, "Screened 50%"), ("C-TOPO-MINR", 33, "SURVEY|DASHED", 13, None, "Screened 50%"),
                  ("C-BLDG", 5, "Continuous", 53, None, "Heavy"), ("C-PKNG", 4, "Continuous", 18, None, "Normal"),
                  ("L-PLNT", 3, "Continuous", 13, None, "Planting"), ("C-ANNO", 7, "Continuous", 25, None, "Normal"),
                  ("DIMENSIONS", 6, "Continuous", 13, None, "Thin Grey"), ("SURVEY|FENCE", 9, "SURVEY|FENCE", 18, None, "Normal", 16),
                  ("UTILITIES|WATER", 150, "UTILITIES|WATER", 18, None, "Thin Grey", 16)):
        d.add_layer(*layer)
    d.dim_style("SURVEY", "_Dot", "_ArchTick", "_Dot")
    d.dim.update(text=1.2, arrow=1.0, gap=0.5, beyond=0.6, format=lambda v: f"{v:.2f}")
    trees(d)
    boundary(d)
    ground(d)
    road(d)
    buildings(d)
    planting(d)
    titles(d)
    layouts(d)
    return d


def bearing(dx, dy):
    """A direction as N 45%%d12'30" E."""
    angle = math.degrees(math.atan2(dy, dx)) % 360
    quadrant = int(angle // 90)
    inside = (90 - angle, angle - 90, 270 - angle, angle - 270)[quadrant]
    seconds = round(inside * 3600)
    degrees, rest = divmod(seconds, 3600)
    return f"{'NNSS'[quadrant]} {degrees}%%d{rest // 60:02d}'{rest % 60:02d}\" {'EWWE'[quadrant]}"


def boundary(d):
    d.polyline(CORNERS, closed=True, layer="C-PROP")
    inset = [(x + (70 - x) * 0.075, y + (50 - y) * 0.09) for x, y in CORNERS]
    d.polyline(inset, closed=True, layer="C-SITE", linetype="DASHED", weight=13)
    for (x1, y1), (x2, y2) in zip(CORNERS, CORNERS[1:] + CORNERS[:1]):
        d.circle(x1, y1, 0.5, layer="C-PROP", linetype="Continuous")
        angle = math.degrees(math.atan2(y2 - y1, x2 - x1))
        turn = angle if -90 <= angle <= 90 else angle + 180
        r = math.radians(turn)
        mx, my = (x1 + x2) / 2, (y1 + y2) / 2
        outward = 1.6 if (mx - 70) * -math.sin(r) + (my - 50) * math.cos(r) > 0 else -1.6
        d.text(mx - math.sin(r) * outward, my + math.cos(r) * outward, 1.3,
               f"{bearing(x2 - x1, y2 - y1)}   {math.hypot(x2 - x1, y2 - y1):.2f}", rotation=turn, align=1, middle=True, layer="C-ANNO")
    d.polyline([(x + (70 - x) * 0.015, y + (50 - y) * 0.02) for x, y in CORNERS[2:] + CORNERS[:1]], layer="SURVEY|FENCE")


def ground(d):
    for i in range(9):
        height = 104 + 0.5 * i
        major = i % 2 == 0
        base = 16 + 9 * i
        points = [(6 + 11 * k, base + 5 * math.sin(0.55 * k + 0.3 * i) + 0.12 * i * k) for k in range(13)]
        layer = "C-TOPO-MAJR" if major else "C-TOPO-MINR"
        d.spline(points, layer=layer)
        if major:
            d.text(points[-1][0] + 1, points[-1][1], 1.2, f"{height:.1f}", layer=layer)


def road(d):
    offsets = (-14.0, -7.5)
    for y in offsets:
        d.polyline([(-12, y), (56, y - 1.5), (150, y + 2)], layer="C-ROAD")
    d.polyline([(-12, -10.75), (56, -12.25), (150, -8.75)], layer="C-ROAD-CNTR")
    d.text(20, -10.2, 1.8, "MILL LANE", layer="C-ANNO", rotation=-1.3)
    # the drive from the road to the parking
    d.line(92, -7.6, 92, 22, layer="C-ROAD")
    d.polyline([(86, -8), (86, 42, -0.414), (92, 48)], layer="C-ROAD")
    d.arc(82, -4.2, 4, 270, 0, layer="C-ROAD")
    d.arc(96, -3.4, 4, 180, 270, layer="C-ROAD")
    d.polyline([(-12, -4), (70, -5.2), (74, 20), (73, 34)], layer="UTILITIES|WATER")


def buildings(d):
    hall = [(36, 40), (66, 40), (66, 34), (80, 34), (80, 60), (58, 60), (58, 66), (36, 66)]
    d.polyline(hall, closed=True, layer="C-BLDG")
    d.polyline([(x + (58 - x) * 0.05, y + (50 - y) * 0.07) for x, y in hall], closed=True, layer="C-BLDG", linetype="DASHED", weight=13)
    d.line(36, 53, 58, 53, layer="C-BLDG", weight=18)
    d.line(58, 47, 80, 47, layer="C-BLDG", weight=18)
    d.text(52, 51, 2.4, "COMMUNITY CENTRE", align=1, middle=True, layer="C-ANNO")
    d.text(52, 47.6, 1.4, "FFL 105.600", align=1, middle=True, layer="C-ANNO")
    d.rectangle(30, 22, 40, 29, layer="C-BLDG")
    d.text(35, 25.5, 1.3, "STORE", align=1, middle=True, layer="C-ANNO")
    d.circle(24, 56, 5, layer="C-SITE")
    d.circle(24, 56, 4.2, layer="C-SITE")
    d.text(24, 56, 1.2, "POND", align=1, middle=True, layer="C-ANNO")
    d.spline([(60, 34), (62, 28), (70, 24), (78, 22), (86, 20)], layer="C-SITE", linetype="DOT")
    d.linear(36, 66, 58, 66, 4)
    d.linear(36, 40, 36, 66, 4, angle=90)
    d.linear(80, 34, 80, 60, -4, angle=90)
    d.layer = "C-PKNG"
    for row, y in enumerate((24.0, 41.0)):
        for i in range(9):
            x = 94 + 2.5 * i
            d.line(x, y, x, y + 5)
            if i < 8:
                d.text(x + 1.25, y + (0.8 if row else 3.8), 0.8, str(row * 8 + i + 1), align=1, middle=True)
        d.line(94, y if row == 0 else y + 5, 114, y if row == 0 else y + 5)
    d.polyline([(92, 22), (118, 22, 0.414), (121, 25), (121, 45, 0.414), (118, 48), (92, 48)], layer="C-ROAD")
    for x, y, turn in ((104, 34, 0), (104, 37, 180)):
        d.insert("FLOW", x, y, rotation=turn)


def trees(d):
    def crown(points, wobble):
        ring = []
        for i in range(points):
            a = 2 * math.pi * i / points
            ring.append((math.cos(a) * (1 + wobble * math.sin(5 * a)), math.sin(a) * (1 + wobble * math.sin(5 * a)), 0.6))
        return ring

    before = d.open
    for name, points, wobble in (("TREE-BROAD", 11, 0.08), ("TREE-SMALL", 7, 0.0)):
        d.open = d.block(name)
        d.polyline(crown(points, wobble), closed=True, layer="0")
        d.circle(0, 0, 0.12, layer="0")
        for i in range(5):
            a = 2 * math.pi * i / 5 + 0.3
            d.line(0.12 * math.cos(a), 0.12 * math.sin(a), 0.7 * math.cos(a), 0.7 * math.sin(a), layer="0")
    d.open = d.block("TREE-FIR")
    for i in range(12):
        a = 2 * math.pi * i / 12
        d.line(0, 0, math.cos(a), math.sin(a), layer="0")
    d.circle(0, 0, 0.6, layer="0")
    d.open = d.block("FLOW")
    d.line(-3, 0, 2, 0, layer="0")
    d.solid([(3, 0), (1.5, 0.6), (1.5, -0.6)], layer="0")
    d.open = before


def planting(d):
    d.layer = "L-PLNT"
    for i in range(8):
        d.insert("TREE-BROAD", 22 + 9.6 * i, 80 + 1.0 * i - (2.2 if i > 6 else 0), 2.6 + 0.5 * math.sin(2.1 * i), 37 * i)
    for i in range(6):
        d.insert("TREE-FIR", 19 + 0.4 * i, 16 + 10.6 * i, 1.8 + 0.3 * math.cos(i), 11 * i)
    for i in range(11):
        d.insert("TREE-SMALL", 44 + 3.9 * i, 12 + 0.6 * math.sin(i), 1.2 + 0.25 * math.sin(1.7 * i), 23 * i)
    for x, y in ((124, 53), (119, 60), (112, 67), (105, 74)):
        d.insert("TREE-BROAD", x - 3, y - 1, 2.2, x)


def titles(d):
    d.layer = "C-ANNO"
    d.text(70, 104, 4, "SITE PLAN - MILL LANE COMMUNITY CENTRE", align=1, middle=True, style="TITLES")
    x, y = 142, 84
    d.circle(x, y, 5)
    d.solid([(x, y + 7), (x - 2, y - 4), (x, y - 2)])
    d.polyline([(x, y + 7), (x + 2, y - 4), (x, y - 2)], closed=True)
    d.text(x, y + 9.5, 3, "N", align=1, middle=True)
    for i in range(4):
        corners = [(124 + 5 * i, -22), (129 + 5 * i, -22), (129 + 5 * i, -21), (124 + 5 * i, -21)]
        d.polyline(corners, closed=True)
        if i % 2 == 0:
            d.solid(corners)
        d.text(124 + 5 * i, -20, 1.2, str(5 * i), align=1)
    d.text(144, -20, 1.2, "20 m", align=1)
    d.paragraph(-10, 100, 1.5, 26, "LEVELS IN METRES\\PABOVE DATUM.\\P\\PBOUNDARY FROM\\PSURVEY 2023-11.\\P\\P16 PARKING SPACES", style="NOTES")


def layouts(d):
    d.open = d.paper
    d.rectangle(10, 10, 831, 584, layer="C-ANNO")
    d.text(600, 20, 7, "SITE PLAN 1:200", layer="C-ANNO")
    second = d.block("*Paper_Space0")
    d.open = second
    d.rectangle(10, 10, 410, 287, layer="C-ANNO")
    d.text(300, 15, 5, "PLANTING 1:500", layer="C-ANNO")
    d.open = d.model
    d.layout("Model", d.model, "velmora.stb")
    d.layout("Site A1", d.paper, "velmora.stb", "ISO_A1_(841.00_x_594.00_MM)", (841, 594))
    d.layout("Planting A3", second, "planting.stb")
