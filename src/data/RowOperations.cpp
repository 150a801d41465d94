#include "shell/Entry.h"

namespace Tessellon {

std::int32_t TessellonSheet::SearchCol(std::int32_t col, std::u16string_view search)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"SearchCol", std::int32_t{0}, [&](std::int32_t& result) {
            const std::u16string wanted(Trim(search));
            if (wanted.empty() || col < 1 || col >= ColCount || RowCount < 2)
                return;
            std::int32_t row = 1;
            while (row < RowCount && Trim(MSFlexGrid1->TextMatrix(row, col)) != wanted)
                ++row;
            if (row >= RowCount)
                return;
            if (MarkerRow != -1 && MarkerRow != row)
                RefreshPicture(ptNone, MarkerRow);
            MSFlexGrid1->Row(row);
            if (MarkerRow != row && RefreshPicture(ptArrow, row))
                MarkerRow = row;
            ShowEditorRequest = true;
            result = row;
        });
    });
}

void TessellonSheet::Add(std::int32_t row, std::int32_t count)
{
    Entry(*this).Run([&] {
        Armed(u"Add", [&] {
            SetAllDisable();
            if (row < 0 || count < 1 || ColumnBound < 1 || !AllowAddNewFlag)
                return;
            const std::int32_t first = row < MSFlexGrid1->Rows() ? row + 1 : RowCount;
            GridReady = false;
            for (std::int32_t i = 0; i < count; ++i) {
                MSFlexGrid1->AddItem(u"", first + i);
                ++RowCount;
                MSFlexGrid1->RowHeight(first + i, ToLong(DefaultRowHeight));
            }
            RefreshGridColor(first, 1);
            RefreshPicture(ptNone, MarkerRow);
            if (RefreshPicture(ptArrow, first))
                MarkerRow = first;
            MSFlexGrid1->Redraw(true);
            MSFlexGrid1->Refresh();
            if (ColCount > 1)
                GoToNewRow(first, count);
            GridReady = true;
            CurrentRow = first;
            AddingRows = true;
            MSFlexGrid1_EnterCell();
            GridRowClickPending = true;
            AddingRows = false;
        });
    });
}

/// Anything but one row appended at the end moves to the top of the view.
void TessellonSheet::GoToNewRow(std::int32_t first, std::int32_t count)
{
    MSFlexGrid1->LeftCol(FirstEditableCol);
    MSFlexGrid1->Col(FirstEditableCol);
    if (first != RowCount - 1 || count != 1) {
        MSFlexGrid1->TopRow(first);
        MSFlexGrid1->Row(first);
        MSFlexGrid1->Col(FirstEditableCol);
        MSFlexGrid1->ColSel(FirstEditableCol);
        MSFlexGrid1->RowSel(first);
        MSFlexGrid1->Row(first);
    } else if (VisibleArea()) {
        ShowEditorRequest = true;
    }
}

void TessellonSheet::Delete(std::int32_t row)
{
    Entry(*this).Run([&] {
        Armed(u"Delete", [&] {
            SetAllDisable();
            if (row > RowCount - 1 || RowCount < 2 || row <= MSFlexGrid1->FixedRows() - 1)
                return;
            if (row == RowCount - 1 && row <= 1) {
                // The grid cannot remove its last data row.
                MSFlexGrid1->Rows(1);
                RowCount = 1;
            } else if (row >= 1) {
                MSFlexGrid1->RemoveItem(row);
                CurrentRow = MSFlexGrid1->Row();
                --RowCount;
                RefreshGridColor(CurrentRow, 1);
                if (RefreshPicture(ptArrow, CurrentRow))
                    MarkerRow = CurrentRow;
                if (CurrentRow == RowCount - 1)
                    VisibleArea();
            }
            ShowEditorRequest = false;
            HideEditorRequest = true;
            SetAllDisable();
            if (ColCount > 1)
                MSFlexGrid1->LeftCol(FirstEditableCol);
        });
    });
}

void TessellonSheet::Clear()
{
    Entry(*this).Run([&] {
        Armed(u"Clear", [&] {
            SetAllDisable();
            ResizeGrid();
            HeaderRowHeight = InitialRowHeight;
            DefaultRowHeight = InitialRowHeight;
            DefaultColWidth = InitialColWidth;
            for (std::int32_t row = 0; row < MSFlexGrid1->Rows(); ++row) {
                for (std::int32_t col = 0; col < MSFlexGrid1->Cols(); ++col) {
                    MSFlexGrid1->TextMatrix(row, col, u"");
                    MSFlexGrid1->ColWidth(col, ToLong(DefaultColWidth));
                }
                MSFlexGrid1->RowHeight(row, ToLong(DefaultRowHeight));
            }
            FirstEditableCol = -1;
            FirstVisibleCol = -1;
            MarkerRow = -1;
            ColumnBound = 0;
            BoundRecordset = nullptr;
            InitializeArray();
            ResetControlState();
            GetOriginalGridSize();
        });
    });
}

} // namespace Tessellon
