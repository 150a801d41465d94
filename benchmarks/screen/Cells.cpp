// TextMatrix of the widget, down a column.

#include "screen/Sheet.h"
#include "screen/Window.h"

namespace Bench {

using namespace Tessellon;

void MeasureCells(const std::string& database)
{
    constexpr int walks = 5;
    constexpr int textCol = 2;
    SheetWidget sheet;
    DeclareColumns(sheet, true);
    ShowInFront(sheet);
    Load(sheet, database);
    Paint();
    const int rows = sheet.Rows() - 1;

    std::vector<double> reads;
    std::vector<double> writes;
    const QString texts[] = {QStringLiteral("Ada Brandt"), QStringLiteral("Grace Castillo")};
    qsizetype units = 0;
    for (int walk = 0; walk < walks; ++walk) {
        reads.push_back(SecondsOf([&] {
            for (int row = 1; row <= rows; ++row)
                units += sheet.TextMatrix(row, textCol).size();
        }));
        writes.push_back(SecondsOf([&] {
            for (int row = 1; row <= rows; ++row)
                sheet.TextMatrix(row, textCol, texts[(row + walk) % 2]);
            Paint();
        }));
    }
    Demand(units > rows, "the cells hold texts");
    Demand(sheet.TextMatrix(rows, textCol) == texts[(rows + walks - 1) % 2], "the cells hold what was written");
    Tell("read", Median(reads) / rows);
    Tell("write", Median(writes) / rows);
}

} // namespace Bench
