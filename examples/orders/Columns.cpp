#include "orders/Columns.h"

#include "qt/SheetWidget.h"

namespace Orders {

using namespace Tessellon;

const Column* Columns::At(int col) const
{
    return col >= 1 && col <= static_cast<int>(List.size()) ? &List[static_cast<std::size_t>(col - 1)] : nullptr;
}

void DeclareColumns(SheetWidget& sheet, const Columns& columns)
{
    constexpr int twipsAPixel = 15;
    sheet.DateFormat(columns.DateFormat);
    sheet.Cols(static_cast<int>(columns.List.size()) + 1);
    int col = 0;
    for (const Column& column : columns.List) {
        ++col;
        const bool isMask = column.Kind == fcMaskedEditBox && !column.Setting.isEmpty();
        sheet.CreateColumnDataType(col, column.Name, column.Kind, column.Setting, column.IsHidden, column.Alignment,
                                   column.Length, column.Width, isMask);
        if (column.FirstWidth > 0)
            sheet.ColWidth(col, static_cast<float>(column.FirstWidth * twipsAPixel));
    }
    constexpr int rowPixels = 21;
    constexpr int markerPixels = 22;
    sheet.ColWidth(0, markerPixels * twipsAPixel);
    sheet.RowHeight(rowPixels * twipsAPixel, true, true);
    sheet.BuildGridColumns();
}

} // namespace Orders
