// What it costs that a load tells how far it has come: loads with that and without it in turn.

#include "qt/SheetFrame.h"
#include "qt/SheetWidgetParts.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "screen/Sheet.h"
#include "screen/Window.h"
#include "support/Records.h"

namespace Tessellon {

struct SheetWidgetProbe {
    static SheetWidget::Parts& PartsOf(SheetWidget& sheet) { return *sheet.parts_; }
};

} // namespace Tessellon

namespace Bench {

using namespace Tessellon;

namespace {

/// As SheetWidget does it, but silently.
void LoadSilently(SheetWidget& sheet, const std::string& database)
{
    auto& parts = SheetWidgetProbe::PartsOf(sheet);
    const SheetFrame::Activity activity(*parts.Frame);
    const auto connection = SqliteConnection::Open(QString::fromStdString(database).toStdU16String());
    parts.Sheet->DataSource(connection->Query(QString::fromLatin1(query).toStdU16String()), connection);
}

} // namespace

void MeasureProgress(const std::string& database)
{
    constexpr int pairs = 5;
    SheetWidget sheet;
    DeclareColumns(sheet, true);
    ShowInFront(sheet);
    int told = 0;
    QObject::connect(&sheet, &SheetWidget::loadProgress, [&] { ++told; });
    // The first one makes the memory that the others use again.
    Load(sheet, database);
    TellInTurn(
        pairs, [&] { Load(sheet, database); }, [&] { LoadSilently(sheet, database); });
    Tell("told", told);
    Tell("rows", sheet.Rows() - 1);
}

} // namespace Bench
