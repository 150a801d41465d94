#include "recordset/sqlite/SqliteRecordset.h"

#include "engine/Failures.h"
#include "recordset/common/Digits.h"
#include "recordset/common/FailureNumbers.h"
#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteDatabase.h"
#include "recordset/sqlite/StoredMoment.h"
#include "recordset/sqlite/StoredText.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <sqlite3.h>
#include <utility>

namespace Tessellon {

using Sqlite::FieldShape;
using Sqlite::Reading;

namespace {

constexpr int WalksOfOneSnapshot = 2;

FieldShape ShapeOfStorage(int storage)
{
    switch (storage) {
    case SQLITE_INTEGER: return {20, Reading::Number};
    case SQLITE_FLOAT: return {5, Reading::Number};
    case SQLITE_BLOB: return {205, Reading::Bytes};
    default: return {203, Reading::Text};
    }
}

Value OfNumber(double number, Reading reading)
{
    switch (reading) {
    case Reading::Single:
        return std::abs(number) <= std::numeric_limits<float>::max() ? Value::OfSingle(static_cast<float>(number))
                                                                     : Value::OfDouble(number);
    case Reading::Boolean: return Value::OfBoolean(number != 0);
    case Reading::DateTime:
    case Reading::Time: {
        const std::optional<double> serial =
            reading == Reading::Time ? Sqlite::TimeOfNumber(number) : Sqlite::SerialOfNumber(number);
        return serial ? Value::OfDate(*serial) : Value::OfDouble(number);
    }
    default: return Value::OfDouble(number);
    }
}

} // namespace

SqliteRecordset::SqliteRecordset(std::shared_ptr<SqliteDatabase> database, sqlite3_stmt* statement)
    : database_(std::move(database))
    , statement_(statement)
{
    Describe();
}

SqliteRecordset::~SqliteRecordset()
{
    Close();
    sqlite3_finalize(statement_);
}

bool SqliteRecordset::AtEnd()
{
    Arrive();
    return place_ == Place::End;
}

void SqliteRecordset::MoveFirst()
{
    sqlite3_reset(statement_);
    place_ = Place::Ahead;
    if (hadRecords_)
        return;
    Arrive();
    if (place_ == Place::End)
        Fail(Common::NoCurrentRecord, u"Recordset");
}

void SqliteRecordset::MoveNext()
{
    Arrive();
    if (place_ == Place::End)
        Fail(Common::NoCurrentRecord, u"Recordset");
    Step();
}

std::int32_t SqliteRecordset::FieldCount()
{
    return static_cast<std::int32_t>(fields_.size());
}

std::int32_t SqliteRecordset::FieldType(std::int32_t field)
{
    if (!typesAreKnown_)
        Arrive();
    CheckField(field);
    return fields_[static_cast<std::size_t>(field)].Type;
}

std::u16string SqliteRecordset::FieldName(std::int32_t field)
{
    CheckField(field);
    const char* name = sqlite3_column_name(statement_, field);
    return Common::ToUtf16(name != nullptr ? name : "");
}

Value SqliteRecordset::FieldValue(std::int32_t field)
{
    if (place_ != Place::Record) {
        Arrive();
        if (place_ == Place::End)
            Fail(Common::NoCurrentRecord, u"Recordset");
    }
    CheckField(field);

    const Reading reading = fields_[static_cast<std::size_t>(field)].As;
    sqlite3_value* value = sqlite3_column_value(statement_, field);
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER: {
        const std::int64_t integer = sqlite3_value_int64(value);
        switch (reading) {
        case Reading::Boolean: return Value::OfBoolean(integer != 0);
        case Reading::DateTime:
        case Reading::Time: {
            const Value moment = OfNumber(static_cast<double>(integer), reading);
            return moment.Type == Value::Kind::Date ? moment : Value::OfInteger(integer);
        }
        default: return Value::OfInteger(integer);
        }
    }
    case SQLITE_FLOAT: return OfNumber(sqlite3_value_double(value), reading);
    case SQLITE_TEXT: return Sqlite::ReadText(Characters(value), reading);
    case SQLITE_BLOB: return Value::OfText(reading == Reading::Text ? BytesAsText(value) : HexadecimalDigits(value));
    default: return Value::Null();
    }
}

