#include "recordset/odbc/OdbcSession.h"

#include "recordset/common/FailureNumbers.h"
#include "recordset/common/Unicode.h"
#include "recordset/odbc/ConnectionText.h"
#include "recordset/odbc/Diagnostics.h"
#include "recordset/odbc/OdbcRecordset.h"
#include "recordset/odbc/Wide.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <new>
#include <optional>

namespace Tessellon {

using Odbc::AsPointer;
using Odbc::Narrow;
using Odbc::Wide;

namespace {

constexpr std::size_t LongestText = std::numeric_limits<SQLSMALLINT>::max();

bool IsAscii(std::u16string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 0x80; });
}

} // namespace

OdbcSession::~OdbcSession()
{
    Close();
}

void OdbcSession::Open(std::u16string_view connectionText, std::int32_t loginSeconds)
{
    secrets_ = Odbc::SecretsOf(connectionText);
    if (connectionText.size() > LongestText || connectionText.find(u'\0') != std::u16string_view::npos)
        throw Noted(u"HY090", u"the connection text is too long or holds a zero");

    if (IsAscii(connectionText)) {
        Attempt(connectionText, loginSeconds);
        isWide_ = AskWhetherWide();
    } else {
        OpenByLetters(connectionText, loginSeconds);
    }
    isOpen_ = true;
}

void OdbcSession::OpenByLetters(std::u16string_view connectionText, std::int32_t loginSeconds)
{
    // A driver without wide functions would be given other letters than these, and one of files make a file of that
    // name. It can be asked ahead by a connection without any; one of servers has none.
    std::optional<Failure> failure;
    const std::optional<bool> isWide = AskDriverAlone(connectionText, loginSeconds);
    if (isWide.value_or(true)) {
        try {
            Attempt(connectionText, loginSeconds);
            isWide_ = AskWhetherWide();
            if (isWide_)
                return;
        } catch (const Failure& wide) {
            if (isWide)
                throw;
            failure = wide;
        }
        Close();
    }
    isWide_ = false;
    const std::vector<ProviderError> errors = errors_;
    try {
        Attempt(connectionText, loginSeconds);
        errors_.clear();
    } catch (const Failure&) {
        if (!failure)
            throw;
        errors_ = errors;
        throw *failure;
    }
}

std::optional<bool> OdbcSession::AskDriverAlone(std::u16string_view connectionText, std::int32_t loginSeconds)
{
    const std::u16string driver = Odbc::DriverOf(connectionText);
    if (driver.empty() || !IsAscii(driver))
        return std::nullopt;
    try {
        Attempt(u"Driver=" + driver, loginSeconds);
    } catch (const Failure&) {
        errors_.clear();
        return std::nullopt;
    }
    const bool isWide = AskWhetherWide();
    Close();
    return isWide;
}

void OdbcSession::Attempt(std::u16string_view connectionText, std::int32_t loginSeconds)
{
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_)))
        throw std::bad_alloc();
    SQLSetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, AsPointer(SQL_OV_ODBC3), 0);
    if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_DBC, environment_, &connection_)))
        throw Noted(SQL_HANDLE_ENV, environment_);
    // A driver that knows no such limit waits as long as it likes.
    SQLSetConnectAttr(connection_, SQL_ATTR_LOGIN_TIMEOUT, AsPointer(static_cast<SQLULEN>(std::max(loginSeconds, 0))),
                      SQL_IS_UINTEGER);

    SQLRETURN code = SQL_ERROR;
    if (isWide_) {
        code = SQLDriverConnectW(connection_, nullptr, Wide(connectionText.data()),
                                 static_cast<SQLSMALLINT>(connectionText.size()), nullptr, 0, nullptr,
                                 SQL_DRIVER_NOPROMPT);
    } else {
        const std::string bytes = Common::ToUtf8(connectionText);
        code = SQLDriverConnect(connection_, nullptr, Narrow(bytes.c_str()), SQL_NTS, nullptr, 0, nullptr,
                                SQL_DRIVER_NOPROMPT);
    }
    if (!SQL_SUCCEEDED(code)) {
        Failure failure = Noted(SQL_HANDLE_DBC, connection_);
        Close();
        throw failure;
    }
}

void OdbcSession::Close() noexcept
{
    isOpen_ = false;
    if (connection_ != SQL_NULL_HDBC) {
        SQLDisconnect(connection_);
        SQLFreeHandle(SQL_HANDLE_DBC, connection_);
        connection_ = SQL_NULL_HDBC;
    }
    if (environment_ != SQL_NULL_HENV) {
        SQLFreeHandle(SQL_HANDLE_ENV, environment_);
        environment_ = SQL_NULL_HENV;
    }
}

bool OdbcSession::AskWhetherWide() const
{
    // The driver repeats a statement in the form that it would send. How many of its letters the driver manager turns
    // round and back depends on the locale; one of two units it never does. The statement is longer than the room for
    // the answer, because SQLite's driver ends the question there and not the answer.
    constexpr std::u16string_view letter = u"\U0001F600";
    char16_t repeated[32] = {};
    const std::u16string asked =
        u"SELECT '" + std::u16string(letter) + std::u16string(std::size(repeated), u' ') + u"'";
    SQLINTEGER length = 0;
    const SQLRETURN code = SQLNativeSqlW(connection_, Wide(asked.data()), static_cast<SQLINTEGER>(asked.size()),
                                         Wide(repeated), static_cast<SQLINTEGER>(std::size(repeated)), &length);
    repeated[std::size(repeated) - 1] = u'\0';
    return !SQL_SUCCEEDED(code) || std::u16string_view(repeated).find(letter) != std::u16string_view::npos;
}

void OdbcSession::SettleRecordsets()
{
    while (!reading_.empty())
        reading_.back()->Settle();
}

Failure OdbcSession::Noted(SQLSMALLINT kind, SQLHANDLE handle)
{
    errors_ = Odbc::DiagnosticsOf(kind, handle, isWide_);
    Odbc::Mask(errors_, secrets_);
    return Failure(errors_.front().Number, u"Recordset", errors_.front().Description);
}

Failure OdbcSession::Noted(std::u16string_view state, std::u16string description)
{
    const std::int32_t number = Common::NumberOfState(state);
    errors_.assign(1, {number, description, u"ODBC", 0, std::u16string(state), {}, 0});
    return Failure(number, u"Recordset", std::move(description));
}

} // namespace Tessellon
