#pragma once

#include "platform/Recordset.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tessellon {

class KeptRecords;
class OdbcSession;
namespace Odbc {
class RecordReader;
class Statement;
} // namespace Odbc

/// The records of a query, read from the driver by the first walk and kept, so that every walk sees the same.
///
/// Types are those of the driver, as it describes the columns. Values: whole numbers as integers, decimals with all
/// their digits, booleans, reals, date serials with the fractions of their seconds, text, bytes as hexadecimal digits.
/// What its type cannot read comes as text, as the driver writes it: so dates outside the years 100 to 9999.
///
/// A read that fails ends the recordset: from there on MoveFirst, and what would read on, fail in the same way.
class OdbcRecordset final : public Recordset {
public:
    /// Made by OdbcConnection::Query, of a statement that has run.
    OdbcRecordset(std::shared_ptr<OdbcSession> session, std::unique_ptr<Odbc::Statement> statement);
    OdbcRecordset(const OdbcRecordset&) = delete;
    OdbcRecordset& operator=(const OdbcRecordset&) = delete;
    ~OdbcRecordset() override;

    bool AtEnd() override;
    void MoveFirst() override;
    void MoveNext() override;

    std::int32_t FieldCount() override;
    std::int32_t FieldType(std::int32_t field) override; ///< A field that is none: failure 9.
    Value FieldValue(std::int32_t field) override; ///< Behind the last record: failure 3021; a field that is none: 9.
    /// The heading that the query gives the field. A field that is none: failure 9.
    std::u16string FieldName(std::int32_t field);

    /// Reads all records that are left, for a driver that is to serve another statement. What fails is told when the
    /// walk comes there.
    void Settle();

private:
    struct Field {
        std::u16string Name;
        std::int32_t Type = 0;
    };
    struct Break;

    void Arrive();
    void ReadOn();
    void LetGo();
    [[noreturn]] void FailAgain() const;
    [[nodiscard]] const Field& FieldAt(std::int32_t field) const;

    std::shared_ptr<OdbcSession> session_;
    std::unique_ptr<Odbc::RecordReader> reader_; ///< None when all is read.
    std::vector<Field> fields_;
    std::unique_ptr<KeptRecords> records_;
    std::unique_ptr<Break> break_; ///< Where reading failed.
};

} // namespace Tessellon
