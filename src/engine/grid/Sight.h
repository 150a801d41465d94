#pragma once

#include "engine/grid/Axis.h"
#include "engine/grid/GridTypes.h"

#include <cstdint>

namespace Tessellon {

/// A stretch of the view in twips; End is the first twip that is not in it any more.
struct SightCut {
    std::int32_t Begin;
    std::int32_t End;
};

/// The rows or the columns as one looks at them now: the fixed ones, behind them those from `first` on, in a view of
/// `size` twips. For the moment only; it keeps no state.
class Sight {
public:
    Sight(const Axis& axis, std::int32_t fixed, std::int32_t first, std::int32_t size)
        : axis_(axis)
        , fixed_(fixed)
        , first_(first)
        , size_(size)
    {
    }

    [[nodiscard]] std::int64_t Begin(std::int32_t index) const; ///< Below 0 for what is scrolled away far enough.
    [[nodiscard]] GridSpan Visible() const; ///< Not fixed, and at least partly in view.
    [[nodiscard]] std::int32_t Clamped(std::int32_t wanted) const; ///< To what the scroll bar can reach.
    /// What must come first so that `index` is whole in view, as near to the present first as can be. One that is
    /// larger than the view comes first itself.
    [[nodiscard]] std::int32_t Showing(std::int32_t index) const;
    [[nodiscard]] std::int32_t Page() const; ///< How many are whole in view, at least 1.
    [[nodiscard]] GridScrollRange Range() const { return {fixed_, LastPage(), Page(), first_}; }
    [[nodiscard]] SightCut Cut(std::int32_t from, std::int32_t to) const; ///< What the view shows of a stretch.
    [[nodiscard]] std::int32_t At(float position) const; ///< -1 where none is.

private:
    [[nodiscard]] std::int64_t Room() const { return size_ - axis_.Position(fixed_); }
    [[nodiscard]] std::int32_t LastPage() const;

    const Axis& axis_;
    std::int32_t fixed_;
    std::int32_t first_;
    std::int32_t size_;
};

} // namespace Tessellon
