#pragma once

#include "platform/Grid.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace Tessellon {

/// Room into which the text of one cell is widened. What it handed out last holds until it is asked again.
class TextScratch {
public:
    [[nodiscard]] char16_t* Room(std::size_t units);

private:
    std::unique_ptr<char16_t[]> units_;
    std::size_t capacity_ = 0;
};

/// What a cell has of its own beyond its text. Few cells have it.
struct CellExtra {
    std::int32_t Row = 0; ///< Within the chunk.
    std::int32_t Col = 0;
    std::int32_t Color = 0;
    std::int16_t PictureAlignment = 0;
    Picture Shown = Picture::None;
    bool HasColor = false;

    [[nodiscard]] bool IsPlain() const { return !HasColor && Shown == Picture::None && PictureAlignment == 0; }
};

/// A stretch of rows. Until something is written into it, it is blank: a count, and nothing else. The texts stand in
/// one arena, a byte a unit where all units of the text are below 256; a cell keeps where and how long.
class CellChunk {
public:
    CellChunk(std::int32_t rows, std::int32_t cols);

    [[nodiscard]] std::int32_t Rows() const { return rows_; }
    [[nodiscard]] std::int32_t Capacity() const { return capacity_; } ///< Rows there is room for; 0 while blank.
    [[nodiscard]] bool IsBlank() const { return capacity_ == 0; }

    void Grow(std::int32_t rows) { rows_ += rows; } ///< Blank only.
    void Cut(std::int32_t rows); ///< Keeps that many from the start.
    void Hold(std::int32_t capacity); ///< Ends being blank.
    void InsertRow(std::int32_t row); ///< There must be room for it.
    void RemoveRow(std::int32_t row);
    void SetCols(std::int32_t cols);
    /// The rows from `row` on, which leave this chunk.
    [[nodiscard]] std::unique_ptr<CellChunk> Split(std::int32_t row);
    /// Takes over the rows of the next chunk. There must be room for them.
    void Append(const CellChunk& next);

    [[nodiscard]] std::u16string_view Text(std::int32_t row, std::int32_t col, TextScratch& scratch) const;
    /// True if the text is another. `hint` is how many bytes of text a chunk like this is likely to hold in the end.
    bool SetText(std::int32_t row, std::int32_t col, std::u16string_view text, std::size_t hint);
    /// Gives back the room that the arena does not use, if that is much. Returns the bytes that it does use.
    std::size_t Trim();

    [[nodiscard]] std::uint8_t Band(std::int32_t row) const { return bands_ ? bands_[Index(row)] : std::uint8_t{0}; }
    void SetBand(std::int32_t row, std::uint8_t band);
    /// Gives each row's band the number that stands at its place in `numbers`.
    void RenumberBands(const std::vector<std::uint8_t>& numbers);
    void MarkBands(std::vector<bool>& used) const;

    [[nodiscard]] const CellExtra* Extra(std::int32_t row, std::int32_t col) const;
    void SetExtra(const CellExtra& extra); ///< One that has become plain goes.
    [[nodiscard]] bool HasColors(std::int32_t row, std::int32_t firstCol, std::int32_t lastCol) const;
    /// Takes the own colours from the cells of a row; true if there were any.
    bool ClearColors(std::int32_t row, std::int32_t firstCol, std::int32_t lastCol);

    [[nodiscard]] std::size_t Bytes() const; ///< All that the chunk holds of memory.

private:
    struct Cell {
        std::uint16_t OffsetLow = 0;
        std::uint16_t OffsetHigh = 0;
        std::uint16_t Length = 0; ///< Units; the top bit says two bytes a unit, all others set: see the arena.

        Cell() = default;
        Cell(std::size_t offset, std::size_t units, bool isWide);

        [[nodiscard]] std::uint32_t Offset() const { return OffsetLow | (std::uint32_t{OffsetHigh} << 16U); }
        void Offset(std::size_t offset)
        {
            OffsetLow = static_cast<std::uint16_t>(offset & 0xFFFFU);
            OffsetHigh = static_cast<std::uint16_t>(offset >> 16U);
        }
    };
    struct Extent {
        std::size_t Begin; ///< Of the units, in the arena.
        std::size_t Units;
        bool IsWide;
        std::size_t Bytes; ///< With what stands ahead of the units.
    };

    [[nodiscard]] static std::size_t Index(std::int32_t value) { return static_cast<std::size_t>(value); }
    [[nodiscard]] std::size_t Index(std::int32_t row, std::int32_t col) const
    {
        return Index(row) * Index(cols_) + Index(col);
    }
    [[nodiscard]] Extent ExtentOf(const Cell& cell) const;
    [[nodiscard]] bool Holds(const Cell& cell, std::u16string_view text, bool isWide) const;
    void Drop(Cell& cell);
    void Compact();
    void Resize(std::size_t capacity);
    [[nodiscard]] char* Room(std::size_t bytes, std::size_t hint); ///< Behind what the arena holds; not taken yet.
    std::size_t Take(std::size_t bytes); ///< Of the room; where it begins.
    [[nodiscard]] static std::size_t BytesOf(std::u16string_view text, bool isWide);
    static void Write(char* to, std::u16string_view text, bool isWide);
    void Append(Cell& cell, std::u16string_view text, bool isWide, std::size_t hint);
    void CopyText(Cell& cell, const CellChunk& from, const Cell& source);
    void CopyRows(std::int32_t row, const CellChunk& from, std::int32_t firstRow, std::int32_t count);
    [[nodiscard]] std::size_t TextBytes(std::int32_t firstRow, std::int32_t count) const;

    std::int32_t rows_;
    std::int32_t cols_;
    std::int32_t capacity_ = 0;
    std::unique_ptr<Cell[]> cells_;
    std::unique_ptr<std::uint8_t[]> bands_;
    std::unique_ptr<char[]> arena_;
    std::size_t arenaSize_ = 0;
    std::size_t arenaCapacity_ = 0;
    std::size_t garbage_ = 0; ///< Bytes of the arena that no cell uses any more.
    bool isTrimmed_ = false;
    std::vector<CellExtra> extras_; ///< By row, then column.
};

} // namespace Tessellon
