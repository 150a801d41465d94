#pragma once

#include "platform/Recordset.h"
#include "recordset/sqlite/DeclaredType.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3_stmt;
struct sqlite3_value;

namespace Tessellon {

class SqliteDatabase;

/// The records of a query, read from the database while they are walked; none is kept.
///
/// The first read takes a snapshot of the database, and all reads see it until the second full walk has ended, Close is
/// called, a read fails, or the recordset is gone. So a walk that counts and a walk that reads see the same records,
/// and behind them nothing keeps another program from writing. MoveFirst then reads nothing until a record is asked
/// for: that takes a new snapshot, and walks the records as they are by then.
///
/// Types follow the declared type of the column. A column without one, as of an expression, takes the storage class of
/// its value in the first record: integer 20, real 5, text and null 203, blob 205.
///
/// Values: whole numbers as integers, reals as doubles (as 32-bit ones in a column declared so), booleans of 0, 1 and
/// the words yes, no, true, false, on, off and their first letters; decimals that are stored as text with the digits as
/// they stand; dates of ISO text, Julian days or seconds since 1970; bytes as hexadecimal digits, but as UTF-8 in a
/// column of text. A value that its type cannot read comes as it is stored.
class SqliteRecordset final : public Recordset {
public:
    /// Made by SqliteConnection::Query; takes the statement over.
    SqliteRecordset(std::shared_ptr<SqliteDatabase> database, sqlite3_stmt* statement);
    SqliteRecordset(const SqliteRecordset&) = delete;
    SqliteRecordset& operator=(const SqliteRecordset&) = delete;
    ~SqliteRecordset() override;

    bool AtEnd() override;
    void MoveFirst() override;
    void MoveNext() override;

    std::int32_t FieldCount() override;
    std::int32_t FieldType(std::int32_t field) override; ///< A field that is none: failure 9.
    Value FieldValue(std::int32_t field) override; ///< Behind the last record: failure 3021; a field that is none: 9.
    /// The heading that the query gives the field. A field that is none: failure 9.
    std::u16string FieldName(std::int32_t field);

    /// Lets go of the snapshot in the middle of a walk, for a host whose load was broken off. The recordset then stands
    /// ahead of its first record, and may be walked again.
    void Close() noexcept;

private:
    /// Where the recordset stands: Ahead of its first record, which is read when it is asked for.
    enum class Place : std::uint8_t { Ahead, Record, End };

    void Arrive();
    void Step();
    void LetGo() noexcept;
    void Describe();
    void CheckField(std::int32_t field) const;

    [[nodiscard]] std::u16string_view Characters(sqlite3_value* value);
    [[nodiscard]] std::u16string_view BytesAsText(sqlite3_value* value);
    [[nodiscard]] std::u16string_view HexadecimalDigits(sqlite3_value* value);

    std::shared_ptr<SqliteDatabase> database_;
    sqlite3_stmt* statement_;
    Place place_ = Place::Ahead;
    bool hasSnapshot_ = false;
    bool hadRecords_ = false; ///< In the last walk: then MoveFirst need not look.
    bool typesAreKnown_ = false;
    int walks_ = 0; ///< Full walks in this snapshot.
    std::vector<Sqlite::FieldShape> fields_;
    std::u16string text_; ///< Room for the text of the value read last.
};

} // namespace Tessellon
