#include "engine/grid/CellStore.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tessellon {

namespace {

constexpr std::int32_t cellsOfChunk = 4096;
constexpr std::int32_t leastRows = 16;
constexpr std::int32_t mostRows = 1024;
constexpr std::size_t mostBands = 256;

std::ptrdiff_t At(std::size_t index)
{
    return static_cast<std::ptrdiff_t>(index);
}

} // namespace

CellStore::CellStore(std::int32_t rows, std::int32_t cols)
    : rows_(0)
    , cols_(cols)
    , bands_(1)
{
    SetRows(rows);
}

std::int32_t CellStore::ChunkRows() const
{
    return std::clamp(cellsOfChunk / std::max(cols_, 1), leastRows, mostRows);
}

std::size_t CellStore::FindAfresh(std::int32_t row) const
{
    if (hit_ + 1 < firsts_.size() && Holds(hit_ + 1, row))
        return ++hit_;
    auto guess = std::min(static_cast<std::size_t>(static_cast<std::int64_t>(row * chunksPerRow_)), firsts_.size() - 1);
    guess -= static_cast<std::size_t>(firsts_[guess] > row);
    if (Holds(guess, row))
        return hit_ = guess;
    const auto behind = std::ranges::upper_bound(firsts_, row);
    return hit_ = static_cast<std::size_t>(std::distance(firsts_.begin(), behind)) - 1;
}

void CellStore::MoveFirsts(std::size_t from, std::int32_t by)
{
    for (std::size_t chunk = from; chunk < firsts_.size(); ++chunk)
        firsts_[chunk] += by;
}

void CellStore::PutChunk(std::size_t chunk, std::int32_t first, std::unique_ptr<CellChunk> added)
{
    chunks_.insert(chunks_.begin() + At(chunk), std::move(added));
    firsts_.insert(firsts_.begin() + At(chunk), first);
    chunksPerRow_ = static_cast<double>(firsts_.size()) / std::max(firsts_.back() + chunks_.back()->Rows(), 1);
}

void CellStore::TakeChunk(std::size_t chunk)
{
    if (chunks_[chunk].get() == filling_)
        filling_ = nullptr;
    chunks_.erase(chunks_.begin() + At(chunk));
    firsts_.erase(firsts_.begin() + At(chunk));
}

void CellStore::SplitChunk(std::size_t chunk, std::int32_t row)
{
    PutChunk(chunk + 1, firsts_[chunk] + row, chunks_[chunk]->Split(row));
}

void CellStore::SetRows(std::int32_t rows)
{
    while (rows < rows_) {
        const std::size_t last = chunks_.size() - 1;
        if (firsts_[last] >= rows)
            TakeChunk(last);
        else
            chunks_[last]->Cut(rows - firsts_[last]);
        rows_ = chunks_.empty() ? 0 : firsts_.back() + chunks_.back()->Rows();
    }
    if (rows > rows_) {
        if (!chunks_.empty() && chunks_.back()->IsBlank())
            chunks_.back()->Grow(rows - rows_);
        else
            PutChunk(chunks_.size(), rows_, std::make_unique<CellChunk>(rows - rows_, cols_));
        rows_ = rows;
    }
}

void CellStore::SetCols(std::int32_t cols)
{
    if (cols == cols_)
        return;
    for (const std::unique_ptr<CellChunk>& chunk : chunks_)
        chunk->SetCols(cols);
    cols_ = cols;
    // A band that ended in a dropped column must not reach into the next one of that number.
    std::vector<std::uint8_t> numbers(bands_.size());
    bool anyGone = false;
    for (std::size_t band = 1; band < bands_.size(); ++band) {
        bands_[band].LastCol = std::min(bands_[band].LastCol, cols - 1);
        const bool isGone = bands_[band].LastCol < bands_[band].FirstCol;
        numbers[band] = static_cast<std::uint8_t>(isGone ? 0 : band);
        anyGone = anyGone || isGone;
    }
    if (anyGone)
        for (const std::unique_ptr<CellChunk>& chunk : chunks_)
            chunk->RenumberBands(numbers);
}

