"""Weaves mutants into an overlay of the builds that are there, so that only what the woven files touch is compiled.

The tool starts itself again in a mount namespace of its own. There the sources and the builds lie under overlays, which take
what is written, and the tree as it is stands at build/mutants/plain, from where the tool goes on. Outside, nothing has changed.
"""

import os
import subprocess
import sys
from pathlib import Path

from . import builds

INSIDE = "KTUI_MUTANTS_OVERLAID"  # names the overlaid tree to the tool that was started again
BUILDS = ("core", "windows")
OVERLAID = ("ktui", "platform", *(f"build/{kind}" for kind in BUILDS))


def enter(root, work, room):
    """Goes on in a namespace with the overlays; answers only there, with the folder of the overlaid tree. Each room has overlays
    of its own, since a header that isn't woven any more is as good as a changed one."""
    if INSIDE in os.environ:
        return Path(os.environ[INSIDE])
    for kind in BUILDS:
        if not (root / "build" / kind / "build.ninja").is_file():
            sys.exit(f"--warm needs a build in build/{kind}, and there is none: build it (./test does), or leave --warm out")
    plain = work / "plain"
    mounts = [f"mkdir -p '{plain}'", f"mount --bind '{root}' '{plain}'"]
    for folder in OVERLAID:
        own = work / "warm" / room.replace("/", "_") / folder
        mounts += [f"mkdir -p '{own}/upper' '{own}/work'",
                   f"mount -t overlay overlay -o 'lowerdir={root}/{folder},upperdir={own}/upper,workdir={own}/work' '{root}/{folder}'"]
    script = "\n".join(["set -e", *mounts, f"cd '{plain}'", 'exec "$@"'])
    namespace = ["unshare", "--mount"] if os.geteuid() == 0 else ["unshare", "--mount", "--map-root-user"]
    tool = [sys.executable, plain / Path(sys.argv[0]).resolve().relative_to(root), *sys.argv[1:]]
    os.environ[INSIDE] = str(root)
    sys.stdout.flush()
    os.execvp("unshare", [*namespace, "bash", "-c", script, "mutants", *map(str, tool)])


class Tree(builds.Tree):
    """The overlaid tree, with the builds in it as they were configured."""

    def _remove_others(self, names):
        """What is not known to git is part of the tree as well."""

    def configure(self, kind):
        build = self.folder / "build" / kind
        made = subprocess.run(["ninja", "-C", build, "build.ninja"], capture_output=True, text=True)
        if made.returncode != 0:
            sys.exit(f"build/{kind} can't be configured:\n{made.stdout}{made.stderr}")
        self._soften(build)
        return build

    def _soften(self, build):
        """Lets what takes in a woven file compile with warnings. All else keeps its command, and so isn't compiled again."""
        known, touched = self._known_and_touched(build)
        flags = f" {builds.FLAGS} -I{self.folder}/tools/mutation"
        lines, is_touched = [], False
        for line in (build / "build.ninja").read_text().split("\n"):
            if line.startswith("build "):
                target, _, rule = line[len("build "):].partition(": ")
                is_touched = rule.startswith("CXX_COMPILER") and (target in touched or target not in known)
            elif line.startswith("  FLAGS = "):
                line = line.replace(flags, "") + (flags if is_touched else "")
            lines.append(line)
        builds.put(build / "build.ninja", "\n".join(lines).encode())

    def _known_and_touched(self, build):
        """The objects whose dependencies are known from the last build, and those of them that take in a woven file."""
        woven = {str(self.folder / name) for name in self.woven}
        told = subprocess.run(["ninja", "-C", build, "-t", "deps"], capture_output=True, text=True, check=True).stdout
        known, touched, target = set(), set(), ""
        for line in told.splitlines():
            if line and not line.startswith(" "):
                target = line.split(":")[0]
                known.add(target)
            elif os.path.normpath(build / line.strip()) in woven:
                touched.add(target)
        return known, touched
