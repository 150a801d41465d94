#pragma once

#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "support/Recordsets.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <string>

namespace Tessellon {

/// Another program's hand on a database: it writes through SQLite itself, and waits for no lock.
class Writer {
public:
    explicit Writer(const std::filesystem::path& path)
    {
        EXPECT_EQ(sqlite3_open(path.c_str(), &handle_), SQLITE_OK);
        // The tests are about locks, not about a power cut; waiting for the disk takes them ten times as long.
        Do("PRAGMA synchronous = OFF");
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;
    ~Writer() { sqlite3_close(handle_); }

    /// Gives SQLite's result code.
    int Try(const std::string& statements)
    {
        return sqlite3_exec(handle_, statements.c_str(), nullptr, nullptr, nullptr);
    }
    void Do(const std::string& statements)
    {
        EXPECT_EQ(Try(statements), SQLITE_OK) << sqlite3_errmsg(handle_) << " in " << statements;
    }
    /// The first field of the first record, a number.
    int Ask(const std::string& statement)
    {
        sqlite3_stmt* prepared = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle_, statement.c_str(), -1, &prepared, nullptr), SQLITE_OK);
        EXPECT_EQ(sqlite3_step(prepared), SQLITE_ROW);
        const int answer = sqlite3_column_int(prepared, 0);
        sqlite3_finalize(prepared);
        return answer;
    }
    /// Puts bytes as they are into the only parameter of a statement.
    void DoWithText(const std::string& statement, const std::string& bytes)
    {
        sqlite3_stmt* prepared = nullptr;
        ASSERT_EQ(sqlite3_prepare_v2(handle_, statement.c_str(), -1, &prepared, nullptr), SQLITE_OK);
        sqlite3_bind_text(prepared, 1, bytes.data(), static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
        EXPECT_EQ(sqlite3_step(prepared), SQLITE_DONE);
        sqlite3_finalize(prepared);
    }
    void DoWithText(const std::string& statement, const std::u16string& units)
    {
        sqlite3_stmt* prepared = nullptr;
        ASSERT_EQ(sqlite3_prepare_v2(handle_, statement.c_str(), -1, &prepared, nullptr), SQLITE_OK);
        sqlite3_bind_text16(prepared, 1, units.data(), static_cast<int>(units.size() * 2), SQLITE_TRANSIENT);
        EXPECT_EQ(sqlite3_step(prepared), SQLITE_DONE);
        sqlite3_finalize(prepared);
    }

private:
    sqlite3* handle_ = nullptr;
};

/// A folder of its own for each test, gone behind it.
class SqliteTest : public testing::Test {
protected:
    SqliteTest()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "recordset-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~SqliteTest() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path Path(const std::string& name = "test.db") const { return folder_ / name; }
    std::u16string PathText(const std::string& name = "test.db") const { return Path(name).u16string(); }

    /// A database that these statements make.
    void Make(const std::string& statements) { Writer(Path()).Do(statements); }
    std::shared_ptr<SqliteConnection> Open() const { return SqliteConnection::Open(PathText(), {true, 50}); }
    std::shared_ptr<SqliteRecordset> Query(std::u16string_view statement) const { return Open()->Query(statement); }

    /// The only field of a table with a column of this type, behind storing this SQL expression in it.
    std::shared_ptr<SqliteRecordset> Stored(const std::string& type, const std::string& expression) const
    {
        Writer writer(Path());
        writer.Do("DROP TABLE IF EXISTS stored; CREATE TABLE stored (field " + type + "); INSERT INTO stored VALUES (" +
                  expression + ")");
        return Query(u"SELECT field FROM stored");
    }

private:
    std::filesystem::path folder_;
};

} // namespace Tessellon
