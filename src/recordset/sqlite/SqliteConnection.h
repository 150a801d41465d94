#pragma once

#include "platform/Recordset.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace Tessellon {

class SqliteDatabase;
class SqliteRecordset;

/// How a database is opened.
struct SqliteOptions {
    /// A connection that only reads. Without this it may bring a database in order that a crash of another program
    /// left.
    bool ReadOnly = true;
    /// How long a read waits for a lock of another program, at most; then it fails. Below 0: as 0.
    std::int32_t BusyMilliseconds = 5000;
};

/// A connection to a SQLite database. It and its recordsets belong to one thread at a time.
class SqliteConnection final : public Connection {
public:
    /// Opens the database at path, an existing file, or ":memory:".
    /// A file that is missing, is no database, or stays locked is a failure of source "Recordset" with SQLite's words.
    static std::shared_ptr<SqliteConnection> Open(std::u16string_view path, const SqliteOptions& options = {});

    /// A connection that is not open yet, for a host that wants Errors of a failed Connect.
    SqliteConnection();
    ~SqliteConnection() override;

    /// As Open. Recordsets of an earlier database keep it open.
    void Connect(std::u16string_view path, const SqliteOptions& options = {});

    /// A recordset over one statement that reads records. Nothing is read yet but the schema.
    /// Failures: a statement that SQLite refuses, more than one, one without records, one that would write; no
    /// database.
    std::shared_ptr<SqliteRecordset> Query(std::u16string_view statement);

    /// What the last failing call said, of the connection or a recordset of it. The next Connect, Query or beginning of
    /// a snapshot empties it.
    const std::vector<ProviderError>& Errors() override;

private:
    std::shared_ptr<SqliteDatabase> database_;
};

} // namespace Tessellon