void SqliteRecordset::Close() noexcept
{
    LetGo();
    place_ = Place::Ahead;
}

void SqliteRecordset::Arrive()
{
    if (place_ == Place::Ahead)
        Step();
}

void SqliteRecordset::Step()
{
    const bool isNewSnapshot = !hasSnapshot_;
    if (isNewSnapshot) {
        database_->Hold();
        hasSnapshot_ = true;
    }
    const bool isFirst = place_ == Place::Ahead;
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) {
        place_ = Place::Record;
        hadRecords_ = true;
        if (isNewSnapshot)
            Describe();
        return;
    }

    place_ = Place::End;
    if (code != SQLITE_DONE) {
        hadRecords_ = false;
        Failure failure = database_->Noted(code, SqliteDatabase::Stage::Walking);
        LetGo();
        throw failure;
    }
    if (isFirst) {
        hadRecords_ = false;
        typesAreKnown_ = true;
    }
    ++walks_;
    if (isFirst || walks_ >= WalksOfOneSnapshot)
        LetGo();
    else
        sqlite3_reset(statement_);
}

void SqliteRecordset::LetGo() noexcept
{
    sqlite3_reset(statement_);
    if (hasSnapshot_)
        database_->Release();
    hasSnapshot_ = false;
    walks_ = 0;
}

void SqliteRecordset::Describe()
{
    const bool standsOnRecord = place_ == Place::Record;
    fields_.resize(static_cast<std::size_t>(sqlite3_column_count(statement_)));
    typesAreKnown_ = true;
    for (int field = 0; field < static_cast<int>(fields_.size()); ++field) {
        const char* declared = sqlite3_column_decltype(statement_, field);
        FieldShape shape = Sqlite::ShapeOfDeclaration(declared != nullptr ? declared : "");
        if (shape.Type == 0) {
            shape = ShapeOfStorage(standsOnRecord ? sqlite3_column_type(statement_, field) : SQLITE_NULL);
            typesAreKnown_ = typesAreKnown_ && standsOnRecord;
        }
        fields_[static_cast<std::size_t>(field)] = shape;
    }
}

void SqliteRecordset::CheckField(std::int32_t field) const
{
    if (field < 0 || static_cast<std::size_t>(field) >= fields_.size())
        Fail(Common::SubscriptOutOfRange, u"Recordset");
}

std::u16string_view SqliteRecordset::Characters(sqlite3_value* value)
{
    if (database_->StoresUtf16()) {
        const void* units = sqlite3_value_text16(value);
        if (units == nullptr)
            throw database_->Noted(SQLITE_NOMEM, SqliteDatabase::Stage::Walking);
        const std::size_t count = static_cast<std::size_t>(sqlite3_value_bytes16(value)) / sizeof(char16_t);
        // Copied, because SQLite does not promise that they are aligned.
        if (text_.size() < count)
            text_.resize(count + count / 2);
        std::memcpy(text_.data(), units, count * sizeof(char16_t));
        return {text_.data(), count};
    }
    const unsigned char* bytes = sqlite3_value_text(value);
    if (bytes == nullptr)
        throw database_->Noted(SQLITE_NOMEM, SqliteDatabase::Stage::Walking);
    const auto count = static_cast<std::size_t>(sqlite3_value_bytes(value));
    return Common::ToUtf16({reinterpret_cast<const char*>(bytes), count}, text_);
}

std::u16string_view SqliteRecordset::BytesAsText(sqlite3_value* value)
{
    const void* bytes = sqlite3_value_blob(value);
    if (bytes == nullptr)
        return {};
    const auto count = static_cast<std::size_t>(sqlite3_value_bytes(value));
    return Common::ToUtf16({static_cast<const char*>(bytes), count}, text_);
}

std::u16string_view SqliteRecordset::HexadecimalDigits(sqlite3_value* value)
{
    const auto count = static_cast<std::size_t>(sqlite3_value_bytes(value));
    return Common::HexadecimalDigits(sqlite3_value_blob(value), count, text_);
}

} // namespace Tessellon
