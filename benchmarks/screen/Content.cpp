// What it costs in a load that a column's width follows its texts, where none is wider than the column.

#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "screen/Sheet.h"
#include "screen/Window.h"

namespace Bench {

using namespace Tessellon;

void MeasureContent(const std::string& database, bool isFitted)
{
    constexpr float wide = 4500;
    SheetWidget sheet;
    sheet.Cols(2);
    sheet.CreateColumnDataType(1, QStringLiteral("Customer"), fcTextBox, {}, false, fcLeft, 0,
                               isFitted ? faContent : faNil, false);
    sheet.ColWidth(1, wide);
    sheet.BuildGridColumns();
    ShowInFront(sheet);
    const auto connection = SqliteConnection::Open(QString::fromStdString(database).toStdU16String());
    const auto records = connection->Query(u"SELECT customer FROM records ORDER BY id");
    const int width = WidthOf(sheet, 1);
    Tell("seconds", SecondsOf([&] { sheet.DataSource(records, connection); }));
    Demand(WidthOf(sheet, 1) == width, "no text is wider than the column");
    Tell("rows", sheet.Rows() - 1);
}

} // namespace Bench
