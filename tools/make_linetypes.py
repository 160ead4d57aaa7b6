#!/usr/bin/env python3
"""Makes the linetype files of the drafting host: samples/drafter/support/velmora_metric.lin in millimetres on
paper, and velmora.lin in inches.

    tools/make_linetypes.py            writes them anew
    tools/make_linetypes.py --check    says whether the files are what this program makes
"""
import pathlib
import sys

TARGET = pathlib.Path(__file__).resolve().parent.parent / "samples" / "drafter" / "support"

# Name, what it is for, the picture in characters, and lengths in millimetres: above 0 a dash, below 0 a gap, 0 a dot.
LINETYPES = [
    ("DASHED", "Dashed", "__ __ __ __ __", (12, -6)),
    ("DASHED_SHORT", "Dashed, half length", "_ _ _ _ _ _ _", (6, -3)),
    ("DASHED_LONG", "Dashed, double length", "____  ____  ____", (24, -12)),
    ("HIDDEN", "Hidden edges", "_ _ _ _ _ _ _", (6, -3.2)),
    ("HIDDEN_SHORT", "Hidden edges, fine", "- - - - - - -", (3, -1.6)),
    ("CENTER", "Centre lines", "____ _ ____ _", (32, -6, 6, -6)),
    ("CENTER_SHORT", "Centre lines of small parts", "___ _ ___ _", (19, -3, 3, -3)),
    ("CENTER_LONG", "Centre lines of large parts", "______ __ ______", (64, -12, 12, -12)),
    ("DOT", "Dots", ". . . . . . . .", (0, -6)),
    ("DOT_CLOSE", "Dots, close", "...............", (0, -3)),
    ("DASHDOT", "Dash and dot", "__ . __ . __ .", (12, -6, 0, -6)),
    ("DASHDOT_SHORT", "Dash and dot, half length", "_ . _ . _ . _ .", (6, -3, 0, -3)),
    ("DASHDOT_LONG", "Dash and dot, double length", "____  .  ____  .", (24, -12, 0, -12)),
    ("DIVIDE", "Dash and two dots", "__ . . __ . .", (12, -6, 0, -6, 0, -6)),
    ("DIVIDE_SHORT", "Dash and two dots, half length", "_ . . _ . . _", (6, -3, 0, -3, 0, -3)),
    ("BORDER", "Two dashes and a dot", "__ __ . __ __ .", (12, -6, 12, -6, 0, -6)),
    ("BORDER_SHORT", "Two dashes and a dot, half length", "_ _ . _ _ . _", (6, -3, 6, -3, 0, -3)),
    ("PHANTOM", "Moving parts and neighbours", "_____ _ _ _____", (32, -6, 6, -6, 6, -6)),
    ("PHANTOM_SHORT", "Moving parts, small", "___ _ _ ___ _ _", (16, -3, 3, -3, 3, -3)),
    ("CUTTING_PLANE", "Where a section is cut", "______ . . ______", (40, -4, 0, -4, 0, -4)),
    ("PROPERTY", "Property boundary", "______ . ______ .", (48, -5, 0, -5)),
    ("EASEMENT", "Easements and rights of way", "____ _ . _ ____", (24, -4, 4, -4, 0, -4, 4, -4)),
    ("FENCE_POSTS", "Fence with posts", "-----.-----.", (20, -2, 0, -2)),
    ("CONTOUR", "Intermediate contours", "_______ _______", (40, -2.5)),
    ("DEMOLISH", "What is taken away", "- - - - - - - -", (4, -2, 4, -2, 4, -6)),
    ("OVERHEAD", "What lies above the cut", "_ _ __ _ _ __", (8, -3, 8, -3, 16, -3)),
    ("GRID", "Grid lines of a building", "_________ . ____", (60, -4, 0, -4)),
    ("WATER", "Water mains", "____ _ _ ____ _ _", (25, -3, 5, -3, 5, -3)),
]


def number(value):
    return f"{value:.4f}".rstrip("0").rstrip(".") or "0"


def file_text(unit, scale):
    lines = [";;", f";;  Linetypes of the drafter, lengths in {unit} on paper.",
             ";;  A line with name and description, and one with the pattern: dashes above 0, gaps below, 0 a dot.", ";;"]
    for name, purpose, picture, lengths in LINETYPES:
        lines.append(f"*{name},{purpose} {picture}")
        lines.append("A," + ",".join(number(length / scale) for length in lengths))
    return "\r\n".join(lines) + "\r\n"


def main():
    check = "--check" in sys.argv[1:]
    stale = False
    for name, unit, scale in (("velmora_metric.lin", "millimetres", 1), ("velmora.lin", "inches", 25.4)):
        path = TARGET / name
        text = file_text(unit, scale).encode("ascii")
        if check:
            stale |= not path.exists() or path.read_bytes() != text
        else:
            path.write_bytes(text)
            print(f"{path.name}: {len(LINETYPES)} linetypes, {len(text)} bytes")
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main())
