#!/usr/bin/env python3
"""Makes the stroke fonts of the drafting host: samples/drafter/fonts/*.shx.

    tools/make_shape_fonts.py            writes them anew
    tools/make_shape_fonts.py --check    says whether the files are what this program makes

Letters stand on a grid: each stroke is a row of points, x and y a digit each ("/" means -1, "." means -2), strokes
are parted by a bar. Digits are of one width; other letters begin at their leftmost point and are followed by a gap.
"""
import pathlib
import struct
import sys

TARGET = pathlib.Path(__file__).resolve().parent.parent / "samples" / "drafter" / "fonts"

HEIGHT, DEPTH, ADVANCE, GAP, BLANK = 6, 2, 6, 2, 4

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
    "a": "34 30|33 24 14 03 01 10 20 31", "b": "06 00|03 14 24 33 31 20 10 01", "c": "33 24 14 03 01 10 20 31",
    "d": "36 30|33 24 14 03 01 10 20 31", "e": "02 32 33 24 14 03 01 10 20 31", "f": "36 26 15 10|04 34",
    "g": "34 3/ 2. 1. 0/|33 24 14 03 01 10 20 31", "h": "06 00|03 14 24 33 30", "i": "14 10|15 16", "j": "14 1/ 0.|15 16",
    "k": "06 00|01 34|12 30", "l": "06 01 10", "m": "04 00|03 14 23 20|23 34 43 40", "n": "04 00|03 14 24 33 30",
    "o": "10 01 03 14 24 33 31 20 10", "p": "04 0.|03 14 24 33 31 20 10 01", "q": "34 3.|33 24 14 03 01 10 20 31",
    "r": "04 00|03 14 24", "s": "33 24 14 03 12 22 31 20 10 01", "t": "16 11 20 30|04 34", "u": "04 01 10 20 31|34 30",
    "v": "04 20 44", "w": "04 10 23 30 44", "x": "04 30|00 34", "y": "04 20|44 20 1.", "z": "04 34 00 30",
}

# By their numbers in Unicode.
SIGNS = {
    0xB0: "14 05 16 25 14", 0xB1: "26 22|04 44|01 41", 0xB2: "06 16 15 03 13", 0xB3: "06 16 05 14 03",
    0x2205: "10 01 05 16 36 45 41 30 10|0/ 47",
}
# The numbers that fonts of few letters have for some of them.
OWN_NUMBERS = {0xB0: 127, 0xB1: 128, 0x2205: 129}

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


def outline(text, advance, left=0):
    """The drawing codes of a letter: pen up 2, pen down 1, a move 8 with both distances, the end 0. Column `left` is its first."""
    code, at = bytearray(), (left, 0)

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
    move((left + advance, 0))
    code.append(0)
    return bytes(code)


def letter(number, text):
    """The drawing codes of a letter, moved to where letters begin."""
    columns = [x for points in strokes(text) for x, _ in points]
    if chr(number).isdigit() and number < 128 or number == 0x2205:
        return outline(text, ADVANCE)
    return outline(text, max(columns) - min(columns) + GAP, min(columns)) if columns else outline(text, BLANK)


def letters(own_numbers):
    """The letters by their numbers; `own_numbers` where some have others than those of Unicode."""
    table = {ord(c): letter(ord(c), text) for c, text in LETTERS.items()}
    table.update({own_numbers.get(n, n): letter(n, text) for n, text in SIGNS.items()})
    return sorted(table.items())


def header(layout):
    return f"AutoCAD-86 {layout}\r\n\x1a".encode("ascii")


def shape_font(name):
    records = [(0, name + b"\0" + bytes((HEIGHT, DEPTH, 0, 0)))]
    records += [(c, b"\0" + body) for c, body in letters(OWN_NUMBERS)]
    out = header("shapes 1.0") + struct.pack("<HHH", records[0][0], records[-1][0], len(records))
    out += b"".join(struct.pack("<HH", c, len(body)) for c, body in records)
    return out + b"".join(body for _, body in records) + b"EOF"


def unicode_font(name):
    records = [(0, name + b"\0" + bytes((HEIGHT, DEPTH, 0, 0, 0, 0)))]
    records += [(c, b"\0" + body) for c, body in letters({})]
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
