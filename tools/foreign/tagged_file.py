"""DXF files as sequences of records, read without any library: what two files say can be compared group by group."""

import re
import struct
from collections import Counter

BINARY_MARK = b"AutoCAD Binary DXF\r\n\x1a\x00"
PAGES = {"ANSI_932": "cp932", "ANSI_936": "gbk", "ANSI_949": "cp949", "ANSI_950": "cp950", "ANSI_1361": "johab"}
ESCAPE = re.compile(r"\\U\+([0-9A-Fa-f]{4})")


def is_real(code):
    return 10 <= code < 60 or 110 <= code < 150 or 210 <= code < 240 or 460 <= code < 470 or 1010 <= code < 1060


def is_integer(code):
    return (60 <= code < 80 or 90 <= code < 100 or 160 <= code < 180 or 270 <= code < 300 or 370 <= code < 390
            or 400 <= code < 410 or 420 <= code < 430 or 440 <= code < 460 or 1060 <= code <= 1071)


def is_handle(code):
    return code in (5, 105, 1005) or 320 <= code < 370 or 390 <= code < 400 or 480 <= code < 482


class Record:
    """A group 0 with what follows it: `groups` are pairs of a code and its value as bytes."""

    def __init__(self, kind):
        self.kind = kind
        self.groups = []

    def first(self, code):
        return next((value for c, value in self.groups if c == code), None)


class TaggedFile:
    """The records of a file by section, its variables and comments."""

    def __init__(self, data):
        self.variables = {}
        self.comments = []
        self.sections = {}
        self.encoding = "cp1252"
        pairs = list(binary_pairs(data) if data.startswith(BINARY_MARK) else text_pairs(data))
        self._read(pairs)
        self._settle()

    def _read(self, pairs):
        section, variable, record, opening = None, None, None, False
        for code, value in pairs:
            if code == 999:
                self.comments.append(value)
            elif code == 0:
                record = None
                if value == b"SECTION":
                    opening, variable = True, None
                elif value == b"ENDSEC":
                    section = None
                elif section is not None:
                    record = Record(value.decode("latin-1"))
                    self.sections[section].append(record)
            elif opening and code == 2:
                section, opening = value.decode("latin-1"), False
                self.sections.setdefault(section, [])
            elif record is not None:
                record.groups.append((code, value))
            elif section == "HEADER" and code == 9:
                variable = value.decode("latin-1")
                self.variables[variable] = []
            elif section == "HEADER" and variable:
                self.variables[variable].append((code, value))

    def _settle(self):
        version = self.variables.get("$ACADVER", [(1, b"AC1009")])[0][1].decode("latin-1")
        page = self.variables.get("$DWGCODEPAGE", [(3, b"ANSI_1252")])[0][1].decode("latin-1").upper()
        self.version = version
        number = re.search(r"\d+$", page)
        named = PAGES.get(page) or (f"cp{number.group()}" if number else "cp1252")
        self.encoding = "utf-8" if version >= "AC1021" else named

    def text(self, value):
        """A text with its escapes resolved; bytes that the encoding lacks stand for themselves."""
        try:
            text = value.decode(self.encoding)
        except (UnicodeDecodeError, LookupError):
            text = value.decode("cp1252", "replace") if self.encoding == "utf-8" else value.decode("latin-1")
        return ESCAPE.sub(lambda found: chr(int(found.group(1), 16)), text)

    def value(self, code, value):
        """A value in a form in which equal ones are equal."""
        word = value.strip()
        if is_real(code):
            try:
                return float(word)
            except ValueError:
                return word
        if is_integer(code):
            try:
                return int(word)
            except ValueError:
                try:
                    return int(float(word))
                except (ValueError, OverflowError):
                    return word
        if is_handle(code):
            return word.upper().lstrip(b"0") or b"0"
        return self.text(value)

    def counted(self, record):
        return Counter((code, self.value(code, value)) for code, value in record.groups)


def text_pairs(data):
    if data.startswith(b"\xef\xbb\xbf"):
        data = data[3:]
    lines = data.split(b"\n") if b"\n" in data else data.split(b"\r")
    lines = [line.rstrip(b"\r") for line in lines]
    for i in range(0, len(lines) - 1, 2):
        try:
            code = int(lines[i])
        except ValueError:
            return
        yield code, lines[i + 1]
        if code == 0 and lines[i + 1].strip() == b"EOF":
            return


def binary_pairs(data):
    at = len(BINARY_MARK)
    wide = data[at + 1:at + 2] == b"\x00"
    while at < len(data):
        if wide:
            code, at = struct.unpack_from("<h", data, at)[0], at + 2
        else:
            code, at = data[at], at + 1
            if code == 255:
                code, at = struct.unpack_from("<h", data, at)[0], at + 2
        if is_real(code):
            value, at = repr(struct.unpack_from("<d", data, at)[0]).encode(), at + 8
        elif 290 <= code < 300:
            value, at = str(data[at]).encode(), at + 1
        elif 90 <= code < 100 or 420 <= code < 430 or 440 <= code < 460 or code == 1071:
            value, at = str(struct.unpack_from("<i", data, at)[0]).encode(), at + 4
        elif 160 <= code < 170:
            value, at = str(struct.unpack_from("<q", data, at)[0]).encode(), at + 8
        elif is_integer(code):
            value, at = str(struct.unpack_from("<h", data, at)[0]).encode(), at + 2
        elif 310 <= code < 320 or code == 1004:
            size = data[at]
            value, at = data[at + 1:at + 1 + size].hex().upper().encode(), at + 1 + size
        else:
            end = data.index(b"\x00", at)
            value, at = data[at:end], end + 1
        yield code, value
        if code == 0 and value == b"EOF":
            return
