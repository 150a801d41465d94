#!/usr/bin/env python3
"""Breaks the logic in one place at a time and says which breaks no test notices.

    tools/mutate.py                      60 breaks in each folder of the logic
    tools/mutate.py view data -n 100     more, in two of them
    tools/mutate.py view --list          the chosen breaks; nothing is built
    tools/mutate.py --at src/view/Colours.cpp:45   every break of a line, or of a file

A broken program runs its folder's tests and the golden record of the replay. A break is killed when one of them fails,
crashes or does not end. The choice depends on the seed and the text of the sources alone, and is spread over all files
and kinds of break. Breaks that no host can tell stand in tools/mutants-kept.txt with the reason behind `=`, in the form
in which a survivor is printed. The checkout is only read: all work is done in build-mutate/.
"""
import argparse
import collections
import concurrent.futures
import json
import os
import queue
import re
import resource
import shlex
import shutil
import subprocess
import sys
import time
from pathlib import Path

sys.dont_write_bytecode = True
from breaks import breaks, choose

ROOT = Path(__file__).resolve().parent.parent
WORK = ROOT / "build-mutate"
SOURCES, BUILD, PRELUDE = WORK / "sources", WORK / "build", WORK / "prelude.h"
KEPT = Path(__file__).resolve().with_name("mutants-kept.txt")
FOLDERS = ["shell", "columns", "data", "editors", "view", "failure"]
NO_COMPILE, SAME, BY_TESTS, BY_RECORD, REASON, SURVIVED = OUTCOMES = [
    "did not compile", "same code", "killed by tests", "killed by record", "with a reason", "without a reason"]


# ---- Building

def limited():
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_FSIZE, (1 << 28, 1 << 28))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def passes(command, output, seconds):
    """Whether the program ends in time and well; what it prints goes to a file."""
    environment = os.environ | {"RC_PARAMS": "seed=1", "GTEST_FAIL_FAST": "1", "GTEST_BRIEF": "1"}
    with open(output, "wb") as out:
        program = subprocess.Popen(command, stdout=out, stderr=subprocess.DEVNULL, stdin=subprocess.DEVNULL,
                                   env=environment, preexec_fn=limited)
        try:
            return program.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            program.kill()
            program.wait()
            return False


def copy_sources():
    """Brings the copy up to date; what did not change keeps its time, and is not built again."""
    for name in os.listdir(ROOT):
        if not name.startswith((".git", "build")):
            copy = ["cp", "-r", "--update", "--preserve=timestamps", str(ROOT / name), str(SOURCES)]
            subprocess.run(copy, check=True)
    for path in sorted(SOURCES.rglob("*"), reverse=True):
        if not (ROOT / path.relative_to(SOURCES)).exists():
            path.rmdir() if path.is_dir() else path.unlink()


