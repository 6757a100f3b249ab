#!/usr/bin/env python3
"""Whether the tests notice faults: check-mutants.py engine|desktop [options]

Puts the faults of engine.txt or desktop.txt into a copy of the sources, one at a time, and runs
tests until one fails: those of the engine, the golden scripts and the won games, or those of the
window and the scripts. While some mutants are tested the next one is built.
"""
import argparse
import concurrent.futures
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LIMIT = 180  # seconds of a test: a mutant may wait for ever
# The slowest ones last.
WINDOW_TESTS = ("pictures windows shell dialogs play help charts appearance words "
                "sounds scripts copies moments").split()


class Mutant:
    def __init__(self, file, original, replacement):
        self.file, self.original, self.replacement = file, original, replacement
        text = (ROOT / "src" / file).read_text()
        if text.count(original) != 1:
            sys.exit(f"This doesn't stand exactly once in {file}:\n{original}")
        self.place = f"{file}:{text[:text.index(original)].count(chr(10)) + 1}"
        self.whole, self.content = text, text.replace(original, replacement)

    def shown(self):
        return "".join(f"    {sign} {line}\n" for sign, text in
                       (("<", self.original), (">", self.replacement))
                       for line in text.splitlines())


def mutants_of(path):
    """The blocks of a list: the original after "-", what takes its place after "+"; ahead of them
    "@ file", which holds for the next ones as well."""
    found, file = [], ""
    for block in re.split(r"\n\s*\n", path.read_text()):
        parts = {"-": [], "+": []}
        for line in block.splitlines():
            if line.startswith("@ "):
                file = line[2:]
            elif line[:1] in parts:
                parts[line[0]].append(line[1:].removeprefix(" "))
            elif line and not line.startswith("#"):
                sys.exit(f"{path}: {line}")
        if parts["-"]:
            found.append(Mutant(file, "\n".join(parts["-"]), "\n".join(parts["+"])))
    return found


class Copy:
    """A copy of the sources and its build."""

    def __init__(self, half, work):
        self.half, self.source, self.build = half, work / "source", work / "build"
        self.work = work
        listed = subprocess.run(["git", "ls-files", "-z", "-co", "--exclude-standard"], cwd=ROOT,
                                check=True, capture_output=True, text=True).stdout
        for name in filter(None, listed.split("\0")):
            if (ROOT / name).exists():
                self.put(name, self.prepared(name, (ROOT / name).read_bytes()))
        wanted = {"VARNELLO_DESKTOP": "ON" if half == "desktop" else "OFF", "VARNELLO_BENCH": "OFF",
                  "CMAKE_POSITION_INDEPENDENT_CODE": "ON", "CMAKE_BUILD_RPATH_USE_ORIGIN": "ON",
                  "CMAKE_LINK_DEPENDS_NO_SHARED": "ON",
                  "CMAKE_CXX_FLAGS": "-w"}  # a fault may leave something unused
        self.run(["cmake", "-S", self.source, "-B", self.build, "-G", "Ninja",
                  *(f"-D{key}={value}" for key, value in wanted.items())])

    def prepared(self, name, content):
        if not name.endswith("CMakeLists.txt"):
            return content
        text = content.decode()
        # The sanitizers take their time; checked containers see most of what they would.
        text = re.sub(r"-O1 -g -UNDEBUG -fsanitize=\S+ -fno-sanitize-recover=all",
                      "-D_GLIBCXX_ASSERTIONS", text)
        text = text.replace("-fsanitize=address,undefined", "")
        if self.half == "desktop":  # a fault is linked once, not into each test
            text = re.sub(r"(add_library\(varnello-(?:desktop|engine)) STATIC\b", r"\1 SHARED", text)
        return text.encode()

    def put(self, name, content):
        """Writes a file when it is another, so that what hasn't changed isn't built anew."""
        path = self.source / name
        if not path.exists() or path.read_bytes() != content:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)
            if (ROOT / name).exists():
                shutil.copymode(ROOT / name, path)

    def run(self, command):
        done = subprocess.run(command, capture_output=True, text=True, check=False)
        if done.returncode:
            sys.exit(f"{command}\n{done.stdout[-3000:]}{done.stderr[-3000:]}")

    def builds(self):
        """The path of a snapshot of what was built, or none if it doesn't build."""
        targets = ["varnello-engine-tests", "varnello-script-sanitized"]
        if self.half == "desktop":
            targets = ["varnello", "varnello-script", "varnello-sound",
                       *(f"varnello-{name}_test" for name in (*WINDOW_TESTS, "x"))]
        made = subprocess.run(["ninja", "-C", self.build, *targets], capture_output=True, text=True,
                              check=False)
        if made.returncode:
            return None
        snapshot = Path(tempfile.mkdtemp(dir=self.work, prefix="built-"))
        for path in self.build.rglob("*"):
            kept = re.search(r"\.so$|/bin/|/tests/engine/varnello|/src/script/varnello", str(path))
            if kept and path.is_file() and ".dir/" not in str(path):
                linked = snapshot / path.relative_to(self.build)
                linked.parent.mkdir(parents=True, exist_ok=True)
                os.link(path, linked)  # the linker writes a new file
        return snapshot


