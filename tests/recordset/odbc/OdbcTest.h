#pragma once

#include "recordset/common/Unicode.h"
#include "recordset/odbc/OdbcConnection.h"
#include "recordset/odbc/OdbcRecordset.h"
#include "recordset/sqlite/TemporaryDatabase.h"
#include "support/PostgresServer.h"
#include "support/Recordsets.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace Tessellon {

/// A value with its kind: "integer 5", "decimal 1.50", "date 45293.5", "text Ada", "null".
std::string Told(const Value& value);
/// The values of a field, from the recordset's first record to its last.
std::vector<std::string> TellAll(Recordset& records, std::int32_t field = 0);

/// Two data sources behind ODBC: a SQLite database in a folder of the test's own, and the tests' PostgreSQL server.
class OdbcTest : public SqliteTest {
protected:
    std::u16string SqliteText(std::string_view more = {}, const std::string& name = "test.db") const
    {
        return Common::ToUtf16("Driver=SQLite3;Database=" + Path(name).string() + ";" + std::string(more));
    }
    static std::u16string PostgresText(std::string_view more = {})
    {
        return Common::ToUtf16(PostgresServer::Shared().OdbcText(more));
    }
    /// As a user who needs a password, given this one.
    static std::u16string GuardedText(std::string_view password);

    std::shared_ptr<OdbcRecordset> FromSqlite(std::u16string_view query) const
    {
        return OdbcConnection::Open(SqliteText())->Query(query);
    }
    static std::shared_ptr<OdbcRecordset> FromPostgres(std::u16string_view query, std::string_view more = {})
    {
        return OdbcConnection::Open(PostgresText(more))->Query(query);
    }
};

} // namespace Tessellon
