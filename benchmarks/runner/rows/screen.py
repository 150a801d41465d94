"""What is painted: on an X server with a window manager, in a window of 1000 × 700 pixels."""

import statistics

from programs import alternate, check_same
from rows import work
from table import Line, against, below, megabytes, number

MILLI = 1e-3
NANO = 1e-9

PEERS = {"QTableWidget": ("bench_qt_peer", "widget"), "QStandardItemModel": ("bench_qt_peer", "standard"),
         "QSqlTableModel": ("bench_qt_peer", "sql"), "wxGrid": ("bench_wx_peer",)}
FEW = 1000


def records(bench):
    """The sheet in its window and each peer in its own, all with the same records; run once for all rows that ask.
    Behind them the sheet with few records."""
    if bench.in_windows is None:
        names = [name for name in PEERS if name != "wxGrid" or not bench.quick]
        path = bench.database(bench.many)
        commands = [bench.program("bench_sheet", "records", path), bench.program("bench_load", "bare", path)]
        commands += [bench.program(*PEERS[name], path) for name in names]
        commands.append(bench.program("bench_sheet", "records", bench.database(FEW)))
        sheet, bare, *peers, small = alternate(bench.heavy(), commands, bench.environment())
        check_same("rows", sheet, bare, *peers)
        check_same("checksum", sheet, bare, *peers)
        bench.in_windows = sheet, bare, dict(zip(names, peers)), small
    return bench.in_windows


def beside(bench, work_says, figure, bars):
    """The sheet's figure beside that of each peer that was measured; those without a bar are for comparison."""
    sheet, _, peers, _ = records(bench)
    for name, most in bars.items():
        if name in peers:
            yield against(work_says, sheet[figure], peers[name][figure], name, most)


@work("window", "loads into a shown window, beside tables of other toolkits")
def window(bench):
    sheet, bare, peers, _ = records(bench)
    yield against(f"Load {bench.many:,} × 10 into a window", sheet["seconds"], bare["seconds"], "bare loop", 1.2)
    for name, peer in peers.items():
        yield against("… beside a peer filled in bulk", sheet["seconds"], peer["seconds"], name)
    taken = lambda told: [peak - before for peak, before in zip(told["peak"], told["before"])]
    for name, peer in peers.items():
        yield against("… memory that it takes", taken(sheet), taken(peer), name, show=megabytes)


@work("advance", "from cell to cell by Enter")
def advance(bench):
    yield from beside(bench, f"Cell advance by Enter, editor up and painted, {bench.many:,} rows", "advance",
                      {"QTableWidget": 0.1, "QStandardItemModel": None, "wxGrid": None})


@work("frames", "one frame after a jump, and of scrolling by pages")
def frames(bench):
    for figure, says in (("jump", "to rows never seen"), ("seenJump", "back to rows seen")):
        yield from beside(bench, f"One frame of 1000 × 700 after a jump {says}", figure,
                          {"QStandardItemModel": 0.25, "QSqlTableModel": 0.25, "wxGrid": None})
    sheet, _, _, small = records(bench)
    yield against(f"One frame after a jump, {bench.many:,} rows", sheet["jump"], small["jump"], f"at {FEW:,} rows", 1.1)
    yield below("Scrolling by pages, the slowest frame of 300", sheet["slowestPage"], 4 * MILLI)
    yield below("Scrolling by pages, a frame in the middle of them", sheet["page"], 4 * MILLI)


@work("keys", "a keystroke in a text cell")
def keys(bench):
    sheet, *_ = records(bench)
    yield below(f"Keystroke in a text cell to its painting, {bench.many:,} rows", sheet["stroke"], MILLI)


@work("wide", "frames of sheets with many columns")
def wide(bench):
    many, few = alternate(bench.light(), [bench.program("bench_sheet", "width", n) for n in (1000, 10)],
                          bench.environment())
    yield against("One frame after a jump, 1,000 columns", many["jump"], few["jump"], "with 10 columns", 1.1)


@work("build", "200 columns with editors of their own")
def build(bench):
    (told,) = alternate(bench.light(), [bench.program("bench_sheet", "columns")], bench.environment())
    yield below("BuildGridColumns with 200 mask, combo, list and button columns", told["build"], 2 * MILLI)
    yield below("Cell advance there, each editor made", told["firstAdvance"], 2 * MILLI)
    yield below("Cell advance there, editors made before", told["advance"], 2 * MILLI)


@work("cells-shown", "TextMatrix of the widget")
def cells_shown(bench):
    (told,) = alternate(bench.heavy(), [bench.program("bench_sheet", "cells", bench.database(bench.many))],
                        bench.environment())
    yield below("TextMatrix of the widget down a column, read", told["read"], 40 * NANO)
    yield below("TextMatrix of the widget down a column, write", told["write"], 100 * NANO)


@work("rows-shown", "Add and Delete in a shown window")
def rows_shown(bench):
    (told,) = alternate(bench.heavy(), [bench.program("bench_sheet", "rows", bench.database(bench.many))],
                        bench.environment())
    yield against(f"Add of a row at the end of {bench.many:,} in a window", told["addAtTheEndOfMany"],
                  told["addAtTheEndOfFew"], "at the end of 10", 1.1)
    yield below("Delete of the first of 100,000 rows in a window, a row below", told["deleteFirst"], 50 * NANO)
    yield below("Add behind the first of 100,000 rows in a window, a row below", told["addFirst"], 50 * NANO)


@work("bands-shown", "BackColor of a shown window")
def colours(bench):
    (told,) = alternate(bench.heavy(), [bench.program("bench_sheet", "bands", bench.database(bench.many))],
                        bench.environment())
    each = [seconds / rows for seconds, rows in zip(told["seconds"], told["rows"])]
    yield below(f"BackColor of both bands of {bench.many:,} rows in a window, a row", each, 60 * NANO)
    views = statistics.median(told["views"])
    yield Line("… painted by its two calls, of what is in view", f"{number(views)} times", "", None, "at most 2 times",
               views <= 2)


@work("content", "a column that follows its texts, in a load")
def content(bench):
    (told,) = alternate(bench.heavy(), [bench.program("bench_sheet", "content", bench.database(bench.many))],
                        bench.environment())
    more = [(fitted - plain) / rows for fitted, plain, rows in zip(told["with"], told["without"], told["rows"])]
    yield below("A faContent column in the load, a row more", more, 100 * NANO)


@work("progress", "what it costs that a load tells how far it is")
def progress(bench):
    (told,) = alternate(bench.heavy(), [bench.program("bench_sheet", "progress", bench.database(bench.many))],
                        bench.environment())
    yield against("Load that tells how far it has come", told["with"], told["without"], "one that does not", 1.01)
