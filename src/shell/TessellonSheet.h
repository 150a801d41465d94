#pragma once

#include "columns/ColDataType.h"
#include "data/ManipulateType.h"
#include "platform/Platform.h"
#include "shell/Event.h"
#include "shell/SheetMembers.h"
#include "view/ColorType.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace Tessellon {

class TessellonSheet;
enum class KeyAction : std::uint8_t;

/// Ends a sheet; what still runs inside one of its events returns into a state that is still there.
struct EndSheet {
    void operator()(TessellonSheet* sheet) const noexcept;
};

/// How a host holds a sheet. Letting go of it ends the sheet, also inside one of the sheet's own events.
using SheetPointer = std::unique_ptr<TessellonSheet, EndSheet>;

/// A data-entry sheet: rows and columns in a grid, an editor of the column's kind over the current cell. Cells hold
/// text only, and editors write them at once.
///
/// A bad argument is ignored without a word, a read out of range gives the empty value. A failure inside the sheet is
/// consumed where it arises and told by ErrInfo and, while ShowErrMessage is True, by a message box; BackColor, Font,
/// Enabled, the property bag's two, and DataSource without a connection, let one out, as an exception of type Failure.
class TessellonSheet : private SheetMembers, private EventSink {
public:
    /// A new sheet on a platform of its own, with no columns and all editors hidden. It shares RaiseError and
    /// ShowErrMessage with the other sheets of the thread, and sets them to False and True.
    static SheetPointer Create(std::shared_ptr<Platform> platform);
    ~TessellonSheet() override = default;
    TessellonSheet(const TessellonSheet&) = delete;
    TessellonSheet& operator=(const TessellonSheet&) = delete;

    // Cells and cursor. Rows and columns of data count from 1.
    std::int32_t Row();
    void Row(std::int32_t row); ///< Goes there, in the current column; the row marker follows.
    std::int32_t Rows(); ///< Heading included.
    std::int32_t Col();
    void Col(std::int32_t col);
    std::int32_t hWnd(); ///< The component's window handle; 0 where there is none.
    std::u16string TextMatrix(std::int32_t row, std::int32_t col);
    void TextMatrix(std::int32_t row, std::int32_t col, std::u16string_view text);
    /// Height of all data rows, above 0, in twips; with ScaleFont the fonts follow, with IncludeHeader the heading.
    void RowHeight(float height, bool scaleFont, bool includeHeader);
    float GetRowHeight(std::int32_t row); ///< What data rows are made with; 0 for a row that is none.
    bool AllowAddNew();
    void AllowAddNew(bool allow);
    void DateFormat(std::u16string_view format); ///< For date columns and the date editor; blanks only: ignored.

    // Columns.
    std::int32_t Cols(); ///< Marker column included.
    void Cols(std::int32_t count); ///< Data columns plus one; not above 0: ignored.
    void ColWidth(std::int32_t col, float width);
    /// Declares data column `col`; BuildGridColumns brings it to the grid.
    void CreateColumnDataType(std::int32_t col, std::u16string_view colName, FieldControlType controlType,
                              std::u16string_view controlSettingString, bool hide, FieldControlAlign alignment,
                              std::int32_t fieldLength, FieldAutoAdjustType autoAdjust, bool useMask);
    std::u16string ColumnHeader(std::int32_t col);
    void BuildGridColumns(); ///< Empties all data cells, keeps the number of rows.

    /// Colour of the even (0) or odd (1) rows. A failure goes to the host.
    void BackColor(std::int16_t index, ColorType color);

    // Failures.
    bool RaiseError();
    void RaiseError(bool raise);
    bool ShowErrMessage();
    void ShowErrMessage(bool show);

    // Rows and data.
    std::int32_t SearchCol(std::int32_t col, std::u16string_view search); ///< The row gone to; 0 if none.
    void Add(std::int32_t row, std::int32_t count = 1); ///< Empty rows behind `row`.
    void Delete(std::int32_t row);
    void Clear(); ///< Back to the empty sheet, columns included.
    std::u16string Minimum(std::int32_t col, ManipulateType dataType, bool& success);
    std::u16string Maximum(std::int32_t col, ManipulateType dataType, bool& success);
    double Summation(std::int32_t col, bool& success);
    /// Fills the sheet: a row for each record, a cell for each field. The connection tells what went wrong.
    void DataSource(std::shared_ptr<Recordset> recordset, std::shared_ptr<Connection> connection);

    // Design-time properties.
    Tessellon::Font Font();
    void Font(const Tessellon::Font& font);
    bool Enabled();
    void Enabled(bool enabled);

