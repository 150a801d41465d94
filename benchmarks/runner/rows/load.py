"""Loads of ten mixed fields from SQLite, and the memory that they leave taken."""

import statistics

from programs import alternate, check_same
from rows import work
from table import Line, against, below, megabytes, number, same, seconds

CELLS_A_ROW = 10
GIGABYTE = 1e9


def bytes_beyond_text(sheet, walk):
    """What a cell costs beside its text: the peak of a load without that of a process which does all but hold it."""
    taken = statistics.median(sheet["peak"]) - statistics.median(walk["peak"])
    return (taken - sheet["text"][0]) / (sheet["rows"][0] * CELLS_A_ROW)


@work("load", "loads beside a bare loop, and their memory")
def load(bench):
    records = bench.database(bench.many)
    program = lambda what: bench.program("bench_load", what, records)
    sheet, bare, walk = alternate(bench.light(), [program("sheet"), program("bare"), program("walk")])
    check_same("rows", sheet, bare, walk)
    check_same("checksum", sheet, bare)
    yield against(f"Load {bench.many:,} × 10 from SQLite, no screen", sheet["seconds"], bare["seconds"], "bare loop", 1.2)
    cost = bytes_beyond_text(sheet, walk)
    yield Line("Memory of that sheet beyond the text, a cell", f"{number(cost)} bytes", "", None, "at most 8 bytes", cost <= 8)


@work("sizes", "loads of 10,000 to 10,000,000 rows")
def sizes(bench):
    counts = [10_000, 100_000] if bench.quick else [10_000, 100_000, 1_000_000, 10_000_000]
    times, memories, peaks = {}, {}, {}
    for count in counts:
        records = bench.database(count)
        runs = bench.heavy() if count >= 1_000_000 else 4 * bench.light()
        sheet, walk = alternate(runs, [bench.program("bench_load", what, records) for what in ("sheet", "walk")])
        times[count] = [taken / count for taken in sheet["seconds"]]
        memories[count] = [(peak - statistics.median(walk["peak"])) / count for peak in sheet["peak"]]
        peaks[count] = sheet["peak"]
    for figures, says, show in ((times, "time", seconds), (memories, "memory", lambda b: f"{number(b)} bytes")):
        for count in counts:
            if count != bench.many:
                yield same(f"Load of {count:,} rows, {says} a row", figures[count], figures[bench.many],
                           f"at {bench.many:,}", show)
    if not bench.quick:
        yield below("Load of 10,000,000 rows, peak memory", peaks[10_000_000], 2 * GIGABYTE, megabytes)
