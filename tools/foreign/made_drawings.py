"""Drawings of every version, kind of entity and code page, made with ezdxf from fixed seeds."""

import math
import random

import ezdxf
from ezdxf.lldxf.const import DXF12

VERSIONS = ["R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018"]
# Words in the alphabets of the code pages.
WORDS = {
    "ANSI_874": "แบบแปลนชั้นหนึ่ง",
    "ANSI_932": "平面図 壁と窓",
    "ANSI_936": "总平面图 墙体",
    "ANSI_949": "평면도 벽",
    "ANSI_950": "總平面圖 牆",
    "ANSI_1250": "Půdorys stěna Łódź",
    "ANSI_1251": "План этажа Стена",
    "ANSI_1252": "Größe façade señal",
    "ANSI_1253": "Κάτοψη τοίχος",
    "ANSI_1254": "Duvar şeması ığ",
    "ANSI_1255": "תוכנית קיר",
    "ANSI_1256": "مخطط الجدار",
    "ANSI_1257": "Siena šķērsgriezums",
    "ANSI_1258": "Sơ đồ mặt bằng tường",
}


def fill(doc, rng, count):
    """Adds entities of every kind that the version has to model space, a block and a layout."""
    msp = doc.modelspace()
    old = doc.dxfversion == DXF12
    for name in ("WALLS", "DOORS", "NOTES"):
        doc.layers.add(name, color=rng.randint(1, 255))
    block = doc.blocks.new("DOOR")
    block.add_line((0, 0), (1, 0))
    block.add_attdef("NUMBER", (0, 0), dxfattribs={"height": 0.5})
    point = lambda: (rng.uniform(-500, 500), rng.uniform(-500, 500), rng.choice([0, rng.uniform(-5, 5)]))
    flat = lambda: point()[:2]
    attributes = lambda: {"layer": rng.choice(["0", "WALLS", "DOORS", "NOTES"]), "color": rng.randint(0, 256)}

    def insert():
        reference = msp.add_blockref("DOOR", point(), dxfattribs={**attributes(), "rotation": rng.uniform(0, 360)})
        reference.add_attrib("NUMBER", f"D-{rng.randint(1, 99)}", flat())

    makers = [
        lambda: msp.add_line(point(), point(), dxfattribs=attributes()),
        lambda: msp.add_point(point(), dxfattribs=attributes()),
        lambda: msp.add_circle(point(), rng.uniform(0.1, 50), dxfattribs=attributes()),
        lambda: msp.add_arc(point(), rng.uniform(0.1, 50), rng.uniform(0, 360), rng.uniform(0, 360), dxfattribs=attributes()),
        lambda: msp.add_text(f"note {rng.random()}", dxfattribs={**attributes(), "insert": point(), "height": 2.5}),
        lambda: msp.add_solid([flat() for _ in range(4)], dxfattribs=attributes()),
        lambda: msp.add_trace([flat() for _ in range(4)], dxfattribs=attributes()),
        lambda: msp.add_3dface([point() for _ in range(4)], dxfattribs=attributes()),
        lambda: msp.add_polyline2d([flat() for _ in range(5)], dxfattribs=attributes()),
        lambda: msp.add_polyline3d([point() for _ in range(5)], dxfattribs=attributes()),
        lambda: msp.add_polymesh((3, 4), dxfattribs=attributes()),
        insert,
        lambda: msp.add_linear_dim(base=flat(), p1=flat(), p2=flat()).render(),
        lambda: msp.add_radius_dim(center=flat(), radius=5, angle=rng.uniform(0, 360)).render(),
    ]
    if not old:
        makers += [
            lambda: msp.add_lwpolyline([(*flat(), rng.uniform(0, 1), 0, rng.choice([0, 0.5])) for _ in range(6)], dxfattribs=attributes()),
            lambda: msp.add_ellipse(point(), (rng.uniform(1, 9), 2, 0), rng.uniform(0.1, 1), 0, math.tau, dxfattribs=attributes()),
            lambda: msp.add_spline([point() for _ in range(6)], dxfattribs=attributes()),
            lambda: msp.add_open_spline([point() for _ in range(6)], dxfattribs=attributes()),
            lambda: msp.add_mtext(f"{{\\fArial;line}} {rng.random()}\\Psecond", dxfattribs={**attributes(), "insert": point(), "width": 40}),
            lambda: msp.add_leader([flat() for _ in range(3)]),
            lambda: msp.add_ray(point(), (1, 0, 0), dxfattribs=attributes()),
            lambda: msp.add_xline(point(), (0, 1, 0), dxfattribs=attributes()),
            lambda: hatch(msp, rng, flat),
            lambda: msp.add_mline([flat() for _ in range(4)]),
            lambda: msp.add_mesh(dxfattribs=attributes()),
            lambda: msp.add_wipeout([flat() for _ in range(4)]),
        ]
    for i in range(count):
        makers[i % len(makers)]()
    if not old:
        layout = doc.layouts.new("Sheet A")
        layout.add_viewport(center=(100, 100), size=(80, 60), view_center_point=(0, 0), view_height=100)
        layout.add_line((0, 0), (10, 10))
        group = doc.groups.new("SOME")
        group.extend(list(msp)[:3])
    for entity in list(msp)[:20]:
        if "KTUI_TEST" not in doc.appids:
            doc.appids.new("KTUI_TEST")
        entity.set_xdata("KTUI_TEST", [(1000, f"tag {rng.randint(0, 9)}"), (1040, rng.random()), (1003, "WALLS"), (1070, 7)])


