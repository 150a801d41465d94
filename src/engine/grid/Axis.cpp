#include "engine/grid/Axis.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace Tessellon {

namespace {

constexpr std::size_t largestBlock = 128;

} // namespace

Axis::Axis(std::int32_t count, std::int32_t defaultSize)
    : count_(0)
    , defaultSize_(defaultSize)
{
    SetCount(count);
}

std::int32_t Axis::Effective(std::int32_t own) const
{
    return std::max(own == defaultOwn ? defaultSize_ : own, minimumSize_);
}

void Axis::Touched(std::size_t block)
{
    known_ = std::min(known_, block + 1);
}

void Axis::KnowStarts() const
{
    if (known_ == blocks_.size() && starts_.size() == blocks_.size())
        return;
    starts_.resize(blocks_.size());
    for (std::size_t block = known_; block < blocks_.size(); ++block)
        starts_[block] = block == 0 ? Start{0, 0}
                                    : Start{starts_[block - 1].First + blocks_[block - 1].Count,
                                            starts_[block - 1].Position + blocks_[block - 1].Extent};
    known_ = blocks_.size();
}

void Axis::Measure()
{
    for (Block& block : blocks_) {
        block.Extent = 0;
        for (const Run& run : block.Runs)
            block.Extent += std::int64_t{run.Count} * Effective(run.Own);
    }
    known_ = 0;
}

Axis::Place Axis::Find(std::int32_t index) const
{
    KnowStarts();
    const auto behind = std::ranges::upper_bound(starts_, index, {}, &Start::First);
    const auto block = static_cast<std::size_t>(std::distance(starts_.begin(), behind)) - 1;
    std::int32_t offset = index - starts_[block].First;
    std::size_t run = 0;
    while (offset >= blocks_[block].Runs[run].Count)
        offset -= blocks_[block].Runs[run++].Count;
    return {block, run, offset};
}

void Axis::SetCount(std::int32_t count)
{
    last_ = {};
    if (count > count_) {
        const std::int32_t grown = count - count_;
        if (blocks_.empty())
            blocks_.emplace_back();
        else if (blocks_.back().Runs.back().Own != defaultOwn && blocks_.back().Runs.size() >= largestBlock)
            blocks_.emplace_back();
        Block& block = blocks_.back();
        if (block.Runs.empty() || block.Runs.back().Own != defaultOwn)
            block.Runs.push_back({0, defaultOwn});
        block.Runs.back().Count += grown;
        block.Count += grown;
        block.Extent += std::int64_t{grown} * Effective(defaultOwn);
    } else {
        std::int32_t surplus = count_ - count;
        while (surplus > 0 && blocks_.back().Count <= surplus) {
            surplus -= blocks_.back().Count;
            blocks_.pop_back();
        }
        while (surplus > 0) {
            Block& block = blocks_.back();
            Run& run = block.Runs.back();
            const std::int32_t taken = std::min(surplus, run.Count);
            block.Count -= taken;
            block.Extent -= std::int64_t{taken} * Effective(run.Own);
            surplus -= taken;
            run.Count -= taken;
            if (run.Count == 0)
                block.Runs.pop_back();
        }
    }
    count_ = count;
    known_ = std::min(known_, blocks_.size());
}

void Axis::Replace(const Place& place, std::int32_t removed, const Run* added)
{
    last_ = {};
    Block& block = blocks_[place.Block];
    const Run old = block.Runs[place.Run];
    const std::size_t from = place.Run == 0 ? 0 : place.Run - 1;
    const std::size_t to = std::min(place.Run + 2, block.Runs.size());

    std::array<Run, 5> pieces{};
    std::size_t count = 0;
    const auto put = [&](const Run& run) {
        if (run.Count == 0)
            return;
        if (count > 0 && pieces.at(count - 1).Own == run.Own)
            pieces.at(count - 1).Count += run.Count;
        else
            pieces.at(count++) = run;
    };
    if (from != place.Run)
        put(block.Runs[from]);
    put({place.Offset, old.Own});
    if (added != nullptr)
        put(*added);
    put({old.Count - place.Offset - removed, old.Own});
    if (to == place.Run + 2)
        put(block.Runs[place.Run + 1]);

    const std::size_t kept = std::min(count, to - from);
    std::copy_n(pieces.begin(), kept, block.Runs.begin() + static_cast<std::ptrdiff_t>(from));
    const auto end = block.Runs.begin() + static_cast<std::ptrdiff_t>(from + kept);
    if (kept < count)
        block.Runs.insert(end, pieces.begin() + static_cast<std::ptrdiff_t>(kept),
                          pieces.begin() + static_cast<std::ptrdiff_t>(count));
    else
        block.Runs.erase(end, block.Runs.begin() + static_cast<std::ptrdiff_t>(to));

    block.Count -= removed;
    block.Extent -= std::int64_t{removed} * Effective(old.Own);
    if (added != nullptr) {
        block.Count += added->Count;
        block.Extent += std::int64_t{added->Count} * Effective(added->Own);
    }
    Touched(place.Block);

    if (block.Runs.empty()) {
        blocks_.erase(blocks_.begin() + static_cast<std::ptrdiff_t>(place.Block));
        known_ = std::min(known_, place.Block);
    } else if (block.Runs.size() > largestBlock) {
        Block second;
        const auto half = block.Runs.begin() + static_cast<std::ptrdiff_t>(block.Runs.size() / 2);
        second.Runs.assign(half, block.Runs.end());
        block.Runs.erase(half, block.Runs.end());
        for (const Run& run : second.Runs) {
            second.Count += run.Count;
            second.Extent += std::int64_t{run.Count} * Effective(run.Own);
        }
        block.Count -= second.Count;
        block.Extent -= second.Extent;
        blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(place.Block) + 1, std::move(second));
    }
}

