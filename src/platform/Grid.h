#pragma once

#include "platform/Font.h"

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// A picture that a cell can show.
enum class Picture : std::uint8_t { None, Arrow };

/// The grid under the editors. Row 0 is the heading, column 0 the marker column; both are fixed. Widths, heights and
/// positions are whole twips. A text that is handed out stays valid until the next call on the grid.
///
/// Writing Row or Col moves the cursor and tells LeaveCell, EnterCell, RowColChange and SelChange before it returns,
/// unless Redraw is False or FillStyle is 1: then code is drawing with the cursor, and nothing is told.
/// A cell that is not there fails with 30009 (row), 30010 (column) or 381 (TextMatrix), a bad value with 380.
class Grid {
public:
    virtual ~Grid() = default;

    virtual std::int32_t Rows() = 0; ///< Heading included.
    virtual void Rows(std::int32_t rows) = 0; ///< Below FixedRows: failure 30016.
    virtual std::int32_t Cols() = 0; ///< Marker column included.
    virtual void Cols(std::int32_t cols) = 0; ///< Below FixedCols: failure 30017.
    virtual std::int32_t FixedRows() = 0;
    virtual std::int32_t FixedCols() = 0;

    virtual std::int32_t Row() = 0;
    virtual void Row(std::int32_t row) = 0;
    virtual std::int32_t Col() = 0;
    virtual void Col(std::int32_t col) = 0;
    virtual std::int32_t RowSel() = 0;
    virtual void RowSel(std::int32_t row) = 0;
    virtual std::int32_t ColSel() = 0;
    virtual void ColSel(std::int32_t col) = 0;
    virtual std::int32_t TopRow() = 0;
    virtual void TopRow(std::int32_t row) = 0; ///< Clamped, never a failure.
    virtual std::int32_t LeftCol() = 0;
    virtual void LeftCol(std::int32_t col) = 0; ///< Clamped, never a failure.

    virtual std::int32_t ColWidth(std::int32_t col) = 0;
    virtual void ColWidth(std::int32_t col, std::int32_t width) = 0; ///< -1 restores the default, 0 hides.
    virtual std::int32_t RowHeight(std::int32_t row) = 0; ///< The row's own height, or RowHeightMin where larger.
    virtual void RowHeight(std::int32_t row, std::int32_t height) = 0;
    virtual void RowHeightMin(std::int32_t height) = 0;
    virtual std::int16_t ColAlignment(std::int32_t col) = 0; ///< 1 left, 4 centre, 7 right.
    virtual void ColAlignment(std::int32_t col, std::int16_t alignment) = 0;

    virtual std::u16string_view TextMatrix(std::int32_t row, std::int32_t col) = 0;
    virtual void TextMatrix(std::int32_t row, std::int32_t col, std::u16string_view text) = 0;

    // The rectangle of the current cell. Reading any of the four first brings the cell into view, and may so tell
    // Scroll.
    virtual std::int32_t CellLeft() = 0;
    virtual std::int32_t CellTop() = 0;
    virtual std::int32_t CellWidth() = 0;
    virtual std::int32_t CellHeight() = 0;

    // Of the current cell, or of the whole selection while FillStyle is 1.
    virtual void CellBackColor(std::int32_t color) = 0;
    virtual void CellPicture(Picture picture) = 0;
    virtual void CellPictureAlignment(std::int16_t alignment) = 0;

    virtual void FillStyle(std::int16_t style) = 0;
    virtual std::int16_t GridLineWidth() = 0; ///< Pixels.
    virtual std::int32_t BackColor() = 0;
    virtual Font GetFont() = 0;
    virtual void SetFont(const Font& font) = 0;
    virtual std::u16string_view FontName() = 0;
    virtual void FontSize(double points) = 0; ///< Not above 0: failure 380.
    virtual bool Enabled() = 0;
    virtual void Enabled(bool enabled) = 0;
    virtual void AllowUserResizing(std::int16_t mode) = 0; ///< 0 nothing, 1 columns.
    virtual void Redraw(bool redraw) = 0;

    /// A new row ahead of row `index`, its text split at tabs from column 0; an index of -1 appends.
    virtual void AddItem(std::u16string_view text, std::int32_t index) = 0;
    virtual void RemoveItem(std::int32_t index) = 0;
    virtual void Refresh() = 0; ///< Paints what is due; costs nothing when nothing is.
    virtual void SetFocus() = 0;
    virtual void Move(float left, float top, float width, float height) = 0;
    virtual float Height() = 0;
};

} // namespace Tessellon
