#include "editors/KeyHandling.h"

#include <utility>

namespace Tessellon {

// The handlers of the button. A press tells the host; a loss of focus works out, from what the grid just did, whether
// the button is to come back.

void TessellonSheet::Command1_Click(std::int16_t Index)
{
    Armed(u"Command1_Click", [&] {
        CommandActivated = true;
        HideEditorRequest = true;
        ShowEditorRequest = false;
        RaiseEvent(ButtonClick, Index);
        bool Use = false;
        RaiseEvent(UseAdvanceToNextCell, Use);
        if (Use)
            IncrementCell(nextCell.ColStep, nextCell.RowStep);
    });
}

void TessellonSheet::Command1_GotFocus()
{
    if (LastRow == 0)
        ClearEditorRequests();
}

/// Any key counts as a press of the button for the coming loss of focus.
void TessellonSheet::Command1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcCommandButton, u"Command1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        CommandActivated = true;
        HideEditorRequest = true;
        ShowEditorRequest = false;
        switch (action) {
        case KeyAction::Restore: {
            const auto button = Command1->Item(Index);
            if (RowCount > 0)
                CellWriteBack(Trim(button->Tag()));
            StandDown(*button);
            return true;
        }
        case KeyAction::Click: Command1_Click(Index); return true;
        default: return false;
        }
    });
}

/// The sweep then brings the editor up and leaves the second request standing.
void TessellonSheet::RequestBoth()
{
    ShowEditorRequest = true;
    HideEditorRequest = true;
}

void TessellonSheet::RequestHide()
{
    ShowEditorRequest = false;
    HideEditorRequest = true;
}

void TessellonSheet::Command1_LostFocus()
{
    Armed(u"Command1_LostFocus", [&] {
        const std::int32_t type = CurrentColumn().cdControlType;
        bool bothScroll = false;
        if (type != fcCommandButton) {
            RequestHide();
        } else if (!CommandActivated) {
            if (CurrentRow != RowCount - 1) {
                DecideButtonOnUpperRow();
            } else {
                bothScroll = IsBothScroll();
                DecideButtonOnLastRow(bothScroll);
            }
        }
        SweepAs(type);
        if (type == fcCommandButton && !CommandActivated && GridClickPending) {
            if (CurrentRow == RowCount - 1 && bothScroll) {
                MSFlexGrid1_EnterCell();
                ShowEditorRequest = true;
                if (PreviousMarkerRow < CurrentRow)
                    GridRowClickPending = true;
            }
            GridClickPending = false;
        }
    });
}

void TessellonSheet::DecideButtonOnUpperRow()
{
    if (RefreshingColors) {
        RequestBoth();
        RefreshingColors = false;
    } else if (GridScrolled && GridClicked && GridClickPending) {
        RequestBoth();
        GridClickPending = false;
    } else if (GridScrolled && GridClicked) {
        RequestBoth();
        GridClicked = false;
        GridScrolled = false;
    } else if (AdvancePending) {
        RequestBoth();
        AdvancePending = false;
    } else {
        RequestHide();
    }
}

void TessellonSheet::DecideButtonOnLastRow(bool bothScroll)
{
    if (!bothScroll) {
        if (std::exchange(AdvancePending, false))
            RequestBoth();
        else
            RequestHide();
    } else if (GridClickPending) {
        RequestBoth();
    } else if (GridRowClickPending) {
        RequestBoth();
        GridRowClickPending = false;
    } else if (LastCol != CurrentCol) {
        if (std::exchange(AdvancePending, false))
            RequestBoth();
        else
            RequestHide();
    } else if (PreviousMarkerRow < CurrentRow) {
        // A pending advance stays pending here.
        if (AdvancePending)
            RequestBoth();
        else
            HideEditorRequest = false;
        PreviousMarkerRow = CurrentRow;
    } else {
        HideEditorRequest = true;
    }
}

void TessellonSheet::Command1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseDown, Button, Shift, x, y);
}

void TessellonSheet::Command1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseMove, Button, Shift, x, y);
}

void TessellonSheet::Command1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y)
{
    RaiseEvent(MouseUp, Button, Shift, x, y);
}

} // namespace Tessellon
