"""A copy of the tree with mutants woven in, built once natively and once for Windows."""

import os
import re
import subprocess
from pathlib import Path

from .weaving import mutants_at, weave

FLAGS = "-w -Wno-error -Wno-narrowing -ftemplate-depth=2000"
ERROR = re.compile(r"^([^\s:][^:\n]*):(\d+):(\d+): (?:fatal )?error: (.*)$", re.M)
UNLINKED = re.compile(r"^([^\s:][^:\n]*):(\d+): undefined reference to ", re.M)
MENTION = re.compile(r"^([^\s:][^:\n]*):(\d+):(\d+):", re.M)


class Tree:
    """The copy of the sources below `folder`; files are written only when their content changes, so that a build
    after another room's compiles what differs."""

    def __init__(self, root, folder):
        self.root, self.folder = Path(root), Path(folder)
        self.woven = {}

    def write(self, numbered, weakenings):
        """Copies what git knows and what it does not ignore, with the mutants in their files. Answers the numbers that
        could not be placed."""
        listing = subprocess.run(["git", "-C", self.root, "ls-files", "-co", "--exclude-standard", "-z"],
                                 capture_output=True, check=True).stdout
        refused, names = [], [n for n in listing.decode().split("\0") if n]
        for name in names:
            source = self.root / name
            if not source.is_file():
                continue
            data = source.read_bytes()
            mine = {n: m for n, m in numbered.items() if m.file == name}
            if mine:
                needed = [w for w in weakenings if w.file == name and any(w.body[0] <= m.begin and m.end <= w.body[1] for m in mine.values())]
                data, out = weave(data, mine, needed)
                refused += out
                self.woven[name] = data
            self._put(name, data, source.stat().st_mode)
        self._remove_others(set(names))
        return refused

    def _put(self, name, data, mode):
        target = self.folder / name
        if put(target, data):
            os.chmod(target, mode & 0o777)

    def _remove_others(self, names):
        """A file that is gone from the tree may not stay in the copy: folders are read by pattern."""
        for path in self.folder.rglob("*"):
            name = path.relative_to(self.folder).as_posix()
            if path.is_file() and not name.startswith("build/") and name not in names:
                path.unlink()

    def configure(self, kind):
        """Configures the `core` or the `windows` build of the copy; answers its folder."""
        build = self.folder / "build" / kind
        if not (build / "build.ninja").is_file():
            settings = ["-DCMAKE_BUILD_TYPE=", f"-DCMAKE_CXX_FLAGS=-O1 -g0 {FLAGS} -I{self.folder}/tools/mutation"]
            subprocess.run(["cmake", "--preset", kind, *settings], cwd=self.folder, check=True, capture_output=True)
        else:
            subprocess.run(["cmake", build], check=True, capture_output=True)  # for files that have come or gone
        return build


def put(target, data):
    """Writes a file unless it holds just that; answers whether it wrote."""
    if target.is_file() and target.read_bytes() == data:
        return False
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes(data)
    return True


def compile_all(build, targets, jobs):
    """Builds; answers the output of a failed build or None."""
    done = subprocess.run(["ninja", "-C", build, "-k", "0", f"-j{jobs}", *targets], capture_output=True, text=True, errors="replace")
    return None if done.returncode == 0 else done.stdout + done.stderr


def at_fault(output, tree):
    """From a compiler's messages: the numbers of the mutants that don't compile, and the names of constants that have
    to stay constant."""
    numbers, constants = set(), set()
    # A reference to a class's own constant, which another program has no place for, is seen by the linker alone.
    for path, line in UNLINKED.findall(output):
        name = next((w for w in tree.woven if path.endswith(w)), None)
        if name:
            numbers |= set(mutants_at(tree.woven[name], int(line), 1))
    blocks = re.split(r"(?=^[^\s:][^:\n]*:\d+:\d+: (?:fatal )?error: )", output, flags=re.M)
    for before, block in zip([""] + blocks, blocks):
        error = ERROR.match(block)
        if not error:
            continue
        named = re.findall(r"the value of ‘(?:[\w {}]*::)*(\w+)’|‘(?:const )?(?:\w+ )*(\w+)’ is not usable in a constant|call to non-‘constexpr’ function ‘[^’(]*?(\w+)\(", block)
        constants |= {n for group in named for n in group if n}
        found = []
        # Where a template was asked for stands before the error in it.
        _, _, asked = before.rpartition("In instantiation of")
        asked = asked if "required from" in asked else ""
        for place in [error] + list(MENTION.finditer(asked)) + list(MENTION.finditer(block)):
            try:
                name = str(Path(place.group(1)).resolve().relative_to(tree.folder))
            except ValueError:
                name = place.group(1)
                name = next((w for w in tree.woven if name.endswith(w)), name)
            if name in tree.woven:
                found = mutants_at(tree.woven[name], int(place.group(2)), int(place.group(3)))
                if found:
                    break
        numbers |= set(found)
    return numbers, constants
