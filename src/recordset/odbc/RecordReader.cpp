#include "recordset/odbc/RecordReader.h"

#include "recordset/common/Digits.h"
#include "recordset/common/Unicode.h"
#include "recordset/kept/KeptRecords.h"
#include "recordset/odbc/Wide.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace Tessellon::Odbc {

namespace {

constexpr std::size_t MostRows = 512;
constexpr std::size_t MostBytes = std::size_t{1} << 20U;
constexpr std::size_t Alignment = 8;
/// Of a text in the block, in units. What is longer than its place in the block is asked for by itself.
constexpr std::size_t MostUnits = 255;
/// Of whole numbers and moments, and of decimals, in bytes.
constexpr std::size_t LongestWhole = 32;
constexpr std::size_t LongestDecimal = 96;
constexpr std::size_t FirstRoom = 4096;

/// A driver that counts in 32 bits leaves the upper half of a length as it was, which is zero.
SQLLEN InFullWidth(SQLLEN length)
{
    constexpr SQLLEN wrap = SQLLEN{1} << 32U;
    return length == wrap + SQL_NULL_DATA || length == wrap + SQL_NO_TOTAL ? length - wrap : length;
}

bool IsFixed(SQLSMALLINT type)
{
    return type == SQL_C_FLOAT || type == SQL_C_DOUBLE;
}

std::size_t ShortOf(SQLULEN size)
{
    return size == 0 || size > MostUnits ? MostUnits : static_cast<std::size_t>(size);
}

/// Of a text that ends with a zero, or of bytes that fill their room.
std::size_t LengthOf(const char* at, std::size_t room, std::size_t terminator)
{
    std::size_t length = 0;
    constexpr char zero[sizeof(char16_t)] = {};
    while (length < room && (terminator == 0 || std::memcmp(at + length, zero, terminator) != 0))
        length += std::max<std::size_t>(terminator, 1);
    return length;
}

} // namespace

RecordReader::RecordReader(std::unique_ptr<Statement> statement)
    : statement_(std::move(statement))
    , long_(FirstRoom)
{
    Describe();
    Bind();
}

void RecordReader::Describe()
{
    const int count = statement_->ColumnCount();
    const bool isWide = statement_->Session().IsWide();
    for (int number = 1; number <= count; ++number) {
        Described described = statement_->Column(number);
        const FieldShape shape = ShapeOf(described.SqlType, described.IsUnsigned, described.TypeName);
        Column column;
        column.As = shape.As;
        switch (shape.As) {
        case Reading::Single:
            column.CType = SQL_C_FLOAT;
            column.Width = sizeof(float);
            break;
        case Reading::Double:
            column.CType = SQL_C_DOUBLE;
            column.Width = sizeof(double);
            break;
        case Reading::Text:
            column.CType = isWide ? SQL_C_WCHAR : SQL_C_CHAR;
            column.Terminator = isWide ? sizeof(char16_t) : 1;
            column.Width = (ShortOf(described.Size) + 1) * sizeof(char16_t);
            break;
        case Reading::Bytes:
            column.CType = SQL_C_BINARY;
            column.Width = ShortOf(described.Size);
            break;
        default:
            // Whole numbers, decimals and moments come by their characters: so none loses a digit or a fraction, and
            // what is none of them stays what it is.
            column.CType = SQL_C_CHAR;
            column.Terminator = 1;
            column.Width = shape.As == Reading::Decimal ? LongestDecimal : LongestWhole;
        }
        columns_.push_back(column);
        fields_.push_back({std::move(described.Name), shape});
    }
}

void RecordReader::Bind()
{
    SQLUINTEGER can = 0;
    SQLGetInfo(statement_->Session().Handle(), SQL_GETDATA_EXTENSIONS, &can, sizeof can, nullptr);
    constexpr SQLUINTEGER again = SQL_GD_BOUND | SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER;
    // What has no room in the block is asked for again, and not every driver gives a bound value again.
    isBound_ = (can & again) == again;
    if (!isBound_)
        return;

    if ((can & SQL_GD_BLOCK) != 0)
        rows_ = AgreeOnRows();
    const auto aligned = [](std::size_t bytes) { return (bytes + Alignment - 1) / Alignment * Alignment; };
    std::size_t bytes = 0;
    for (const Column& column : columns_)
        bytes += aligned(column.Width * rows_);
    block_.resize(bytes);
    lengths_.resize(columns_.size() * rows_);
    char* values = block_.data();
    SQLLEN* lengths = lengths_.data();
    SQLUSMALLINT number = 0;
    for (Column& column : columns_) {
        column.Values = values;
        column.Lengths = lengths;
        statement_->Check(SQLBindCol(statement_->Handle(), ++number, column.CType, values,
                                     static_cast<SQLLEN>(column.Width), lengths));
        values += aligned(column.Width * rows_);
        lengths += rows_;
    }
}

