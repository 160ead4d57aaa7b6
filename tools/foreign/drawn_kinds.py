"""A drawing with each kind of entity in a place of its own, made with ezdxf, and what ezdxf's drawing add-on draws of a drawing."""

import re

import ezdxf
from ezdxf.addons.drawing import Frontend, RenderContext
from ezdxf.addons.drawing.backend import Backend
from ezdxf.addons.drawing.config import Configuration, LinePolicy
from ezdxf.tools.fonts import FontMeasurements

CELL = 100  # drawing units from one kind to the next


def kinds_drawing(path):
    """Writes the drawing; answers the kinds in it."""
    doc = ezdxf.new("R2010", setup=True)
    msp = doc.modelspace()
    block = doc.blocks.new("B", base_point=(5, 5))
    block.add_line((0, 0), (40, 20))
    block.add_circle((20, 20), 15)
    block.add_lwpolyline([(0, 40), (20, 60), (40, 40)], close=True)

    def hatch(x, y, pattern):
        area = msp.add_hatch(color=1)
        if pattern:
            area.set_pattern_fill("ANSI31", scale=10)
        area.paths.add_polyline_path([(x, y), (x + 80, y), (x + 70, y + 70), (x, y + 60)], is_closed=True)

    makers = {
        "LINE": lambda x, y: [msp.add_line((x + 9 * i, y), (x + 80 - 5 * i, y + 70)) for i in range(6)],
        "CIRCLE": lambda x, y: [msp.add_circle((x + 40, y + 40), r) for r in (10, 25, 38)],
        "ARC": lambda x, y: [msp.add_arc((x + 40, y + 40), r, 20 * r, 300 + r) for r in (15, 25, 38)],
        "ELLIPSE": lambda x, y: [msp.add_ellipse((x + 40, y + 40), (38, 9), r, 0.3, 5.5) for r in (0.3, 0.6, 0.9)],
        "LWPOLYLINE": lambda x, y: [msp.add_lwpolyline([(x, y, 0.4), (x + 80, y, -0.7), (x + 60, y + i, 0), (x, y + 70, 0.2)], format="xyb", close=True) for i in (30, 50, 70)],
        "POLYLINE": lambda x, y: [msp.add_polyline3d([(x + i, y, 0), (x + 80, y + 20, 5), (x + 10, y + 50, 9), (x + 70, y + 70 - i, 0)]) for i in (0, 12, 24)],
        "SPLINE": lambda x, y: [msp.add_open_spline([(x, y + i), (x + 30, y + 80), (x + 50, y - 20), (x + 80, y + 70)]) for i in (0, 20, 40)],
        "SOLID": lambda x, y: [msp.add_solid([(x + i, y), (x + 80, y + i), (x + i, y + 70), (x + 60, y + 60)]) for i in (0, 15)],
        "3DFACE": lambda x, y: [msp.add_3dface([(x + i, y), (x + 80, y + 5), (x + 70, y + 70), (x + i, y + 50)]) for i in (0, 10, 20)],
        "INSERT": lambda x, y: [msp.add_blockref("B", (x + 10, y + 10), dxfattribs={"rotation": r, "xscale": 1.2, "yscale": 0.8}) for r in (0, 15, 30)],
        "HATCH": lambda x, y: hatch(x, y, True),
        "LEADER": lambda x, y: [msp.add_leader([(x, y + i), (x + 40, y + 60), (x + 80, y + 60 + i)]) for i in (0, 10, 20)],
        "DIMENSION": lambda x, y: [msp.add_linear_dim(base=(x, y + 20 * i), p1=(x, y), p2=(x + 80, y + 5), dimstyle="EZDXF").render() for i in (1, 2, 3)],
        "MLINE": lambda x, y: [msp.add_mline([(x, y + i), (x + 70, y + i), (x + 70, y + 70)], dxfattribs={"scale_factor": 8}) for i in (0, 20)],
        "TEXT": lambda x, y: [msp.add_text(f"quick zebra {i}", dxfattribs={"insert": (x, y + 20 * i), "height": 8}) for i in range(4)],
        "MTEXT": lambda x, y: msp.add_mtext("vexing\\Pjumps\\Pfoxy", dxfattribs={"insert": (x, y + 70), "char_height": 10, "width": 80}),
    }
    for i, make in enumerate(makers.values()):
        make(i % 4 * CELL, i // 4 * CELL)
    doc.saveas(path)
    return list(makers)


class Lines(Backend):
    """Keeps what is drawn as lines and texts, in drawing units."""

    def __init__(self):
        super().__init__()
        self.lines, self.texts = [], []

    def set_background(self, color):
        pass

    def clear(self):
        pass

    def draw_point(self, pos, properties):
        self.lines.append([(pos.x, pos.y)])

    def draw_line(self, start, end, properties):
        self.lines.append([(start.x, start.y), (end.x, end.y)])

    def draw_filled_polygon(self, points, properties):
        points = [(p.x, p.y) for p in points]
        if points:
            self.lines.append([*points, points[0]])

    def draw_filled_paths(self, paths, holes, properties):
        for path in [*paths, *holes]:
            self.draw_filled_polygon(path.flattening(self.config.max_flattening_distance), properties)

    def draw_text(self, text, transform, properties, cap_height):
        self.texts.append(text)

    def get_font_measurements(self, cap_height, font=None):
        return FontMeasurements(0, cap_height, cap_height * 0.7, cap_height * 0.3)

    def get_text_line_width(self, text, cap_height, font=None):
        return len(text) * cap_height * 0.8


class LettersAlone(Frontend):
    """Of paragraphs, whose layout needs fonts, it keeps the letters."""

    def draw_mtext_entity(self, entity, properties):
        self.out.texts.append(entity.plain_text().replace("\n", ""))


def characters(text):
    """Characters that a file has by their number, which the add-on leaves as they are."""
    return re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda code: chr(int(code.group(1), 16)), text).replace("\\~", "")


def drawn_by_addon(path):
    doc = ezdxf.readfile(path)
    backend = Lines()
    config = Configuration.defaults().with_changes(line_policy=LinePolicy.SOLID, hatching_timeout=5, pdsize=None, pdmode=None)
    LettersAlone(RenderContext(doc), backend, config=config).draw_layout(doc.modelspace(), finalize=False)
    return backend.lines, [characters(text) for text in backend.texts]
