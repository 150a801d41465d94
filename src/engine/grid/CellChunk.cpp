#include "engine/grid/CellChunk.h"

#include "engine/runtime/ByteUnits.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace Tessellon {

namespace {

constexpr std::uint16_t wideMark = 0x8000;
constexpr std::uint16_t lengthMask =
    0x7FFF; ///< As a length itself: the length stands in the arena, ahead of the units.
constexpr std::size_t longPrefix = sizeof(std::uint32_t);
constexpr std::size_t leastGarbage = 256;
/// Texts are widened by whole blocks, nearly all by one, so that their length costs no wrong guess of the processor.
/// The arena therefore has a block of known bytes behind its last text.
constexpr std::size_t block = 32;

bool IsAhead(const CellExtra& extra, const std::pair<std::int32_t, std::int32_t>& place)
{
    return std::pair(extra.Row, extra.Col) < place;
}

} // namespace

char16_t* TextScratch::Room(std::size_t units)
{
    if (units > capacity_) {
        const std::size_t wanted = std::max<std::size_t>(units + units / 2, 256);
        units_ = std::make_unique_for_overwrite<char16_t[]>(wanted);
        capacity_ = wanted;
    }
    return units_.get();
}

CellChunk::CellChunk(std::int32_t rows, std::int32_t cols)
    : rows_(rows)
    , cols_(cols)
{
}

void CellChunk::Hold(std::int32_t capacity)
{
    capacity_ = capacity;
}

CellChunk::Cell::Cell(std::size_t offset, std::size_t units, bool isWide)
    : Length(static_cast<std::uint16_t>(std::min<std::size_t>(units, lengthMask) | (isWide ? wideMark : 0U)))
{
    Offset(offset);
}

CellChunk::Extent CellChunk::ExtentOf(const Cell& cell) const
{
    const std::uint16_t length = cell.Length & lengthMask;
    const bool isWide = (cell.Length & wideMark) != 0;
    const std::size_t unitBytes = isWide ? 2 : 1;
    if (length != lengthMask)
        return {cell.Offset(), length, isWide, length * unitBytes};
    std::uint32_t units = 0;
    std::memcpy(&units, arena_.get() + cell.Offset(), longPrefix);
    return {cell.Offset() + longPrefix, units, isWide, units * unitBytes + longPrefix};
}

std::u16string_view CellChunk::Text(std::int32_t row, std::int32_t col, TextScratch& scratch) const
{
    if (!cells_)
        return {};
    const Cell cell = cells_[Index(row, col)];
    if (cell.Length == 0)
        return {};
    const Extent extent = ExtentOf(cell);
    char16_t* units = scratch.Room(extent.Units + block);
    const char* from = arena_.get() + extent.Begin;
    if (extent.IsWide)
        std::memcpy(units, from, extent.Units * 2);
    else
        for (std::size_t done = 0; done < extent.Units; done += block)
            for (std::size_t index = done; index < done + block; ++index)
                units[index] = static_cast<unsigned char>(from[index]);
    return {units, extent.Units};
}

void CellChunk::Resize(std::size_t capacity)
{
    auto arena = std::make_unique_for_overwrite<char[]>(capacity + block);
    if (arenaSize_ > 0)
        std::memcpy(arena.get(), arena_.get(), arenaSize_);
    std::memset(arena.get() + arenaSize_, 0, block);
    arena_ = std::move(arena);
    arenaCapacity_ = capacity;
}

char* CellChunk::Room(std::size_t bytes, std::size_t hint)
{
    const std::size_t wanted = arenaSize_ + bytes;
    if (wanted > arenaCapacity_) [[unlikely]] {
        if (wanted > std::numeric_limits<std::uint32_t>::max())
            throw std::bad_alloc();
        Resize(isTrimmed_ ? wanted + wanted / 8 : std::max({wanted, arenaCapacity_ * 2, hint, std::size_t{64}}));
    }
    return arena_.get() + arenaSize_;
}

