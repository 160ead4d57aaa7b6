#!/usr/bin/env python3
"""Draws the toolkit's own bitmaps and icons into ktui/res and ktdsres, so that each is a few lines to read and change.

Run it after a change; the files it writes are kept in the tree.
"""
import pathlib
import struct

import button_pictures
import picker_strips
import tool_pictures

RES = pathlib.Path(__file__).resolve().parent.parent / "ktui" / "res"
LIBRARY = pathlib.Path(__file__).resolve().parent.parent / "ktdsres"
DRAFTER = pathlib.Path(__file__).resolve().parent.parent / "samples" / "drafter" / "res"
MASK = (255, 0, 255)
LARGER_SIZES = (20, 24, 32)  # pixels, for 125, 150 and 200 %
LARGER_PERCENTS = (125, 150, 200)


def write_bmp(path, rows):
    """Writes rows of (r, g, b) pixels, top row first, as a 24-bit bitmap."""
    width, height = len(rows[0]), len(rows)
    pad = b"\0" * (-width * 3 % 4)
    data = b"".join(b"".join(bytes((b, g, r)) for r, g, b in row) + pad for row in reversed(rows))
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(data), 2835, 2835, 0, 0)
    path.write_bytes(b"BM" + struct.pack("<IHHI", 54 + len(data), 0, 0, 54) + header + data)


def write_alpha_bmp(path, rows):
    """Writes rows of (r, g, b, a) pixels, top row first, as a bitmap with an alpha channel."""
    width, height = len(rows[0]), len(rows)
    data = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 32, 0, len(data), 2835, 2835, 0, 0)
    path.write_bytes(b"BM" + struct.pack("<IHHI", 54 + len(data), 0, 0, 54) + header + data)


def write_mono_bmp(path, rows):
    """Writes rows of pixels, top row first, as a bitmap of one bit: white where a pixel is the key, else black."""
    width, height = len(rows[0]), len(rows)
    data = b""
    for row in reversed(rows):
        bits = "".join("1" if pixel == button_pictures.KEY else "0" for pixel in row)
        bits += "0" * (-len(bits) % 32)
        data += int(bits, 2).to_bytes(len(bits) // 8, "big")
    header = struct.pack("<IiiHHIIiiII", 40, width, height, 1, 1, 0, len(data), 2835, 2835, 2, 2)
    colors = bytes((0, 0, 0, 0, 255, 255, 255, 0))
    path.write_bytes(b"BM" + struct.pack("<IHHI", 62 + len(data), 0, 0, 62) + header + colors + data)


def dib_with_alpha(rows):
    """An icon image: 32-bit pixels (r, g, b, a), then a mask derived from the alpha."""
    width, height = len(rows[0]), len(rows)
    pixels = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for r, g, b, a in row)
    mask = b""
    for row in reversed(rows):
        bits = "".join("0" if pixel[3] >= 128 else "1" for pixel in row)
        bits += "0" * (-len(bits) % 32)
        mask += int(bits, 2).to_bytes(len(bits) // 8, "big")
    return struct.pack("<IiiHHIIiiII", 40, width, 2 * height, 1, 32, 0, 0, 0, 0, 0, 0) + pixels + mask


def write_ico(path, images):
    """Writes one icon of several images, each a square of (r, g, b, a) rows."""
    dibs = [dib_with_alpha(rows) for rows in images]
    offset = 6 + 16 * len(dibs)
    directory = struct.pack("<HHH", 0, 1, len(dibs))
    for rows, dib in zip(images, dibs):
        size = len(rows) % 256
        directory += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(dib), offset)
        offset += len(dib)
    path.write_bytes(directory + b"".join(dibs))


def drop_arrow(ink):
    """A 9 by 9 cell with a triangle that points down."""
    cell = [[MASK] * 9 for _ in range(9)]
    for row in range(4):
        for column in range(1 + row, 8 - row):
            cell[3 + row][column] = ink
    return cell


def link_arrow(size):
    """The arrow before a command link: a shaft and a head that point to the right, without smoothing, since it is drawn
    with a mask on whatever the background is."""
    ink = (0, 102, 184)
    middle, reach, weight = (size - 1) / 2, size * 0.36, size * 0.085

    def is_ink(x, y):
        along, across = x - middle, abs(y - middle)
        in_shaft = across <= weight and -reach <= along <= reach - weight
        in_head = across <= reach * 0.85 and abs(along + across - reach) <= weight * 1.5
        return in_shaft or in_head

    return [[ink if is_ink(x, y) else MASK for x in range(size)] for y in range(size)]


def side_by_side(*cells):
    return [sum(rows, []) for rows in zip(*cells)]


def dialog_icon(size):
    """A drawing sheet with a polyline and its node, the mark of the product's dialogs."""
    scale = size / 16
    clear, paper, edge = (0, 0, 0, 0), (250, 250, 252, 255), (72, 84, 104, 255)
    line, node = (0, 102, 184, 255), (230, 108, 44, 255)

    def near_segment(x, y, x0, y0, x1, y1, reach):
        dx, dy = x1 - x0, y1 - y0
        t = max(0.0, min(1.0, ((x - x0) * dx + (y - y0) * dy) / (dx * dx + dy * dy)))
        return (x - x0 - t * dx) ** 2 + (y - y0 - t * dy) ** 2 <= reach * reach

    def pixel(x, y):
        if (x - 10.5) ** 2 + (y - 5.0) ** 2 <= 1.8 ** 2:
            return node
        if near_segment(x, y, 4.0, 11.5, 10.5, 5.0, 0.75) or near_segment(x, y, 4.0, 11.5, 12.0, 11.5, 0.75):
            return line
        if not (1.5 <= x <= 14.5 and 1.5 <= y <= 14.5):
            return clear
        border = min(x - 1.5, 14.5 - x, y - 1.5, 14.5 - y) < max(1.0, 1.0 / scale)
        return edge if border else paper

    return [[pixel((x + 0.5) / scale, (y + 0.5) / scale) for x in range(size)] for y in range(size)]


