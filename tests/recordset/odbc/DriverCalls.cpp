#include "recordset/odbc/DriverCalls.h"

#include <cstring>
#include <gtest/gtest.h>
#include <map>
#include <sql.h>
#include <sqlext.h>

// The linker turns each call of SQLFetch in this program into one of __wrap_SQLFetch, and gives the real one the other
// name; so with the rest.
extern "C" {
SQLRETURN __real_SQLFetch(SQLHSTMT statement);
SQLRETURN __real_SQLGetData(SQLHSTMT statement, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER value, SQLLEN size,
                            SQLLEN* length);
SQLRETURN __real_SQLGetInfo(SQLHDBC connection, SQLUSMALLINT kind, SQLPOINTER value, SQLSMALLINT size,
                            SQLSMALLINT* length);
SQLRETURN __real_SQLBindCol(SQLHSTMT statement, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER value, SQLLEN size,
                            SQLLEN* length);
SQLRETURN __real_SQLSetStmtAttr(SQLHSTMT statement, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER size);
}

namespace Tessellon {

namespace {

DriverCalls calls;

/// Where the lengths of the columns bound last go, and how many each has.
std::map<SQLUSMALLINT, SQLLEN*> bound;
std::size_t rows = 1;

SQLLEN In32Bits(SQLLEN length)
{
    return static_cast<SQLLEN>(static_cast<std::uint32_t>(length));
}

/// Forgets what the test before did.
class NewTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override
    {
        calls = {};
        bound.clear();
        rows = 1;
    }
};

const bool isListening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new NewTest);
    return true;
}();

} // namespace

DriverCalls& Calls()
{
    return calls;
}

} // namespace Tessellon

using namespace Tessellon;

extern "C" {

SQLRETURN __wrap_SQLFetch(SQLHSTMT statement)
{
    if (++calls.Fetches == calls.FailsAtFetch)
        return SQL_ERROR;
    const SQLRETURN code = __real_SQLFetch(statement);
    for (const auto& [column, lengths] : bound) {
        for (std::size_t row = 0; row < rows; ++row) {
            if (calls.CountsIn32Bits)
                lengths[row] = In32Bits(lengths[row]);
            if (calls.TellsNoLengths && lengths[row] > 100)
                lengths[row] = SQL_NO_TOTAL;
        }
    }
    return code;
}

SQLRETURN __wrap_SQLGetData(SQLHSTMT statement, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER value, SQLLEN size,
                            SQLLEN* length)
{
    ++calls.Asked;
    const SQLRETURN code = __real_SQLGetData(statement, column, type, value, size, length);
    // Of bytes the driver has to tell where they end.
    if (calls.TellsNoLengths && *length >= 0 && (code == SQL_SUCCESS_WITH_INFO || type != SQL_C_BINARY))
        *length = SQL_NO_TOTAL;
    if (calls.CountsIn32Bits)
        *length = In32Bits(*length);
    return code;
}

SQLRETURN __wrap_SQLGetInfo(SQLHDBC connection, SQLUSMALLINT kind, SQLPOINTER value, SQLSMALLINT size,
                            SQLSMALLINT* length)
{
    const SQLRETURN code = __real_SQLGetInfo(connection, kind, value, size, length);
    if (kind == SQL_GETDATA_EXTENSIONS) {
        auto* can = static_cast<SQLUINTEGER*>(value);
        if (calls.GivesNoBlocks)
            *can &= ~SQLUINTEGER{SQL_GD_BLOCK};
        if (calls.GivesEachOnce)
            *can = 0;
    }
    return code;
}

SQLRETURN __wrap_SQLBindCol(SQLHSTMT statement, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER value, SQLLEN size,
                            SQLLEN* length)
{
    bound[column] = length;
    return __real_SQLBindCol(statement, column, type, value, size, length);
}

SQLRETURN __wrap_SQLSetStmtAttr(SQLHSTMT statement, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER size)
{
    if (attribute == SQL_ATTR_ROW_ARRAY_SIZE)
        rows = reinterpret_cast<std::size_t>(value);
    return __real_SQLSetStmtAttr(statement, attribute, value, size);
}
}
