#pragma once

#include "platform/Failure.h"
#include "platform/Recordset.h"
#include "recordset/kept/KeptRecords.h"
#include "recordset/qtsql/QueryField.h"

#include <QSqlQuery>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tessellon {

/// The records of a QSqlQuery that its host has executed.
///
/// The first walk keeps the records of a forward-only query, in about as many bytes as they have characters and digits;
/// when it has come to the end, neither query nor database is needed any more. Until then the database's connection may
/// have to run no other query (PostgreSQL's). A query that can go back is walked where its driver holds the records, if
/// that is SQLite's or PostgreSQL's; of other drivers, whose records may change between two walks, they are kept too.
/// For many records setForwardOnly(true) ahead of exec is the better choice: else SQLite's driver holds some 60 bytes a
/// value, and PostgreSQL's the server's whole answer.
///
/// The walks begin at the query's first record. A forward-only query that was moved cannot go back: they begin at the
/// record on which it stands, and behind its last there is none.
///
/// Types follow the metatype of the field; of PostgreSQL also the type in the database, and of SQLite, where Qt knows
/// no more than that a column is no number, the value in the first record.
///
/// Values: whole numbers as integers; decimals with all their digits, of drivers other than PostgreSQL's where the host
/// has set QSql::HighPrecision ahead of exec; dates and moments as Qt tells their day and their time of day, which has
/// milliseconds; bytes as hexadecimal digits; a moment outside the years 100 to 9999 as text, and what Qt cannot read
/// (PostgreSQL's infinity) as an empty one.
///
/// A query that was not executed or failed, that gives no records, or breaks off in the middle, is a failure of every
/// question from then on; so is memory that does not suffice to keep a record (7).
class QtSqlRecordset final : public Recordset {
public:
    /// Made by QtSqlConnection::Records.
    QtSqlRecordset(QSqlQuery query, std::shared_ptr<std::vector<ProviderError>> errors);
    QtSqlRecordset(const QtSqlRecordset&) = delete;
    QtSqlRecordset& operator=(const QtSqlRecordset&) = delete;
    ~QtSqlRecordset() override;

    bool AtEnd() override;
    void MoveFirst() override;
    void MoveNext() override;

    std::int32_t FieldCount() override;
    std::int32_t FieldType(std::int32_t field) override; ///< A field that is none: failure 9.
    Value FieldValue(std::int32_t field) override; ///< Behind the last record: failure 3021; a field that is none: 9.

private:
    void Begin();
    void Open();
    void Keep(bool isOnRecord);
    void CheckEnd();
    [[noreturn]] void BreakOff(Failure failure);
    Value Read(std::int32_t field);

    QSqlQuery query_;
    std::shared_ptr<std::vector<ProviderError>> errors_;
    bool isOpen_ = false;
    bool lacksMemory_ = false; ///< A record was kept in part.
    std::optional<Failure> failure_;
    std::vector<QtSql::FieldShape> fields_;
    std::optional<KeptRecords> kept_;
    QVariant value_; ///< The value read last, whose text it holds.
    std::u16string text_; ///< Room for one that it does not.
};

} // namespace Tessellon
