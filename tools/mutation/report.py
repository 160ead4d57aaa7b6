"""What a run says, and what it reads beside the sources: the list of equivalent mutants, changed lines."""

import re
import shlex
import subprocess
from collections import defaultdict
from pathlib import Path

EQUIVALENT = Path(__file__).with_name("equivalent.txt")


def equivalents():
    """Signatures of the mutants that change nothing. A line is a signature; the indented lines behind it say why."""
    if not EQUIVALENT.is_file():
        return set()
    lines = (line.strip() for line in EQUIVALENT.read_text().splitlines() if line and not line.startswith(("#", " ")))
    # The signature of what was left out ends in a blank, which the list does not keep.
    return {f"{line} " if line.endswith("|") else line for line in lines}


def precompiled_text(command, work):
    """A precompiled header's text under a name with no compiled header beside it, for clang."""
    found = [w for w in shlex.split(command) if w.endswith("cmake_pch.hxx")]
    if not found:
        return []
    target = Path(work) / "headers" / found[0].replace("/", "_")
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(Path(found[0]).read_text())
    return [str(target)]


def changed_lines(root, base):
    """{file: lines} of what the working tree adds to or changes of a commit."""
    diff = subprocess.run(["git", "-C", root, "diff", "-U0", base, "--"], capture_output=True, text=True, check=True).stdout
    lines, name = defaultdict(set), None
    for line in diff.splitlines():
        if line.startswith("+++ b/"):
            name = line[6:]
        found = re.match(r"@@ -\S+ \+(\d+)(?:,(\d+))? @@", line)
        if found and name:
            first, count = int(found.group(1)), int(found.group(2) or 1)
            lines[name] |= set(range(first, first + count))
    return lines


def _log(room):
    return Path(__file__).resolve().parents[2] / "build" / "mutants" / (room.name.replace("/", "_") + ".txt")


def survivors(room, numbered):
    """Those that the room's last run says survived."""
    lines = [line.split("\t") for line in _log(room).read_text().splitlines()]
    names = {(where, signature) for reason, where, signature in lines if reason == "survived"}
    return {n: m for n, m in numbered.items() if (f"{m.file}:{m.line}", m.signature()) in names}


def write(room, numbered, verdict, tests, equivalent, say):
    """Prints the survivors and the last line; answers whether the mark is reached."""
    survivors = [n for n in numbered if not verdict[n]]
    for number in survivors:
        mutant = numbered[number]
        reached = any(number in numbers for numbers in tests.reaches.values())
        say(f"{mutant.file}:{mutant.line}: {mutant.kind}{'' if reached else ' (no test comes here)'}")
        say(f"    {_one_line(mutant.before)}  ->  {_one_line(mutant.after) or '(gone)'}")
        say(f"    = {mutant.signature()}")
    _log(room).write_text("".join(f"{'survived' if not verdict[n] else verdict[n]}\t{m.file}:{m.line}\t{m.signature()}\n"
                           for n, m in numbered.items()))
    killed, total = len(numbered) - len(survivors), len(numbered)
    share = 100 * killed / total
    say(f"{room.name}: killed {killed} of {total} ({share:.1f} %), {equivalent} equivalent")
    return share >= room.mark


def _one_line(text):
    return re.sub(r"\s+", " ", text).strip()[:150]
