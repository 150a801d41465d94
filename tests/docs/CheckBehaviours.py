#!/usr/bin/env python3
"""Holds docs/behaviour.md against the tests: every row names tests that are there, and no test shows two behaviours.

    python3 tests/docs/CheckBehaviours.py [ROOT]

A row is | sentence | `folder: Suite.TestName` |, with a comma between tests where there are several, each in its own
backticks; the folder is one below tests/. A | inside the sentence is written \\|. Each row that fails is named with its
line, and the exit status is 1.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2])
TEST = re.compile(r"^(?:TEST|TEST_F|TEST_P|RC_GTEST_PROP|RC_GTEST_FIXTURE_PROP)\(\s*(\w+),\s*(\w+)", re.MULTILINE)
NAMED = re.compile(r"`([\w/]+): (\w+\.\w+)`")


def tests_of(folder):
    """The tests of a folder and those below it, each as Suite.TestName."""
    files = (ROOT / "tests" / folder).rglob("*.cpp")
    return {".".join(test) for file in files for test in TEST.findall(file.read_text())}


def rows():
    """The number of its line and the cells of each row that is neither a table's heading nor the line below that."""
    for number, line in enumerate((ROOT / "docs" / "behaviour.md").read_text().splitlines(), 1):
        if line.startswith("|") and line != "| Behaviour | Test |" and not re.fullmatch(r"[|\s-]+", line):
            yield number, [cell.strip() for cell in re.split(r"(?<!\\)\|", line.strip()[1:-1])]


def main():
    known, shown_at, told_at, failures = {}, {}, {}, []
    for number, cells in rows():
        if len(cells) != 2 or not cells[0] or not all(NAMED.fullmatch(name.strip()) for name in cells[1].split(",")):
            failures.append(f"{number}: not | sentence | `folder: Suite.TestName` |: {' | '.join(cells)}")
            continue
        if told_at.setdefault(cells[0], number) != number:
            failures.append(f"{number}: told already in line {told_at[cells[0]]}: {cells[0]}")
        for folder, test in NAMED.findall(cells[1]):
            if test not in known.setdefault(folder, tests_of(folder)):
                failures.append(f"{number}: no such test: {folder}: {test}")
            elif shown_at.setdefault((folder, test), number) != number:
                failures.append(f"{number}: shows line {shown_at[folder, test]} already: {folder}: {test}")
    for failure in failures:
        print(f"docs/behaviour.md:{failure}")
    print(f"{len(told_at)} behaviours, {len(shown_at)} tests, {len(failures)} failures")
    return 1 if failures else 0


sys.exit(main())