void Axis::Insert(std::int32_t index)
{
    if (index == count_) {
        SetCount(count_ + 1);
        return;
    }
    const Run added{1, defaultOwn};
    Replace(Find(index), 0, &added);
    ++count_;
}

void Axis::Remove(std::int32_t index)
{
    Replace(Find(index), 1, nullptr);
    --count_;
}

std::int32_t Axis::Size(std::int32_t index) const
{
    return Effective(Own(index));
}

std::int32_t Axis::Own(std::int32_t index) const
{
    if (!last_.Has(index))
        Remember(index);
    return last_.Own;
}

void Axis::Remember(std::int32_t index) const
{
    if (last_.Count > 0 && index == last_.First + last_.Count && last_.Run + 1 < blocks_[last_.Block].Runs.size()) {
        const Run& next = blocks_[last_.Block].Runs[last_.Run + 1];
        last_ = {index, next.Count, next.Own, last_.Block, last_.Run + 1};
        return;
    }
    const Place place = Find(index);
    const Run& run = blocks_[place.Block].Runs[place.Run];
    last_ = {index - place.Offset, run.Count, run.Own, place.Block, place.Run};
}

void Axis::SetOwn(std::int32_t index, std::int32_t size)
{
    if (Own(index) == size)
        return;
    const Place place{last_.Block, last_.Run, index - last_.First};
    if (MoveBorder(place, size))
        return;
    const Run added{1, size};
    Replace(place, 1, &added);
}

/// The first of a run goes over to the run ahead of it: what a walk does that gives one row after the other a size.
bool Axis::MoveBorder(const Place& place, std::int32_t size)
{
    Block& block = blocks_[place.Block];
    if (place.Offset != 0 || place.Run == 0 || block.Runs[place.Run - 1].Own != size ||
        block.Runs[place.Run].Count == 1)
        return false;
    Run& ahead = block.Runs[place.Run - 1];
    Run& run = block.Runs[place.Run];
    last_ = {last_.First - ahead.Count, ++ahead.Count, size, place.Block, place.Run - 1};
    --run.Count;
    block.Extent += Effective(size) - Effective(run.Own);
    Touched(place.Block);
    return true;
}

void Axis::SetDefaultSize(std::int32_t size)
{
    if (defaultSize_ == size)
        return;
    defaultSize_ = size;
    Measure();
}

void Axis::SetMinimumSize(std::int32_t size)
{
    if (minimumSize_ == size)
        return;
    minimumSize_ = size;
    Measure();
}

std::int64_t Axis::Position(std::int32_t index) const
{
    if (index <= 0)
        return 0;
    if (index >= count_) {
        KnowStarts();
        return blocks_.empty() ? 0 : starts_.back().Position + blocks_.back().Extent;
    }
    const Place place = Find(index);
    std::int64_t position = starts_[place.Block].Position;
    const std::vector<Run>& runs = blocks_[place.Block].Runs;
    for (std::size_t run = 0; run < place.Run; ++run)
        position += std::int64_t{runs[run].Count} * Effective(runs[run].Own);
    return position + std::int64_t{place.Offset} * Effective(runs[place.Run].Own);
}

std::int32_t Axis::At(std::int64_t position) const
{
    if (position < 0)
        return 0;
    if (position >= Extent())
        return count_;
    const auto behind = std::ranges::upper_bound(starts_, position, {}, &Start::Position);
    const auto block = static_cast<std::size_t>(std::distance(starts_.begin(), behind)) - 1;
    std::int32_t index = starts_[block].First;
    position -= starts_[block].Position;
    for (const Run& run : blocks_[block].Runs) {
        const std::int32_t size = Effective(run.Own);
        const std::int64_t extent = std::int64_t{run.Count} * size;
        if (position < extent)
            return index + static_cast<std::int32_t>(position / size);
        position -= extent;
        index += run.Count;
    }
    return index;
}

std::int32_t Axis::FirstFrom(std::int64_t position) const
{
    if (position <= 0)
        return 0;
    const std::int32_t index = At(position);
    if (index < count_ && Position(index) < position)
        return index + 1;
    // Those of size 0 just ahead begin at the same position.
    return position > Extent() ? count_ : PreviousShown(index - 1) + 1;
}

std::int32_t Axis::NextShown(std::int32_t index) const
{
    if (index >= count_)
        return count_;
    return Size(index) > 0 ? index : At(Position(index));
}

std::int32_t Axis::PreviousShown(std::int32_t index) const
{
    if (index < 0)
        return -1;
    if (Size(index) > 0)
        return index;
    const std::int64_t position = Position(index);
    return position == 0 ? -1 : At(position - 1);
}

std::size_t Axis::RunCount() const
{
    std::size_t count = 0;
    for (const Block& block : blocks_)
        count += block.Runs.size();
    return count;
}

} // namespace Tessellon
