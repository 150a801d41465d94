"""Calls of a host on a large sheet without a screen."""

from programs import calls
from rows import work
from table import against, below


def measured(bench, *names):
    return calls(bench.program("bench_calls", bench.database(bench.many)), names, bench.light())


NANO = 1e-9


@work("cells", "TextMatrix down a column and at random")
def cells(bench):
    told = measured(bench, "ReadDownAColumn", "WriteDownALoadedColumn", "WriteDownAWrittenColumn", "ReadAtRandom",
                    "ReadAtRandomFlat")
    yield below("TextMatrix down a column, read", told["ReadDownAColumn"], 40 * NANO)
    yield below("TextMatrix down a column that was loaded, write", told["WriteDownALoadedColumn"], 100 * NANO)
    yield below("TextMatrix down a column that was written before, write", told["WriteDownAWrittenColumn"], 100 * NANO)
    yield against(f"TextMatrix at random in {bench.many:,} rows, read", told["ReadAtRandom"], told["ReadAtRandomFlat"],
                  "flat vector", 2)


@work("columns", "SearchCol, Summation and Minimum down a column")
def columns(bench):
    told = measured(bench, "SearchCol", "Summation", "MinimumOfNumbers", "MinimumOfDates")
    for name, says, most in (("SearchCol", "SearchCol", 40), ("Summation", "Summation", 60),
                             ("MinimumOfNumbers", "Minimum of numbers", 60), ("MinimumOfDates", "Minimum of dates", 250)):
        yield below(f"{says} down {bench.many:,} rows, a row", told[name], most * NANO)


@work("rows", "Add and Delete at the end, in the middle, at the beginning")
def rows(bench):
    told = measured(bench, "AddAtTheEndOfMany", "AddAtTheEndOfFew", "AddInTheMiddle", "DeleteTheFirst",
                    "AddBehindTheFirst")
    yield against(f"Add of a row at the end of {bench.many:,}", told["AddAtTheEndOfMany"], told["AddAtTheEndOfFew"],
                  "at the end of 10", 1.1)
    quarters = {n: told[f"AddInTheMiddle/{n}"] for n in (1, 2, 3)}
    yield against(f"Add in {bench.many:,} rows, a row of the three quarters below", quarters[3], quarters[1],
                  "of one quarter below", 1.1)
    yield below("Delete of the first of 100,000 rows, a row below", told["DeleteTheFirst"], 50 * NANO)
    yield below("Add behind the first of 100,000 rows, a row below", told["AddBehindTheFirst"], 50 * NANO)


@work("bands", "BackColor without a screen")
def bands(bench):
    told = measured(bench, "BackColorOfBothBands")
    yield below(f"BackColor of both bands of {bench.many:,} rows, a row", told["BackColorOfBothBands"], 60 * NANO)
