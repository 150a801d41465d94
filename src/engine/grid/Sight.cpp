#include "engine/grid/Sight.h"

#include <algorithm>

namespace Tessellon {

std::int64_t Sight::Begin(std::int32_t index) const
{
    const std::int64_t position = axis_.Position(index);
    return index < fixed_ ? position : position - axis_.Position(first_) + axis_.Position(fixed_);
}

GridSpan Sight::Visible() const
{
    if (Room() <= 0 || first_ >= axis_.Count())
        return {first_, first_ - 1};
    return {first_, std::min(axis_.At(axis_.Position(first_) + Room() - 1), axis_.Count() - 1)};
}

std::int32_t Sight::LastPage() const
{
    const std::int32_t last = axis_.PreviousShown(axis_.Count() - 1);
    if (last <= fixed_)
        return fixed_;
    return std::clamp(axis_.FirstFrom(axis_.Extent() - Room()), fixed_, last);
}

std::int32_t Sight::Clamped(std::int32_t wanted) const
{
    return std::clamp(wanted, fixed_, LastPage());
}

std::int32_t Sight::Showing(std::int32_t index) const
{
    if (index < fixed_)
        return first_;
    if (index < first_)
        return index;
    const std::int64_t end = axis_.Position(index + 1);
    if (end - axis_.Position(first_) <= Room())
        return first_;
    return std::clamp(axis_.FirstFrom(end - Room()), first_, index);
}

std::int32_t Sight::Page() const
{
    const std::int32_t cut = axis_.At(axis_.Position(first_) + std::max<std::int64_t>(Room(), 0));
    return std::max(cut - first_, 1);
}

SightCut Sight::Cut(std::int32_t from, std::int32_t to) const
{
    const std::int64_t edge = axis_.Position(fixed_);
    const std::int64_t begin = from < fixed_ ? Begin(from) : std::max(Begin(from), edge);
    const std::int64_t end = to < fixed_ ? axis_.Position(to + 1) : std::max(Begin(to + 1), edge);
    return {static_cast<std::int32_t>(std::clamp<std::int64_t>(begin, 0, size_)),
            static_cast<std::int32_t>(std::clamp<std::int64_t>(end, 0, size_))};
}

std::int32_t Sight::At(float position) const
{
    if (!(position >= 0) || static_cast<double>(position) >= size_)
        return -1;
    const auto twips = static_cast<std::int64_t>(position);
    const std::int64_t edge = axis_.Position(fixed_);
    const std::int32_t index = twips < edge ? axis_.At(twips) : axis_.At(axis_.Position(first_) + twips - edge);
    return index < axis_.Count() ? index : -1;
}

} // namespace Tessellon
