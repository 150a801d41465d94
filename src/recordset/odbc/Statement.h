#pragma once

#include "recordset/odbc/OdbcSession.h"

#include <memory>
#include <sql.h>
#include <string>
#include <string_view>

namespace Tessellon::Odbc {

/// A column as the driver tells of it.
struct Described {
    std::u16string Name;
    SQLSMALLINT SqlType = 0;
    SQLULEN Size = 0; ///< In characters, digits or bytes, as the type has it; 0 where the driver cannot say.
    bool IsUnsigned = false;
    std::u16string TypeName;
};

/// A statement of a session, which it keeps open. What the driver refuses is a failure of source "Recordset".
class Statement {
public:
    explicit Statement(std::shared_ptr<OdbcSession> session);
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    /// Runs a query. One that gives no records fails, and is not run or its deeds are taken back, where the driver lets
    /// one.
    void Run(std::u16string_view query);

    [[nodiscard]] int ColumnCount() const; ///< 0 also where the driver cannot say.
    [[nodiscard]] Described Column(int column) const; ///< From 1.

    [[nodiscard]] SQLHSTMT Handle() const { return handle_; }
    [[nodiscard]] OdbcSession& Session() const { return *session_; }
    void Check(SQLRETURN code) const; ///< Fails with what the driver says, if the code is no success.

private:
    void Prepare(std::u16string_view query);
    void RunToTry();

    std::shared_ptr<OdbcSession> session_;
    SQLHSTMT handle_ = SQL_NULL_HSTMT;
};

} // namespace Tessellon::Odbc
