#pragma once

#include "Words.h"
#include "platform/Recordset.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace Tessellon::Replay {

/// What a script says of the provider's errors.
class ScriptConnection final : public Connection {
public:
    void Add(ProviderError error) { errors_.push_back(std::move(error)); }
    const std::vector<ProviderError>& Errors() override { return errors_; }

private:
    std::vector<ProviderError> errors_;
};

/// A recordset that stands in a script.
class ScriptRecordset final : public Recordset {
public:
    void AddField(std::int32_t type) { types_.push_back(type); }
    /// Fields for which there is no word are Null. A word that is not of its field's class, or does not fit its type,
    /// and one word too many throw ScriptError.
    void AddRecord(Words words);

    bool AtEnd() override { return current_ >= records_.size(); }
    void MoveFirst() override;
    void MoveNext() override;
    std::int32_t FieldCount() override { return static_cast<std::int32_t>(types_.size()); }
    std::int32_t FieldType(std::int32_t field) override { return types_.at(static_cast<std::size_t>(field)); }
    Value FieldValue(std::int32_t field) override;

private:
    /// A value that owns its characters.
    struct Kept {
        Value Is;
        std::u16string Characters;
    };

    static Kept Read(const Word& word, std::int32_t type);

    std::vector<std::int32_t> types_;
    std::vector<std::vector<Kept>> records_;
    std::size_t current_ = 0;
};

} // namespace Tessellon::Replay
