#include "screen/Sheet.h"

#include "qt/GridView.h"
#include "qt/SheetFrame.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "screen/Window.h"
#include "support/Records.h"

#include <QApplication>

namespace Bench {

using namespace Tessellon;

namespace {

constexpr int twipsAPixel = 15;

} // namespace

void DeclareColumns(SheetWidget& sheet, bool asTexts)
{
    constexpr float markerPixels = 22;
    sheet.setFont(QApplication::font());
    sheet.DateFormat(QStringLiteral("yyyy-MM-dd"));
    sheet.Cols(fieldCount + 1);
    sheet.ColWidth(0, markerPixels * twipsAPixel);
    int col = 0;
    for (const Column& column : columns) {
        ++col;
        sheet.CreateColumnDataType(col, QString::fromUtf16(column.Name), asTexts ? fcTextBox : column.Kind,
                                   QString::fromUtf16(column.Setting), false, column.Alignment, 0, faNil, false);
        sheet.ColWidth(col, float{columnPixels} * twipsAPixel);
    }
    sheet.RowHeight(float{rowPixels} * twipsAPixel, false, true);
    sheet.BuildGridColumns();
}

void Load(SheetWidget& sheet, const std::string& database, const QString& limit)
{
    const auto connection = SqliteConnection::Open(QString::fromStdString(database).toStdU16String());
    sheet.DataSource(connection->Query((QString::fromLatin1(query) + limit).toStdU16String()), connection);
}

int WidthOf(const SheetWidget& sheet, int col)
{
    return sheet.findChild<SheetFrame*>()->Platform()->TheGrid().ColWidth(col);
}

QWidget& CellsOf(const SheetWidget& sheet)
{
    return sheet.findChild<SheetFrame*>()->View();
}

QScrollBar& VerticalBarOf(const SheetWidget& sheet)
{
    return sheet.findChild<SheetFrame*>()->Bars().Vertical();
}

} // namespace Bench
