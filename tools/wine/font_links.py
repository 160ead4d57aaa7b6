"""Writes a registry file that lets Wine show Chinese: font replacements and links to WenQuanYi Micro Hei.

Usage: font_links.py OUTPUT.reg
"""
import sys

FILE, FACE = "wqy-microhei.ttc", "WenQuanYi Micro Hei"
REPLACED = ["SimSun", "NSimSun", "\u5b8b\u4f53", "Microsoft YaHei", "Microsoft YaHei UI", "\u5fae\u8f6f\u96c5\u9ed1"]
LINKED = ["Tahoma", "Tahoma Bold", "MS Shell Dlg", "MS Shell Dlg 2", "Microsoft Sans Serif", "MS Sans Serif",
          "System", "Segoe UI", "Liberation Sans", "DejaVu Sans"]


def lines():
    yield "Windows Registry Editor Version 5.00"
    yield ""
    yield r"[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]"
    for name in REPLACED:
        yield f'"{name}"="{FACE}"'
    yield ""
    yield r"[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink]"
    data = ",".join(f"{byte:02x}" for byte in f"{FILE},{FACE}\0\0".encode("utf-16le"))
    for name in LINKED:
        yield f'"{name}"=hex(7):{data}'


with open(sys.argv[1], "w", encoding="utf-16", newline="\r\n") as output:
    output.write("\n".join(lines()) + "\n")
