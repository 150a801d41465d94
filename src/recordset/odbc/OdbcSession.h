#pragma once

#include "platform/Failure.h"
#include "platform/Recordset.h"

#include <cstdint>
#include <optional>
#include <sql.h>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

class OdbcRecordset;

/// What a connection and its recordsets share: the open connection of ODBC, and what went wrong last.
class OdbcSession {
public:
    OdbcSession() = default;
    OdbcSession(const OdbcSession&) = delete;
    OdbcSession& operator=(const OdbcSession&) = delete;
    ~OdbcSession();

    void Open(std::u16string_view connectionText, std::int32_t loginSeconds);

    [[nodiscard]] bool IsOpen() const { return isOpen_; }
    [[nodiscard]] SQLHDBC Handle() const { return connection_; }
    /// False for a driver that has no wide functions. The driver manager would turn what it is to give them into the
    /// locale's letters and cut the rest, so such a driver is given UTF-8 instead, which passes as it is, and gives it.
    [[nodiscard]] bool IsWide() const { return isWide_; }

    /// A recordset that has not read all of its records yet, until it has or is gone.
    void Enter(OdbcRecordset& records) { reading_.push_back(&records); }
    void Leave(OdbcRecordset& records) { std::erase(reading_, &records); }
    /// Lets all of them read to their ends. Not every driver serves another statement meanwhile, and one ends the
    /// records of the first without a word.
    void SettleRecordsets();

    const std::vector<ProviderError>& Errors() const { return errors_; }
    void ForgetErrors() { errors_.clear(); }
    /// Notes what was said of another call before.
    void NoteAgain(const std::vector<ProviderError>& errors) { errors_ = errors; }
    /// Notes all that driver and driver manager say of the last call on a handle, and gives the failure to throw.
    [[nodiscard]] Failure Noted(SQLSMALLINT kind, SQLHANDLE handle);
    /// The same with words of its own.
    [[nodiscard]] Failure Noted(std::u16string_view state, std::u16string description);

private:
    void OpenByLetters(std::u16string_view connectionText, std::int32_t loginSeconds);
    /// None where the text names no driver, or the driver opens nothing without more.
    [[nodiscard]] std::optional<bool> AskDriverAlone(std::u16string_view connectionText, std::int32_t loginSeconds);
    void Attempt(std::u16string_view connectionText, std::int32_t loginSeconds);
    void Close() noexcept;
    [[nodiscard]] bool AskWhetherWide() const;

    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
    bool isOpen_ = false;
    bool isWide_ = true;
    std::vector<std::u16string> secrets_;
    std::vector<ProviderError> errors_;
    std::vector<OdbcRecordset*> reading_;
};

} // namespace Tessellon
