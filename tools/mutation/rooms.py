"""Which sources make a room, which test programs hold its rules, and the mark that the room has to reach."""

import re
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


@dataclass(frozen=True)
class Room:
    name: str
    sources: tuple  # folders below the root
    native: tuple = ()  # test programs of the native build
    windows: tuple = ()  # test programs under Wine
    mark: int = 95  # per cent that have to be noticed
    without: tuple = field(default=())  # files that are data, not rules

    def files(self):
        found = []
        for folder in self.sources:
            path = ROOT / folder
            found += [path] if path.is_file() else sorted(path.rglob("*.cpp")) + sorted(path.rglob("*.h"))
        return [f for f in found if f.relative_to(ROOT).as_posix() not in self.without]


def _toolkit(name, *windows):
    return Room(f"ktui/{name}", (f"ktui/{name}",), ("ktui_core_test",), windows or (f"ui_{name}_test",))


def _programs(folder):
    """The test programs that a folder's CMake file makes."""
    return tuple(re.findall(r"^ktui_test\((\w+)", (ROOT / folder / "CMakeLists.txt").read_text(encoding="utf-8"), re.M))


ROOMS = {
    room.name: room
    for room in (
        _toolkit("host", "ui_host_test", "ui_controls_test", "ui_messages_test"),
        _toolkit("text"),
        _toolkit("input"),
        _toolkit("controls"),
        _toolkit("pickers"),
        _toolkit("dialogs"),
        _toolkit("tips", "ui_tips_test", "ui_messages_test"),
        _toolkit("docking"),
        _toolkit("nav"),
        Room("platform/ktdb", ("platform/ktdb",), ("ktdb_test",), ("ktdb_test",), 90),
        Room("platform/ktut", ("platform/ktut",), ("ktut_test",), ("ktut_test",), 90),
        Room("platform/ktrx", ("platform/ktrx",), (), ("ui_standin_test", "ui_host_test"), 90),
        Room("platform/standin", ("platform/standin",), ("standin_core_test",), ("standin_core_test", "ui_standin_test"), 90),
        Room("platform/scene", ("platform/scene",), ("scene_test", "standin_core_test"), (), 90),
        Room("platform/drawing", ("platform/drawing",), ("drawing_test",), (), 90),
        Room("platform/mfc", ("platform/mfc",), ("mfc_core_test",), _programs("tests/ui/mfc"), 80),
    )
}
