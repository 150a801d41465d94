#pragma once

#include "engine/grid/CellChunk.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace Tessellon {

/// Texts, colours and pictures of all cells, row by row in chunks. Rows and columns that are asked for must be there.
/// What changes something answers whether it did.
class CellStore {
public:
    CellStore(std::int32_t rows, std::int32_t cols);

    [[nodiscard]] std::int32_t Rows() const { return rows_; }
    [[nodiscard]] std::int32_t Cols() const { return cols_; }
    void SetRows(std::int32_t rows); ///< What is cut off is gone; what grows is empty.
    void SetCols(std::int32_t cols);
    void InsertRow(std::int32_t row); ///< An empty one ahead of `row`, which may be Rows.
    void RemoveRow(std::int32_t row);

    /// Holds until the next call of Text.
    [[nodiscard]] std::u16string_view Text(std::int32_t row, std::int32_t col);
    bool SetText(std::int32_t row, std::int32_t col, std::u16string_view text);

    [[nodiscard]] std::optional<std::int32_t> Color(std::int32_t row, std::int32_t col) const;
    bool SetColor(std::int32_t row, std::int32_t firstCol, std::int32_t lastCol, std::int32_t color);
    [[nodiscard]] Picture PictureOf(std::int32_t row, std::int32_t col) const;
    bool SetPicture(std::int32_t row, std::int32_t col, Picture picture);
    [[nodiscard]] std::int16_t PictureAlignment(std::int32_t row, std::int32_t col) const;
    bool SetPictureAlignment(std::int32_t row, std::int32_t col, std::int16_t alignment);

    [[nodiscard]] std::size_t Bytes() const; ///< All that the store holds of memory.
    [[nodiscard]] std::size_t ChunkCount() const { return chunks_.size(); }

private:
    /// One colour over a stretch of columns, for the rows that name it.
    struct Band {
        std::int32_t Color = 0;
        std::int32_t FirstCol = 0;
        std::int32_t LastCol = -1;
        bool operator==(const Band&) const = default;
    };

    [[nodiscard]] bool Holds(std::size_t chunk, std::int32_t row) const
    {
        return firsts_[chunk] <= row && (chunk + 1 == firsts_.size() || row < firsts_[chunk + 1]);
    }
    [[nodiscard]] std::size_t Find(std::int32_t row) const
    {
        return hit_ < firsts_.size() && Holds(hit_, row) ? hit_ : FindAfresh(row);
    }
    [[nodiscard]] std::size_t FindAfresh(std::int32_t row) const;
    [[nodiscard]] std::int32_t ChunkRows() const;
    CellChunk& Writable(std::int32_t row, std::int32_t& rowInChunk);
    void SplitChunk(std::size_t chunk, std::int32_t row);
    void PutChunk(std::size_t chunk, std::int32_t first, std::unique_ptr<CellChunk> added);
    void TakeChunk(std::size_t chunk);
    CellChunk& Held(std::size_t chunk, std::int32_t row)
    {
        return chunks_[chunk]->IsBlank() ? Hold(chunk, row) : *chunks_[chunk];
    }
    CellChunk& Hold(std::size_t chunk, std::int32_t row);
    void Fill(CellChunk& chunk);
    void MoveFirsts(std::size_t from, std::int32_t by);
    [[nodiscard]] std::uint8_t BandNumber(const Band& band);
    void ForgetUnusedBands();
    template <typename Change>
    bool ChangeExtra(std::int32_t row, std::int32_t col, Change change);

    std::int32_t rows_;
    std::int32_t cols_;
    std::vector<std::int32_t> firsts_; ///< First row of each chunk.
    double chunksPerRow_ = 0; ///< Where chunks are alike, this finds the right one at once.
    std::vector<std::unique_ptr<CellChunk>> chunks_;
    mutable std::size_t hit_ = 0; ///< The chunk found last.
    CellChunk* filling_ = nullptr; ///< The chunk whose arena is growing.
    std::size_t textHint_ = 0;
    std::vector<Band> bands_; ///< Number 0 is no band.
    TextScratch scratch_;
};

} // namespace Tessellon
