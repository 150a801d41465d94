#pragma once

#include "platform/Value.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// A copy of records, for a source that gives each only once. Records are added at the end, field by field, and walked
/// forward, from the first as often as wanted. They may be added in the middle of a walk.
///
/// A value takes one byte and what it needs: a whole number as many bytes as its size, a real those of its eight that
/// are not zero, text one byte a unit where all units are below 256 and two elsewhere.
class KeptRecords {
public:
    /// Records of so many fields.
    explicit KeptRecords(std::int32_t fields);

    /// Adds the next field of the record that is being added; a record is there when it has all its fields. A value
    /// that finds no memory is not added (std::bad_alloc).
    void Add(const Value& value);

    [[nodiscard]] std::int64_t Count() const { return count_; } ///< Records that are whole.
    [[nodiscard]] bool AtEnd() const { return record_ == count_; }
    void MoveFirst(); ///< With no record: failure 3021.
    void MoveNext(); ///< Behind the last: failure 3021.
    /// The value of a field, from 0, of the current record; its text stays valid until the next call. Quick from the
    /// left to the right. Behind the last record: failure 3021; a field that is none: 9.
    Value FieldValue(std::int32_t field);

    [[nodiscard]] std::size_t Bytes() const; ///< All that is held of memory, not all of it touched.

private:
    /// Values of some records, one behind the other. They never move.
    struct Chunk {
        std::unique_ptr<unsigned char[]> Values;
        std::size_t Capacity = 0;
    };
    /// Where a value is.
    struct Place {
        std::size_t Chunk = 0;
        const unsigned char* Value = nullptr;
    };

    void AddChunk(std::size_t bytes);
    [[nodiscard]] Place First() const { return {0, chunks_.front().Values.get()}; }
    void Arrive();
    void SkipTo(std::int32_t field);

    std::int32_t fields_;
    std::int32_t added_ = 0; ///< Fields of the record that is being added.
    std::int64_t count_ = 0;
    std::vector<Chunk> chunks_;
    std::size_t used_ = 0; ///< Bytes of the last chunk.

    std::int64_t record_ = 0; ///< The current one.
    Place start_; ///< Its first value.
    Place next_; ///< Its value of field_.
    std::int32_t field_ = 0;
    std::u16string text_; ///< Room for the text of the value read last.
};

} // namespace Tessellon
