#pragma once

#include "engine/grid/Axis.h"
#include "engine/grid/CellStore.h"
#include "engine/grid/GridSurroundings.h"
#include "engine/grid/GridTypes.h"
#include "engine/grid/Sight.h"
#include "platform/Grid.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// A mouse over the grid.
struct GridMouse {
    std::int16_t Button = 1; ///< 1 left, 2 right, 4 middle; of a move all that are held, added up.
    std::int16_t Shift = 0; ///< 1 Shift, 2 Ctrl, 4 Alt, added up.
    float X = 0; ///< Twips from the grid's left edge.
    float Y = 0; ///< Twips from the grid's upper edge.
};

/// What a press on the edge of a heading is.
enum class HeadingEdges : std::uint8_t {
    Resize, ///< The begin of a change of width, where AllowUserResizing permits it.
    Ignore, ///< A press on the heading, like any other.
};

/// The grid without a screen: cells, cursor, selection, scrolling and their events. A toolkit paints what it says and
/// hands it what the user does. It raises the mouse events, the cell events, SelChange and Scroll; the focus and the
/// key events are told by others. The surroundings must outlive it; it asks them for the default sizes when it is made.
class GridEngine : public Grid {
public:
    explicit GridEngine(GridSurroundings& surroundings);
    GridEngine(const GridEngine&) = delete;
    GridEngine& operator=(const GridEngine&) = delete;

    std::int32_t Rows() override { return rows_.Count(); }
    void Rows(std::int32_t rows) override;
    std::int32_t Cols() override { return cols_.Count(); }
    void Cols(std::int32_t cols) override;
    std::int32_t FixedRows() override { return fixedRows; }
    std::int32_t FixedCols() override { return fixedCols; }

    std::int32_t Row() override { return selection_.Current.Row; }
    void Row(std::int32_t row) override;
    std::int32_t Col() override { return selection_.Current.Col; }
    void Col(std::int32_t col) override;
    std::int32_t RowSel() override { return selection_.Corner.Row; }
    void RowSel(std::int32_t row) override;
    std::int32_t ColSel() override { return selection_.Corner.Col; }
    void ColSel(std::int32_t col) override;
    std::int32_t TopRow() override { return topRow_; }
    void TopRow(std::int32_t row) override;
    std::int32_t LeftCol() override { return leftCol_; }
    void LeftCol(std::int32_t col) override;

    std::int32_t ColWidth(std::int32_t col) override;
    void ColWidth(std::int32_t col, std::int32_t width) override;
    std::int32_t RowHeight(std::int32_t row) override;
    void RowHeight(std::int32_t row, std::int32_t height) override; ///< -1 restores the default.
    void RowHeightMin(std::int32_t height) override;
    std::int16_t ColAlignment(std::int32_t col) override;
    void ColAlignment(std::int32_t col, std::int16_t alignment) override;

    std::u16string_view TextMatrix(std::int32_t row, std::int32_t col) override;
    void TextMatrix(std::int32_t row, std::int32_t col, std::u16string_view text) override;

    std::int32_t CellLeft() override { return ShownCurrentCell().Left; }
    std::int32_t CellTop() override { return ShownCurrentCell().Top; }
    std::int32_t CellWidth() override { return ShownCurrentCell().Width; }
    std::int32_t CellHeight() override { return ShownCurrentCell().Height; }

    void CellBackColor(std::int32_t color) override;
    void CellPicture(Picture picture) override;
    void CellPictureAlignment(std::int16_t alignment) override;

    void FillStyle(std::int16_t style) override;
    std::int16_t GridLineWidth() override { return 1; }
    std::int32_t BackColor() override;
    Font GetFont() override { return font_; }
    void SetFont(const Font& font) override;
    std::u16string_view FontName() override { return font_.Name; }
    void FontSize(double points) override;
    bool Enabled() override { return isEnabled_; }
    void Enabled(bool enabled) override;
    void AllowUserResizing(std::int16_t mode) override;
    void Redraw(bool redraw) override;

    void AddItem(std::u16string_view text, std::int32_t index) override;
    void RemoveItem(std::int32_t index) override;
    void Refresh() override;
    void SetFocus() override { surroundings_.TakeFocusByCode(); }
    void Move(float left, float top, float width, float height) override;
    float Height() override { return height_; }

    /// The custom sort: puts the data rows into the order that the host gives them, through Compare. It is raised once
    /// for each pair that is compared, with the numbers of both rows, which are all still at their places; Cmp comes
    /// back -1 (below 0) for a Row1 that goes first, 0 for two rows that keep their order, 1 (above 0) for a Row2 that
    /// goes first. Rows go with their texts, colours, pictures and heights; the cursor stays on its row number, and no
    /// cell event is raised. Nothing is moved when a failure leaves the handler, or when it adds or removes rows or
    /// columns, which ends the sort.
    void SortByCompare();

