"""Whole programs, from their start on."""

import subprocess
import time

from rows import work
from table import below

MILLI = 1e-3


@work("start", "the example, until its window is painted")
def start(bench):
    bench.environment()
    seconds = [bench.display.seconds_until_still(bench.program("orders")) for _ in range(bench.light())]
    yield below("Start of orders with 2,000 rows, until its window is painted", seconds, 0.5)


@work("replay", "a short script")
def replay(bench):
    command = [str(word) for word in bench.program("tessellon-replay", bench.root / "benchmarks" / "twenty-lines.txt")]

    def played():
        begin = time.monotonic()
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        return time.monotonic() - begin

    yield below("A script of 20 lines in tessellon-replay", [played() for _ in range(4 * bench.light())], 20 * MILLI)
