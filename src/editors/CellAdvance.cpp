#include "failure/Frames.h"
#include "shell/RaiseEvent.h"

#include <algorithm>

namespace Tessellon {

/// One advance: where from, where to, and how it ends. A hop over columns that cannot be edited is an advance inside
/// another, thousands deep where a host hides thousands, so its frames are kept thin.
struct TessellonSheet::Advance {
    enum class Form : std::uint8_t { Plain, Wrap, Backward };

    std::int16_t ColStep;
    std::int16_t RowStep;
    std::int32_t TargetRow;
    std::int32_t TargetCol;
    std::int32_t StartRow;
    bool EndOfGrid = false;
    Form How = Form::Plain;
};

void TessellonSheet::IncrementCell(std::int16_t ColStep, std::int16_t RowStep)
{
    Armed(u"IncrementCell", [&] {
        if (!BeginAdvance())
            return;
        Advance advance{ColStep, RowStep, CurrentRow + RowStep, CurrentCol + ColStep, CurrentRow};
        if (ChooseMove(advance)) {
            MoveCursor(advance);
            if (ColStep != 0 && !IsColEditable(CurrentCol))
                IncrementCell(ColStep > 0 ? std::int16_t{1} : std::int16_t{-1}, 0);
            GridReady = true;
        }
        ExpectScrolling();
        AdvancePending = advance.TargetRow > advance.StartRow;
        if (advance.EndOfGrid)
            MSFlexGrid1->SetFocus();
        else
            MSFlexGrid1_EnterCell();
    });
}

/// Asks the host. A refusal leaves the cursor, the editor and the focus as the stand-down left them.
bool TessellonSheet::BeginAdvance()
{
    ShowEditorRequest = false;
    HideEditorRequest = true;
    bool Cancel = false;
    RaiseEvent(AdvanceToNextCell, Cancel);
    if (Cancel) {
        ShowEditorRequest = false;
        AdvancingCell = false;
        HideEditorRequest = true;
        AdvancePending = false;
        return false;
    }
    AdvancingCell = true;
    SkipEnterCell = false;
    ScrollRightPending = false;
    ScrollDownPending = false;
    ShowEditorRequest = true;
    HideEditorRequest = false;
    if (IsArrayControl(CurrentCol))
        SetAllDisable();
    return true;
}

/// Settles target and form; true if the cursor is to move. At an edge without a wrap it is not, and the same cell is
/// entered again; past the last cell the grid gets the focus.
bool TessellonSheet::ChooseMove(Advance& advance)
{
    const auto endOfGrid = [&] {
        HideEditorRequest = true;
        ShowEditorRequest = false;
        advance.EndOfGrid = true;
        return false;
    };
    if (advance.TargetRow > 0 && advance.TargetCol > 0) {
        if (advance.TargetRow >= RowCount)
            return endOfGrid();
        if (advance.TargetCol < ColCount)
            return true;
        if (advance.TargetCol > ColCount)
            return false;
        ++advance.TargetRow;
        advance.TargetCol = 1;
        advance.How = Advance::Form::Wrap;
        return advance.TargetRow < RowCount || endOfGrid();
    }
    if (advance.TargetCol != 0)
        return false;
    advance.TargetCol = ColCount - 1;
    advance.TargetRow = CurrentRow - 1;
    advance.How = Advance::Form::Backward;
    return advance.TargetRow <= RowCount && advance.TargetRow > 0;
}

void TessellonSheet::MoveCursor(const Advance& advance)
{
    if (advance.How != Advance::Form::Plain || advance.RowStep != 0) {
        RefreshPicture(ptNone, CurrentRow);
        if (RefreshPicture(ptArrow, advance.TargetRow))
            MarkerRow = advance.TargetRow;
    }
    GridReady = false;
    if (advance.How == Advance::Form::Backward) {
        MSFlexGrid1->Col(advance.TargetCol);
        MSFlexGrid1->Row(advance.TargetRow);
    } else {
        MSFlexGrid1->Row(advance.TargetRow);
        MSFlexGrid1->Col(advance.TargetCol);
    }
    MSFlexGrid1->RowSel(advance.TargetRow);
    MSFlexGrid1->ColSel(advance.TargetCol);
}

/// Announces the scrolling that the entry of the current cell will bring. A cell in the leftmost column counts as
/// scrolling on the last row and is measured on all others.
void TessellonSheet::ExpectScrolling()
{
    if (CurrentRow == RowCount - 1) {
        ScrollDownPending = VisibleArea();
        ScrollRightPending =
            MSFlexGrid1->LeftCol() >= CurrentCol || IsHorizontalScroll(MSFlexGrid1->LeftCol(), CurrentCol);
        return;
    }
    ScrollRightPending = MSFlexGrid1->LeftCol() > CurrentCol || IsHorizontalScroll(MSFlexGrid1->LeftCol(), CurrentCol);
    ScrollDownPending = MSFlexGrid1->TopRow() > CurrentRow || IsVerticalScroll(MSFlexGrid1->TopRow(), CurrentRow);
}

/// The keys that change no text. Backspace and Delete are none of them.
bool TessellonSheet::IsFunctionKey(std::int16_t KeyCode)
{
    return ArmedResult(u"IsFunctionKey", false, [&](bool& result) {
        switch (KeyCode) {
        case 9: // Tab
        case 12: // Clear
        case 13: // Enter
        case 16: // Shift
        case 17: // Ctrl
        case 18: // Alt
        case 19: // Pause
        case 20: // Caps Lock
        case 27: // Esc
        case 33: // Page Up
        case 34: // Page Down
        case 35: // End
        case 36: // Home
        case 37: // the arrows
        case 38:
        case 39:
        case 40:
        case 41: // Select
        case 42: // Print
        case 43: // Execute
        case 44: // Print Screen
        case 45: // Insert
        case 47: // Help
        case 144: // Num Lock
            result = true;
            break;
        default: result = KeyCode >= 112 && KeyCode <= 127; // F1 to F16
        }
    });
}

} // namespace Tessellon
