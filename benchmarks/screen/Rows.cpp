// Add and Delete in a window, with the painting that they lead to.

#include "screen/Sheet.h"
#include "screen/Window.h"

namespace Bench {

using namespace Tessellon;

namespace {

constexpr int times = 15;

/// What is measured and what is not, so that the sheet has the same rows again behind it.
template <class Measured, class Undone>
double Seconds(const Measured& measured, const Undone& undone)
{
    std::vector<double> seconds;
    for (int i = 0; i < times; ++i) {
        seconds.push_back(SecondsOf([&] {
            measured();
            Paint();
        }));
        undone();
        Paint();
    }
    return Median(seconds);
}

double AddAtTheEnd(SheetWidget& sheet)
{
    const int last = sheet.Rows() - 1;
    sheet.Row(last);
    Paint();
    return Seconds([&] { sheet.Add(last); }, [&] { sheet.Delete(last + 1); });
}

void Show(SheetWidget& sheet, int height)
{
    DeclareColumns(sheet, true);
    sheet.AllowAddNew(true);
    ShowInFront(sheet, windowWidth, height);
}

} // namespace

/// The end is measured in windows that have no more rows in view than the smaller sheet has, so that both paint as
/// much.
void MeasureRows(const std::string& database)
{
    constexpr int lowHeight = 8 * rowPixels;
    {
        SheetWidget sheet;
        Show(sheet, windowHeight);
        Load(sheet, database, QStringLiteral(" LIMIT 100000"));
        Paint();
        const double rows = sheet.Rows() - 1;
        Tell("deleteFirst", Seconds([&] { sheet.Delete(1); }, [&] { sheet.Add(0); }) / rows);
        Tell("addFirst", Seconds([&] { sheet.Add(1); }, [&] { sheet.Delete(2); }) / rows);
    }
    {
        SheetWidget sheet;
        Show(sheet, lowHeight);
        Load(sheet, database);
        Tell("addAtTheEndOfMany", AddAtTheEnd(sheet));
    }
    SheetWidget sheet;
    Show(sheet, lowHeight);
    Load(sheet, database, QStringLiteral(" LIMIT 10"));
    Tell("addAtTheEndOfFew", AddAtTheEnd(sheet));
}

} // namespace Bench
