#!/usr/bin/env python3
"""Makes the sample drawings of the drafting host: samples/drafter/drawings/*.dxf.

    tools/make_drawings.py            writes them anew
    tools/make_drawings.py --check    says whether the files are what this program makes
"""
import pathlib
import sys

from drawings import bracket, floor_plan, site_plan

TARGET = pathlib.Path(__file__).resolve().parent.parent / "samples" / "drafter" / "drawings"


def main():
    check = "--check" in sys.argv[1:]
    stale = False
    for name, module in (("bracket", bracket), ("floor_plan", floor_plan), ("site_plan", site_plan)):
        path = TARGET / f"{name}.dxf"
        text = module.make().file_text().encode("ascii")
        if check:
            stale |= not path.exists() or path.read_bytes() != text
        else:
            path.write_bytes(text)
            print(f"{path.name}: {len(text)} bytes")
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main())