void CellStore::InsertRow(std::int32_t row)
{
    if (row == rows_) {
        if (chunks_.back()->IsBlank() || chunks_.back()->Rows() == chunks_.back()->Capacity())
            SetRows(rows_ + 1);
        else {
            chunks_.back()->InsertRow(chunks_.back()->Rows());
            ++rows_;
        }
        return;
    }
    std::size_t chunk = Find(row);
    if (chunks_[chunk]->IsBlank()) {
        chunks_[chunk]->Grow(1);
    } else {
        if (chunks_[chunk]->Rows() == chunks_[chunk]->Capacity()) {
            SplitChunk(chunk, chunks_[chunk]->Rows() / 2);
            chunk = Find(row);
        }
        chunks_[chunk]->InsertRow(row - firsts_[chunk]);
    }
    MoveFirsts(chunk + 1, 1);
    ++rows_;
}

void CellStore::RemoveRow(std::int32_t row)
{
    const std::size_t chunk = Find(row);
    if (chunks_[chunk]->IsBlank())
        chunks_[chunk]->Cut(chunks_[chunk]->Rows() - 1);
    else
        chunks_[chunk]->RemoveRow(row - firsts_[chunk]);
    MoveFirsts(chunk + 1, -1);
    --rows_;
    if (chunks_[chunk]->Rows() == 0) {
        TakeChunk(chunk);
    } else if (chunk + 1 < chunks_.size()) {
        // Half full at most, so that a row inserted next does not split it again.
        CellChunk& here = *chunks_[chunk];
        const CellChunk& next = *chunks_[chunk + 1];
        if (!here.IsBlank() && !next.IsBlank() && here.Rows() + next.Rows() <= here.Capacity() / 2) {
            here.Append(next);
            TakeChunk(chunk + 1);
        }
    }
}

CellChunk& CellStore::Hold(std::size_t chunk, std::int32_t row)
{
    // A blank stretch is as long as it is; only what is written into becomes a chunk of the ordinary size.
    const std::int32_t capacity = ChunkRows();
    const std::int32_t offset = row - firsts_[chunk];
    if (const std::int32_t begin = offset - offset % capacity; begin > 0)
        SplitChunk(chunk++, begin);
    if (chunks_[chunk]->Rows() > capacity)
        SplitChunk(chunk, capacity);
    chunks_[chunk]->Hold(capacity);
    hit_ = chunk;
    return *chunks_[chunk];
}

CellChunk& CellStore::Writable(std::int32_t row, std::int32_t& rowInChunk)
{
    CellChunk& chunk = Held(Find(row), row);
    rowInChunk = row - firsts_[hit_];
    return chunk;
}

std::u16string_view CellStore::Text(std::int32_t row, std::int32_t col)
{
    const std::size_t chunk = Find(row);
    return chunks_[chunk]->Text(row - firsts_[chunk], col, scratch_);
}

bool CellStore::SetText(std::int32_t row, std::int32_t col, std::u16string_view text)
{
    const std::size_t found = Find(row);
    if (chunks_[found]->IsBlank() && text.empty())
        return false;
    CellChunk& chunk = Held(found, row);
    if (&chunk != filling_)
        Fill(chunk);
    return chunk.SetText(row - firsts_[hit_], col, text, textHint_);
}

void CellStore::Fill(CellChunk& chunk)
{
    if (filling_ != nullptr) {
        const std::size_t bytes = filling_->Trim();
        textHint_ = bytes + bytes / 16;
    }
    filling_ = &chunk;
}

std::optional<std::int32_t> CellStore::Color(std::int32_t row, std::int32_t col) const
{
    const std::size_t at = Find(row);
    const CellChunk& chunk = *chunks_[at];
    if (const CellExtra* extra = chunk.Extra(row - firsts_[at], col); extra != nullptr && extra->HasColor)
        return extra->Color;
    const Band& band = bands_[chunk.Band(row - firsts_[at])];
    return col >= band.FirstCol && col <= band.LastCol ? std::optional(band.Color) : std::nullopt;
}

void CellStore::ForgetUnusedBands()
{
    std::vector<bool> used(bands_.size());
    for (const std::unique_ptr<CellChunk>& chunk : chunks_)
        chunk->MarkBands(used);
    used[0] = true;
    std::vector<std::uint8_t> numbers(bands_.size());
    std::size_t kept = 0;
    for (std::size_t band = 0; band < bands_.size(); ++band)
        if (used[band]) {
            bands_[kept] = bands_[band];
            numbers[band] = static_cast<std::uint8_t>(kept++);
        }
    bands_.resize(kept);
    for (const std::unique_ptr<CellChunk>& chunk : chunks_)
        chunk->RenumberBands(numbers);
}