    // The 25 events, in the order of their numbers.
    Event<std::int32_t, std::int32_t, std::int16_t&> Compare; ///< Row1, Row2, Cmp
    Event<bool&> AdvanceToNextCell; ///< Cancel
    Event<bool&> ExitFocus; ///< Cancel
    Event<std::int16_t&, std::int16_t&, float&, float&> MouseDown; ///< Button, Shift, x, y
    Event<std::int16_t&, std::int16_t&, float&, float&> MouseMove;
    Event<std::int16_t&, std::int16_t&, float&, float&> MouseUp;
    Event<> Click;
    Event<> DblClick;
    Event<std::int16_t&, std::int16_t&> KeyUp; ///< KeyCode, Shift
    Event<std::int16_t&, std::int16_t&> KeyDown; ///< KeyCode, Shift
    Event<std::int16_t&> KeyPress; ///< KeyAscii
    Event<> RowColChange;
    Event<> Scroll;
    Event<> SelChange;
    Event<> LeaveCell;
    Event<> EnterCell;
    Event<bool&> EditorValidate; ///< Cancel
    Event<> EditorChange;
    Event<> DateBoxCloseUp;
    Event<> DateBoxDropDown;
    Event<std::u16string&, std::u16string&> Format; ///< CallbackField, FormattedString
    /// KeyCode, Shift, CallbackField, CallbackDate
    Event<std::int16_t, std::int16_t, const std::u16string&, double&> DatePickerCallbackKeyDown;
    Event<std::int16_t> ButtonClick; ///< ButtonIndex
    Event<bool&> UseAdvanceToNextCell; ///< Use
    /// ErrNum, ErrSource, ErrDesc, ErrHelpFile, ErrHelpContext; the description comes as ErrSource, the source as
    /// ErrDesc.
    Event<std::int32_t, const std::u16string&, const std::u16string&, const std::u16string&, const std::u16string&>
        ErrInfo;

    // What a container calls.
    void UserControl_ReadProperties(PropertyBag& PropBag);
    void UserControl_WriteProperties(PropertyBag& PropBag);

    /// The sheet's state as it stands, for reports of defects.
    [[nodiscard]] const SheetMembers& Members() const { return *this; }

private:
    friend struct EndSheet;
    friend struct SheetProbe;
    class Entry;

    explicit TessellonSheet(std::shared_ptr<Platform> platform);
    void End();

    // The way in for child events, and the table that ties each to its handler.
    void Raise(Child child, ChildEvent event, EventArguments& arguments) override;
    template <class HostEvent, class... Arguments>
    void RaiseEvent(const HostEvent& event, Arguments&&... arguments);
    class HostCode;
    [[noreturn]] void FailInHandler();
    void LeaveIfEnded() const;
    [[nodiscard]] bool HasEndedInside() const { return ended_ && depth_ > 0; } ///< Inside one of its own events.

    // Failures: the handler frames (failure/Frames.h) and what they share.
    template <class Body>
    void Armed(const char16_t* procedure, Body&& body);
    template <class Result, class Body>
    Result ArmedResult(const char16_t* procedure, Result result, Body&& body);
    template <class... Statements>
    void Ignoring(Statements&&... statements);
    void HandleFailure(const char16_t* procedure);
    void HandleLoadFailure(Connection* connection);
    void TakeCaughtFailure();
    [[nodiscard]] std::size_t StackUsed() const;
    void CheckStack();
    bool IsSilent();
    [[noreturn]] void Fail(std::int32_t number);
    [[noreturn]] void Fail(std::int32_t number, std::u16string_view source);
    std::int32_t ToLong(double number); ///< To the nearest, ties to even; past 32 bits: failure 6.
    void ReportError(std::int32_t errNumber, const std::u16string& errDescription, const std::u16string& errSource,
                     std::u16string_view procedureName, std::u16string_view moduleName, Connection* connection);
    void AbsorbRaises(const std::vector<ProviderError>& errors);

    // Frame and lifecycle.
    void UserControl_Initialize();
    void UserControl_Resize();
    void UserControl_ExitFocus();
    void UserControl_Terminate();
    void InitializeFields();
    void ResizeGrid();
    void GetOriginalGridSize();
    void GetDefaultDimension();
    void SetAllDisable();

    // Columns.
    ColDataType& CurrentColumn();
    ColDataType& Column(std::int32_t index); ///< By its index from 0; one that is not there fails with 9.
    void InitializeArray();
    void ReConstructArray(std::int32_t OldCount, std::int32_t NewCount);
    void BuildColumn(std::int32_t index, std::int32_t savedWidth);
    void ClearEditorRequests();
    bool FitWidth(std::int32_t col, std::u16string_view text);
    void ApplyDateFormat();

