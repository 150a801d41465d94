#include "shell/Entry.h"

namespace Tessellon {

namespace {

constexpr std::int16_t flexFillSingle = 0;
constexpr std::int16_t flexFillRepeat = 1;
constexpr std::int16_t alignCenterCenter = 4;
constexpr std::int16_t markerImage = 1;

} // namespace

/// Has no handler frame: a failure goes to the host.
void TessellonSheet::BackColor(std::int16_t index, ColorType color)
{
    Entry(*this).Run([&] {
        if (index != 0 && index != 1)
            return;
        const std::int32_t row = CurrentRow > 0 ? CurrentRow : -1;
        const std::int32_t col = CurrentCol > 0 ? CurrentCol : -1;
        const std::int32_t topRow = MSFlexGrid1->TopRow();
        const std::int32_t leftCol = MSFlexGrid1->LeftCol();
        SectionColors[static_cast<std::size_t>(index)] = static_cast<std::int32_t>(color);
        RefreshSectionColor(index == 0);
        if (topRow > 0 && topRow != MSFlexGrid1->TopRow())
            MSFlexGrid1->TopRow(topRow);
        if (leftCol > 0 && leftCol != MSFlexGrid1->LeftCol())
            MSFlexGrid1->LeftCol(leftCol);
        if (row > 0) {
            MSFlexGrid1->Row(row);
            CurrentRow = row;
        }
        if (col > 0) {
            MSFlexGrid1->Col(col);
            CurrentCol = col;
        }
    });
}

/// Paints the current row, from the first data column to `lastCol`, and ends the drawing.
void TessellonSheet::PaintBand(std::int32_t lastCol, std::int32_t parity)
{
    MSFlexGrid1->Col(MSFlexGrid1->FixedCols());
    MSFlexGrid1->ColSel(lastCol);
    MSFlexGrid1->CellBackColor(SectionColors[static_cast<std::size_t>(parity)]);
    MSFlexGrid1->FillStyle(flexFillSingle);
}

void TessellonSheet::RefreshGridColor(std::int32_t FromRow, std::int32_t KeepCol)
{
    Armed(u"RefreshGridColor", [&] {
        if (ColCount < 2 || RowCount < 2)
            return;
        for (std::int32_t row = FromRow; row < RowCount; ++row) {
            MSFlexGrid1->FillStyle(flexFillRepeat);
            MSFlexGrid1->Row(row);
            PaintBand(ColCount - MSFlexGrid1->FixedCols(), row % 2);
        }
        MSFlexGrid1->Row(FromRow);
        MSFlexGrid1->Col(KeepCol);
        RefreshingColors = RowCount - FromRow - 1 >= VisibleRows;
        SetAllDisable();
    });
}

void TessellonSheet::RefreshSectionColor(bool Even)
{
    Armed(u"RefreshSectionColor", [&] {
        if (ColumnBound < 1 || RowCount < 2)
            return;
        const std::int32_t parity = Even ? 0 : 1;
        for (std::int32_t row = Even ? 2 : 1; row < RowCount; row += 2) {
            MSFlexGrid1->FillStyle(flexFillRepeat);
            MSFlexGrid1->Row(row);
            PaintBand(ColumnBound + 1 - MSFlexGrid1->FixedCols(), parity);
        }
        MSFlexGrid1->ColSel(1);
    });
}

/// Shows the marker in a row, or takes it away. The events of the cursor's walk find the grid not ready and leave the
/// editor alone; GridReady ends true whatever it was.
bool TessellonSheet::RefreshPicture(PictureType Picture, std::int32_t Row)
{
    return ArmedResult(u"RefreshPicture", false, [&](bool& done) {
        if (!ColumnsDeclared || Row < 1 || Row >= RowCount)
            return;
        MSFlexGrid1->Redraw(false);
        GridReady = false;
        const bool request = ShowEditorRequest;
        ShowEditorRequest = false;
        const std::int32_t row = MSFlexGrid1->Row();
        const std::int32_t col = MSFlexGrid1->Col();
        const std::int32_t rowSel = MSFlexGrid1->RowSel();
        const std::int32_t colSel = MSFlexGrid1->ColSel();
        MSFlexGrid1->Row(Row);
        MSFlexGrid1->Col(0);
        MSFlexGrid1->RowSel(Row);
        MSFlexGrid1->ColSel(0);
        MSFlexGrid1->CellPictureAlignment(alignCenterCenter);
        MSFlexGrid1->CellPicture(Tessellon::Picture::None);
        if (Picture != ptNone)
            MSFlexGrid1->CellPicture(platform_->ImgAction(markerImage).GetPicture());
        GridReady = true;
        ShowEditorRequest = request;
        MSFlexGrid1->Row(row);
        MSFlexGrid1->Col(col);
        MSFlexGrid1->RowSel(rowSel);
        MSFlexGrid1->ColSel(colSel);
        MSFlexGrid1->Redraw(true);
        done = true;
    });
}

/// Takes the marker from the row that bears it to the current one; where it cannot be shown, MarkerRow stays.
void TessellonSheet::MoveMarker()
{
    if (MarkerRow != -1 && MarkerRow != CurrentRow)
        RefreshPicture(ptNone, MarkerRow);
    if (MarkerRow != CurrentRow && RefreshPicture(ptArrow, CurrentRow))
        MarkerRow = CurrentRow;
}

} // namespace Tessellon
