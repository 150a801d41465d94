#pragma once

#include "shell/TessellonSheet.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Tessellon {

/// A sheet's members to write and its private procedures to call, one by one. Handlers have a way in of their own:
/// `Raise`.
struct SheetProbe {
    explicit SheetProbe(TessellonSheet& sheet)
        : Sheet(sheet)
    {
    }

    SheetMembers& Members() { return Sheet; }

    // Entering and leaving a cell.
    void EnterCell() { Sheet.MSFlexGrid1_EnterCell(); }
    bool IsColEditable(std::int32_t col) { return Sheet.IsColEditable(col); }
    std::shared_ptr<Editor> GetColControl(std::int32_t col) { return Sheet.GetColControl(col); }
    bool IsArrayControl(std::int32_t col) { return Sheet.IsArrayControl(col); }
    void SetObjVisible(std::int32_t kind, std::int16_t index) { Sheet.SetObjVisible(kind, index); }
    void SetGridFocus(std::int32_t row, std::int32_t col) { Sheet.SetGridFocus(row, col); }
    void SetAllDisable() { Sheet.SetAllDisable(); }
    void FormatStr(std::u16string& text, std::u16string mask) { Sheet.FormatStr(text, std::move(mask)); }

    // The instances of the control arrays.
    void LoadComboState(std::int32_t index, std::u16string setting) { Sheet.LoadComboState(index, std::move(setting)); }
    void LoadListState(std::int32_t index, std::u16string setting) { Sheet.LoadListState(index, std::move(setting)); }
    void LoadMaskState(std::int32_t index, std::u16string setting) { Sheet.LoadMaskState(index, std::move(setting)); }
    void LoadCommandState(std::int32_t index, std::u16string setting)
    {
        Sheet.LoadCommandState(index, std::move(setting));
    }
    void ResetComboState() { Sheet.ResetComboState(); }
    void ResetListState() { Sheet.ResetListState(); }
    void ResetMaskState() { Sheet.ResetMaskState(); }
    void ResetCommandState() { Sheet.ResetCommandState(); }
    void ResetControlState() { Sheet.ResetControlState(); }

    // The cell advance.
    void IncrementCell(std::int16_t colStep, std::int16_t rowStep) { Sheet.IncrementCell(colStep, rowStep); }
    bool IsFunctionKey(std::int16_t code) { return Sheet.IsFunctionKey(code); }

    // Columns.
    void InitializeArray() { Sheet.InitializeArray(); }
    void ReConstructArray(std::int32_t oldCount, std::int32_t newCount) { Sheet.ReConstructArray(oldCount, newCount); }
    void GetRecSize(std::int32_t& fields, std::int32_t& records) { Sheet.GetRecSize(fields, records); }

    // The view.
    void GetVisibleRows() { Sheet.GetVisibleRows(); }
    bool VisibleArea() { return Sheet.VisibleArea(); }
    bool IsVerticalScroll(std::int32_t from, std::int32_t to) { return Sheet.IsVerticalScroll(from, to); }
    bool IsHorizontalScroll(std::int32_t from, std::int32_t to) { return Sheet.IsHorizontalScroll(from, to); }
    bool IsBothScroll() { return Sheet.IsBothScroll(); }
    void RefreshGridColor(std::int32_t fromRow, std::int32_t keepCol) { Sheet.RefreshGridColor(fromRow, keepCol); }
    void RefreshSectionColor(bool even) { Sheet.RefreshSectionColor(even); }
    bool RefreshPicture(PictureType picture, std::int32_t row) { return Sheet.RefreshPicture(picture, row); }

    /// Tells the sheet an event of a child, as its platform does.
    void Raise(Child child, ChildEvent event, EventArguments& arguments) { Sheet.Raise(child, event, arguments); }
    void Raise(Child child, ChildEvent event)
    {
        EventArguments arguments;
        Sheet.Raise(child, event, arguments);
    }

    TessellonSheet& Sheet;
};

} // namespace Tessellon
