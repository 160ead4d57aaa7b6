"""A drawing that is put together in memory and comes out as the text of an ASCII DXF file.

Lengths are drawing units, angles are degrees. Entities go to the block that is open (model space at first).
"""
import math


def number(value):
    """A real as files hold it."""
    text = f"{value:.10f}".rstrip("0")
    return text + "0" if text.endswith(".") else text.replace("-0.0", "0.0") if float(text) == 0 else text


class Block:
    """A named list of entities."""

    def __init__(self, name, record, begin, end):
        self.name, self.record, self.begin, self.end = name, record, begin, end
        self.layout = None
        self.entities = []


class Drawing:
    """One drawing; see file_text() for the file."""

    def __init__(self, version, **variables):
        self.version = version
        self.variables = variables
        self.next_handle = 1
        self.layers, self.linetypes, self.styles, self.applications = [], [], [], ["ACAD"]
        self.plot_styles = {}
        self.layouts = []
        self.dim_count = 0
        self.table_handles = {name: self.handle() for name in
                              ("VPORT", "LTYPE", "LAYER", "STYLE", "VIEW", "UCS", "APPID", "DIMSTYLE", "BLOCK_RECORD")}
        self.root, self.group_dict, self.layout_dict, self.style_dict = (self.handle() for _ in range(4))
        self.style_objects = {"Normal": self.handle()}
        self.blocks = []
        self.model = self.block("*Model_Space")
        self.paper = self.block("*Paper_Space")
        self.open = self.model
        self.layer = "0"
        for name, words in (("ByBlock", ""), ("ByLayer", ""), ("Continuous", "Solid line")):
            self.linetype(name, words)
        self.dim = {"text": 2.5, "arrow": 2.5, "gap": 1.0, "beyond": 1.25, "format": lambda v: f"{v:g}", "style": "Standard",
                    "heads": ("", "")}
        self.dim_styles = []

    def handle(self):
        self.next_handle += 1
        return f"{self.next_handle - 1:X}"

    # ---- tables ----

    def linetype(self, name, words, *dashes, flags=0):
        self.linetypes.append((name, self.handle(), words, dashes, flags))

    def add_layer(self, name, color=7, linetype="Continuous", weight=-3, true_color=None, plot_style="Normal", flags=0):
        self.layers.append((name, self.handle(), color, linetype, weight, true_color, plot_style, flags))

    def style(self, name, font, height=0.0, width=1.0, big="", family="", slant=0.0):
        """`big` is the font for Asian characters, `family` the name of a TrueType font's family."""
        self.styles.append((name, self.handle(), font, height, width, big, family, slant))

    def dim_style(self, name, first, second, leader=""):
        """A dimension style with arrowheads, named as their blocks are, in which the dimensions to come are drawn."""
        for head in {first, second, leader} - {""}:
            self._arrow_block(head)
        self.dim.update(style=name, heads=(first, second))
        self.dim_styles.append((name, self.handle(), first, second, leader))

    def _arrow_block(self, name):
        if any(b.name == name for b in self.blocks):
            return
        before, self.open = self.open, self.block(name)
        self._arrow_shape(0, 0, 0, name, 1.0)
        self.line(-1, 0, 0 if name == "_ArchTick" else -0.5, 0, layer="0", color=0)
        self.open = before

    def _arrow_shape(self, x, y, direction, name, size):
        c, s = math.cos(direction) * size, math.sin(direction) * size
        at = lambda u, v: (x + u * c - v * s, y + u * s + v * c)
        if name == "_ArchTick":
            self.solid([at(-0.55, -0.45), at(-0.45, -0.55), at(0.55, 0.45), at(0.45, 0.55)], layer="0", color=0)
        elif name == "_Dot":
            ring = [at(0.5 * math.cos(math.pi * i / 8), 0.5 * math.sin(math.pi * i / 8)) for i in range(17)]
            for i in range(0, 16, 2):
                self.solid([at(0, 0), ring[i], ring[i + 1], ring[i + 2]], layer="0", color=0)
        else:
            self.solid([at(0, 0), at(-1, -1 / 6), at(-1, 1 / 6)], layer="0", color=0)

    def plot_style(self, name):
        self.style_objects[name] = self.handle()

    def block(self, name):
        made = Block(name, self.handle(), self.handle(), self.handle())
        self.blocks.append(made)
        return made

    def layout(self, name, block, sheet="", paper="ISO_A3_(420.00_x_297.00_MM)", size=(420, 297)):
        block.layout = self.handle()
        self.layouts.append((name, block, sheet, paper, size))

    # ---- entities ----

    def entity(self, kind, parts, layer=None, color=None, linetype=None, weight=None, true_color=None, xdata=(), scale=None):
        """One entity; `parts` is a list of (marker, pairs). Answers its handle."""
        own = self.handle()
        groups = [(0, kind), (5, own), (330, self.open.record), (100, "AcDbEntity")]
        if self.open is not self.model and self.open.name.startswith("*Paper"):
            groups.append((67, 1))
        groups.append((8, layer or self.layer))
        if linetype:
            groups.append((6, linetype))
        if color is not None:
            groups.append((62, color))
        if scale:
            groups.append((48, scale))
        if weight is not None:
            groups.append((370, weight))
        if true_color is not None:
            groups.append((420, true_color))
        for marker, pairs in parts:
            groups.append((100, marker))
            groups.extend(pairs)
        groups.extend(xdata)
        self.open.entities.append(groups)
        return own

    @staticmethod
    def point3(code, x, y, z=0.0):
        return [(code, float(x)), (code + 10, float(y)), (code + 20, float(z))]

    def line(self, x1, y1, x2, y2, **common):
        self.entity("LINE", [("AcDbLine", self.point3(10, x1, y1) + self.point3(11, x2, y2))], **common)

    def circle(self, x, y, radius, **common):
        self.entity("CIRCLE", [("AcDbCircle", self.point3(10, x, y) + [(40, float(radius))])], **common)

    def arc(self, x, y, radius, start, end, **common):
        self.entity("ARC", [("AcDbCircle", self.point3(10, x, y) + [(40, float(radius))]),
                            ("AcDbArc", [(50, float(start)), (51, float(end))])], **common)

    def ellipse(self, x, y, major_x, major_y, ratio, **common):
        self.entity("ELLIPSE", [("AcDbEllipse", self.point3(10, x, y) + self.point3(11, major_x, major_y) +
                                 self.point3(210, 0, 0, 1) + [(40, float(ratio)), (41, 0.0), (42, 2 * math.pi)])], **common)

    def polyline(self, points, closed=False, width=0.0, elevation=0.0, **common):
        """Corners are (x, y) or (x, y, bulge)."""
        pairs = [(90, len(points)), (70, 1 if closed else 0), (43, float(width))]
        if elevation:
            pairs.append((38, float(elevation)))
        for corner in points:
            pairs += [(10, float(corner[0])), (20, float(corner[1]))]
            if len(corner) > 2 and corner[2]:
                pairs.append((42, float(corner[2])))
        self.entity("LWPOLYLINE", [("AcDbPolyline", pairs)], **common)

    def rectangle(self, x1, y1, x2, y2, **common):
        self.polyline([(x1, y1), (x2, y1), (x2, y2), (x1, y2)], closed=True, **common)

    def solid(self, corners, **common):
        """A filled triangle or quadrilateral, corners in order round its edge."""
        a, b, c = corners[:3]
        d = corners[3] if len(corners) > 3 else c
        order = (a, b, d, c) if len(corners) > 3 else (a, b, c, c)
        pairs = []
        for i, corner in enumerate(order):
            pairs += self.point3(10 + i, *corner)
        self.entity("SOLID", [("AcDbTrace", pairs)], **common)

    def spline(self, points, degree=3, **common):
        count = len(points)
        knots = [min(max(i - degree, 0), count - degree) for i in range(count + degree + 1)]
        pairs = [(70, 8), (71, degree), (72, len(knots)), (73, count), (74, 0)]
        pairs += [(40, float(k)) for k in knots]
        for x, y in points:
            pairs += self.point3(10, x, y)
        self.entity("SPLINE", [("AcDbSpline", pairs)], **common)

    def text(self, x, y, height, words, rotation=0.0, align=0, middle=False, style="Standard", **common):
        """`align` is 0 left, 1 centre, 2 right; `middle` centres it upright as well."""
        pairs = self.point3(10, x, y) + [(40, float(height)), (1, words)]
        if rotation:
            pairs.append((50, float(rotation)))
        pairs.append((7, style))
        behind = []
        if align or middle:
            pairs += [(72, align)] + self.point3(11, x, y)
            behind = [(73, 2 if middle else 0)]
        self.entity("TEXT", [("AcDbText", pairs), ("AcDbText", behind)], **common)

    def paragraph(self, x, y, height, width, words, style="Standard", **common):
        pairs = self.point3(10, x, y) + [(40, float(height)), (41, float(width)), (71, 1), (72, 1), (1, words), (7, style)]
        self.entity("MTEXT", [("AcDbMText", pairs)], **common)

    def insert(self, name, x, y, scale=1.0, rotation=0.0, scale_y=None, attributes=(), layer=None, **common):
        """`attributes` are (tag, words, x, y, height)."""
        pairs = [(66, 1)] if attributes else []
        pairs += [(2, name)] + self.point3(10, x, y)
        pairs += [(41, float(scale)), (42, float(scale_y if scale_y is not None else scale)), (43, float(abs(scale)))]
        if rotation:
            pairs.append((50, float(rotation)))
        owner = self.entity("INSERT", [("AcDbBlockReference", pairs)], layer=layer, **common)
        for tag, words, ax, ay, height in attributes:
            self.entity("ATTRIB", [("AcDbText", self.point3(10, ax, ay) + [(40, float(height)), (1, words), (7, "Standard"),
                                                                       (72, 1)] + self.point3(11, ax, ay)),
                                   ("AcDbAttribute", [(2, tag), (70, 0), (74, 2)])], layer=layer)
            self.open.entities[-1][2] = (330, owner)
        if attributes:
            self.entity("SEQEND", [], layer=layer)
            self.open.entities[-1][2] = (330, owner)

    # ---- dimensions ----

    def _arrow(self, x, y, direction, block, head=""):
        block.append(lambda: self._arrow_shape(x, y, direction, head, self.dim["arrow"]))

    def linear(self, x1, y1, x2, y2, offset, angle=0.0, words=None, layer="DIMENSIONS"):
        """A dimension between two points, measured along `angle`; `offset` is the way from the second point's side to
        the dimension line."""
        a = math.radians(angle)
        c, s = math.cos(a), math.sin(a)
        along = lambda x, y: x * c + y * s
        across = lambda x, y: -x * s + y * c
        back = lambda u, v: (u * c - v * s, u * s + v * c)
        u1, u2 = along(x1, y1), along(x2, y2)
        v = (max if offset > 0 else min)(across(x1, y1), across(x2, y2)) + offset
        sign = 1 if offset > 0 else -1
        measured = abs(u2 - u1)
        words = words or self.dim["format"](measured)
        steps = []
        for (x, y), u in (((x1, y1), u1), ((x2, y2), u2)):
            from_v = across(x, y) + sign * self.dim["gap"]
            p, q = back(u, from_v), back(u, v + sign * self.dim["beyond"])
            steps.append(lambda p=p, q=q: self.line(*p, *q, layer="0", color=0))
        p1, p2 = back(u1, v), back(u2, v)
        steps.append(lambda: self.line(*p1, *p2, layer="0", color=0))
        heading = a if u2 >= u1 else a + math.pi
        self._arrow(*p2, heading, steps, self.dim["heads"][1])
        self._arrow(*p1, heading + math.pi, steps, self.dim["heads"][0])
        turn = angle % 180 if angle % 180 <= 90 else angle % 180 - 180
        middle = back((u1 + u2) / 2, v)
        r = math.radians(turn)
        at = (middle[0] - math.sin(r) * self.dim["text"] * 0.9, middle[1] + math.cos(r) * self.dim["text"] * 0.9)
        steps.append(lambda: self.text(*at, self.dim["text"], words, rotation=turn, align=1, middle=True, layer="0", color=0))
        pairs = [("AcDbAlignedDimension", self.point3(13, x1, y1) + self.point3(14, x2, y2) + [(50, float(angle))]),
                 ("AcDbRotatedDimension", [])]
        self._dimension(steps, p2, at, 32, words, measured, pairs, layer)

    def diameter(self, x, y, radius, angle, words=None, reach=12.0, layer="DIMENSIONS"):
        """A diameter with its text outside the circle."""
        a = math.radians(angle)
        c, s = math.cos(a), math.sin(a)
        near, far = (x + radius * c, y + radius * s), (x - radius * c, y - radius * s)
        knee = (x + (radius + reach) * c, y + (radius + reach) * s)
        words = words or "%%c" + self.dim["format"](2 * radius)
        side = 1 if c >= 0 else -1
        shelf = (knee[0] + side * self.dim["text"] * 0.8 * len(words.replace("%%c", "O")), knee[1])
        steps = [lambda: self.line(*near, *knee, layer="0", color=0), lambda: self.line(*knee, *shelf, layer="0", color=0)]
        self._arrow(*near, a + math.pi, steps)
        at = ((knee[0] + shelf[0]) / 2, knee[1] + self.dim["text"] * 0.9)
        steps.append(lambda: self.text(*at, self.dim["text"], words, align=1, middle=True, layer="0", color=0))
        self._dimension(steps, far, at, 35, words, 2 * radius,
                        [("AcDbDiametricDimension", self.point3(15, *near) + [(40, float(reach))])], layer)

    def _dimension(self, steps, definition, at, kind, words, measured, pairs, layer):
        self.dim_count += 1
        name = f"*D{self.dim_count}"
        block, before = self.block(name), self.open
        self.open = block
        for step in steps:
            step()
        self.open = before
        head = [(2, name)] + self.point3(10, *definition) + self.point3(11, *at) + \
            [(70, kind), (1, words), (71, 5), (42, float(measured)), (3, self.dim["style"])]
        self.entity("DIMENSION", [("AcDbDimension", head)] + pairs, layer=layer)

    # ---- the file ----

    def groups(self):
        yield from self._header()
        yield from ((0, "SECTION"), (2, "CLASSES"))
        for name, cpp in (("ACDBPLACEHOLDER", "AcDbPlaceHolder"), ("LAYOUT", "AcDbLayout"),
                          ("ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault")):
            yield from ((0, "CLASS"), (1, name), (2, cpp), (3, "ObjectDBX Classes"), (90, 0), (280, 0), (281, 0))
        yield (0, "ENDSEC")
        yield from self._tables()
        yield from self._blocks()
        yield from ((0, "SECTION"), (2, "ENTITIES"))
        for block in (self.model, self.paper):
            for groups in block.entities:
                yield from groups
        yield (0, "ENDSEC")
        yield from self._objects()
        yield (0, "EOF")

    def file_text(self):
        """The whole file, with lines ending in CR LF."""
        shown = ((code, number(value) if isinstance(value, float) else str(value)) for code, value in self.groups())
        return "".join(f"{code:3d}\r\n{value}\r\n" for code, value in shown)

    def _header(self):
        yield from ((0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, self.version), (9, "$DWGCODEPAGE"), (3, "ANSI_1252"))
        xs, ys = self._extents()
        yield (9, "$EXTMIN")
        yield from self.point3(10, min(xs), min(ys))
        yield (9, "$EXTMAX")
        yield from self.point3(10, max(xs), max(ys))
        codes = {"LTSCALE": 40, "CELTSCALE": 40, "DIMTXT": 40, "DIMASZ": 40, "DIMSCALE": 40, "TEXTSIZE": 40, "CLAYER": 8,
                 "CELTYPE": 6, "TEXTSTYLE": 7, "DIMSTYLE": 2, "CECOLOR": 62, "PSTYLEMODE": 290, "LWDISPLAY": 290,
                 "CELWEIGHT": 370}
        for name, value in self.variables.items():
            yield (9, "$" + name)
            yield (codes.get(name, 70), value)
        yield from ((9, "$HANDSEED"), (5, f"{self.next_handle + 16:X}"), (0, "ENDSEC"))

    def _extents(self):
        xs, ys = [], []
        for groups in self.model.entities:
            for code, value in groups:
                if code in (10, 11):
                    xs.append(value)
                elif code in (20, 21) and groups[0][1] != "ELLIPSE":
                    ys.append(value)
        return xs, ys

    def _record(self, table, kind, own, marker, pairs):
        yield from ((0, kind), (105 if kind == "DIMSTYLE" else 5, own), (330, self.table_handles[table]),
                    (100, "AcDbSymbolTableRecord"), (100, marker))
        yield from pairs

    def _table(self, name, records):
        records = list(records)
        yield from ((0, "TABLE"), (2, name), (5, self.table_handles[name]), (330, 0), (100, "AcDbSymbolTable"),
                    (70, len(records)))
        if name == "DIMSTYLE":
            yield from ((100, "AcDbDimStyleTable"), (71, len(records)))
        for record in records:
            yield from record
        yield (0, "ENDTAB")

    def _tables(self):
        xs, ys = self._extents()
        middle = ((min(xs) + max(xs)) / 2, (min(ys) + max(ys)) / 2)
        yield from ((0, "SECTION"), (2, "TABLES"))
        view = [(2, "*Active"), (70, 0), (10, 0.0), (20, 0.0), (11, 1.0), (21, 1.0), (12, middle[0]), (22, middle[1]),
                (13, 0.0), (23, 0.0), (14, 10.0), (24, 10.0), (15, 10.0), (25, 10.0), (16, 0.0), (26, 0.0), (36, 1.0),
                (17, 0.0), (27, 0.0), (37, 0.0), (40, (max(ys) - min(ys)) * 1.1), (41, 1.5), (42, 50.0), (43, 0.0), (44, 0.0),
                (50, 0.0), (51, 0.0), (71, 0), (72, 1000), (73, 1), (74, 3), (75, 0), (76, 0), (77, 0), (78, 0)]
        yield from self._table("VPORT", [self._record("VPORT", "VPORT", self.handle(), "AcDbViewportTableRecord", view)])
        yield from self._table("LTYPE", map(self._linetype_record, self.linetypes))
        yield from self._table("LAYER", map(self._layer_record, self.layers))
        yield from self._table("STYLE", (self._record("STYLE", "STYLE", own, "AcDbTextStyleTableRecord", [
            (2, name), (70, 0), (40, float(height)), (41, float(width)), (50, float(slant)), (71, 0), (42, 2.5), (3, font), (4, big)] +
            ([(1001, "ACAD"), (1000, family), (1071, 34)] if family else []))
            for name, own, font, height, width, big, family, slant in self.styles))
        yield from self._table("VIEW", [])
        yield from self._table("UCS", [])
        yield from self._table("APPID", (self._record("APPID", "APPID", self.handle(), "AcDbRegAppTableRecord",
                                                      [(2, name), (70, 0)]) for name in self.applications))
        standard = [("Standard", self.handle(), "", "", "")]
        yield from self._table("DIMSTYLE", map(self._dim_style_record, standard + self.dim_styles))
        yield from self._table("BLOCK_RECORD", (self._record("BLOCK_RECORD", "BLOCK_RECORD", b.record, "AcDbBlockTableRecord", [
            (2, b.name), (340, b.layout or "0")]) for b in self.blocks))
        yield (0, "ENDSEC")

    def _dim_style_record(self, entry):
        name, own, first, second, leader = entry
        records = {b.name: b.record for b in self.blocks}
        pairs = [(2, name), (70, 0), (41, float(self.dim["arrow"])), (42, float(self.dim["gap"])),
                 (44, float(self.dim["beyond"])), (140, float(self.dim["text"]))]
        if first != second:
            pairs.append((173, 1))
        # One arrowhead for both ends, and one for each.
        for code, block in ((341, leader), (342, first), (343, first), (344, second)):
            if block:
                pairs.append((code, records[block]))
        return self._record("DIMSTYLE", "DIMSTYLE", own, "AcDbDimStyleTableRecord", pairs)

    def _linetype_record(self, entry):
        name, own, words, dashes, flags = entry
        pairs = [(2, name), (70, flags), (3, words), (72, 65), (73, len(dashes)), (40, float(sum(map(abs, dashes))))]
        for dash in dashes:
            pairs += [(49, float(dash)), (74, 0)]
        return self._record("LTYPE", "LTYPE", own, "AcDbLinetypeTableRecord", pairs)

    def _layer_record(self, entry):
        name, own, color, linetype, weight, true_color, plot_style, flags = entry
        pairs = [(2, name), (70, flags), (62, color)]
        if true_color is not None:
            pairs.append((420, true_color))
        pairs += [(6, linetype), (370, weight), (390, self.style_objects[plot_style])]
        return self._record("LAYER", "LAYER", own, "AcDbLayerTableRecord", pairs)

    def _blocks(self):
        yield from ((0, "SECTION"), (2, "BLOCKS"))
        for b in self.blocks:
            flags = 1 if b.name.startswith("*D") else 0
            paper = [(67, 1)] if b.name.startswith("*Paper") else []
            yield from [(0, "BLOCK"), (5, b.begin), (330, b.record), (100, "AcDbEntity")] + paper + [(8, "0")]
            yield from ((100, "AcDbBlockBegin"), (2, b.name), (70, flags), (10, 0.0), (20, 0.0), (30, 0.0), (3, b.name), (1, ""))
            if b not in (self.model, self.paper):
                for groups in b.entities:
                    yield from groups
            yield from [(0, "ENDBLK"), (5, b.end), (330, b.record), (100, "AcDbEntity")] + paper + [(8, "0"), (100, "AcDbBlockEnd")]
        yield (0, "ENDSEC")

    def _dictionary(self, own, owner, entries, kind="DICTIONARY", default=None):
        yield from ((0, kind), (5, own), (330, owner), (100, "AcDbDictionary"), (281, 1))
        for name, target in entries:
            yield from ((3, name), (350, target))
        if default:
            yield from ((100, "AcDbDictionaryWithDefault"), (340, default))

    def _objects(self):
        yield from ((0, "SECTION"), (2, "OBJECTS"))
        yield from self._dictionary(self.root, "0", [("ACAD_GROUP", self.group_dict), ("ACAD_LAYOUT", self.layout_dict),
                                                     ("ACAD_PLOTSTYLENAME", self.style_dict)])
        yield from self._dictionary(self.group_dict, self.root, [])
        yield from self._dictionary(self.layout_dict, self.root, [(entry[0], entry[1].layout) for entry in self.layouts])
        yield from self._dictionary(self.style_dict, self.root, self.style_objects.items(), "ACDBDICTIONARYWDFLT",
                                    self.style_objects["Normal"])
        for own in self.style_objects.values():
            yield from ((0, "ACDBPLACEHOLDER"), (5, own), (330, self.style_dict))
        for order, entry in enumerate(self.layouts):
            yield from self._layout_object(order, *entry)
        yield (0, "ENDSEC")

    def _layout_object(self, order, name, block, sheet, paper, size):
        yield from ((0, "LAYOUT"), (5, block.layout), (330, self.layout_dict), (100, "AcDbPlotSettings"), (1, ""), (2, "none"),
                    (4, paper), (6, ""))
        for code, value in ((40, 7.5), (41, 7.5), (42, 7.5), (43, 7.5), (44, size[0]), (45, size[1]), (46, 0), (47, 0), (48, 0),
                            (49, 0), (140, 0), (141, 0), (142, 1), (143, 1)):
            yield (code, float(value))
        yield from ((70, 688 | (1024 if order == 0 else 0)), (72, 1), (73, 0), (74, 5 if order else 0), (7, sheet), (75, 16),
                    (147, 1.0), (100, "AcDbLayout"), (1, name), (70, 1), (71, order))
        yield from ((10, 0.0), (20, 0.0), (11, float(size[0])), (21, float(size[1])))
        for code, corner in ((12, (0, 0, 0)), (14, (0, 0, 0)), (15, (*size, 0))):
            yield from self.point3(code, *corner)
        yield (146, 0.0)
        for code, corner in ((13, (0, 0, 0)), (16, (1, 0, 0)), (17, (0, 1, 0))):
            yield from self.point3(code, *corner)
        yield from ((76, 0), (330, block.record))
