#!/usr/bin/env python3
"""Makes the plot style tables of the drafting host: samples/drafter/plot_styles/*.ctb and *.stb.

    tools/make_plot_styles.py            writes them anew
    tools/make_plot_styles.py --check    says whether the files hold what this program makes
"""
import pathlib
import struct
import sys
import zlib

TARGET = pathlib.Path(__file__).resolve().parent.parent / "samples" / "drafter" / "plot_styles"
WIDTHS = [0.0, 0.13, 0.18, 0.25, 0.35, 0.5, 0.7]  # millimetres
OBJECT_LINETYPE = 31


def style(name, words="", color=None, width=None, screen=100, linetype=OBJECT_LINETYPE):
    """One style; color is (red, green, blue), and what is None is the object's own."""
    rgb = -1 if color is None else struct.unpack("<i", struct.pack("<I", 0xC2000000 | color[0] << 16 | color[1] << 8 | color[2]))[0]
    weight = 0 if width is None else WIDTHS.index(width) + 1
    values = [("name", f'"{name}'), ("localized_name", f'"{name}'), ("description", f'"{words}'), ("color", rgb),
              ("color_policy", 1), ("physical_pen_number", 0), ("virtual_pen_number", 0), ("screen", screen),
              ("linepattern_size", 0.5), ("linetype", linetype), ("adaptive_linetype", "TRUE"), ("lineweight", weight),
              ("fill_style", 73), ("end_style", 4), ("join_style", 5)]
    return "".join(f"  {key}={value}\n" for key, value in values), name


def table_text(words, styles, by_color):
    text = f'description="{words}\naci_table_available={"TRUE" if by_color else "FALSE"}\n'
    text += "scale_factor=1.0\napply_factor=FALSE\ncustom_lineweight_display_units=0\n"
    if by_color:
        text += "aci_table{\n" + "".join(f' {i}="{name}\n' for i, (_, name) in enumerate(styles)) + "}\n"
    text += "plot_style{\n" + "".join(f" {i}{{\n{body} }}\n" for i, (body, _) in enumerate(styles)) + "}\n"
    return text + "custom_lineweight_table{\n" + "".join(f" {i}={width}\n" for i, width in enumerate(WIDTHS)) + "}\n"


def file_bytes(text, by_color):
    plain = text.encode("utf-8")
    packed = zlib.compress(plain, 9)
    head = f"PIAFILEVERSION_2.0,{'CTBVER1' if by_color else 'STBVER1'},compress\r\npmzlibcodec".encode("ascii")
    return head + struct.pack("<III", zlib.adler32(plain), len(plain), len(packed)) + packed


def text_of(data):
    return zlib.decompress(data[data.index(b"pmzlibcodec") + 23:]).decode("utf-8")


def by_colors(words, **values):
    return table_text(words, [style(f"Color_{i}", **values) for i in range(1, 256)], True), True


BLACK, GREY = (0, 0, 0), (128, 128, 128)
TABLES = {
    "monochrome.ctb": by_colors("Every colour in black", color=BLACK),
    "screening.ctb": by_colors("Half of the ink", screen=50),
    "velmora.stb": (table_text("House styles", [
        style("Normal"), style("Draft", "thin and light, for a first look", BLACK, 0.13, 60),
        style("Half tone", "in the background", None, None, 50), style("Heavy", "outlines and cuts", BLACK, 0.7),
        style("Screened 50%", "existing ground", BLACK, None, 50), style("Thin Grey", "dimensions and grids", GREY, 0.13),
        style("Red pen", "corrections", (220, 30, 30), 0.35)], False), False),
    "planting.stb": (table_text("Planting plans", [
        style("Normal"), style("Planting", "trees and shrubs", (40, 130, 60), 0.18),
        style("Thin Grey", "what is built", GREY, 0.13)], False), False),
}


def main():
    check = "--check" in sys.argv[1:]
    stale = False
    for name, (text, by_color) in TABLES.items():
        path = TARGET / name
        if check:
            stale |= not path.exists() or text_of(path.read_bytes()) != text
        else:
            path.write_bytes(file_bytes(text, by_color))
            print(f"{path.name}: {path.stat().st_size} bytes")
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main())
