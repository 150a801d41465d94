#include "engine/CountedRecordset.h"

#include <algorithm>
#include <utility>

namespace Tessellon {

namespace {

constexpr std::chrono::seconds shortLoad(1);
constexpr std::chrono::milliseconds pause(100);
/// A look at the clock costs as much as some hundredths of a record.
constexpr std::int32_t stepsToALook = 64;

} // namespace

CountedRecordset::CountedRecordset(std::shared_ptr<Recordset> records, std::weak_ptr<const Progress> progress,
                                   Clock clock)
    : records_(std::move(records))
    , progress_(std::move(progress))
    , clock_(std::move(clock))
    , next_(clock_() + shortLoad)
{
}

/// A load moves to the first record more than once ahead of its first walk.
void CountedRecordset::MoveFirst()
{
    if (steps_ > 0) {
        counted_ = std::max(counted_, steps_);
        walk_ = walk_ == Walk::Counting ? Walk::Filling : Walk::Done;
    }
    steps_ = 0;
    types_.clear();
    records_->MoveFirst();
}

void CountedRecordset::MoveNext()
{
    records_->MoveNext();
    if (++steps_ % stepsToALook == 0)
        LookAtClock();
}

/// A load asks for it at each cell: answered here, it makes up for half of what passing on costs.
std::int32_t CountedRecordset::FieldType(std::int32_t field)
{
    const auto index = static_cast<std::size_t>(field);
    if (index < types_.size())
        return types_[index];
    const std::int32_t type = records_->FieldType(field);
    if (index == types_.size())
        types_.push_back(type);
    return type;
}

void CountedRecordset::LookAtClock()
{
    if (walk_ == Walk::Done || clock_() < next_)
        return;
    const std::shared_ptr<const Progress> progress = progress_.lock();
    if (progress == nullptr) {
        walk_ = Walk::Done;
        return;
    }
    (*progress)(walk_ == Walk::Counting ? 0 : steps_, std::max(counted_, steps_));
    next_ = clock_() + pause;
}

} // namespace Tessellon