class Programs:
    """The unbroken build, its commands, and how long its tests take."""

    def __init__(self, folders):
        SOURCES.mkdir(parents=True, exist_ok=True)
        copy_sources()
        linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
        self.run(["cmake", "-G", "Ninja", "-S", str(SOURCES), "-B", str(BUILD), "-DCMAKE_BUILD_TYPE=Debug",
                  "-DCMAKE_CXX_FLAGS_DEBUG=-O0 -w", "-DTESSELLON_QT=OFF"] + linker)
        self.run(["ninja", "-C", str(BUILD), "-j2", "tessellon-replay"] + [f"{f}_tests" for f in folders])
        commands = json.loads((BUILD / "compile_commands.json").read_text())
        words = [shlex.split(c["command"]) for c in commands]
        self.compile = {w[w.index("-o") + 1]: w for w in words}
        self.uses = collections.defaultdict(set)
        for line in self.run(["ninja", "-C", str(BUILD), "-t", "deps"]).splitlines():
            if line[:1].strip():
                user = line.split(":")[0]
            elif (used := Path(os.path.normpath(BUILD / line.strip()))).is_relative_to(SOURCES):
                self.uses[str(used.relative_to(SOURCES))].add(user)
        self.link = {name: self.link_command(name) for name in ["tessellon-replay"] + [f"{f}_tests" for f in folders]}
        self.scripts = sorted((SOURCES / "tests/replay/golden").glob("*.txt"))
        self.seconds, self.unbroken = {}, {}
        if self.precompile(PRELUDE) is None:
            sys.exit("The headers of the logic do not compile together.")
        for program in self.link:
            start = time.monotonic()
            if not self.passes(program, BUILD / "bin" / program, WORK / "unbroken.out", 600):
                sys.exit(f"{program} fails as it is.")
            self.seconds[program] = 5 + 10 * (time.monotonic() - start)

    @staticmethod
    def run(command):
        done = subprocess.run(command, capture_output=True, text=True)
        if done.returncode != 0:
            sys.exit(f"{shlex.join(command)}\n{done.stdout}{done.stderr}")
        return done.stdout

    def precompile(self, prelude, options=()):
        """All headers that the logic includes, read once: a source then takes a quarter of the time. None if broken."""
        texts = [path.read_text() for folder in FOLDERS for path in sorted((SOURCES / "src" / folder).rglob("*.*"))]
        prelude.write_text("\n".join(sorted({i for text in texts for i in re.findall(r"^#include .*", text, re.M)})))
        unit = next(unit for unit in self.compile if "/tessellon_sheet.dir/" in unit)
        return self.code(unit, prelude, f"{prelude}.gch", options, ["-x", "c++-header"])

    def link_command(self, name):
        """The words of the link, libraries of this build given as the objects in them."""
        words = self.run(["ninja", "-C", str(BUILD), "-t", "commands", f"bin/{name}"]).strip().splitlines()[-1]
        answer = []
        for word in shlex.split(words):
            library = re.fullmatch(r"(.*/)?lib(tessellon_\w+)\.a", word)
            if word in (":", "&&") or library and any(f"/{library.group(2)}.dir/" in a for a in answer):
                continue
            answer += [o for o in self.compile if f"/{library.group(2)}.dir/" in o] if library else [word]
        return answer

    def passes(self, program, path, output, seconds=None):
        """Whether a program's tests pass; the replay's are the scripts of the record."""
        seconds = seconds or self.seconds[program]
        if program != "tessellon-replay":
            return passes([str(path)], output, seconds)
        return all(passes([str(path), str(script), "--platform", "headless"], output, seconds)
                   and Path(output).read_bytes() == script.with_suffix(".out").read_bytes() for script in self.scripts)

    def outcome(self, item, place):
        """Builds what the break changes beside the unbroken build, and tries it."""
        shutil.rmtree(place, ignore_errors=True)
        broken = place / item.file
        broken.parent.mkdir(parents=True)
        broken.write_text(item.text)
        folder = item.file.split("/")[1]
        in_header = item.file.endswith(".h")
        options = ["-include", str(place / "prelude.h" if in_header else PRELUDE), f"-I{place}/src"]
        if in_header and self.precompile(place / "prelude.h", [f"-I{place}/src"]) is None:
            return NO_COMPILE
        tests, made = f"{folder}_tests", {}
        # A broken header first goes into the logic alone: mostly that tells, and spares building the tests anew.
        for program, part, outcome in ((tests, "/tessellon_sheet.dir/", BY_TESTS), (tests, "", BY_TESTS),
                                       ("tessellon-replay", "", BY_RECORD)):
            units = [u for u in self.uses[item.file].intersection(self.link[program]) - made.keys() if part in u]
            if not units and program == tests:
                continue
            for unit in sorted(units):
                made[unit] = str(place / Path(unit).name)
                if self.code(unit, None if in_header else broken, made[unit], options) is None:
                    return NO_COMPILE
            words = [made.get(word, word) for word in self.link[program]]
            words[words.index("-o") + 1] = str(place / program)
            if subprocess.run(words, cwd=BUILD, capture_output=True).returncode != 0:
                return NO_COMPILE
            if not self.passes(program, place / program, place / "out"):
                return outcome
        if in_header:
            same = all(Path(made[unit]).read_bytes() == self.unbroken_code(unit, place, ["-include", str(PRELUDE)])
                       for unit in made)
        else:
            same = (self.code(unit, broken, place / "optimised", [], ["-O2"]) ==
                    self.unbroken_code(unit, place, [], ["-O2"]))
        return SAME if same else SURVIVED

    def code(self, unit, source, out, options, more=()):
        """Compiles a source, or the unit's own, as the unit is compiled; its code, or None if it does not compile."""
        words = [word for word in self.compile[unit] if "ccache" not in word]
        plain = words[1:words.index("-o")]
        words = [words[0], *options, *plain, *more, "-c", str(source or words[-1]), "-o", str(out)]
        done = subprocess.run(words, cwd=BUILD, capture_output=True)
        return Path(out).read_bytes() if done.returncode == 0 else None

    def unbroken_code(self, unit, place, options, more=()):
        if (unit, *more) not in self.unbroken:
            self.unbroken[unit, *more] = self.code(unit, None, place / "unbroken", options, more)
        return self.unbroken[unit, *more]