std::uint8_t CellStore::BandNumber(const Band& band)
{
    const auto find = [&] {
        const auto found = std::find(bands_.rbegin(), bands_.rend() - 1, band);
        return static_cast<std::size_t>(std::distance(found, bands_.rend())) - 1;
    };
    if (const std::size_t known = find(); known != 0)
        return static_cast<std::uint8_t>(known);
    if (bands_.size() == mostBands)
        ForgetUnusedBands();
    if (bands_.size() == mostBands)
        return 0;
    bands_.push_back(band);
    return static_cast<std::uint8_t>(bands_.size() - 1);
}

bool CellStore::SetColor(std::int32_t row, std::int32_t firstCol, std::int32_t lastCol, std::int32_t color)
{
    std::int32_t rowInChunk = 0;
    CellChunk& chunk = Writable(row, rowInChunk);
    const Band& old = bands_[chunk.Band(rowInChunk)];
    if (old.Color == color && old.FirstCol <= firstCol && old.LastCol >= lastCol &&
        !chunk.HasColors(rowInChunk, firstCol, lastCol))
        return false;
    const bool isCovered = chunk.Band(rowInChunk) == 0 || (old.FirstCol >= firstCol && old.LastCol <= lastCol);
    if (isCovered) {
        if (const std::uint8_t number = BandNumber({color, firstCol, lastCol}); number != 0) {
            const bool isOther = chunk.Band(rowInChunk) != number;
            chunk.SetBand(rowInChunk, number);
            return chunk.ClearColors(rowInChunk, firstCol, lastCol) || isOther;
        }
    }
    bool isOther = false;
    for (std::int32_t col = firstCol; col <= lastCol; ++col)
        isOther = ChangeExtra(row, col,
                              [color](CellExtra& extra) {
                                  const bool differs = !extra.HasColor || extra.Color != color;
                                  extra.HasColor = true;
                                  extra.Color = color;
                                  return differs;
                              }) ||
                  isOther;
    return isOther;
}

template <typename Change>
bool CellStore::ChangeExtra(std::int32_t row, std::int32_t col, Change change)
{
    const std::size_t at = Find(row);
    const CellExtra* known = chunks_[at]->Extra(row - firsts_[at], col);
    CellExtra extra = known != nullptr ? *known : CellExtra();
    if (!change(extra))
        return false;
    CellChunk& chunk = Writable(row, extra.Row);
    extra.Col = col;
    chunk.SetExtra(extra);
    return true;
}

Picture CellStore::PictureOf(std::int32_t row, std::int32_t col) const
{
    const std::size_t at = Find(row);
    const CellExtra* extra = chunks_[at]->Extra(row - firsts_[at], col);
    return extra != nullptr ? extra->Shown : Picture::None;
}

bool CellStore::SetPicture(std::int32_t row, std::int32_t col, Picture picture)
{
    return ChangeExtra(row, col,
                       [picture](CellExtra& extra) { return std::exchange(extra.Shown, picture) != picture; });
}

std::int16_t CellStore::PictureAlignment(std::int32_t row, std::int32_t col) const
{
    const std::size_t at = Find(row);
    const CellExtra* extra = chunks_[at]->Extra(row - firsts_[at], col);
    return extra != nullptr ? extra->PictureAlignment : std::int16_t{0};
}

bool CellStore::SetPictureAlignment(std::int32_t row, std::int32_t col, std::int16_t alignment)
{
    return ChangeExtra(row, col, [alignment](CellExtra& extra) {
        return std::exchange(extra.PictureAlignment, alignment) != alignment;
    });
}

std::size_t CellStore::Bytes() const
{
    std::size_t bytes = sizeof(CellStore) + firsts_.capacity() * sizeof(std::int32_t) +
                        chunks_.capacity() * sizeof(chunks_[0]) + bands_.capacity() * sizeof(Band);
    for (const std::unique_ptr<CellChunk>& chunk : chunks_)
        bytes += chunk->Bytes();
    return bytes;
}

} // namespace Tessellon
