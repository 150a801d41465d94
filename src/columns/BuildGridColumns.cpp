#include "shell/Entry.h"

#include <vector>

namespace Tessellon {

namespace {

/// The grid's alignment for a column's; 0 for a value that is none.
std::int16_t GridAlignment(FieldControlAlign alignment)
{
    switch (alignment) {
    case fcLeft: return 1;
    case fcCenter: return 4;
    case fcRight: return 7;
    }
    return 0;
}

} // namespace

void TessellonSheet::BuildGridColumns()
{
    Entry(*this).Run([&] {
        Armed(u"BuildGridColumns", [&] {
            GridReady = false;
            std::vector<float> savedWidths;
            for (std::int32_t i = 0; i <= ColumnBound; ++i)
                savedWidths.push_back(static_cast<float>(MSFlexGrid1->ColWidth(i)));
            ResetControlState();
            MSFlexGrid1->Cols(1);
            const std::int32_t rows = MSFlexGrid1->Rows();
            MSFlexGrid1->Rows(1);
            MSFlexGrid1->Rows(rows);
            RowCount = rows;
            MSFlexGrid1->Cols(ColumnBound + 1);
            ColCount = ColumnBound + 1;
            CurrentRow = MSFlexGrid1->Row();
            if (ColumnBound > 0) {
                MSFlexGrid1->ColWidth(0, ToLong(savedWidths.at(0)));
                for (std::int32_t i = 0; i < ColumnBound; ++i)
                    BuildColumn(i, ToLong(savedWidths.at(static_cast<std::size_t>(i) + 1)));
                ColumnsDeclared = true;
            } else {
                Column(0).cdObjectIndex = 1;
            }
            MSFlexGrid1->RowHeight(0, ToLong(HeaderRowHeight));
            RefreshGridColor(1, 1);
            if (MarkerRow == -1 && RefreshPicture(ptArrow, CurrentRow))
                MarkerRow = CurrentRow;
            ClearEditorRequests();
            SetAllDisable();
            if (ColCount > 1 && FirstVisibleCol > 0 && RowCount > 1) {
                MSFlexGrid1->Row(1);
                MSFlexGrid1->Col(FirstVisibleCol);
                MSFlexGrid1->RowSel(1);
                MSFlexGrid1->ColSel(FirstVisibleCol);
                MSFlexGrid1->TopRow(1);
                MSFlexGrid1->LeftCol(FirstVisibleCol);
                MSFlexGrid1->Refresh();
            } else if (RowCount > 1) {
                MSFlexGrid1->TopRow(1);
                MSFlexGrid1->Row(1);
                MSFlexGrid1->RowSel(1);
                MSFlexGrid1->Refresh();
            }
            ClearEditorRequests();
            GridReady = true;
        });
    });
}

void TessellonSheet::BuildColumn(std::int32_t index, std::int32_t savedWidth)
{
    const std::int32_t c = index + 1;
    MSFlexGrid1->TextMatrix(0, c, Column(index).cdColName);
    MSFlexGrid1->Col(c);
    MSFlexGrid1->ColWidth(c, savedWidth);
    if (const std::int16_t alignment = GridAlignment(Column(index).cdAlign); alignment != 0)
        MSFlexGrid1->ColAlignment(c, alignment);
    Column(index).cdObjectIndex = c;
    const bool hidden = Column(index).cdHidden;
    if (FirstEditableCol == -1 && Column(index).cdControlType != fcNil && !hidden)
        FirstEditableCol = c;
    if (FirstVisibleCol == -1 && !hidden)
        FirstVisibleCol = c;
    switch (Column(index).cdControlType) {
    case fcComboBox: LoadComboState(index, Column(index).cdControlSettingString); break;
    case fcListBox: LoadListState(index, Column(index).cdControlSettingString); break;
    case fcMaskedEditBox: LoadMaskState(index, Column(index).cdControlSettingString); break;
    case fcCommandButton: LoadCommandState(index, Column(index).cdControlSettingString); break;
    default: break;
    }
    if (Column(index).cdHidden)
        MSFlexGrid1->ColWidth(c, 0);
    else if (MSFlexGrid1->ColWidth(c) != 0 && Column(index).cdAutoAdjust == faHeader)
        FitWidth(c, Column(index).cdColName);
}

void TessellonSheet::ClearEditorRequests()
{
    GridScrolled = false;
    GridClicked = false;
    ShowEditorRequest = false;
    GridClickPending = false;
    GridRowClickPending = false;
    AdvancePending = false;
    RefreshingColors = false;
    HideEditorRequest = true;
}

void TessellonSheet::GetRecSize(std::int32_t& FieldCount, std::int32_t& RecordCount)
{
    Armed(u"GetRecSize", [&] {
        FieldCount = 0;
        RecordCount = 0;
        if (!BoundRecordset)
            return;
        const std::shared_ptr<Recordset> recordset = BoundRecordset;
        recordset->MoveFirst();
        FieldCount = recordset->FieldCount();
        while (!recordset->AtEnd()) {
            ++RecordCount;
            recordset->MoveNext();
        }
    });
}

} // namespace Tessellon
