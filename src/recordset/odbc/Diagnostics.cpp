#include "recordset/odbc/Diagnostics.h"

#include "recordset/common/FailureNumbers.h"
#include "recordset/common/Unicode.h"
#include "recordset/odbc/Wide.h"

#include <cstddef>
#include <string>

namespace Tessellon::Odbc {

namespace {

constexpr std::size_t StateLength = 5;
constexpr SQLSMALLINT UsualLength = 512;
/// A driver may repeat itself without end.
constexpr SQLSMALLINT MostRecords = 100;

/// One record by the functions of one width. False behind the last.
template <typename Unit, typename Get, typename ToText>
bool Read(SQLSMALLINT record, Get get, ToText toText, ProviderError& error)
{
    Unit state[StateLength + 1] = {};
    SQLINTEGER native = 0;
    std::basic_string<Unit> words(UsualLength, Unit());
    SQLSMALLINT length = 0;
    const auto ask = [&] {
        return get(record, state, &native, words.data(), static_cast<SQLSMALLINT>(words.size()), &length);
    };
    SQLRETURN code = ask();
    if (code == SQL_SUCCESS_WITH_INFO && length >= static_cast<SQLSMALLINT>(words.size())) {
        words.resize(static_cast<std::size_t>(length) + 1);
        code = ask();
    }
    if (!SQL_SUCCEEDED(code))
        return false;
    words.resize(words.find(Unit()) == std::basic_string<Unit>::npos ? words.size() : words.find(Unit()));
    error.Description = toText(words);
    error.SQLState = toText(std::basic_string<Unit>(state));
    error.NativeError = native;
    error.Source = u"ODBC";
    error.Number = Common::NumberOfState(error.SQLState);
    return true;
}

bool ReadWide(SQLSMALLINT kind, SQLHANDLE handle, SQLSMALLINT record, ProviderError& error)
{
    const auto get = [&](SQLSMALLINT number, char16_t* state, SQLINTEGER* native, char16_t* words, SQLSMALLINT size,
                         SQLSMALLINT* length) {
        return SQLGetDiagRecW(kind, handle, number, Wide(state), native, Wide(words), size, length);
    };
    return Read<char16_t>(
        record, get, [](const std::u16string& text) { return text; }, error);
}

bool ReadNarrow(SQLSMALLINT kind, SQLHANDLE handle, SQLSMALLINT record, ProviderError& error)
{
    const auto get = [&](SQLSMALLINT number, char* state, SQLINTEGER* native, char* words, SQLSMALLINT size,
                         SQLSMALLINT* length) {
        return SQLGetDiagRec(kind, handle, number, Narrow(state), native, Narrow(words), size, length);
    };
    return Read<char>(
        record, get, [](const std::string& text) { return Common::ToUtf16(text); }, error);
}

} // namespace

std::vector<ProviderError> DiagnosticsOf(SQLSMALLINT kind, SQLHANDLE handle, bool isWide)
{
    std::vector<ProviderError> errors;
    for (SQLSMALLINT record = 1; record <= MostRecords; ++record) {
        ProviderError error;
        if (!(isWide ? ReadWide(kind, handle, record, error) : ReadNarrow(kind, handle, record, error)))
            break;
        errors.push_back(std::move(error));
    }
    if (errors.empty())
        errors.push_back({Common::Unspecified, u"the driver gives no reason", u"ODBC", 0, u"HY000", {}, 0});
    return errors;
}

} // namespace Tessellon::Odbc