    // ---- What the user does. A disabled grid takes none of it. A failure that leaves a handler leaves these. --------

    /// A button goes down. The cell is the one at the position once the grid has the focus. False: the press was lost,
    /// and its release will be nothing.
    bool PressMouse(const GridMouse& mouse, HeadingEdges edges = HeadingEdges::Resize);
    /// The second press of a double click: tells it, moves nothing.
    bool DoublePressMouse(const GridMouse& mouse);
    /// The mouse moves: with the left button held it selects or resizes, as its press began.
    void MoveMouse(const GridMouse& mouse);
    /// The mouse moves, and only its event is wanted.
    void HoverMouse(const GridMouse& mouse);
    /// A button goes up. Nothing without its press.
    void ReleaseMouse(const GridMouse& mouse);

    // The same in the middle of a cell, also of one that has no width, is out of view or lies under an editor. For a
    // cell that is not there they do nothing.
    bool PressCell(GridCell cell, std::int16_t button = 1, std::int16_t shift = 0);
    bool DoublePressCell(GridCell cell, std::int16_t button = 1, std::int16_t shift = 0);
    void DragToCell(GridCell cell, std::int16_t shift = 0);
    /// Where the mouse was last pressed or dragged.
    void ReleaseHere(std::int16_t button = 1, std::int16_t shift = 0);

    [[nodiscard]] bool IsHeld(std::int16_t button) const { return (held_ & button) != 0; }
    void AbandonPress(); ///< The toolkit lost the mouse: no release will come.

    /// Every 50 ms while a selecting drag is held outside: scrolls one row or column that way, and the selection's
    /// corner goes with it.
    void StepDrag(float x, float y);

    void ScrollIntoView(GridCell cell); ///< By the scroll bars, by the least that shows the cell whole; rows first.
    void ScrollTo(std::int32_t topRow, std::int32_t leftCol); ///< The scroll bars are moved. Clamped.
    void TurnWheel(std::int32_t notches, std::int16_t shift); ///< Above 0: away from the user, so towards the start.

    /// What a key means in the grid that has the focus. Called behind KeyDown, with the KeyCode that came back from it.
    void PressKey(std::int16_t keyCode, std::int16_t shift);
    /// A character that was typed. Called behind KeyPress, with the KeyAscii that came back from it.
    void TypeCharacter(std::int16_t keyAscii);

    // ---- What there is to paint. ------------------------------------------------------------------------------------

    [[nodiscard]] GridRectangle View() const; ///< The grid less its scroll bars.
    [[nodiscard]] GridSpan VisibleRows() const; ///< Data rows that are at least partly in view.
    [[nodiscard]] GridSpan VisibleCols() const;
    /// Of a cell, as scrolled now, also out of view. Not cut off at the headings or the view's edges.
    [[nodiscard]] GridRectangle RectangleOf(GridCell cell) const;
    [[nodiscard]] std::u16string_view TextOf(GridCell cell); ///< Valid until the next call on the grid.
    [[nodiscard]] std::optional<std::int32_t> ColorOf(GridCell cell) const; ///< None: the colour of the grid.
    [[nodiscard]] Picture PictureOf(GridCell cell) const;
    [[nodiscard]] std::int16_t PictureAlignmentOf(GridCell cell) const; ///< 4 is centred both ways.
    [[nodiscard]] std::int16_t AlignmentOf(std::int32_t col) const;
    [[nodiscard]] const GridSelection& Selection() const { return selection_; }
    [[nodiscard]] GridScrollRange RowScroll() const;
    [[nodiscard]] GridScrollRange ColScroll() const;
    [[nodiscard]] bool IsPaintingHeld() const { return !redraw_; } ///< Redraw is False.
    [[nodiscard]] std::optional<GridCell> CellAt(float x, float y) const;
    /// The column whose heading's edge is there and may be pulled; the pointer shows it.
    [[nodiscard]] std::optional<std::int32_t> EdgeAt(float x, float y) const;
    [[nodiscard]] bool IsResizing() const { return press_.Does == Gesture::Resize; }

    /// The toolkit has painted, of itself, all that was invalidated.
    void Painted() { isPaintDue_ = false; }
    [[nodiscard]] std::size_t Bytes() const { return cells_.Bytes(); } ///< What the cells hold of memory.
    /// The metrics of the font are others (another screen): asks for the default sizes again.
    void FontMetricsChanged();

private:
    enum class Gesture : std::uint8_t { None, Select, Resize };
    enum class Telling : std::uint8_t { OfAnother, Always };

