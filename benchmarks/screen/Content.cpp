// What it costs in a load that a column's width follows its texts, where none is wider than the column.

#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "screen/Sheet.h"
#include "screen/Window.h"

namespace Bench {

using namespace Tessellon;

namespace {

void Declare(SheetWidget& sheet, FieldAutoAdjustType adjust)
{
    constexpr float wide = 4500;
    sheet.Cols(2);
    sheet.CreateColumnDataType(1, QStringLiteral("Customer"), fcTextBox, {}, false, fcLeft, 0, adjust, false);
    sheet.ColWidth(1, wide);
    sheet.BuildGridColumns();
    ShowInFront(sheet);
}

void LoadCustomers(SheetWidget& sheet, const std::string& database)
{
    const auto connection = SqliteConnection::Open(QString::fromStdString(database).toStdU16String());
    sheet.DataSource(connection->Query(u"SELECT customer FROM records ORDER BY id"), connection);
}

} // namespace

void MeasureContent(const std::string& database)
{
    constexpr int pairs = 5;
    SheetWidget fitted;
    Declare(fitted, faContent);
    SheetWidget plain;
    Declare(plain, faNil);
    const int width = WidthOf(fitted, 1);
    LoadCustomers(plain, database);
    LoadCustomers(fitted, database);
    TellInTurn(
        pairs, [&] { LoadCustomers(fitted, database); }, [&] { LoadCustomers(plain, database); });
    Demand(WidthOf(fitted, 1) == width, "no text is wider than the column");
    Tell("rows", fitted.Rows() - 1);
}

} // namespace Bench
