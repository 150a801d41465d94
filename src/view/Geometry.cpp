#include "failure/Frames.h"

namespace Tessellon {

// Line widths count pixels and are added to twips as they stand: all thresholds here depend on it.

/// The heading counts twice and one more row is dropped: VisibleArea works with this number.
void TessellonSheet::GetVisibleRows()
{
    Armed(u"GetVisibleRows", [&] {
        const double height = static_cast<double>(MSFlexGrid1->Height()) - static_cast<double>(InitialRowHeight) -
                              MSFlexGrid1->RowHeight(0);
        const double rowHeight = 2.0 * MSFlexGrid1->GridLineWidth() + static_cast<double>(DefaultRowHeight);
        if (rowHeight == 0)
            Fail(11);
        VisibleRows = ToLong(height / rowHeight) - 1;
    });
}

bool TessellonSheet::VisibleArea()
{
    return ArmedResult(u"VisibleArea", false, [&](bool& moved) {
        if (RowCount - MSFlexGrid1->TopRow() + 2 < VisibleRows)
            return;
        const std::int32_t newTop = RowCount - VisibleRows + 1;
        if (newTop <= 0 || newTop >= RowCount)
            return;
        if (PendingTopRow == 0 || PendingTopRow > newTop)
            PendingTopRow = MSFlexGrid1->TopRow() - (VisibleRows - RowCount > 2 ? 2 : 1);
        MSFlexGrid1->TopRow(newTop);
        MSFlexGrid1->Refresh();
        moved = true;
    });
}

bool TessellonSheet::IsVerticalScroll(std::int32_t FromRow, std::int32_t ToRow)
{
    return ArmedResult(u"IsVerticalScroll", false, [&](bool& result) {
        if (RowCount < 2 || ColCount < 2 || FromRow < 1 || FromRow >= RowCount || ToRow < 1 || ToRow >= RowCount ||
            FromRow > ToRow)
            return;
        const std::int16_t line = MSFlexGrid1->GridLineWidth();
        auto height =
            static_cast<float>(MSFlexGrid1->RowHeight(0) + 4 * line + 2.0 * static_cast<double>(DefaultRowHeight));
        for (std::int32_t row = FromRow; row <= ToRow; ++row)
            height = static_cast<float>(static_cast<double>(height) + MSFlexGrid1->RowHeight(row) + line);
        result = height >= ControlHeight;
    });
}

bool TessellonSheet::IsHorizontalScroll(std::int32_t FromCol, std::int32_t ToCol)
{
    return ArmedResult(u"IsHorizontalScroll", false, [&](bool& result) {
        if (RowCount < 2 || ColCount < 2 || FromCol < 1 || FromCol >= ColCount || ToCol < 1 || ToCol >= ColCount ||
            FromCol > ToCol)
            return;
        const std::int16_t line = MSFlexGrid1->GridLineWidth();
        auto width = static_cast<float>(MSFlexGrid1->ColWidth(0) + 2 * line);
        for (std::int32_t col = FromCol; col <= ToCol; ++col)
            width = static_cast<float>(static_cast<double>(width) + MSFlexGrid1->ColWidth(col) + line);
        constexpr double marginShare = 8.4;
        width = static_cast<float>(static_cast<double>(width) + MSFlexGrid1->ColWidth(ToCol) / marginShare + line);
        result = width >= ControlWidth;
    });
}

bool TessellonSheet::IsBothScroll()
{
    return ArmedResult(u"IsBothScroll", false, [&](bool& result) {
        const std::int16_t line = MSFlexGrid1->GridLineWidth();
        const float rowHeight = static_cast<float>(line) + DefaultRowHeight;
        const auto height =
            static_cast<float>(static_cast<double>(rowHeight) * RowCount + MSFlexGrid1->RowHeight(0) + 2 * line);
        auto width = static_cast<float>(2 * line);
        for (std::int32_t col = 0; col < ColCount; ++col)
            width = static_cast<float>(static_cast<double>(width) + MSFlexGrid1->ColWidth(col) + line);
        result = height >= ControlHeight && width >= ControlWidth;
    });
}

} // namespace Tessellon
