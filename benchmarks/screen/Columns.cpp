// Sheets with many columns: their build, the way from cell to cell there, and one frame.

#include "screen/Jumps.h"
#include "screen/Sheet.h"
#include "screen/Window.h"

#include <QApplication>

namespace Bench {

using namespace Tessellon;

namespace {

constexpr float cellWidth = 1425;
constexpr int rows = 60;

struct Kind {
    FieldControlType Type;
    const char* Setting;
    bool UsesMask;
};

constexpr Kind kinds[] = {
    {fcMaskedEditBox, "##/##/####", true},
    {fcComboBox, "Open|Packed|Shipped|Returned", false},
    {fcListBox, "Open|Packed|Shipped|Returned", false},
    {fcCommandButton, "Copy", false},
};

void Declare(SheetWidget& sheet, int count)
{
    sheet.Cols(count + 1);
    for (int col = 1; col <= count; ++col) {
        const Kind& kind = kinds[static_cast<std::size_t>(col) % std::size(kinds)];
        sheet.CreateColumnDataType(col, QStringLiteral("Column %1").arg(col), kind.Type,
                                   QString::fromLatin1(kind.Setting), false, fcLeft, 0, faNil, kind.UsesMask);
        sheet.ColWidth(col, cellWidth);
    }
}

} // namespace

void MeasureColumns()
{
    constexpr int count = 200;
    constexpr int builds = 7;
    SheetWidget sheet;
    ShowInFront(sheet);
    sheet.AllowAddNew(true);
    std::vector<double> seconds;
    for (int i = 0; i < builds; ++i) {
        sheet.Clear();
        Declare(sheet, count);
        Paint();
        seconds.push_back(SecondsOf([&] { sheet.BuildGridColumns(); }));
        Paint();
    }
    Tell("build", Median(seconds));

    QObject::connect(&sheet, &SheetWidget::UseAdvanceToNextCell, [](bool& use) { use = true; });
    sheet.Add(0, rows);
    sheet.setFocus();
    Paint();
    Press(Qt::Key_F2);
    Paint();
    QWidget* editor = QApplication::focusWidget();
    int changes = 0;
    // Ahead of the last row, so that the way goes on and on.
    const std::vector<double> advances = PaintedSeconds(3 * count, [&](int) {
        Press(Qt::Key_Return);
        changes += QApplication::focusWidget() != editor ? 1 : 0;
        editor = QApplication::focusWidget();
    });
    Demand(changes >= 3 * count - 3, "each Enter opens another editor");
    // The first time round each editor is made; behind that they are there.
    Tell("firstAdvance", Median({advances.begin(), advances.begin() + count}));
    Tell("advance", Median({advances.begin() + count, advances.end()}));
    Tell("slowestAdvance", *std::max_element(advances.begin(), advances.end()));
}

/// All columns but those in view are far to the right.
void MeasureWidth(int columns)
{
    constexpr int manyRows = 3000;
    SheetWidget sheet;
    sheet.setFont(QApplication::font());
    sheet.Cols(columns + 1);
    for (int col = 1; col <= columns; ++col) {
        sheet.CreateColumnDataType(col, QStringLiteral("Column %1").arg(col), fcTextBox, {}, false, fcLeft, 0, faNil,
                                   false);
        sheet.ColWidth(col, cellWidth);
    }
    sheet.BuildGridColumns();
    sheet.AllowAddNew(true);
    sheet.Add(0, manyRows);
    for (int row = 1; row <= manyRows; ++row)
        for (int col = 1; col <= std::min(columns, 20); ++col)
            sheet.TextMatrix(row, col, QStringLiteral("Text %1 of %2").arg(row).arg(col));
    ShowInFront(sheet);
    MeasureJumps(VerticalBarOf(sheet), CellsOf(sheet));
}

} // namespace Bench
