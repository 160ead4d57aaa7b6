#!/usr/bin/env python3
"""rc_for_windres.py SOURCE RESULT [--code-page N]: rewrites a resource script, as resource editors keep them, so that windres reads it.

- UTF-16 and code pages become UTF-8; `#pragma code_page` says how what follows is encoded, and is taken out.
- DLGINIT blocks get the commas between their lines that editors leave out.
- TOOLBAR blocks become words, which windres gets wrong.
- TEXTINCLUDE blocks, which are the editor's own notes, are left out.
- File names get forward slashes and the case that the file has on the disk.
- Scripts that are included (.rc, .rc2) and lie beside the source are rewritten in their place.
"""
import argparse
import codecs
import re
import sys
from pathlib import Path

PRAGMA = re.compile(r"^[ \t]*#[ \t]*pragma[ \t]+code_page[ \t]*\([ \t]*(\w+)[ \t]*\)[^\n]*$", re.M)
INCLUDE = re.compile(r'^([ \t]*#[ \t]*include[ \t]*)"([^"\n]+)"', re.M)
# NAME TYPE [memory options] "file"
FILE = re.compile(r'^([ \t]*[\w"]+[ \t]+"?\w+"?(?:[ \t]+(?:DISCARDABLE|MOVEABLE|FIXED|PURE|IMPURE|PRELOAD|LOADONCALL))*[ \t]+)"([^"\n]+)"[ \t]*(?=//|$)',
                  re.M | re.I)
BLOCK = r"^[ \t]*(\S+)[ \t]+{}(?:[ \t]+\w+)*[ \t\n]*^[ \t]*(?:BEGIN|\{{)[ \t]*$(.*?)^[ \t]*(?:END|\}})[ \t]*$"
DLGINIT = re.compile(BLOCK.format("DLGINIT"), re.M | re.S | re.I)
TEXTINCLUDE = re.compile(BLOCK.format("TEXTINCLUDE"), re.M | re.S | re.I)
TOOLBAR = re.compile(r"^[ \t]*(\S+)[ \t]+TOOLBAR(?:[ \t]+[A-Z]+)*[ \t]+(\w+)[ \t]*,[ \t]*(\w+)[ \t\n]*^[ \t]*(?:BEGIN|\{)[ \t]*$(.*?)^[ \t]*(?:END|\})[ \t]*$",
                     re.M | re.S | re.I)
TOOL = re.compile(r"^[ \t]*(?:BUTTON[ \t]+([^\s/]+)|(SEPARATOR))", re.M | re.I)
WORD_OR_TEXT = re.compile(r'L?"(?:[^"]|"")*"|[^\s,]+')


class Unreadable(Exception):
    pass


def python_name(page):
    if page in ("0", "1", "DEFAULT", "default"):
        return None
    if page == "65001":
        return "utf-8"
    name = {"936": "gbk", "932": "cp932", "949": "cp949", "950": "cp950"}.get(page, "cp" + page)
    try:
        codecs.lookup(name)
    except LookupError:
        raise Unreadable(f"code page {page} is not known")
    return name


def decoded(data, code_page):
    """The text of a script's bytes; each `#pragma code_page` holds for what follows."""
    for mark, name in ((codecs.BOM_UTF8, "utf-8"), (codecs.BOM_UTF16_LE, "utf-16-le"), (codecs.BOM_UTF16_BE, "utf-16-be")):
        if data.startswith(mark):
            return data[len(mark):].decode(name)
    if b"\0" in data[:64]:
        return data.decode("utf-16-be" if data[0] == 0 else "utf-16-le")
    standard = python_name(str(code_page))
    name, text = standard, ""
    for line in data.splitlines(keepends=True):
        found = PRAGMA.match(line.decode("latin-1").rstrip("\r\n"))
        if found:
            name = python_name(found.group(1)) or standard
        text += line.decode(name)
    return text


def dlginit(match):
    """The block as words with a comma between any two; type 240 is what DLGINIT stands for."""
    words = []
    for line in match.group(2).split("\n"):
        words += WORD_OR_TEXT.findall(line.split("//")[0])
    return f"{match.group(1)} 240\nBEGIN\n    " + ",\n    ".join(words) + "\nEND"


def toolbar(match):
    """The block as words: version, size of a picture, number of entries, commands (0 for a separator). Its type is 241."""
    name, width, height, body = match.groups()
    tools = [command or "0" for command, _ in TOOL.findall(body)]
    return f"{name} 241\nBEGIN\n    1, {width}, {height}, {len(tools)}" + "".join(f",\n    {tool}" for tool in tools) + "\nEND"


def on_disk(folder, name):
    """The name as the disk has it below `folder`, whatever its case; None when it isn't there."""
    here, parts = folder, []
    for part in name.split("/"):
        if part in (".", "..") or (here / part).exists():
            found = part
        else:
            found = next((p.name for p in here.iterdir() if p.name.lower() == part.lower()), None) if here.is_dir() else None
        if found is None:
            return None
        parts.append(found)
        here = here / found
    return "/".join(parts)


def rewritten(source, code_page, results):
    """The text for windres. Scripts that it includes are put into `results`: file name to text."""
    text = decoded(source.read_bytes(), code_page).replace("\r\n", "\n").replace("\r", "\n")
    text = PRAGMA.sub("", text)
    text = TEXTINCLUDE.sub("", text)
    text = DLGINIT.sub(dlginit, text)
    text = TOOLBAR.sub(toolbar, text)

    def file_name(match):
        plain = match.group(2).replace("\\\\", "/").replace("\\", "/")
        found = on_disk(source.parent, plain)
        return f'{match.group(1)}"{(source.parent / found).as_posix() if found else plain}"'

    def include(match):
        plain = match.group(2).replace("\\\\", "/").replace("\\", "/")
        found = on_disk(source.parent, plain)
        if found and found.lower().endswith((".rc", ".rc2")):
            inner = f"{len(results)}_{Path(found).name}"
            results[inner] = ""
            results[inner] = rewritten(source.parent / found, code_page, results)
            return f'{match.group(1)}"{inner}"'
        return f'{match.group(1)}"{(source.parent / found).as_posix() if found else plain}"'

    text = FILE.sub(file_name, text)
    return INCLUDE.sub(include, text)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("source", type=Path)
    parser.add_argument("result", type=Path)
    parser.add_argument("--code-page", type=int, default=1252, help="of a script that does not say (1252)")
    options = parser.parse_args()
    results = {}
    try:
        text = rewritten(options.source.resolve(), options.code_page, results)
    except (OSError, UnicodeDecodeError, Unreadable) as problem:
        sys.exit(f"{options.source}: {problem}")
    options.result.parent.mkdir(parents=True, exist_ok=True)
    for name, inner in results.items():
        (options.result.parent / name).write_text(inner, encoding="utf-8", newline="\n")
    options.result.write_text("#pragma code_page(65001)\n" + text, encoding="utf-8", newline="\n")


main()
