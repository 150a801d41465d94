#include "recordset/kept/KeptRecords.h"

#include "engine/Failures.h"
#include "recordset/common/FailureNumbers.h"
#include "recordset/kept/PackedValue.h"

#include <algorithm>
#include <cstring>

namespace Tessellon {

namespace {

constexpr std::size_t FirstCapacity = 4096;
constexpr std::size_t LargestCapacity = std::size_t{1} << 20U;

} // namespace

KeptRecords::KeptRecords(std::int32_t fields)
    : fields_(fields)
{
    AddChunk(0);
    start_ = next_ = First();
}

void KeptRecords::Add(const Value& value)
{
    const std::size_t most = Kept::MostBytes(value);
    if (used_ + most + Kept::Block > chunks_.back().Capacity)
        AddChunk(most);
    unsigned char* const chunk = chunks_.back().Values.get();
    unsigned char* const end = Kept::Pack(value, chunk + used_);
    // Behind the last value of a chunk stands none, in bytes that are known.
    std::memset(end, Kept::NoValue, Kept::Block);
    used_ = static_cast<std::size_t>(end - chunk);
    if (++added_ == fields_) {
        added_ = 0;
        ++count_;
    }
}

void KeptRecords::AddChunk(std::size_t bytes)
{
    const std::size_t usual = chunks_.empty() ? FirstCapacity : std::min(2 * chunks_.back().Capacity, LargestCapacity);
    const std::size_t capacity = std::max(usual, bytes + Kept::Block);
    chunks_.push_back({std::make_unique_for_overwrite<unsigned char[]>(capacity), capacity});
    chunks_.back().Values[0] = Kept::NoValue;
    used_ = 0;
}

void KeptRecords::MoveFirst()
{
    if (count_ == 0)
        Fail(Common::NoCurrentRecord, u"Recordset");
    record_ = 0;
    field_ = 0;
    start_ = next_ = First();
}

void KeptRecords::MoveNext()
{
    if (AtEnd())
        Fail(Common::NoCurrentRecord, u"Recordset");
    SkipTo(fields_);
    start_ = next_;
    field_ = 0;
    ++record_;
}

Value KeptRecords::FieldValue(std::int32_t field)
{
    if (AtEnd())
        Fail(Common::NoCurrentRecord, u"Recordset");
    if (field < 0 || field >= fields_)
        Fail(Common::SubscriptOutOfRange, u"Recordset");
    if (field < field_) {
        next_ = start_;
        field_ = 0;
    }
    SkipTo(field);
    Arrive();
    Value value;
    next_.Value = Kept::Unpack(next_.Value, value, text_);
    ++field_;
    return value;
}

std::size_t KeptRecords::Bytes() const
{
    std::size_t bytes = sizeof *this + chunks_.capacity() * sizeof(Chunk) + text_.capacity() * sizeof(char16_t);
    for (const Chunk& chunk : chunks_)
        bytes += chunk.Capacity;
    return bytes;
}

/// Goes on to the next chunk behind the last value of one.
void KeptRecords::Arrive()
{
    if (*next_.Value == Kept::NoValue)
        next_ = {next_.Chunk + 1, chunks_[next_.Chunk + 1].Values.get()};
}

void KeptRecords::SkipTo(std::int32_t field)
{
    for (; field_ < field; ++field_) {
        Arrive();
        next_.Value = Kept::Behind(next_.Value);
    }
}

} // namespace Tessellon