FONT_INK = (72, 84, 104, 255)
FONT_LINE = (0, 102, 184, 255)
CLEAR = (0, 0, 0, 0)


def icon_of(drawing, ink):
    """An icon image from rows of text: '#' is ink, all else is clear."""
    return [[ink if mark == "#" else CLEAR for mark in row] for row in drawing]


def true_type_icon():
    """Two overlapping letters T with serifs, the usual mark of an outline font."""
    return icon_of((
        "...............",
        ".##########....",
        ".#...##...#....",
        ".....##........",
        ".....##########",
        ".....##..##...#",
        ".....##..##....",
        ".....##..##....",
        ".....##..##....",
        "....####.##....",
        ".........##....",
        ".........##....",
        ".........##....",
        "........####...",
        "...............",
    ), FONT_INK)


def shape_font_icon():
    """A letter A of single strokes, as a shape font draws it."""
    return icon_of((
        "...............",
        ".......#.......",
        "......#.#......",
        "......#.#......",
        ".....#...#.....",
        ".....#...#.....",
        "....#.....#....",
        "....#.....#....",
        "...#########...",
        "...#.......#...",
        "..#.........#..",
        "..#.........#..",
        ".#...........#.",
        ".#...........#.",
        "...............",
    ), FONT_LINE)


def smooth_icon(size, ink, *lines):
    """An icon of lines in pixels of the 15 by 15 one, drawn smoothly at another size."""
    image = picker_strips.LargerImage(15, 15, size)
    for line in lines:
        image.line(*line)
    return [[ink[:3] + (255 - paper[1],) for paper in row] for row in image.rendered()]


def larger_true_type_icon(size):
    return smooth_icon(size, FONT_INK, (1, 1, 10, 1), (1, 1, 1, 2), (10, 1, 10, 2), (5, 1, 5, 9), (6, 1, 6, 9),
                       (4, 9, 7, 9), (7, 4, 14, 4), (14, 4, 14, 5), (9, 4, 9, 13), (10, 4, 10, 13), (8, 13, 11, 13))


def larger_shape_font_icon(size):
    return smooth_icon(size, FONT_LINE, (1, 13, 7, 1), (7, 1, 13, 13), (3, 8, 11, 8))


def keyed_icon(rows):
    """An icon image of a picture whose key colour stands for what is clear."""
    return [[CLEAR if pixel == button_pictures.KEY else pixel + (255,) for pixel in row] for row in rows]


def write_button_picture(name, draw, size, folder=RES):
    """The picture at its agreed size, and at those for larger resolutions."""
    write_bmp(folder / f"{name}.bmp", draw(size))
    for percent in LARGER_PERCENTS:
        write_bmp(folder / f"{name}_{percent}.bmp", draw(size * percent // 100))


def main():
    RES.mkdir(parents=True, exist_ok=True)
    write_bmp(RES / "drop_arrows.bmp", side_by_side(drop_arrow((0, 0, 0)), drop_arrow((128, 128, 128))))
    write_bmp(RES / "arrowheads.bmp", picker_strips.arrowhead_strip())
    write_bmp(RES / "blocks.bmp", picker_strips.block_strip())
    write_bmp(RES / "link_arrow.bmp", link_arrow(20))
    for size in (25, 30, 40):
        write_bmp(RES / f"link_arrow_{size}.bmp", link_arrow(size))
    write_ico(RES / "dialog.ico", [dialog_icon(size) for size in (16, 32, 48)])
    for size in LARGER_SIZES:
        write_bmp(RES / f"arrowheads_{size}.bmp", picker_strips.larger_arrowhead_strip(size))
        write_bmp(RES / f"blocks_{size}.bmp", picker_strips.larger_block_strip(size))
    write_ico(RES / "true_type.ico", [true_type_icon()] + [larger_true_type_icon(size) for size in LARGER_SIZES])
    write_ico(RES / "shape_font.ico", [shape_font_icon()] + [larger_shape_font_icon(size) for size in LARGER_SIZES])
    write_button_picture("pick", button_pictures.pick, 16)
    write_button_picture("plot_stamp", button_pictures.plot_stamp, 16, LIBRARY)
    write_button_picture("window_pick", button_pictures.window_pick, 16, LIBRARY)
    write_button_picture("pick_set", button_pictures.pick_set, 16)
    DRAFTER.mkdir(exist_ok=True)
    write_button_picture("drop_layers", button_pictures.drop_layers, 16, DRAFTER)
    for name, bar in (("file_bar", tool_pictures.FILE_BAR), ("view_bar", tool_pictures.VIEW_BAR)):
        write_alpha_bmp(DRAFTER / f"{name}.bmp", tool_pictures.strip(bar, 16))
        for percent in LARGER_PERCENTS:
            write_alpha_bmp(DRAFTER / f"{name}_{percent}.bmp", tool_pictures.strip(bar, 16 * percent // 100))
    write_button_picture("warning", button_pictures.warning, 32)
    for name, draw in (("search", button_pictures.search), ("clear", button_pictures.clear)):
        write_mono_bmp(RES / f"{name}.bmp", draw(16))
        for percent in LARGER_PERCENTS:
            write_mono_bmp(RES / f"{name}_{percent}.bmp", draw(16 * percent // 100))
    write_ico(RES / "wizard.ico", [keyed_icon(button_pictures.wizard(size)) for size in (16, 20, 24, 32, 48)])


if __name__ == "__main__":
    main()
