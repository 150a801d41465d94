#pragma once

#include <cstdint>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string>

namespace Bench {

/// A peer's way through the records: SQLite's own calls, with nothing between.
class Records {
public:
    Records(const std::string& database, const std::string& statement)
    {
        sqlite3* opened = nullptr;
        sqlite3_stmt* prepared = nullptr;
        const bool isOpen = sqlite3_open_v2(database.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX,
                                            nullptr) == SQLITE_OK &&
                            sqlite3_prepare_v2(opened, statement.c_str(), -1, &prepared, nullptr) == SQLITE_OK;
        database_.reset(opened);
        statement_.reset(prepared);
        if (!isOpen)
            throw std::runtime_error(sqlite3_errmsg(opened));
    }

    bool Next() { return sqlite3_step(statement_.get()) == SQLITE_ROW; }
    [[nodiscard]] int Integer(int field) const { return sqlite3_column_int(statement_.get(), field); }
    [[nodiscard]] std::string_view Text(int field) const
    {
        const unsigned char* text = sqlite3_column_text(statement_.get(), field);
        return {text != nullptr ? reinterpret_cast<const char*>(text) : "",
                static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), field))};
    }

    static int Count(const std::string& database)
    {
        Records records(database, "SELECT count(*) FROM records");
        records.Next();
        return records.Integer(0);
    }

private:
    struct Closer {
        void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
        void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    };
    std::unique_ptr<sqlite3, Closer> database_;
    std::unique_ptr<sqlite3_stmt, Closer> statement_;
};

} // namespace Bench
