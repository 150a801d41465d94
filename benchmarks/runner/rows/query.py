"""Loads from a query of Qt's."""

from programs import alternate, check_same
from rows import work
from table import against, megabytes


@work("query", "loads from a QSqlQuery on SQLite, beside a loop over one")
def query(bench):
    records = bench.database(bench.many)
    program = lambda what, direction: bench.program("bench_query_load", what, direction, records)
    sheet, bare, back = alternate(bench.heavy(), [program("sheet", "forward"), program("bare", "forward"),
                                                  program("sheet", "back")])
    check_same("rows", sheet, bare, back)
    check_same("checksum", sheet, bare, back)
    yield against(f"Load {bench.many:,} × 10 from a QSqlQuery, forward only", sheet["seconds"], bare["seconds"],
                  "QSqlQuery loop")
    yield against("… its peak memory", sheet["peak"], back["peak"], "not forward only", None, megabytes)
