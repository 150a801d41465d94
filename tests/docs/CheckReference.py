#!/usr/bin/env python3
"""Holds docs/reference.md against the headers: every public member, event and enumeration of the sheet is told there.

    python3 tests/docs/CheckReference.py [ROOT]           names what is missing; then the exit status is 1
    python3 tests/docs/CheckReference.py --examples FILE  writes a program of the examples, each run on a sheet in turn
"""
import pathlib
import re
import sys

SOURCES = ("recordset/odbc/OdbcConnection.h", "recordset/odbc/OdbcRecordset.h", "recordset/qtsql/QtSqlConnection.h",
           "recordset/qtsql/QtSqlRecordset.h")
HEADERS = ("columns/ColDataType.h", "data/ManipulateType.h", "view/ColorType.h")
PROGRAM = """#include "engine/DefaultProperties.h"
#include "engine/EnginePlatform.h"
#include "headless/HeadlessToolkit.h"
#include "shell/TessellonSheet.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

using namespace Tessellon;

TEST(Reference, EachExampleRunsOnTheSheetThatTheOnesBeforeItLeft)
{
    const auto platform =
        std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English());
    SheetPointer sheet = TessellonSheet::Create(platform);
    DefaultProperties unsaved;
    sheet->UserControl_ReadProperties(unsaved);
    sheet->ErrInfo += [](std::int32_t number, const auto&, const auto&, const auto&, const auto&) {
        ADD_FAILURE() << "a failure was told: " << number;
    };
%s    EXPECT_EQ(sheet->Rows(), 4);
}
"""


def public_members(header):
    """The names of the members and events between "public:" and "private:"."""
    public = re.search(r"\npublic:\n(.*?)\nprivate:\n", header, re.DOTALL).group(1)
    public = re.sub(r"//.*", "", public)
    events = re.findall(r"\bEvent<[^;]*>\s+(\w+);", public)
    calls = re.findall(r"^    [\w:\[\]<> &]*?\b(\w+)\(", public, re.MULTILINE)
    return sorted({*events, *calls} - {"TessellonSheet"})


def enumerations(header):
    """The names of the enumerations, of the records that are no descriptor, and of the enumerations' values."""
    for name, values in re.findall(r"\benum (\w+)[^{;]*\{(.*?)\};", header, re.DOTALL):
        yield name
        yield from re.findall(r"\b(\w+) = ", values)
    yield from re.findall(r"^struct (POINTAPI)", header, re.MULTILINE)


def missing(root):
    reference = (root / "docs/reference.md").read_text()
    told = set(re.findall(r"`(\w+)", reference))
    header = (root / "src/shell/TessellonSheet.h").read_text()
    wanted = public_members(header)
    for file in SOURCES:
        wanted += public_members((root / "src" / file).read_text())
    for file in HEADERS:
        wanted += enumerations((root / "src" / file).read_text())
    return wanted, [name for name in wanted if name not in told]


def main(arguments):
    root = pathlib.Path(__file__).parents[2]
    if arguments[:1] == ["--examples"]:
        blocks = re.findall(r"```cpp\n(.*?)```", (root / "docs/reference.md").read_text(), re.DOTALL)
        # The one that ends the sheet is added as a handler and never told.
        lines = ["".join("    " + line + "\n" if line else "\n" for line in block.splitlines()) for block in blocks]
        pathlib.Path(arguments[1]).write_text(PROGRAM % "".join(lines))
        return 0
    wanted, absent = missing(pathlib.Path(arguments[0]) if arguments else root)
    for name in absent:
        print(f"docs/reference.md does not tell of {name}")
    print(f"{len(wanted)} names, {len(absent)} missing")
    return 1 if absent or len(wanted) < 100 else 0


sys.exit(main(sys.argv[1:]))