std::size_t RecordReader::AgreeOnRows()
{
    std::size_t bytes = 0;
    for (const Column& column : columns_)
        bytes += column.Width + sizeof(SQLLEN);
    const std::size_t rows = std::clamp(MostBytes / bytes, std::size_t{1}, MostRows);
    states_.resize(rows);
    const SQLHSTMT handle = statement_->Handle();
    if (SQL_SUCCEEDED(SQLSetStmtAttr(handle, SQL_ATTR_ROW_STATUS_PTR, states_.data(), SQL_IS_POINTER)) &&
        SQL_SUCCEEDED(SQLSetStmtAttr(handle, SQL_ATTR_ROWS_FETCHED_PTR, &rowsRead_, SQL_IS_POINTER)) &&
        SQLSetStmtAttr(handle, SQL_ATTR_ROW_ARRAY_SIZE, AsPointer(rows), SQL_IS_UINTEGER) == SQL_SUCCESS)
        return rows;
    SQLSetStmtAttr(handle, SQL_ATTR_ROW_ARRAY_SIZE, AsPointer(1), SQL_IS_UINTEGER);
    return 1;
}

bool RecordReader::Read(KeptRecords& records)
{
    statement_->Session().ForgetErrors();
    std::fill(lengths_.begin(), lengths_.end(), 0);
    std::fill(states_.begin(), states_.end(), static_cast<SQLUSMALLINT>(SQL_ROW_SUCCESS));
    rowsRead_ = 1;
    const SQLRETURN code = SQLFetch(statement_->Handle());
    if (code == SQL_NO_DATA)
        return false;
    statement_->Check(code);
    const std::size_t rows = rows_ > 1 ? std::min<std::size_t>(rowsRead_, rows_) : 1;
    if (rows_ > 1 && std::find(states_.begin(), states_.end(), SQL_ROW_ERROR) != states_.end())
        statement_->Check(SQL_ERROR);
    for (std::size_t row = 0; row < rows; ++row)
        for (std::size_t column = 0; column < columns_.size(); ++column)
            records.Add(ValueOf(row, column));
    return true;
}

Value RecordReader::ValueOf(std::size_t row, std::size_t column)
{
    const Cell cell = isBound_ ? Bound(row, column) : Asked(column, 0);
    if (cell.At == nullptr)
        return Value::Null();
    switch (columns_[column].CType) {
    case SQL_C_FLOAT: {
        float number = 0;
        std::memcpy(&number, cell.At, sizeof number);
        return Value::OfSingle(number);
    }
    case SQL_C_DOUBLE: {
        double number = 0;
        std::memcpy(&number, cell.At, sizeof number);
        return Value::OfDouble(number);
    }
    case SQL_C_WCHAR: return Value::OfText({reinterpret_cast<const char16_t*>(cell.At), cell.Bytes / sizeof(char16_t)});
    case SQL_C_BINARY: return Value::OfText(Common::HexadecimalDigits(cell.At, cell.Bytes, text_));
    default: return ReadCharacters(Common::ToUtf16({cell.At, cell.Bytes}, text_), columns_[column].As);
    }
}

RecordReader::Cell RecordReader::Bound(std::size_t row, std::size_t column)
{
    const Column& place = columns_[column];
    const SQLLEN length = InFullWidth(place.Lengths[row]);
    if (length == SQL_NULL_DATA)
        return {};
    const char* const at = place.Values + row * place.Width;
    if (IsFixed(place.CType))
        return {at, place.Width};
    if (length >= 0 && static_cast<std::size_t>(length) + place.Terminator <= place.Width)
        return {at, static_cast<std::size_t>(length)};
    if (rows_ > 1)
        statement_->Check(SQLSetPos(statement_->Handle(), row + 1, SQL_POSITION, SQL_LOCK_NO_CHANGE));
    return Asked(column, length);
}

RecordReader::Cell RecordReader::Asked(std::size_t column, SQLLEN length)
{
    const Column& place = columns_[column];
    std::size_t used = 0;
    // Always an even count of bytes, so that no unit of a text is cut.
    const auto makeRoom = [&](std::size_t bytes) {
        if (long_.size() < bytes)
            long_.resize(std::max(bytes + bytes % 2, 2 * long_.size()));
    };
    if (length > 0)
        makeRoom(static_cast<std::size_t>(length) + place.Terminator);
    for (;;) {
        SQLLEN left = 0;
        const SQLRETURN code = SQLGetData(statement_->Handle(), static_cast<SQLUSMALLINT>(column + 1), place.CType,
                                          long_.data() + used, static_cast<SQLLEN>(long_.size() - used), &left);
        if (code == SQL_NO_DATA)
            break;
        statement_->Check(code);
        left = InFullWidth(left);
        if (left == SQL_NULL_DATA)
            return {};
        if (IsFixed(place.CType))
            break;
        const std::size_t room = long_.size() - used - place.Terminator;
        if (left >= 0 && static_cast<std::size_t>(left) <= room) {
            used += static_cast<std::size_t>(left);
            break;
        }
        if (code == SQL_SUCCESS) {
            // All of it, of a length that the driver does not tell.
            used += LengthOf(long_.data() + used, room, place.Terminator);
            break;
        }
        used += room;
        makeRoom(left > 0 ? used - room + static_cast<std::size_t>(left) + place.Terminator : 2 * long_.size());
    }
    return {long_.data(), used};
}

} // namespace Tessellon::Odbc
