"""The lines of the table: what was measured, against whom, and whether the bar holds."""

import dataclasses
import statistics

HEADINGS = ("Work", "Ours", "Peer", "Ratio", "Bar", "")
WIDTHS = (64, 12, 30, 7, 24, 11)


@dataclasses.dataclass
class Line:
    work: str
    ours: str = ""
    peer: str = ""
    ratio: float | None = None
    bar: str = ""
    holds: bool | None = None  # None where there is no bar: the line is for comparison alone.

    def cells(self):
        verdict = {True: "holds", False: "falls short", None: ""}[self.holds]
        return (self.work, self.ours, self.peer, "" if self.ratio is None else number(self.ratio), self.bar, verdict)


def number(value):
    """Three digits that count, without an exponent."""
    if value == 0:
        return "0"
    magnitude = abs(value)
    for least, digits in ((100, 0), (10, 1), (1, 2), (0.1, 3)):
        if magnitude >= least:
            return f"{value:,.{digits}f}"
    return f"{value:.3g}" if magnitude >= 0.0001 else f"{value:.1e}"


def seconds(value):
    for least, unit in ((1, "s"), (1e-3, "ms"), (1e-6, "µs")):
        if abs(value) >= least:
            return f"{number(value / least)} {unit}"
    return f"{number(value * 1e9)} ns"


def megabytes(value):
    return f"{number(value / 1e6)} MB"


def against(work, ours, peer, name, most=None, show=seconds):
    """Medians of runs beside those of a peer; the ratio decides."""
    mine, theirs = statistics.median(ours), statistics.median(peer)
    ratio = mine / theirs
    return Line(work, show(mine), f"{show(theirs)} {name}", ratio, "" if most is None else f"ratio at most {number(most)}",
                None if most is None else ratio <= most)


def below(work, ours, most, show=seconds, peer=""):
    """The median of runs beside a bar that is no ratio."""
    mine = statistics.median(ours)
    return Line(work, show(mine), peer, None, f"at most {show(most)}", mine <= most)


def same(work, ours, other, name, show=seconds, within=0.1):
    """Medians that should be one, whichever is larger."""
    line = against(work, ours, other, name, show=show)
    line.bar = f"the same within {within:.0%}"
    line.holds = 1 / (1 + within) <= line.ratio <= 1 + within
    return line


def text_line(cells):
    return " ".join(cell.ljust(width) for cell, width in zip(cells, WIDTHS)).rstrip()


def heading(markdown):
    if markdown:
        return f"| {' | '.join(HEADINGS)} |\n|{' --- |' * len(HEADINGS)}"
    return text_line(HEADINGS) + "\n" + "-" * (sum(WIDTHS) + len(WIDTHS) - 1)


def shown(line, markdown):
    return f"| {' | '.join(line.cells())} |" if markdown else text_line(line.cells())