def hatch(msp, rng, flat):
    area = msp.add_hatch(color=rng.randint(1, 7))
    if rng.random() < 0.5:
        area.set_pattern_fill("ANSI31", scale=0.5)
    area.paths.add_polyline_path([flat() for _ in range(4)], is_closed=True)
    edges = area.paths.add_edge_path()
    edges.add_arc((0, 0), 5, 0, 180)
    edges.add_line((-5, 0), (5, 0))


def made(folder, seeds):
    """Writes the drawings and answers their paths."""
    paths = []
    for seed in seeds:
        for version in VERSIONS:
            for form in ("asc", "bin"):
                rng = random.Random(f"{seed} {version}")
                doc = ezdxf.new(version, setup=True)
                fill(doc, rng, 120)
                path = folder / f"made_{seed}_{version}_{form}.dxf"
                doc.saveas(path, fmt=form)
                paths.append(path)
    for page, words in WORDS.items():
        for version in ("R12", "R2000", "R2018"):
            doc = ezdxf.new(version)
            doc.encoding = "cp" + page.split("_")[1] if page not in ("ANSI_936", "ANSI_932", "ANSI_949", "ANSI_950") else \
                {"ANSI_936": "gbk", "ANSI_932": "cp932", "ANSI_949": "cp949", "ANSI_950": "cp950"}[page]
            doc.layers.add(words.split()[0][:20])
            msp = doc.modelspace()
            msp.add_text(words, dxfattribs={"layer": words.split()[0][:20]})
            for letter in sorted(set(words)):
                msp.add_text(letter)
            path = folder / f"page_{page}_{version}.dxf"
            doc.saveas(path)
            paths.append(path)
    return paths


def large(path, version, size):
    """A file of `size` bytes and a little more of lines, circles and texts, as programs write them in this version."""
    marked = version > "AC1009"
    text = [f"  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n{version}\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n"]
    number = written = 0
    while written < size:
        kind, marker, rest = [
            ("LINE", "AcDbLine", f" 11\n1.25\n 21\n{number}\n 31\n0.0\n"),
            ("CIRCLE", "AcDbCircle", f" 40\n{number + 1}\n"),
            ("TEXT", "AcDbText", f" 40\n2.5\n  1\nnote {number}\n"),
        ][number % 3]
        common = "330\n1F\n100\nAcDbEntity\n  8\nWALLS\n100\n" + marker + "\n" if marked else "  8\nWALLS\n"
        text.append(f"  0\n{kind}\n  5\n{number + 0x100:X}\n{common} 10\n{number * 0.37}\n 20\n0.5\n 30\n0.0\n{rest}")
        written += len(text[-1])
        number += 1
    text.append("  0\nENDSEC\n  0\nEOF\n")
    path.write_text("".join(text))
