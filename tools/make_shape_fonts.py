#!/usr/bin/env python3
"""Makes the stroke fonts of the drafting host: samples/drafter/fonts/*.shx.

    tools/make_shape_fonts.py            writes them anew
    tools/make_shape_fonts.py --check    says whether the files are what this program makes

Letters stand on a grid: each stroke is a row of points, x and y a digit each, strokes are parted by a bar. Small
letters have the strokes of the capitals.
"""
import pathlib
import struct
import sys

TARGET = pathlib.Path(__file__).resolve().parent.parent / "samples" / "drafter" / "fonts"

HEIGHT, DEPTH, ADVANCE = 6, 2, 6

LETTERS = {
    " ": "", "!": "26 22|21 20", '"': "16 14|36 34", "#": "10 16|30 36|02 42|04 44", "$": "45 36 16 05 04 13 33 42 41 30 10 01|27 2/",
    "%": "00 46|06 16 15 05 06|30 40 41 31 30", "&": "40 04 05 16 25 24 02 01 10 20 42", "'": "26 24", "(": "36 25 21 30",
    ")": "16 25 21 10", "*": "05 41|01 45|26 20", "+": "25 21|03 43", ",": "21 20 1/", "-": "03 43", ".": "20 21",
    "/": "00 46", ":": "24 25|20 21", ";": "24 25|21 20 1/", "<": "46 03 40", "=": "04 44|02 42", ">": "06 43 00",
    "?": "05 16 36 45 44 23 22|21 20", "@": "32 34 14 12 32 42 46 06 00 40", "[": "36 16 10 30", "\\": "06 40",
    "]": "16 36 30 10", "^": "14 26 34", "_": "0/ 4/", "`": "16 25", "{": "36 26 24 13 22 20 30", "|": "26 20",
    "}": "16 26 24 33 22 20 10", "~": "03 14 32 43",
    "0": "10 01 05 16 36 45 41 30 10|01 45", "1": "14 26 20|10 30", "2": "05 16 36 45 44 00 40", "3": "06 46 24 34 43 41 30 10 01",
    "4": "30 36 02 42", "5": "46 06 03 33 42 41 30 10 01", "6": "46 16 04 01 10 30 41 42 33 03", "7": "06 46 10",
    "8": "13 04 05 16 36 45 44 33 13 02 01 10 30 41 42 33", "9": "43 13 04 05 16 36 45 42 30 00",
    "A": "00 04 26 44 40|02 42", "B": "00 06 36 45 44 33 03|33 42 41 30 00", "C": "45 36 16 05 01 10 30 41",
    "D": "00 06 26 44 42 20 00", "E": "46 06 00 40|03 33", "F": "46 06 00|03 33", "G": "45 36 16 05 01 10 30 41 43 23",
    "H": "00 06|40 46|03 43", "I": "16 36|26 20|10 30", "J": "01 10 20 31 36", "K": "00 06|46 02|13 40", "L": "06 00 40",
    "M": "00 06 23 46 40", "N": "00 06 40 46", "O": "10 01 05 16 36 45 41 30 10", "P": "00 06 36 45 44 33 03",
    "Q": "10 01 05 16 36 45 41 30 10|22 40", "R": "00 06 36 45 44 33 03|23 40", "S": "45 36 16 05 04 13 33 42 41 30 10 01",
    "T": "06 46|26 20", "U": "06 01 10 30 41 46", "V": "06 20 46", "W": "06 00 23 40 46", "X": "00 46|06 40",
    "Y": "06 23 46|23 20", "Z": "06 46 00 40",
}

CHINESE = {
    "一": "03 83", "二": "15 75|01 81", "三": "07 87|14 74|01 81", "十": "04 84|48 40", "工": "17 77|47 41|01 81",
    "土": "15 75|48 41|01 81", "王": "17 77|14 74|01 81|47 41", "口": "11 17 77 71 11", "日": "20 28 68 60 20|24 64",
    "田": "10 18 78 70 10|14 74|48 40", "中": "03 07 87 83 03|48 40", "上": "48 40|45 75|00 80", "下": "07 87|47 40|45 63",
}


def byte(value):
    return value & 0xFF


def strokes(text):
    """The points of each stroke; the sign before 0 is a slash and means -1."""
    for stroke in text.split("|"):
        if stroke:
            yield [tuple(ord(c) - ord("0") for c in point) for point in stroke.split()]


def outline(text, advance):
    """The drawing codes of a letter: pen up 2, pen down 1, a move 8 with both distances, the end 0."""
    code, at = bytearray(), (0, 0)

    def move(to):
        nonlocal at
        if to != at:
            code.extend((8, byte(to[0] - at[0]), byte(to[1] - at[1])))
        at = to

    for points in strokes(text):
        code.append(2)
        move(points[0])
        code.append(1)
        for point in points[1:]:
            move(point)
    code.append(2)
    move((advance, 0))
    code.append(0)
    return bytes(code)


def letters():
    table = {ord(c): outline(text, ADVANCE) for c, text in LETTERS.items()}
    table.update({ord(c.lower()): table[ord(c)] for c in "ABCDEFGHIJKLMNOPQRSTUVWXYZ"})
    return sorted(table.items())


def header(layout):
    return f"AutoCAD-86 {layout}\r\n\x1a".encode("ascii")


def shape_font(name):
    records = [(0, name + b"\0" + bytes((HEIGHT, DEPTH, 0, 0)))] + [(c, b"\0" + body) for c, body in letters()]
    out = header("shapes 1.0") + struct.pack("<HHH", records[0][0], records[-1][0], len(records))
    out += b"".join(struct.pack("<HH", c, len(body)) for c, body in records)
    return out + b"".join(body for _, body in records) + b"EOF"


def unicode_font(name):
    records = [(0, name + b"\0" + bytes((HEIGHT, DEPTH, 0, 0, 0, 0)))] + [(c, b"\0" + body) for c, body in letters()]
    out = header("unifont 1.0") + struct.pack("<H", len(records))
    return out + b"".join(struct.pack("<HH", c, len(body)) + body for c, body in records)


def big_font(name):
    height, advance = 8, 10
    records = [(0, name + b"\0" + bytes((height, 0, 0, 0)))]
    for character, text in CHINESE.items():
        code = int.from_bytes(character.encode("gb2312"), "big")
        records.append((code, b"\0" + outline(text, advance)))
    records.sort()
    start = header("bigfont 1.0") + struct.pack("<HHHHH", 8, len(records), 1, 0xB0, 0xF7)
    place, index = len(start) + 8 * len(records), b""
    for code, body in records:
        index += struct.pack("<HHI", code, len(body), place)
        place += len(body)
    return start + index + b"".join(body for _, body in records)


def main():
    check = "--check" in sys.argv[1:]
    stale = False
    fonts = {"drafter": shape_font(b"DRAFTER"), "drafteru": unicode_font(b"DRAFTERU"), "drafterc": big_font(b"DRAFTERC")}
    for name, content in fonts.items():
        path = TARGET / f"{name}.shx"
        if check:
            stale |= not path.exists() or path.read_bytes() != content
        else:
            path.parent.mkdir(exist_ok=True)
            path.write_bytes(content)
            print(f"{path.name}: {len(content)} bytes")
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main())