def failures_of(command, environment):
    """The names of the tests of a program that fail. A crash leaves the one that was running."""
    run = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                           errors="replace", start_new_session=True,
                           env={**os.environ, **environment})
    try:
        out, code = run.communicate(timeout=LIMIT)[0], run.returncode
    except subprocess.TimeoutExpired:
        os.killpg(run.pid, signal.SIGKILL)  # with all that it has started
        run.wait()
        return [f"{Path(command[0]).name} (waits)"]
    if code in (0, 77):  # 77: not possible on this machine
        return []
    names = re.findall(r"^FAIL!  : (\w+::\w+)", out, re.M)
    names += re.findall(r"^\[  FAILED  \] (?:\w+/)?([\w.]+)(?:, where.*|/\w+.*)? \(\d+ ms\)", out, re.M)
    running = re.findall(r"^\[ RUN      \] (?:\w+/)?([\w.]+)", out, re.M)
    if not names and running:
        names = [running[-1]]
    return sorted(set(names)) or [Path(command[0]).name]


def failing(half, snapshot, everything):
    """The names of the failing tests: of the first program that fails, or of all."""
    data, found = snapshot / "data", []
    script = snapshot / "src/script/varnello-script"
    if half == "engine":
        script = script.with_name("varnello-script-sanitized")
        tests = [("", [snapshot / "tests/engine/varnello-engine-tests"])]
    else:
        tests = [("", [snapshot / f"bin/varnello-{name}_test", "-maxwarnings", "1"])
                 for name in WINDOW_TESTS]
    for path in sorted((ROOT / "tests/scripts").glob("*.script")):
        tests.append((f"script.{path.stem}", [
            "cmake", "-D", f"PROGRAM={script}", "-D", f"SCRIPT={path}", "-D", f"FOLDER={data}",
            "-D", f"EXPECTED={path.with_suffix('.expected')}", "-P",
            ROOT / "tests/scripts/compare.cmake"]))
    tests += [(f"faults.{name}", [ROOT / f"tests/faults/{name}.sh", script])
              for name in ("clock", "full-disk", "full-file", "killed", "read-only", "removed",
                           "two-copies")]
    if half == "desktop":
        display = ["env", "QT_QPA_PLATFORM=xcb", ROOT / "tools/on-virtual-display.sh"]
        program = snapshot / "bin/varnello"
        tests += [("accessible", [*display, "dbus-run-session", "--",
                                  ROOT / "tests/accessible/read_table.py", program]),
                  ("command line", [ROOT / "tests/start/command_line.sh", program, script]),
                  ("window", [*display, ROOT / "tests/start/window.sh", program]),
                  ("signals", [*display, ROOT / "tests/faults/signals.sh", program]),
                  ("", [*display, snapshot / "bin/varnello-x_test"])]
    else:
        tests.append(("wins", [
            "cmake", "-D", f"PROGRAM={script}", "-D", f"FOLDER={data}", "-D",
            f"SCRIPTS={ROOT}/tests/wins", "-D",
            f"CATALOGUE={ROOT}/src/engine/definitions/catalogue.cpp", "-P",
            ROOT / "tests/wins/play.cmake"]))
    home = {"QT_QPA_PLATFORM": "offscreen", "TMPDIR": str(snapshot),
            "XDG_CONFIG_HOME": str(snapshot / "config")}
    if not everything:
        home["VARNELLO_FAIL_FAST"] = "1"
    for name, command in tests:
        failed = failures_of([str(word) for word in command], home)
        found += [name] if failed and name else failed
        if found and not everything:
            break
    shutil.rmtree(snapshot, ignore_errors=True)
    return found


