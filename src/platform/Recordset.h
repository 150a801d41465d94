#pragma once

#include "platform/Value.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Tessellon {

/// What a provider said of one error.
struct ProviderError {
    std::int32_t Number = 0;
    std::u16string Description;
    std::u16string Source;
    std::int32_t NativeError = 0;
    std::u16string SQLState;
    std::u16string HelpFile;
    std::int32_t HelpContext = 0;
};

/// A connection to a provider, of which the sheet only asks what went wrong last.
class Connection {
public:
    virtual ~Connection() = default;

    virtual const std::vector<ProviderError>& Errors() = 0;
};

/// Records in their order, walked forward, and from the first as often as wanted: each walk sees the same records.
class Recordset {
public:
    virtual ~Recordset() = default;

    /// True behind the last record. A recordset that was just opened stands on its first.
    virtual bool AtEnd() = 0;
    virtual void MoveFirst() = 0; ///< On an empty recordset: failure 3021.
    virtual void MoveNext() = 0; ///< Behind the last: failure 3021.

    virtual std::int32_t FieldCount() = 0;
    /// The field's type, a number of DataTypeEnum, the same in all records. Fields count from 0.
    virtual std::int32_t FieldType(std::int32_t field) = 0;
    /// The field's value in the current record; its text stays valid until the next call on the recordset.
    virtual Value FieldValue(std::int32_t field) = 0;
};

} // namespace Tessellon
