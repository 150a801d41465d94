#include "recordset/sqlite/SqliteConnection.h"

#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteDatabase.h"
#include "recordset/sqlite/SqliteRecordset.h"

#include <memory>
#include <sqlite3.h>
#include <string>

namespace Tessellon {

namespace {

struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalizer>;

} // namespace

std::shared_ptr<SqliteConnection> SqliteConnection::Open(std::u16string_view path, const SqliteOptions& options)
{
    auto connection = std::make_shared<SqliteConnection>();
    connection->Connect(path, options);
    return connection;
}

SqliteConnection::SqliteConnection()
    : database_(std::make_shared<SqliteDatabase>())
{
}

SqliteConnection::~SqliteConnection() = default;

void SqliteConnection::Connect(std::u16string_view path, const SqliteOptions& options)
{
    database_ = std::make_shared<SqliteDatabase>();
    database_->Open(path, options);
}

std::shared_ptr<SqliteRecordset> SqliteConnection::Query(std::u16string_view statement)
{
    constexpr auto preparing = SqliteDatabase::Stage::Preparing;
    database_->ForgetErrors();
    if (!database_->IsOpen())
        throw database_->Noted(SQLITE_MISUSE, preparing, u"the connection is not open");

    const std::string bytes = Common::ToUtf8(statement);
    const char* at = bytes.c_str();
    const char* const end = at + bytes.size();
    const auto prepareNext = [&] {
        sqlite3_stmt* prepared = nullptr;
        const int code = sqlite3_prepare_v2(database_->Handle(), at, static_cast<int>(end - at) + 1, &prepared, &at);
        if (code != SQLITE_OK)
            throw database_->Noted(code, preparing);
        return Statement(prepared);
    };

    Statement first = prepareNext();
    if (!first)
        throw database_->Noted(SQLITE_ERROR, preparing, u"the query is empty");
    while (at != end) {
        const char* const before = at;
        if (prepareNext() || at == before)
            throw database_->Noted(SQLITE_ERROR, preparing, u"the query is more than one statement");
    }
    if (sqlite3_column_count(first.get()) == 0)
        throw database_->Noted(SQLITE_ERROR, preparing, u"the query gives no records");
    if (sqlite3_stmt_readonly(first.get()) == 0)
        throw database_->Noted(SQLITE_READONLY, preparing, u"the query would change the database");
    return std::make_shared<SqliteRecordset>(database_, first.release());
}

const std::vector<ProviderError>& SqliteConnection::Errors()
{
    return database_->Errors();
}

} // namespace Tessellon
