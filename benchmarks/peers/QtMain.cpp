// bench_qt_peer widget|standard|sql DATABASE: a table of Qt's in a window on the screen.

#include "peers/QtTable.h"

#include <QApplication>
#include <QFont>

#include <cstdio>
#include <exception>

namespace {

int Measure(const std::string& what, const std::string& database)
{
    if (what == "widget")
        Bench::MeasureTableWidget(database);
    else if (what == "standard")
        Bench::MeasureStandardModel(database);
    else if (what == "sql")
        Bench::MeasureSqlModel(database);
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
        return Measure(count == 3 ? arguments[1] : "", count == 3 ? arguments[2] : "");
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return 2;
    }
}