    /// What the left button's press began.
    struct Press {
        Gesture Does = Gesture::None;
        bool Clicks = false; ///< Its release raises Click.
        bool Extends = false; ///< It has changed the selection's corner, which is still to be told.
        std::int32_t Col = 0; ///< Being resized,
        std::int32_t Width = 0; ///< from this width,
        float X = 0; ///< from this position.
    };

    static constexpr std::int32_t fixedRows = 1;
    static constexpr std::int32_t fixedCols = 1;

    // Shape
    void NeedRow(std::int32_t row) const;
    void NeedCol(std::int32_t col) const;
    void NeedCell(std::int32_t row, std::int32_t col) const;
    void MeasureCols();
    [[nodiscard]] bool IsThere(GridCell cell) const;
    [[nodiscard]] bool IsData(GridCell cell) const { return cell.Row >= fixedRows && cell.Col >= fixedCols; }
    [[nodiscard]] GridCell Pulled(GridCell cell) const;
    [[nodiscard]] GridSelection Pulled(const GridSelection& selection) const;
    void PullCursor();
    template <typename Change>
    void ChangeCells(Change change);
    [[nodiscard]] bool GoesBehind(std::int32_t row, std::int32_t other);
    void PutRows(const std::vector<std::int32_t>& order);

    // Cursor
    void Raise(ChildEvent event);
    [[nodiscard]] bool IsDrawing() const { return !redraw_ || fillStyle_ == 1; }
    void WriteCurrent(GridCell target, bool namesToldCell);
    void WriteCorner(GridCell corner);
    void MoveTo(GridSelection target, Telling telling = Telling::OfAnother);
    void TellSelection();

    // View
    [[nodiscard]] Sight RowSight() const;
    [[nodiscard]] Sight ColSight() const;
    void SetTopRow(std::int32_t row);
    void SetLeftCol(std::int32_t col);
    void BringIntoView(GridCell cell);
    [[nodiscard]] GridRectangle ShownCurrentCell();

    // Painting
    /// Data rows that are in view where no scroll bar takes room: what is out of reach needs no toolkit asked.
    [[nodiscard]] GridSpan RowsInReach() const;
    [[nodiscard]] bool IsRowInView(std::int32_t row) const
    {
        return row < fixedRows || (RowsInReach().Contains(row) && VisibleRows().Contains(row));
    }
    void Invalidate(const GridRectangle& part);
    void InvalidateCells(const GridSelection& cells);
    void InvalidateFromRow(std::int32_t row);
    void InvalidateFromCol(std::int32_t col);
    void InvalidateAll();
    void ShapeChanged()
    {
        visibleRows_.reset();
        rowsInReach_.reset();
    }
    void ShowCursor();
    void PaintDue();

    // Mouse and keys
    bool BeginPress(const GridMouse& mouse, std::optional<GridCell> named, HeadingEdges edges, bool isSecond);
    void PressOn(GridCell cell, std::int16_t shift);
    void PressOnHeading(GridCell cell);
    void Extend(GridCell corner);
    void RaiseMouse(ChildEvent event, const GridMouse& mouse);
    [[nodiscard]] GridMouse MiddleOf(GridCell cell, std::int16_t button, std::int16_t shift) const;
    [[nodiscard]] std::int32_t FirstShownCol() const { return cols_.NextShown(fixedCols); }
    [[nodiscard]] bool HasShownData() const;
    [[nodiscard]] std::optional<GridCell> KeyTarget(std::int16_t keyCode, bool ctrl, GridCell from) const;
    void CopySelection();

    GridSurroundings& surroundings_;
    Font font_; ///< Ahead of the sizes that come from it.
    CellStore cells_;
    Axis rows_;
    Axis cols_;
    std::vector<std::int16_t> alignments_; ///< Of the columns.
    std::vector<std::int32_t> colWidths_; ///< As cols_ has them: a load asks for one at each cell.

    GridSelection selection_;
    GridCell toldCell_; ///< The cell that was announced last.
    GridSelection toldSelection_; ///< The selection that was announced last.
    std::int32_t topRow_ = fixedRows;
    std::int32_t leftCol_ = fixedCols;

    bool isEnabled_ = true;
    bool redraw_ = true;
    std::int16_t fillStyle_ = 0;
    std::int16_t userResizing_ = 0;
    float width_ = 0;
    float height_ = 0;

    std::int16_t held_ = 0; ///< Buttons whose press was taken.
    Press press_;
    GridMouse mouse_; ///< Where it was last pressed or dragged.

    GridSelection shown_; ///< The selection that the view has been invalidated for.
    std::vector<GridRectangle> heldParts_; ///< Invalidated while Redraw is False.
    bool isPaintDue_ = false;
    mutable std::optional<GridSpan> visibleRows_;
    mutable std::int32_t visibleIn_ = 0; ///< The height of the view that visibleRows_ were found for.
    mutable std::optional<GridSpan> rowsInReach_;
};

} // namespace Tessellon
