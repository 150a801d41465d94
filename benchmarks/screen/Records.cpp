// A sheet of records in a window: its load, and what its user does then.

#include "support/Records.h"
#include "orders/BareLoop.h"
#include "screen/Jumps.h"
#include "screen/Sheet.h"
#include "screen/Window.h"

#include <QApplication>
#include <QLineEdit>

#include <cmath>

namespace Bench {

using namespace Tessellon;

namespace {

constexpr int pages = 300;
constexpr int advances = 90;
constexpr int strokes = 200;

void ScrollByPages(const SheetWidget& sheet)
{
    QScrollBar& bar = VerticalBarOf(sheet);
    bar.setValue(bar.maximum() / 2);
    Paint();
    const int count = std::min(pages, (bar.maximum() - bar.value()) / bar.pageStep());
    PaintCount painted(CellsOf(sheet));
    const std::vector<double> seconds =
        PaintedSeconds(count, [&](int) { bar.triggerAction(QAbstractSlider::SliderPageStepAdd); });
    Demand(painted.Events >= count, "each page is painted");
    Tell("page", Median(seconds));
    Tell("slowestPage", *std::max_element(seconds.begin(), seconds.end()));
}

/// The user is in a cell in the middle of the records, its editor open.
void EnterTheMiddle(SheetWidget& sheet)
{
    sheet.setFocus();
    sheet.Row(sheet.Rows() / 2);
    sheet.Col(1);
    Paint();
    Press(Qt::Key_F2);
    Paint();
    Demand(qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr, "an editor is open");
}

void Advance(SheetWidget& sheet)
{
    EnterTheMiddle(sheet);
    const int row = sheet.Row();
    const std::vector<double> seconds = PaintedSeconds(advances, [](int) { Press(Qt::Key_Return); });
    Demand(sheet.Row() == row + advances / fieldCount, "each Enter goes on by a cell");
    Demand(qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr, "an editor is open");
    Tell("advance", Median(seconds));
}

void Type(SheetWidget& sheet)
{
    EnterTheMiddle(sheet);
    Press(Qt::Key_End);
    const QString text = sheet.TextMatrix(sheet.Row(), sheet.Col());
    const std::vector<double> seconds = PaintedSeconds(strokes, [](int i) {
        if (i % 2 == 0)
            Press(Qt::Key_X, QStringLiteral("x"));
        else
            Press(Qt::Key_Backspace);
    });
    Demand(sheet.TextMatrix(sheet.Row(), sheet.Col()) == text, "each stroke changes the cell");
    Tell("stroke", Median(seconds));
}

} // namespace

void MeasureRecords(const std::string& database)
{
    SheetWidget sheet;
    DeclareColumns(sheet, true);
    ShowInFront(sheet);
    Tell("before", static_cast<double>(Orders::PeakMemory().value_or(0)));
    Tell("seconds", SecondsOf([&] {
             Load(sheet, database);
             Paint();
         }));
    Tell("peak", static_cast<double>(Orders::PeakMemory().value_or(0)));
    Tell("rows", sheet.Rows() - 1);
    Checksum checksum;
    for (int row = 1; row < sheet.Rows(); ++row)
        for (const int field : plainFields)
            checksum.Add(sheet.TextMatrix(row, field + 1).toStdU16String());
    Tell("checksum", checksum.Value());
    MeasureJumps(VerticalBarOf(sheet), CellsOf(sheet));
    ScrollByPages(sheet);
    Advance(sheet);
    Type(sheet);
}

} // namespace Bench
