// BackColor of a large sheet on the screen.

#include "screen/Sheet.h"
#include "screen/Window.h"

namespace Bench {

using namespace Tessellon;

void MeasureBands(const std::string& database)
{
    constexpr ColorType evens[] = {White, Yellow, Cyan, White};
    SheetWidget sheet;
    DeclareColumns(sheet, true);
    ShowInFront(sheet);
    Load(sheet, database);
    Paint();
    const QWidget& cells = CellsOf(sheet);
    const double area = double{1} * cells.width() * cells.height();
    PaintCount painted(CellsOf(sheet));
    std::vector<double> seconds;
    std::vector<double> views;
    for (const ColorType even : evens) {
        painted.Pixels = 0;
        seconds.push_back(SecondsOf([&] {
            sheet.BackColor(0, even);
            sheet.BackColor(1, even == White ? Cyan : White);
            Paint();
        }));
        views.push_back(painted.Pixels / area);
    }
    Tell("seconds", Median(seconds));
    // Each of the two calls has the view to paint once, and no more.
    Tell("views", *std::max_element(views.begin(), views.end()));
    Tell("rows", sheet.Rows() - 1);
}

} // namespace Bench
