"""Runs test programs with a mutant on, natively and in Wine lanes of their own."""

import os
import shutil
import signal
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

NOTE_REACHED = "-1"
TIMED_OUT, FELL_SILENT = -1, -2  # in place of an exit code
ENDED = {TIMED_OUT: "time limit", FELL_SILENT: "silence"}


@dataclass(frozen=True)
class Test:
    program: str  # path of the executable
    name: str
    native: bool


@dataclass
class Outcome:
    code: int  # or TIMED_OUT or FELL_SILENT
    output: str
    seconds: float


class NativeLane:
    """Runs native programs, with a folder of its own for temporary files: tests in two lanes may use the same names."""

    def __init__(self, cpu):
        self.cpu = cpu
        self.folder = tempfile.TemporaryDirectory(prefix=f"mutants{cpu}")

    def run(self, program, arguments, mutant, reached=None, limit=60, silence=60):
        env = dict(os.environ, TMPDIR=self.folder.name, KTUI_MUTANT=str(mutant),
                   **({"KTUI_MUTANT_REACHED": reached} if reached else {}))
        return _run(["taskset", "-c", str(self.cpu), program, *arguments], env, limit, silence)

    def restore(self):
        for left in Path(self.folder.name).iterdir():
            shutil.rmtree(left) if left.is_dir() else left.unlink()

    def close(self):
        self.folder.cleanup()


class WineLane:
    """Runs Windows programs with a display, a prefix and a processor of its own, so that lanes don't meet. A mutant
    may leave anything in the registry; `restore` puts the prefix back."""

    def __init__(self, cpu, prefix, folder):
        self.cpu = cpu
        self.pristine = Path(prefix)
        self.prefix = Path(folder) / f"lane{cpu}"
        shutil.rmtree(self.prefix, ignore_errors=True)
        subprocess.run(["cp", "-a", self.pristine, self.prefix], check=True)
        self.display = self._start_display()
        self.env = dict(os.environ, WINEPREFIX=str(self.prefix), WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=",
                        DISPLAY=f":{self.display}", LC_ALL="C.UTF-8")
        self._start_server()

    def _start_display(self):
        number = 600 + os.getpid() % 3000 + self.cpu
        while os.path.exists(f"/tmp/.X{number}-lock"):
            number += 10
        self.xvfb = subprocess.Popen(["Xvfb", f":{number}", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                                     stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        deadline = time.monotonic() + 20
        while not os.path.exists(f"/tmp/.X11-unix/X{number}"):
            if time.monotonic() > deadline:
                raise RuntimeError("Xvfb did not start")
            time.sleep(0.05)
        return number

    def _start_server(self):
        for command in (["wineserver", "-p"], ["wine", "cmd", "/c", "exit"]):
            subprocess.run(["taskset", "-c", str(self.cpu), *command], env=self.env, stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)

    def run(self, program, arguments, mutant, reached=None, limit=120, silence=120):
        env = dict(self.env, KTUI_MUTANT=str(mutant), **({"KTUI_MUTANT_REACHED": "Z:" + reached} if reached else {}))
        return _run(["taskset", "-c", str(self.cpu), "wine", program, *arguments], env, limit, silence)

    def restore(self):
        subprocess.run(["wineserver", "-k"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        subprocess.run(["wineserver", "-w"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=60)
        for part in ("user.reg", "system.reg", "userdef.reg"):
            shutil.copy2(self.pristine / part, self.prefix / part)
        users = "drive_c/users"
        shutil.rmtree(self.prefix / users, ignore_errors=True)
        subprocess.run(["cp", "-a", self.pristine / users, self.prefix / users], check=True)
        self._start_server()

    def close(self):
        subprocess.run(["wineserver", "-k"], env=self.env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.xvfb.terminate()
        self.xvfb.wait()
        shutil.rmtree(self.prefix, ignore_errors=True)


def _run(command, env, limit, silence):
    """Runs a command for at most `limit` seconds, and ends it when it has said nothing for `silence` seconds."""
    began = time.monotonic()
    with tempfile.TemporaryFile() as output:
        process = subprocess.Popen(command, env=env, stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                                   start_new_session=True)
        code = _wait(process, output, began + limit, silence)
        output.seek(0)
        return Outcome(code, output.read().decode("utf-8", "replace").replace("\r", ""), time.monotonic() - began)


def _wait(process, output, deadline, silence):
    said, spoke = 0, time.monotonic()
    while True:
        try:
            return process.wait(timeout=1)
        except subprocess.TimeoutExpired:
            now, size = time.monotonic(), os.fstat(output.fileno()).st_size
        if size != said:
            said, spoke = size, now
        if now < deadline and now - spoke < silence:
            continue
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return TIMED_OUT if now >= deadline else FELL_SILENT


def list_tests(lane, program, native):
    """The tests of a GoogleTest program."""
    listing = lane.run(program, ["--gtest_list_tests"], 0).output
    tests, suite = [], ""
    for line in listing.splitlines():
        text = line.split("#")[0].rstrip()
        if text.endswith(".") and not text.startswith(" "):
            suite = text
        elif text.startswith("  ") and suite:
            tests.append(Test(str(program), suite + text.strip(), native))
    return tests


def measure(lane, test):
    """Runs one test with no mutant on: (passed, numbers reached, seconds)."""
    with tempfile.NamedTemporaryFile(prefix="reached") as file:
        outcome = lane.run(test.program, [f"--gtest_filter={test.name}"], NOTE_REACHED, file.name)
        numbers = {int(n) for n in Path(file.name).read_text().split()}
    return outcome.code == 0, numbers, outcome.seconds


def noticed(lane, tests, seconds, mutant):
    """Whether one of `tests` fails with the mutant on; in the order of programs, a program stops at its first failure.
    `seconds` is how long each took without. Answers the reason or None."""
    for program in dict.fromkeys(t.program for t in tests):
        mine = [t for t in tests if t.program == program]
        for chunk in _chunks(mine):
            limit = 8 + 5 * sum(seconds[t] for t in chunk)
            silence = 20 + 5 * max(seconds[t] for t in chunk)
            arguments = ["--gtest_fail_fast", "--gtest_filter=" + ":".join(t.name for t in chunk)]
            outcome = lane.run(program, arguments, mutant, limit=limit, silence=silence)
            if outcome.code == 0:
                continue
            lane.restore()
            if outcome.code in ENDED:
                return ENDED[outcome.code]
            failed = [line for line in outcome.output.splitlines() if line.startswith("[  FAILED  ]")]
            return failed[0][13:].split(" (")[0] if failed else f"ended with {outcome.code}"
    return None


def _chunks(tests):
    """A Windows command line holds 32,767 characters."""
    chunk, size = [], 0
    for test in tests:
        if chunk and size + len(test.name) > 28000:
            yield chunk
            chunk, size = [], 0
        chunk.append(test)
        size += len(test.name) + 1
    if chunk:
        yield chunk
