#include "recordset/odbc/Statement.h"

#include "recordset/common/Unicode.h"
#include "recordset/common/Words.h"
#include "recordset/odbc/Wide.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

namespace Tessellon::Odbc {

namespace {

constexpr std::u16string_view NoRecords = u"the query gives no records";
constexpr std::size_t LongestName = 1024;

} // namespace

Statement::Statement(std::shared_ptr<OdbcSession> session)
    : session_(std::move(session))
{
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_STMT, session_->Handle(), &handle_)))
        throw session_->Noted(SQL_HANDLE_DBC, session_->Handle());
}

Statement::~Statement()
{
    SQLFreeHandle(SQL_HANDLE_STMT, handle_);
}

void Statement::Run(std::u16string_view query)
{
    Prepare(query);
    if (ColumnCount() == 0) {
        RunToTry();
        return;
    }
    const SQLRETURN code = SQLExecute(handle_);
    // So told of a change that would give the records it changed, and changed none.
    if (code == SQL_NO_DATA)
        throw session_->Noted(u"42000", std::u16string(NoRecords));
    Check(code);
}

void Statement::Prepare(std::u16string_view query)
{
    // Drivers tell of an empty query whatever they like, as that memory is short.
    if (Common::WithoutBlanks(query).empty())
        throw session_->Noted(u"42000", u"the query is empty");
    if (query.size() > std::numeric_limits<SQLINTEGER>::max() / 4 || query.find(u'\0') != std::u16string_view::npos)
        throw session_->Noted(u"42000", u"the query is too long or holds a zero");
    if (session_->IsWide()) {
        Check(SQLPrepareW(handle_, Wide(query.data()), static_cast<SQLINTEGER>(query.size())));
    } else {
        const std::string bytes = Common::ToUtf8(query);
        Check(SQLPrepare(handle_, Narrow(bytes.c_str()), SQL_NTS));
    }
}

void Statement::RunToTry()
{
    // Some drivers know the columns, or that the query is wrong, only when it has run.
    const auto commitEach = [&](SQLULEN truth) {
        return SQLSetConnectAttr(session_->Handle(), SQL_ATTR_AUTOCOMMIT, AsPointer(truth), SQL_IS_UINTEGER);
    };
    const bool canTakeBack = SQL_SUCCEEDED(commitEach(SQL_AUTOCOMMIT_OFF));
    const SQLRETURN code = SQLExecute(handle_);
    const bool givesRecords = SQL_SUCCEEDED(code) && ColumnCount() > 0;
    std::optional<Failure> failure;
    if (!givesRecords)
        failure = SQL_SUCCEEDED(code) || code == SQL_NO_DATA ? session_->Noted(u"42000", std::u16string(NoRecords))
                                                             : session_->Noted(SQL_HANDLE_STMT, handle_);
    if (canTakeBack) {
        if (!givesRecords)
            SQLEndTran(SQL_HANDLE_DBC, session_->Handle(), SQL_ROLLBACK);
        commitEach(SQL_AUTOCOMMIT_ON);
    }
    if (failure)
        throw *failure;
}

int Statement::ColumnCount() const
{
    SQLSMALLINT count = 0;
    return SQL_SUCCEEDED(SQLNumResultCols(handle_, &count)) ? count : 0;
}

Described Statement::Column(int column) const
{
    const auto number = static_cast<SQLUSMALLINT>(column);
    Described described;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    SQLSMALLINT length = 0;
    SQLLEN isUnsigned = SQL_FALSE;
    if (session_->IsWide()) {
        char16_t name[LongestName] = {};
        Check(SQLDescribeColW(handle_, number, Wide(name), LongestName, &length, &described.SqlType, &described.Size,
                              &digits, &nullable));
        described.Name = name;
        name[0] = 0;
        SQLColAttributeW(handle_, number, SQL_DESC_TYPE_NAME, name, sizeof name, &length, nullptr);
        described.TypeName = name;
    } else {
        char name[LongestName] = {};
        Check(SQLDescribeCol(handle_, number, Narrow(name), LongestName, &length, &described.SqlType, &described.Size,
                             &digits, &nullable));
        described.Name = Common::ToUtf16(name);
        name[0] = 0;
        SQLColAttribute(handle_, number, SQL_DESC_TYPE_NAME, name, sizeof name, &length, nullptr);
        described.TypeName = Common::ToUtf16(name);
    }
    SQLColAttribute(handle_, number, SQL_DESC_UNSIGNED, nullptr, 0, nullptr, &isUnsigned);
    described.IsUnsigned = isUnsigned == SQL_TRUE;
    return described;
}

void Statement::Check(SQLRETURN code) const
{
    if (!SQL_SUCCEEDED(code))
        throw session_->Noted(SQL_HANDLE_STMT, handle_);
}

} // namespace Tessellon::Odbc
