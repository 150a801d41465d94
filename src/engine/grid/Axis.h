#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Tessellon {

/// The sizes of the rows or of the columns, one behind the other, and where each begins. Neighbours of one size are
/// kept as one run, so that a million rows of one height cost no more than one row; among mixed sizes a place is found
/// by bisection over blocks of runs. Sizes and positions are twips.
class Axis {
public:
    static constexpr std::int32_t defaultOwn = -1; ///< The own size of what follows the default.

    explicit Axis(std::int32_t count, std::int32_t defaultSize);

    [[nodiscard]] std::int32_t Count() const { return count_; }
    void SetCount(std::int32_t count); ///< Cuts at the end, or grows there by default sizes.
    void Insert(std::int32_t index); ///< One of default size ahead of `index`, which may be Count.
    void Remove(std::int32_t index);

    [[nodiscard]] std::int32_t Size(std::int32_t index) const; ///< Own or default size, or the minimum where larger.
    [[nodiscard]] std::int32_t Own(std::int32_t index) const; ///< As set; `defaultOwn` where the default holds.
    void SetOwn(std::int32_t index, std::int32_t size); ///< `defaultOwn` goes back to the default.
    void SetDefaultSize(std::int32_t size);
    void SetMinimumSize(std::int32_t size);

    [[nodiscard]] std::int64_t
    Position(std::int32_t index) const; ///< Sum of the sizes ahead of `index`, at most Count.
    [[nodiscard]] std::int64_t Extent() const { return Position(count_); }

    /// The one that covers a position: 0 for a negative position, Count behind the end. One of size 0 covers none.
    [[nodiscard]] std::int32_t At(std::int64_t position) const;

    /// The first that begins at a position or behind it; Count if none does.
    [[nodiscard]] std::int32_t FirstFrom(std::int64_t position) const;

    /// The first at or behind `index` whose size is above 0; Count if there is none.
    [[nodiscard]] std::int32_t NextShown(std::int32_t index) const;
    /// The last at or ahead of `index` whose size is above 0; -1 if there is none.
    [[nodiscard]] std::int32_t PreviousShown(std::int32_t index) const;

    [[nodiscard]] std::size_t RunCount() const;

private:
    struct Run {
        std::int32_t Count;
        std::int32_t Own;
    };
    struct Block {
        std::vector<Run> Runs;
        std::int32_t Count = 0;
        std::int64_t Extent = 0;
    };
    struct Start {
        std::int32_t First;
        std::int64_t Position;
    };
    struct Place {
        std::size_t Block;
        std::size_t Run;
        std::int32_t Offset; ///< Within the run.
    };

    /// A stretch of neighbours of one own size, found last: walks ask again and again for the next.
    struct Stretch {
        std::int32_t First = 0;
        std::int32_t Count = 0;
        std::int32_t Own = defaultOwn;
        std::size_t Block = 0;
        std::size_t Run = 0;

        [[nodiscard]] bool Has(std::int32_t index) const { return index - First >= 0 && index - First < Count; }
    };

    [[nodiscard]] std::int32_t Effective(std::int32_t own) const;
    [[nodiscard]] Place Find(std::int32_t index) const;
    void KnowStarts() const;
    void Remember(std::int32_t index) const;
    void Measure();
    void Touched(std::size_t block);
    void Replace(const Place& place, std::int32_t removed, const Run* added);
    [[nodiscard]] bool MoveBorder(const Place& place, std::int32_t size);

    std::int32_t count_;
    std::int32_t defaultSize_;
    std::int32_t minimumSize_ = 0;
    std::vector<Block> blocks_;
    mutable std::vector<Start> starts_;
    mutable std::size_t known_ = 0; ///< How many entries of starts_ hold.
    mutable Stretch last_;
};

} // namespace Tessellon