std::size_t CellChunk::Take(std::size_t bytes)
{
    const std::size_t offset = std::exchange(arenaSize_, arenaSize_ + bytes);
    std::memset(arena_.get() + arenaSize_, 0, block);
    return offset;
}

void CellChunk::Drop(Cell& cell)
{
    if (cell.Length != 0)
        garbage_ += ExtentOf(cell).Bytes;
    cell = Cell();
}

bool CellChunk::Holds(const Cell& cell, std::u16string_view text, bool isWide) const
{
    if (cell.Length == 0)
        return text.empty();
    const Extent extent = ExtentOf(cell);
    if (extent.Units != text.size() || extent.IsWide != isWide)
        return false;
    const char* units = arena_.get() + extent.Begin;
    if (isWide)
        return std::memcmp(units, text.data(), extent.Units * 2) == 0;
    return std::equal(text.begin(), text.end(), units,
                      [](char16_t left, char right) { return left == static_cast<unsigned char>(right); });
}

bool CellChunk::SetText(std::int32_t row, std::int32_t col, std::u16string_view text, std::size_t hint)
{
    if (!cells_) {
        if (text.empty())
            return false;
        cells_ = std::make_unique<Cell[]>(Index(capacity_) * Index(cols_));
    }
    Cell& cell = cells_[Index(row, col)];
    if (cell.Length == 0) {
        if (text.empty())
            return false;
        // Of a text that goes into an empty cell it shows on the way whether it is wide.
        if (text.size() < lengthMask && Narrow(Room(text.size(), hint), text))
            cell = {Take(text.size()), text.size(), false};
        else
            Append(cell, text, !FitsBytes(text), hint);
        return true;
    }
    const bool isWide = !FitsBytes(text);
    if (Holds(cell, text, isWide))
        return false;
    const std::size_t bytes = BytesOf(text, isWide);
    const std::size_t before = ExtentOf(cell).Bytes;
    if (bytes > before) {
        Append(cell, text, isWide, hint);
        garbage_ += before;
    } else {
        Write(arena_.get() + cell.Offset(), text, isWide);
        cell = {cell.Offset(), text.size(), isWide};
        garbage_ += before - bytes;
    }
    if (garbage_ > leastGarbage && garbage_ > arenaSize_ / 2)
        Compact();
    return true;
}

void CellChunk::Append(Cell& cell, std::u16string_view text, bool isWide, std::size_t hint)
{
    const std::size_t bytes = BytesOf(text, isWide);
    Write(Room(bytes, hint), text, isWide);
    cell = {Take(bytes), text.size(), isWide};
}

std::size_t CellChunk::BytesOf(std::u16string_view text, bool isWide)
{
    return text.size() * (isWide ? 2 : 1) + (text.size() >= lengthMask ? longPrefix : 0);
}

void CellChunk::Write(char* to, std::u16string_view text, bool isWide)
{
    if (text.size() >= lengthMask) {
        const auto units = static_cast<std::uint32_t>(text.size());
        std::memcpy(to, &units, longPrefix);
        to += longPrefix;
    }
    if (isWide)
        std::memcpy(to, text.data(), text.size() * 2);
    else
        Narrow(to, text);
}

void CellChunk::CopyText(Cell& cell, const CellChunk& from, const Cell& source)
{
    if (source.Length == 0)
        return;
    const std::size_t bytes = from.ExtentOf(source).Bytes;
    std::memcpy(Room(bytes, 0), from.arena_.get() + source.Offset(), bytes);
    cell.Offset(Take(bytes));
    cell.Length = source.Length;
}

std::size_t CellChunk::TextBytes(std::int32_t firstRow, std::int32_t count) const
{
    std::size_t bytes = 0;
    if (cells_)
        for (std::size_t index = Index(firstRow, 0); index < Index(firstRow + count, 0); ++index)
            if (cells_[index].Length != 0)
                bytes += ExtentOf(cells_[index]).Bytes;
    return bytes;
}