    // Data.
    void GetRecSize(std::int32_t& FieldCount, std::int32_t& RecordCount);
    void Load(std::shared_ptr<Recordset> recordset);
    void LoadRecords();
    void LoadCell(Recordset& recordset, std::int32_t row, std::int32_t index, std::int32_t fieldCount);
    bool TruthOf(const Value& value);
    void PaintBand(std::int32_t lastCol, std::int32_t parity);
    void GoToNewRow(std::int32_t first, std::int32_t count);
    [[nodiscard]] bool CanAggregate(std::int32_t col) const;
    template <class Visit>
    void ForEachText(std::int32_t col, const Visit& visit);
    void Extreme(std::int32_t col, ManipulateType dataType, int direction, std::u16string& result, bool& success);

    // The overlay: entering a cell.
    void MSFlexGrid1_EnterCell();
    void LayEditor();
    void PositionAndFontPass(std::u16string_view key);
    void ValueLoadPass(std::u16string_view key);
    void LoadCheckBox();
    void LoadTextBox();
    void LoadPicker();
    void LoadRichTextBox();
    void LoadListBox();
    void LoadMaskedEditor();
    std::shared_ptr<Editor> Active();
    std::shared_ptr<Editor> ActiveOf(std::u16string_view key);
    template <class Kind>
    std::shared_ptr<Kind> ActiveAs(std::u16string_view key);
    void SetActiveFont(std::u16string_view key);
    void SetActiveFontSize(std::u16string_view key);
    void PlaceActive(std::u16string_view key);
    std::u16string CurrentText();
    bool EqualInUpperCase(std::u16string_view one, std::u16string_view other);
    std::int32_t RowPixels();
    bool IsColEditable(std::int32_t Col);

    // The overlay: the sweep, the control arrays, leaving.
    void SetObjVisible(std::int32_t ControlType, std::int16_t Index);
    template <class Kind>
    void SweepOne(bool current, Kind& editor);
    template <class Kind>
    void SweepArray(bool isItsKind, ControlArray<Kind>& array, std::int16_t index);
    void SweepAs(std::int32_t ControlType);
    void SweepCurrentColumn();
    void SweepIgnoringFailures();
    std::shared_ptr<Editor> GetColControl(std::int32_t Col);
    bool IsArrayControl(std::int32_t Col);
    template <class Kind>
    std::int16_t MakeInstance(ControlArray<Kind>& array, std::int16_t counter);
    template <class Kind>
    void UnloadAllButFirst(ControlArray<Kind>& array, std::int16_t& counter);
    void Count(std::int16_t& counter);
    void LoadComboState(std::int32_t Index, std::u16string Setting);
    void LoadListState(std::int32_t Index, std::u16string Setting);
    void LoadMaskState(std::int32_t Index, std::u16string Setting);
    void LoadCommandState(std::int32_t Index, std::u16string Setting);
    void ResetMaskState();
    void ResetComboState();
    void ResetListState();
    void ResetCommandState();
    void ResetControlState();
    void SetGridFocus(std::int32_t Row, std::int32_t Col);
    void StandDown(Editor& editor);
    void CellWriteBack(std::u16string_view text);
    void FormatStr(std::u16string& Text, std::u16string Mask);

    // The cell advance.
    void IncrementCell(std::int16_t ColStep, std::int16_t RowStep);
    struct Advance;
    bool BeginAdvance();
    bool ChooseMove(Advance& advance);
    void MoveCursor(const Advance& advance);
    void ExpectScrolling();
    bool IsFunctionKey(std::int16_t KeyCode);

    // Handlers of the editors, and what their keys share.
    template <class Act>
    void HearKey(FieldControlType editor, const char16_t* procedure, std::int16_t& KeyCode, std::int16_t& Shift,
                 const Act& act);
    void LeaveBy(Editor& editor, KeyAction action);
    template <class Box>
    bool LeaveAtCaret(KeyAction action, Box& box);
    void Restore(Editor& editor);

