#pragma once

#include "platform/Recordset.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace Tessellon {

/// Passes a recordset on to a load and tells how far the two walks of the load have come: the first counts the
/// records, the second fills the rows. It keeps silent for the first second; from then on it tells at most ten times a
/// second, and the time that the telling takes comes on top of that. Behind the second walk it only passes on.
class CountedRecordset final : public Recordset {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    /// Gets the rows that are filled, 0 while the records are counted, and the records that are counted so far. It is
    /// told between two records, and what it throws goes on to whoever walks.
    using Progress = std::function<void(std::int32_t rows, std::int32_t records)>;

    /// The load begins now, and is told of for as long as `progress` lives.
    CountedRecordset(std::shared_ptr<Recordset> records, std::weak_ptr<const Progress> progress, Clock clock);

    bool AtEnd() override { return records_->AtEnd(); }
    void MoveFirst() override;
    void MoveNext() override;
    std::int32_t FieldCount() override { return records_->FieldCount(); }
    std::int32_t FieldType(std::int32_t field) override;
    Value FieldValue(std::int32_t field) override { return records_->FieldValue(field); }

private:
    enum class Walk : std::uint8_t { Counting, Filling, Done };

    void LookAtClock();

    std::shared_ptr<Recordset> records_;
    std::weak_ptr<const Progress> progress_;
    Clock clock_;
    std::chrono::steady_clock::time_point next_; ///< When it tells again.
    Walk walk_ = Walk::Counting;
    std::int32_t counted_ = 0;
    std::int32_t steps_ = 0; ///< In this walk.
    std::vector<std::int32_t> types_; ///< Of the first fields, as far as they were asked for.
};

} // namespace Tessellon