void CellChunk::Compact()
{
    CellChunk packed(rows_, cols_);
    packed.Hold(capacity_);
    packed.isTrimmed_ = true;
    packed.CopyRows(0, *this, 0, rows_);
    cells_ = std::move(packed.cells_);
    arena_ = std::move(packed.arena_);
    arenaSize_ = packed.arenaSize_;
    arenaCapacity_ = packed.arenaCapacity_;
    garbage_ = 0;
    isTrimmed_ = true;
}

std::size_t CellChunk::Trim()
{
    if (arenaCapacity_ - arenaSize_ > arenaSize_ / 8 + leastGarbage / 4)
        Resize(arenaSize_);
    isTrimmed_ = true;
    return arenaSize_;
}

void CellChunk::CopyRows(std::int32_t row, const CellChunk& from, std::int32_t firstRow, std::int32_t count)
{
    if (const std::size_t bytes = from.TextBytes(firstRow, count); bytes > 0) {
        if (arenaSize_ + bytes > arenaCapacity_)
            Resize(arenaSize_ + bytes);
        if (!cells_)
            cells_ = std::make_unique<Cell[]>(Index(capacity_) * Index(cols_));
        const std::int32_t shared = std::min(cols_, from.cols_);
        for (std::int32_t index = 0; index < count; ++index)
            for (std::int32_t col = 0; col < shared; ++col)
                CopyText(cells_[Index(row + index, col)], from, from.cells_[from.Index(firstRow + index, col)]);
    }
    for (std::int32_t index = 0; index < count; ++index)
        if (from.Band(firstRow + index) != 0)
            SetBand(row + index, from.Band(firstRow + index));
    for (CellExtra extra : from.extras_)
        if (extra.Row >= firstRow && extra.Row < firstRow + count && extra.Col < cols_) {
            extra.Row += row - firstRow;
            SetExtra(extra);
        }
}

void CellChunk::Cut(std::int32_t rows)
{
    if (cells_) {
        for (std::size_t index = Index(rows, 0); index < Index(rows_, 0); ++index)
            Drop(cells_[index]);
        if (garbage_ > leastGarbage && garbage_ > arenaSize_ / 2)
            Compact();
    }
    if (bands_)
        std::fill(bands_.get() + rows, bands_.get() + rows_, std::uint8_t{0});
    std::erase_if(extras_, [rows](const CellExtra& extra) { return extra.Row >= rows; });
    rows_ = rows;
}

void CellChunk::InsertRow(std::int32_t row)
{
    if (cells_) {
        std::move_backward(&cells_[0] + Index(row, 0), &cells_[0] + Index(rows_, 0), &cells_[0] + Index(rows_ + 1, 0));
        std::fill_n(&cells_[0] + Index(row, 0), cols_, Cell());
    }
    if (bands_) {
        std::move_backward(bands_.get() + row, bands_.get() + rows_, bands_.get() + rows_ + 1);
        bands_[Index(row)] = 0;
    }
    for (CellExtra& extra : extras_)
        if (extra.Row >= row)
            ++extra.Row;
    ++rows_;
}

void CellChunk::RemoveRow(std::int32_t row)
{
    if (cells_) {
        for (std::int32_t col = 0; col < cols_; ++col)
            Drop(cells_[Index(row, col)]);
        std::move(&cells_[0] + Index(row + 1, 0), &cells_[0] + Index(rows_, 0), &cells_[0] + Index(row, 0));
        std::fill_n(&cells_[0] + Index(rows_ - 1, 0), cols_, Cell());
    }
    if (bands_) {
        std::move(bands_.get() + row + 1, bands_.get() + rows_, bands_.get() + row);
        bands_[Index(rows_ - 1)] = 0;
    }
    std::erase_if(extras_, [row](const CellExtra& extra) { return extra.Row == row; });
    for (CellExtra& extra : extras_)
        if (extra.Row > row)
            --extra.Row;
    --rows_;
    if (cells_ && garbage_ > leastGarbage && garbage_ > arenaSize_ / 2)
        Compact();
}

