#include "editors/KeyHandling.h"

namespace Tessellon {

// The handlers of the masked box. Its text always shows the mask's literals, so the cell is written when a key is
// released, and what shows nothing but the empty mask leaves the cell empty.

/// What the box shows when nothing has been typed is kept, to tell an untouched mask from an input.
void TessellonSheet::MaskEdBox1_GotFocus(std::int16_t Index)
{
    Armed(u"MaskEdBox1_GotFocus", [&] {
        MaskBuffer.clear();
        const auto box = MaskEdBox1->Item(Index);
        if (box->SelStart() != 0)
            box->SelStart(0);
        if (CurrentColumn().cdUseMask) {
            const std::u16string mask(Trim(box->Mask()));
            const std::u16string blanks(mask.size(), u' ');
            MaskBuffer = Trim(RunTime->Format(Value::OfText(blanks), mask));
        } else {
            MaskBuffer = Trim(box->Format());
        }
    });
}

void TessellonSheet::WriteMaskedCell(MaskEdBox& box)
{
    const std::u16string shown(Trim(box.FormattedText()));
    const bool untouched = !MaskBuffer.empty() && CurrentColumn().cdUseMask && MaskBuffer == shown;
    CellWriteBack(untouched ? std::u16string_view() : shown);
}

bool TessellonSheet::IsInstanceOfCurrentColumn(std::int16_t Index, FieldControlType type)
{
    return CurrentColumn().cdControlIndex == Index && CurrentColumn().cdControlType == type;
}

void TessellonSheet::MaskEdBox1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift)
{
    HearKey(fcMaskedEditBox, u"MaskEdBox1_KeyDown", KeyCode, Shift, [&](KeyAction action) {
        ShowEditorRequest = false;
        if (action == KeyAction::Nothing)
            return false;
        const auto box = MaskEdBox1->Item(Index);
        switch (action) {
        case KeyAction::Restore: Restore(*box); return true;
        case KeyAction::WriteIfHad:
            box->Visible(false);
            box->Enabled(false);
            // A cell that was empty on entry has all that was typed by the release of the keys.
            if (MaskCellHadText && CurrentRow > 0 && CurrentCol > 0 &&
                IsInstanceOfCurrentColumn(Index, fcMaskedEditBox))
                WriteMaskedCell(*box);
            box->ZOrder(1);
            IncrementCell(nextCell.ColStep, nextCell.RowStep);
            return true;
        default: return LeaveAtCaret(action, *box);
        }
    });
}

void TessellonSheet::MaskEdBox1_KeyPress(std::int16_t& KeyAscii)
{
    if (KeyAscii == keyEnter)
        KeyAscii = 0;
}

/// The index keeps a release that comes behind the move from writing the old box's text into the new cell.
void TessellonSheet::MaskEdBox1_KeyUp(std::int16_t Index, std::int16_t KeyCode)
{
    Armed(u"MaskEdBox1_KeyUp", [&] {
        if (CurrentRow > 0 && CurrentCol > 0 && !IsFunctionKey(KeyCode) &&
            IsInstanceOfCurrentColumn(Index, fcMaskedEditBox))
            WriteMaskedCell(*MaskEdBox1->Item(Index));
    });
}

void TessellonSheet::MaskEdBox1_LostFocus()
{
    Armed(u"MaskEdBox1_LostFocus", [&] { SweepCurrentColumn(); });
}

} // namespace Tessellon