# ---- Telling

def as_entry(item):
    return "\n".join([f"{item.file}:{item.line}: {item.kind}", f"@ {item.function}", *item.diff])


def kept():
    """The breaks with a reason: of each its file, function and diff, without line numbers."""
    reasons = {}
    for entry in re.split(r"\n\s*\n", KEPT.read_text() if KEPT.exists() else ""):
        lines = [line for line in entry.strip().splitlines() if not line.startswith("#")]
        if not lines:
            continue
        reason = " ".join(line[1:].strip() for line in lines if line.startswith("="))
        diff = tuple(line.strip() for line in lines if line[0] in "+-")
        if not reason:
            sys.exit(f"{KEPT.name}: no reason for\n{entry}")
        reasons[lines[0].split(":")[0], lines[1][1:].strip(), diff] = reason
    there = {(b.file, b.function, b.diff) for file in {key[0] for key in reasons} if (ROOT / file).is_file()
             for b in breaks(ROOT, file)}
    for file, function, diff in reasons.keys() - there:
        print("\n".join(["no such break any more:", file, f"@ {function}", *diff]) + "\n")
    return reasons


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folders", nargs="*", metavar="FOLDER", help=f"of {', '.join(FOLDERS)}; all if none is named")
    parser.add_argument("-n", "--number", type=int, default=60, help="breaks a folder (default: 60)")
    parser.add_argument("--seed", type=int, default=1, help="of the choice (default: 1)")
    parser.add_argument("--at", action="append", metavar="FILE[:LINE]", help="all breaks of a file or line instead")
    parser.add_argument("--list", action="store_true", help="print the chosen breaks and end")
    parser.add_argument("--verbose", action="store_true", help="print every break with its outcome")
    options = parser.parse_args()
    if unknown := [f for f in options.folders if f not in FOLDERS]:
        parser.error(f"no folder of the logic: {', '.join(unknown)}")

    chosen, places = [], {}
    for at in options.at or []:
        file, _, line = at.partition(":")
        if not (ROOT / file).is_file() or not re.fullmatch(rf"src/({'|'.join(FOLDERS)})/\S+", file):
            parser.error(f"no source of the logic: {file}")
        chosen += [item for item in breaks(ROOT, file) if not line or item.line == int(line)]
    for folder in [] if options.at else options.folders or FOLDERS:
        places[folder], items = choose(ROOT, folder, options.number, options.seed)
        chosen += items
    folders = sorted({item.file.split("/")[1] for item in chosen}, key=FOLDERS.index)
    if options.list:
        print("\n\n".join(map(as_entry, chosen)))
        return 0

    programs, reasons = Programs(folders), kept()
    free = queue.SimpleQueue()
    for number in (1, 2):
        free.put(WORK / f"broken-{number}")
    counts = {folder: collections.Counter() for folder in folders}

    def judge(item):
        place = free.get()
        try:
            outcome = programs.outcome(item, place)
        finally:
            free.put(place)
        if outcome == SURVIVED and (item.file, item.function, item.diff) in reasons:
            outcome = REASON
        return item, outcome

    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        for item, outcome in pool.map(judge, chosen):
            counts[item.file.split("/")[1]][outcome] += 1
            if outcome == SURVIVED or options.verbose:
                print(f"{as_entry(item)}\n{outcome}\n", flush=True)

    print("| folder | places | broken | " + " | ".join(OUTCOMES) + " |\n| ---" + " | ---:" * 8 + " |")
    for folder, count in counts.items():
        cells = [folder, places.get(folder, ""), sum(count.values())] + [count[outcome] for outcome in OUTCOMES]
        print("| " + " | ".join(map(str, cells)) + " |")
    survivors = sum(count[SURVIVED] for count in counts.values())
    print(f"survivors: {survivors} without a reason")
    return 1 if survivors else 0


if __name__ == "__main__":
    sys.exit(main())