void CellChunk::SetCols(std::int32_t cols)
{
    CellChunk other(rows_, cols);
    other.Hold(capacity_);
    other.isTrimmed_ = isTrimmed_;
    other.CopyRows(0, *this, 0, IsBlank() ? 0 : rows_);
    const bool isBare = !other.cells_ && !other.bands_ && other.extras_.empty();
    *this = std::move(other);
    if (isBare)
        capacity_ = 0;
}

std::unique_ptr<CellChunk> CellChunk::Split(std::int32_t row)
{
    auto next = std::make_unique<CellChunk>(rows_ - row, cols_);
    if (!IsBlank()) {
        next->Hold(capacity_);
        next->isTrimmed_ = isTrimmed_;
        next->CopyRows(0, *this, row, rows_ - row);
    }
    Cut(row);
    return next;
}

void CellChunk::Append(const CellChunk& next)
{
    const std::int32_t row = rows_;
    rows_ += next.rows_;
    if (!next.IsBlank())
        CopyRows(row, next, 0, next.rows_);
}

void CellChunk::SetBand(std::int32_t row, std::uint8_t band)
{
    if (!bands_) {
        if (band == 0)
            return;
        bands_ = std::make_unique<std::uint8_t[]>(Index(capacity_));
    }
    bands_[Index(row)] = band;
}

void CellChunk::RenumberBands(const std::vector<std::uint8_t>& numbers)
{
    if (bands_)
        std::for_each(bands_.get(), bands_.get() + rows_, [&](std::uint8_t& band) { band = numbers[band]; });
}

void CellChunk::MarkBands(std::vector<bool>& used) const
{
    if (bands_)
        std::for_each(bands_.get(), bands_.get() + rows_, [&](std::uint8_t band) { used[band] = true; });
}

const CellExtra* CellChunk::Extra(std::int32_t row, std::int32_t col) const
{
    if (extras_.empty())
        return nullptr;
    const auto found = std::lower_bound(extras_.begin(), extras_.end(), std::pair(row, col), IsAhead);
    return found != extras_.end() && found->Row == row && found->Col == col ? &*found : nullptr;
}

void CellChunk::SetExtra(const CellExtra& extra)
{
    const auto found = std::lower_bound(extras_.begin(), extras_.end(), std::pair(extra.Row, extra.Col), IsAhead);
    const bool isThere = found != extras_.end() && found->Row == extra.Row && found->Col == extra.Col;
    if (extra.IsPlain()) {
        if (isThere)
            extras_.erase(found);
    } else if (isThere) {
        *found = extra;
    } else {
        extras_.insert(found, extra);
    }
}

bool CellChunk::HasColors(std::int32_t row, std::int32_t firstCol, std::int32_t lastCol) const
{
    return std::ranges::any_of(extras_, [&](const CellExtra& extra) {
        return extra.HasColor && extra.Row == row && extra.Col >= firstCol && extra.Col <= lastCol;
    });
}

bool CellChunk::ClearColors(std::int32_t row, std::int32_t firstCol, std::int32_t lastCol)
{
    if (!HasColors(row, firstCol, lastCol))
        return false;
    for (CellExtra& extra : extras_)
        if (extra.Row == row && extra.Col >= firstCol && extra.Col <= lastCol) {
            extra.HasColor = false;
            extra.Color = 0;
        }
    std::erase_if(extras_, [](const CellExtra& extra) { return extra.IsPlain(); });
    return true;
}

std::size_t CellChunk::Bytes() const
{
    const std::size_t cells = cells_ ? Index(capacity_) * Index(cols_) * sizeof(Cell) : 0;
    return sizeof(CellChunk) + cells + (bands_ ? Index(capacity_) : 0) + (arena_ ? arenaCapacity_ + block : 0) +
           extras_.capacity() * sizeof(CellExtra);
}

} // namespace Tessellon