def report(kills):
    """Which test notices how many faults, and how many no other one."""
    noticed, alone = Counter(), Counter()
    for names in kills:
        noticed.update(names)
        if len(names) == 1:
            alone.update(names)
    print("\nnoticed  alone  test")
    for name, count in noticed.most_common():
        print(f"{count:7}  {alone[name]:5}  {name}")


def main():
    parse = argparse.ArgumentParser(description=__doc__,
                                    formatter_class=argparse.RawDescriptionHelpFormatter)
    parse.add_argument("half", choices=("engine", "desktop"))
    parse.add_argument("--list", type=Path, help="another list of faults")
    parse.add_argument("--work", type=Path, help="a folder that is kept: the next run builds less")
    parse.add_argument("--pattern", default="", help="a part of the names of files to pick")
    parse.add_argument("--every", type=int, default=1, help="picks each so manieth fault")
    parse.add_argument("--all", action="store_true",
                       help="runs all tests and ends with which of them notices what")
    options = parse.parse_args()
    mutants = mutants_of(options.list or ROOT / f"tests/mutation/{options.half}.txt")
    mutants = [one for one in mutants if options.pattern in one.file][::options.every]
    work = options.work or Path(tempfile.mkdtemp())
    work.mkdir(parents=True, exist_ok=True)
    for left in work.glob("built-*"):
        shutil.rmtree(left)
    try:
        sys.exit(check(options, mutants, Copy(options.half, work.resolve())))
    finally:
        if not options.work:
            shutil.rmtree(work)


def check(options, mutants, copy):
    whole = copy.builds() or sys.exit("Without any fault it doesn't build.")
    names = failing(options.half, whole, True)
    if names:
        sys.exit(f"Without any fault, {', '.join(names)} fails.")
    survivors, kills, waiting = 0, [], {}

    def collect(when):
        nonlocal survivors
        for done in concurrent.futures.wait(waiting, return_when=when).done:
            mutant, noticed = waiting.pop(done), done.result()
            kills.append(noticed)
            if noticed:
                print(f"killed    {mutant.place:34} {' '.join(noticed)}", flush=True)
            else:
                survivors += 1
                print(f"SURVIVED  {mutant.place}\n{mutant.shown()}", end="", flush=True)

    # The window's tests wait for the window more than for the processor.
    testers = 2 if options.half == "engine" else 5
    with concurrent.futures.ThreadPoolExecutor(testers) as pool:
        for mutant in mutants:
            name = f"src/{mutant.file}"
            copy.put(name, mutant.content.encode())
            snapshot = copy.builds()
            copy.put(name, mutant.whole.encode())  # whatever has become of the file meanwhile
            if not snapshot:
                survivors += 1
                print(f"NO BUILD  {mutant.place}", flush=True)
                continue
            waiting[pool.submit(failing, options.half, snapshot, options.all)] = mutant
            if len(waiting) > testers:
                collect(concurrent.futures.FIRST_COMPLETED)
        while waiting:
            collect(concurrent.futures.FIRST_COMPLETED)
    if options.all:
        report(kills)
    print(f"{len(mutants)} mutants, {survivors} survived")
    return 1 if survivors else 0


if __name__ == "__main__":
    main()
