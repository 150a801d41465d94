#include "editors/KeyCodes.h"
#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

namespace Tessellon {

void TessellonSheet::MSFlexGrid1_GotFocus()
{
    Armed(u"MSFlexGrid1_GotFocus", [&] {
        ScrollRightPending = false;
        ScrollDownPending = false;
        RefreshingColors = false;
    });
}

void TessellonSheet::MSFlexGrid1_LostFocus()
{
}

void TessellonSheet::MSFlexGrid1_Click()
{
    Armed(u"MSFlexGrid1_Click", [&] {
        HideEditorRequest = true;
        ShowEditorRequest = false;
        if (CurrentRow > 0 && CurrentCol > 0 && RowCount > 1 && ColCount > 1)
            MoveMarker();
        if (RowCount > 1 && ColCount > 1 && CurrentRow == RowCount - 1)
            VisibleArea();
        MSFlexGrid1_EnterCell();
        GridClicked = true;
        GridClickPending = true;
        GridRowClickPending = true;
    });
}

void TessellonSheet::MSFlexGrid1_Compare(std::int32_t Row1, std::int32_t Row2, std::int16_t& Cmp)
{
    RaiseEvent(Compare, Row1, Row2, Cmp);
}

void TessellonSheet::MSFlexGrid1_DblClick()
{
    RaiseEvent(DblClick);
}

void TessellonSheet::MSFlexGrid1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift)
{
    Armed(u"MSFlexGrid1_KeyDown", [&] {
        if (KeyCode == keyF2) {
            MSFlexGrid1_EnterCell();
            HideEditorRequest = false;
        }
    });
    RaiseEvent(KeyDown, KeyCode, Shift);
}

void TessellonSheet::MSFlexGrid1_KeyPress(std::int16_t& KeyAscii)
{
    RaiseEvent(KeyPress, KeyAscii);
}

void TessellonSheet::MSFlexGrid1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift)
{
    RaiseEvent(KeyUp, KeyCode, Shift);
}

void TessellonSheet::MSFlexGrid1_LeaveCell()
{
    Armed(u"MSFlexGrid1_LeaveCell", [&] {
        LastLeaveCol = CurrentCol;
        if (CurrentCol > 0)
            LastCol = CurrentCol;
        if (CurrentRow > 0)
            LastRow = CurrentRow;
    });
    RaiseEvent(LeaveCell);
}

/// The heading's own height at start counts, edges included, over the whole width.
bool TessellonSheet::IsOnHeaderBand(float x, float y)
{
    return x >= 0 && x <= ControlWidth && y >= 0 && y <= InitialRowHeight;
}

void TessellonSheet::MSFlexGrid1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    Armed(u"MSFlexGrid1_MouseDown", [&] {
        SkipEnterCell = false;
        ScrollRightPending = false;
        ScrollDownPending = false;
        GridClicked = false;
        if (!ActiveEditor)
            return;
        if (x >= 0 && x <= static_cast<float>(MSFlexGrid1->ColWidth(0)) && y > InitialRowHeight) {
            MSFlexGrid1->Col(FirstVisibleCol);
            MSFlexGrid1->ColSel(FirstVisibleCol);
        }
        if (IsOnHeaderBand(x, y)) {
            ShowEditorRequest = false;
            HideEditorRequest = true;
            SkipEnterCell = true;
            SetAllDisable();
        }
    });
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

/// The mere pointer over the heading takes the editor down, and the host hears of a move as of a press.
void TessellonSheet::MSFlexGrid1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    Armed(u"MSFlexGrid1_MouseMove", [&] {
        ScrollRightPending = false;
        ScrollDownPending = false;
        if (ActiveEditor && IsOnHeaderBand(x, y)) {
            ShowEditorRequest = false;
            HideEditorRequest = true;
            SetAllDisable();
        }
    });
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::MSFlexGrid1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::MSFlexGrid1_RowColChange()
{
    Armed(u"MSFlexGrid1_RowColChange", [&] {
        CurrentRow = MSFlexGrid1->Row();
        CurrentCol = MSFlexGrid1->Col();
        MSFlexGrid1->Refresh();
        if (GridReady) {
            if (RowCount > 0 && ColCount > 0 && CurrentRow > 0 && CurrentCol > 0) {
                if (ActiveEditor && !LoadingRecordset)
                    SweepCurrentColumn();
                const bool shown = MSFlexGrid1->ColWidth(CurrentCol) != 0 && !CurrentColumn().cdHidden;
                ShowEditorRequest = shown;
                HideEditorRequest = !shown;
            }
            SkipEnterCell = false;
        }
        if (RowCount > 1 && ColCount > 1 && CurrentRow == RowCount - 1)
            VisibleArea();
    });
    RaiseEvent(RowColChange);
}

/// An editor is never moved along: it goes, and comes back at the next cell entry if the scroll was announced.
void TessellonSheet::MSFlexGrid1_Scroll()
{
    Armed(u"MSFlexGrid1_Scroll", [&] {
        ShowEditorRequest = false;
        HideEditorRequest = true;
        if (ActiveEditor) {
            Active()->Enabled(false);
            Active()->Visible(false);
            Active()->ZOrder(1);
        }
        SetAllDisable();
        if (GridReady)
            GridScrolled = true;
        GridClicked = false;
        if (!AdvancingCell)
            AdvancePending = false;
        if (AdvancePending || !AddingRows)
            GridRowClickPending = false;
        if (AdvancingCell && GridReady) {
            const bool announced = ScrollRightPending || ScrollDownPending;
            ShowEditorRequest = announced;
            HideEditorRequest = !announced;
            if (ScrollRightPending)
                ScrollRightPending = false;
            else
                ScrollDownPending = false;
        }
    });
    RaiseEvent(Scroll);
}

void TessellonSheet::MSFlexGrid1_SelChange()
{
    Armed(u"MSFlexGrid1_SelChange", [&] {
        CurrentRow = MSFlexGrid1->Row();
        CurrentCol = MSFlexGrid1->Col();
        if (MarkerRow != CurrentRow) {
            PreviousMarkerRow = MarkerRow;
            RefreshPicture(ptNone, MarkerRow);
            if (RefreshPicture(ptArrow, CurrentRow))
                MarkerRow = CurrentRow;
            GridClickPending = true;
            GridRowClickPending = true;
        }
        HideEditorRequest = false;
    });
    RaiseEvent(SelChange);
}

} // namespace Tessellon
