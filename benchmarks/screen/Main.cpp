// bench_sheet records|bands|content|progress DATABASE, bench_sheet columns, bench_sheet width COLUMNS: a sheet
// in a window on the screen.

#include "screen/Sheet.h"

#include <QApplication>
#include <QFont>

#include <cstdio>
#include <exception>

namespace {

int Measure(const std::string& what, const std::string& argument)
{
    if (what == "records")
        Bench::MeasureRecords(argument);
    else if (what == "cells")
        Bench::MeasureCells(argument);
    else if (what == "rows")
        Bench::MeasureRows(argument);
    else if (what == "bands")
        Bench::MeasureBands(argument);
    else if (what == "content")
        Bench::MeasureContent(argument);
    else if (what == "progress")
        Bench::MeasureProgress(argument);
    else if (what == "columns")
        Bench::MeasureColumns();
    else if (what == "width")
        Bench::MeasureWidth(std::stoi(argument));
    else
        return 2;
    return 0;
}

} // namespace

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    try {
        return Measure(count > 1 ? arguments[1] : "", count > 2 ? arguments[2] : "");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 2;
    }
}