    void Text1_Change();
    void Text1_GotFocus();
    void Text1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    void Text1_KeyPress(std::int16_t& KeyAscii);
    void Text1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);
    void Text1_DblClick();
    void Text1_Validate(bool& Cancel);
    void Text1_LostFocus();

    void MaskEdBox1_GotFocus(std::int16_t Index);
    void MaskEdBox1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift);
    void MaskEdBox1_KeyPress(std::int16_t& KeyAscii);
    void MaskEdBox1_KeyUp(std::int16_t Index, std::int16_t KeyCode);
    void MaskEdBox1_LostFocus();
    void WriteMaskedCell(MaskEdBox& box);
    bool IsInstanceOfCurrentColumn(std::int16_t Index, FieldControlType type);

    void Check1_Click();
    void Check1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    void Check1_LostFocus();
    void Check1_Validate();
    void Check1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void Check1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void Check1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    std::u16string_view CheckBoxValue();

    void Combo1_Change(std::int16_t Index);
    void Combo1_Click(std::int16_t Index);
    void Combo1_GotFocus();
    void Combo1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift);
    void Combo1_LostFocus();

    void List1_Click(std::int16_t Index);
    void List1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift);
    void List1_LostFocus();
    void List1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void List1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void List1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void WriteListSelection(std::int16_t Index);

    void WriteDate(const Value& date);
    void DTPicker1_Change();
    void DTPicker1_Click();
    void DTPicker1_CloseUp();
    void DTPicker1_DropDown();
    void DTPicker1_DblClick();
    void DTPicker1_Format(std::u16string& CallbackField, std::u16string& FormattedString);
    void DTPicker1_CallbackKeyDown(std::int16_t KeyCode, std::int16_t Shift, const std::u16string& CallbackField,
                                   double& CallbackDate);
    void DTPicker1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    void DTPicker1_KeyPress(std::int16_t& KeyAscii);
    void DTPicker1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);
    void DTPicker1_LostFocus();
    void DTPicker1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void DTPicker1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void DTPicker1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);

    void RichTextBox1_Change();
    void RichTextBox1_GotFocus();
    void RichTextBox1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    void RichTextBox1_KeyPress(std::int16_t& KeyAscii);
    void RichTextBox1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);
    void RichTextBox1_LostFocus();

    void Command1_Click(std::int16_t Index);
    void Command1_GotFocus();
    void Command1_KeyDown(std::int16_t Index, std::int16_t& KeyCode, std::int16_t& Shift);
    void Command1_LostFocus();
    void Command1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void Command1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void Command1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void DecideButtonOnUpperRow();
    void DecideButtonOnLastRow(bool bothScroll);
    void RequestBoth();
    void RequestHide();

    // Geometry of the grid.
    void GetVisibleRows();
    bool VisibleArea();
    bool IsVerticalScroll(std::int32_t FromRow, std::int32_t ToRow);
    bool IsHorizontalScroll(std::int32_t FromCol, std::int32_t ToCol);
    bool IsBothScroll();

    // Handlers of the grid.
    void MSFlexGrid1_GotFocus();
    void MSFlexGrid1_LostFocus();
    void MSFlexGrid1_Click();
    void MSFlexGrid1_Compare(std::int32_t Row1, std::int32_t Row2, std::int16_t& Cmp);
    void MSFlexGrid1_DblClick();
    void MSFlexGrid1_KeyDown(std::int16_t& KeyCode, std::int16_t& Shift);
    void MSFlexGrid1_KeyPress(std::int16_t& KeyAscii);
    void MSFlexGrid1_KeyUp(std::int16_t& KeyCode, std::int16_t& Shift);
    void MSFlexGrid1_LeaveCell();
    void MSFlexGrid1_MouseDown(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void MSFlexGrid1_MouseMove(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void MSFlexGrid1_MouseUp(std::int16_t& Button, std::int16_t& Shift, float& x, float& y);
    void MSFlexGrid1_RowColChange();
    void MSFlexGrid1_Scroll();
    void MSFlexGrid1_SelChange();
    bool IsOnHeaderBand(float x, float y);
    void MoveMarker();

    // Colours and row marker.
    void RefreshGridColor(std::int32_t FromRow, std::int32_t KeepCol);
    void RefreshSectionColor(bool Even);
    bool RefreshPicture(PictureType Picture, std::int32_t Row);

    // What the sheet stands on. Declared last, so that the names of the controls read as in the handlers.
    std::shared_ptr<Platform> platform_;
    std::unique_ptr<TessellonSheet> self_; ///< Not shared, which would cost each call what reading a cell does.
    bool ended_ = false;
    bool inHost_ = true; ///< The sheet's innermost frame has called the host, or the sheet has no frame at all.
    int depth_ = 0;
    std::uintptr_t stackTop_ = 0;
    std::size_t stackBudget_ = 0;
    /// Once handlers that start one another have used it up, every frame fails till the outermost call has returned,
    /// and one report is made: else each level on the way back would climb up again.
    enum class Stack : std::uint8_t { Enough, Spent, Told };
    Stack stack_ = Stack::Enough;

    Grid* const MSFlexGrid1;
    const std::shared_ptr<TextBox> Text1;
    const std::shared_ptr<CheckBox> Check1;
    ControlArray<ComboBox>* const Combo1;
    ControlArray<ListBox>* const List1;
    const std::shared_ptr<DTPicker> DTPicker1;
    ControlArray<MaskEdBox>* const MaskEdBox1;
    const std::shared_ptr<RichTextBox> RichTextBox1;
    ControlArray<CommandButton>* const Command1;
    Container* const UserControl;
    Tessellon::Screen* const Screen;
    Tessellon::RunTime* const RunTime;
};

} // namespace Tessellon
