#!/usr/bin/env python3
"""tidy.py BUILD_FOLDER [PATTERN]: clang-tidy over the sources of the program and of its pictures and
sounds whose path matches the pattern.

A file that has passed isn't looked at again until it, a header of ours that it includes, its compiler
options or the checks change. Most of the time goes into the toolkit's headers, so several files are
looked at in one pass; those whose names would clash stand in different ones. What is found in a pass
is told by looking at its files one by one."""

import hashlib
import json
import multiprocessing.pool
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
FILES_IN_A_PASS = 8


def run(*command):
    return subprocess.run(command, cwd=ROOT, capture_output=True, text=True)


def options_of(command):
    """The options that matter to clang, of a compiler's command."""
    words = shlex.split(command)
    kept = []
    skip = 0
    for at, word in enumerate(words[1:], 1):
        if skip:
            skip -= 1
        elif word in ("-o", "-c", "-MF", "-MT"):
            skip = 1
        elif word == "-include" and "cmake_pch" in words[at + 1]:
            skip = 1  # the other compiler's precompiled headers are no use to clang
        elif word not in ("-MD", "-Winvalid-pch"):
            kept.append(word)
    return kept


def headers_of_ours(build):
    """For each object the files of ours that went into it, as the build has noted them."""
    deps = {}
    current = None
    for line in run("ninja", "-C", str(build), "-t", "deps").stdout.splitlines():
        if line.startswith("    "):
            path = (build / line.strip()).resolve()
            if path.is_relative_to(ROOT) and not path.is_relative_to(build):
                deps[current].append(path)
        elif ":" in line:
            current = line.split(":")[0]
            deps[current] = []
    return deps


def names_alone(text):
    """What a file declares for itself alone, roughly: its constants, and names that no other file in
    a pass may have."""
    constants = set()
    names = set()
    for space in re.findall(r"^namespace \{$(.*?)^\}  // namespace$", text, re.S | re.M):
        constants |= set(re.findall(r"^(?:inline )?constexpr [^=;({]*?\b(k[A-Z]\w*)", space, re.M))
        names |= set(re.findall(r"^(?:struct|class|enum|enum class|using) (\w+)", space, re.M))
        names |= set(re.findall(r"^\S[^=;{}()]*?\b(\w+)\(", space, re.M))
        names |= set(re.findall(r"^\S[^=;{}()]*?\b(\w+)\s*[={;]", space, re.M))
    return constants, names - constants


def passes_over(sources):
    """Packs sources of the same options into passes."""
    passes = []
    for source in sources:
        source["constants"], names = names_alone(source["text"])
        for one in passes:
            fits = len(one["sources"]) < FILES_IN_A_PASS and one["options"] == source["options"]
            if fits and not names & one["names"]:
                break
        else:
            one = {"options": source["options"], "names": set(), "sources": []}
            passes.append(one)
        one["names"] |= names
        one["sources"].append(source)
    return passes


def together(sources):
    """All sources as one; a constant that some of them have gets another name in each."""
    lines = []
    seen = set()
    for number, source in enumerate(sources):
        twice = sorted(source["constants"] & seen)
        seen |= source["constants"]
        lines += [f"#define {name} {name}{number}" for name in twice]
        lines += [f'#include "{source["path"]}"']
        lines += [f"#undef {name}" for name in twice]
    return "\n".join(lines) + "\n"


def tidy(path, options, *arguments):
    found = run("clang-tidy", "--quiet", *arguments, str(path), "--", *options)
    told = found.stdout + re.sub(r"^\d+ warnings? generated\.\n", "", found.stderr, flags=re.M)
    return found.returncode == 0, told


def main():
    build = Path(sys.argv[1]).resolve()
    pattern = re.compile(sys.argv[2] if len(sys.argv) > 2 else "")
    work = build / "tidy"
    passed = work / "passed"
    passed.mkdir(parents=True, exist_ok=True)
    deps = headers_of_ours(build)
    listed = run("git", "ls-files", "-co", "--exclude-standard", "src/*.cpp", "assets/*.cpp")
    wanted = {str(ROOT / name) for name in listed.stdout.split() if pattern.search(name)}
    checks = (ROOT / ".clang-tidy").read_bytes() + run("clang-tidy", "--version").stdout.encode()

    pending = []
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if entry["file"] not in wanted:
            continue
        wanted.discard(entry["file"])  # some are built more than once
        options = options_of(entry["command"])
        options = [word for word in options if word != entry["file"]]
        key = hashlib.sha256(checks + " ".join(options).encode())
        text = Path(entry["file"]).read_text()
        output = entry.get("output") or shlex.split(entry["command"])[-3]
        for path in [entry["file"], *sorted(deps.get(output, []))]:
            key.update(str(path).encode())
            key.update(Path(path).read_bytes() if os.path.exists(path) else b"")
        mark = passed / key.hexdigest()
        if not mark.exists() or output not in deps:
            pending.append({"path": entry["file"], "options": options, "text": text, "mark": mark})

    def look(numbered):
        number, one = numbered
        sources = one["sources"]
        if len(sources) > 1:
            path = work / f"pass{number}.cpp"
            path.write_text(together(sources))
            clean, _ = tidy(path, one["options"], "--header-filter=/(src|assets)/",
                            "--checks=-bugprone-suspicious-include",
                            f"--config-file={ROOT / '.clang-tidy'}")
            if clean:
                for source in sources:
                    source["mark"].touch()
                return True
        good = True
        for source in sources:
            clean, told = tidy(source["path"], one["options"])
            if clean:
                source["mark"].touch()
            else:
                print(told, flush=True)
                good = False
        return good

    with multiprocessing.pool.ThreadPool(os.cpu_count()) as pool:
        results = pool.map(look, enumerate(passes_over(pending)), chunksize=1)
    print(f"{len(pending)} files looked at in {len(results)} passes")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
