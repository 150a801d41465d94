"""python3 benchmarks/runner [OPTION...] [NAME...]: measures, and prints the table. ./bench builds first and says more."""

import argparse
import os
import pathlib
import signal
import sys

import machine
import table
from bench import Bench
from programs import CannotMeasure
from rows import WORKS, load, query, calls, screen, starts  # noqa: F401  Each theme registers its rows.

QUICK = """The quick one: 100,000 rows stand for 1,000,000 and one or two runs for three or five, so the figures are rough and
decide nothing. Left out: loads of more than 100,000 rows, and wxGrid."""


def main():
    parser = argparse.ArgumentParser(prog="./bench")
    parser.add_argument("--quick", action="store_true")
    parser.add_argument("--processor", action="store_true")
    parser.add_argument("--markdown", action="store_true")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("names", nargs="*")
    wanted = parser.parse_args()
    if wanted.list:
        for name, (says, _) in WORKS.items():
            print(f"{name:12} {says}")
        return 0
    unknown = [name for name in wanted.names if name not in WORKS]
    if unknown:
        print(f"./bench: there is no row {unknown[0]}; --list names them all", file=sys.stderr)
        return 2
    return measure(wanted)


def measure(wanted):
    # Ended from outside it still takes its display and its databases away.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(2))
    root = pathlib.Path(__file__).resolve().parents[2]
    bench = Bench(root, wanted.quick)
    fell_short = failed = False
    try:
        print(machine.described(root / "build"))
        if wanted.quick:
            print(QUICK)
        if wanted.processor:
            os.environ["BENCH_PROCESSOR"] = "1"
            print("Times are the processor's, but for whole programs: what else runs on the machine counts little.")
        print("\n" + table.heading(wanted.markdown), flush=True)
        for name, (_, lines) in WORKS.items():
            if wanted.names and name not in wanted.names:
                continue
            try:
                for line in lines(bench):
                    print(table.shown(line, wanted.markdown), flush=True)
                    fell_short |= line.holds is False
            except CannotMeasure as reason:
                print(f"./bench: {name} could not be measured: {reason}", file=sys.stderr)
                failed = True
    except KeyboardInterrupt:
        return 130
    finally:
        bench.close()
    if failed:
        return 2
    return 1 if fell_short and not wanted.quick else 0


sys.exit(main())
