#pragma once

#include "columns/ColDataType.h"
#include "platform/Platform.h"
#include "view/ColorType.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Tessellon {

/// The state that all procedures of the sheet share, in the order in which it is shown. Coordinates are twips; -1 means
/// none where a row or column may be missing.
struct SheetMembers {
    std::shared_ptr<Editor> ActiveEditor; ///< The editor last laid over the grid; kept when that goes down.
    std::int16_t NextComboIndex = 0; ///< One above the instance that the last combo column got.
    std::int16_t NextMaskIndex = 0;
    std::int16_t NextListIndex = 0;
    std::int16_t NextCommandIndex = 0;
    std::vector<ColDataType> ColumnData; ///< Grid column c has element c-1.
    bool EditorLoading = false;
    std::u16string DateFormatText;
    std::shared_ptr<Recordset> BoundRecordset;
    std::int32_t ColumnBound = 0; ///< Number of data columns.
    bool AllowAddNewFlag = false;
    std::int32_t ComboFocusCol = 0;
    float DefaultRowHeight = 0;
    float DefaultColWidth = 0;
    float InitialRowHeight = 0;
    float InitialColWidth = 0;
    bool ShowEditorRequest = false; ///< The next sweep brings the current column's editor up.
    std::int32_t ComboPreviousIndex = 0;
    bool HideEditorRequest = false; ///< The next sweep puts it away.
    std::int32_t LastLeaveCol = 0;
    bool ListKeyHandled = false; ///< The list's next click is to be ignored.
    std::array<std::int32_t, 2> SectionColors{};
    std::int32_t MarkerRow = 0;
    bool AdvancingCell = false;
    std::int32_t VisibleRows = 0;
    float ControlWidth = 0;
    float ControlHeight = 0;
    bool SkipEnterCell = false; ///< The heading was pressed: the next cell entry lays no editor.
    std::int32_t CurrentCol = 0;
    std::int32_t CurrentRow = 0;
    std::int32_t RowCount = 0;
    std::int32_t ColCount = 0;
    bool ColumnsDeclared = false;
    std::int32_t PendingTopRow = 0;
    bool ScrollRightPending = false;
    bool ScrollDownPending = false;
    bool GridReady = false; ///< False during bulk work: the grid's events then lay no editor.
    std::int32_t LastCol = 0;
    std::int32_t LastRow = 0;
    bool Terminating = false;
    bool MaskCellHadText = false;
    std::int32_t FirstEditableCol = 0;
    std::int32_t FirstVisibleCol = 0;
    std::u16string MaskBuffer;
    bool CommandActivated = false;
    bool GridClickPending = false;
    bool GridRowClickPending = false;
    bool AdvancePending = false;
    std::int32_t PreviousMarkerRow = 0;
    bool LoadingRecordset = false;
    float HeaderRowHeight = 0;
    bool RefreshingColors = false;
    bool GridScrolled = false;
    bool GridClicked = false;
    bool AddingRows = false;
};

} // namespace Tessellon
