#pragma once

#include "platform/Failure.h"
#include "platform/Recordset.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace Tessellon {

struct SqliteOptions;

/// What a connection and its recordsets share: the open database, what went wrong last, and the transaction that keeps
/// one state of the database before their eyes.
class SqliteDatabase {
public:
    enum class Stage : std::uint8_t { Opening, Preparing, Walking };

    SqliteDatabase() = default;
    SqliteDatabase(const SqliteDatabase&) = delete;
    SqliteDatabase& operator=(const SqliteDatabase&) = delete;
    ~SqliteDatabase();

    void Open(std::u16string_view path, const SqliteOptions& options);

    [[nodiscard]] bool IsOpen() const { return isOpen_; }
    [[nodiscard]] sqlite3* Handle() const { return handle_; }
    /// True for a database that stores its text as UTF-16: read as such, it needs no conversion.
    [[nodiscard]] bool StoresUtf16() const { return storesUtf16_; }

    /// The snapshot is taken by the first read behind the first Hold, and gone with the last Release.
    void Hold();
    void Release() noexcept;

    const std::vector<ProviderError>& Errors() const { return errors_; }
    void ForgetErrors() { errors_.clear(); }
    /// Notes what SQLite says of its last call, and gives the failure to throw.
    [[nodiscard]] Failure Noted(int code, Stage stage);
    /// The same with words of its own.
    [[nodiscard]] Failure Noted(int code, Stage stage, std::u16string description);

private:
    sqlite3* handle_ = nullptr;
    std::u16string path_;
    std::int32_t busyMilliseconds_ = 0;
    bool isOpen_ = false;
    bool storesUtf16_ = false;
    int holders_ = 0;
    std::vector<ProviderError> errors_;
};

} // namespace Tessellon
