#include "recordset/sqlite/SqliteDatabase.h"

#include "recordset/common/FailureNumbers.h"
#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"

#include <algorithm>
#include <sqlite3.h>
#include <utility>

namespace Tessellon {

namespace {

struct Classification {
    std::int32_t Number;
    const char16_t* State;
};

Classification Classify(int code, SqliteDatabase::Stage stage, std::u16string_view description)
{
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return {Common::WaitedInVain, u"HYT00"};
    case SQLITE_NOMEM: return {Common::OutOfMemory, u"HY001"};
    case SQLITE_CANTOPEN:
    case SQLITE_NOTADB: return {Common::Unspecified, u"08001"};
    case SQLITE_PERM:
    case SQLITE_AUTH:
    case SQLITE_READONLY: return {Common::PermissionDenied, u"42000"};
    case SQLITE_CONSTRAINT: return {Common::Unspecified, u"23000"};
    case SQLITE_TOOBIG: return {Common::Unspecified, u"22001"};
    case SQLITE_MISMATCH: return {Common::Unspecified, u"22018"};
    case SQLITE_INTERRUPT: return {Common::Unspecified, u"HY008"};
    case SQLITE_ERROR:
        if (description.starts_with(u"integer overflow"))
            return {Common::Unspecified, u"22003"};
        if (stage != SqliteDatabase::Stage::Preparing)
            return {Common::Unspecified, u"HY000"};
        if (description.starts_with(u"no such table"))
            return {Common::NoSuchTable, u"42S02"};
        if (description.starts_with(u"no such column"))
            return {Common::WrongCommand, u"42S22"};
        return {Common::WrongCommand, u"42000"};
    default: return {Common::Unspecified, u"HY000"};
    }
}

} // namespace

SqliteDatabase::~SqliteDatabase()
{
    sqlite3_close_v2(handle_);
}

void SqliteDatabase::Open(std::u16string_view path, const SqliteOptions& options)
{
    path_ = path;
    busyMilliseconds_ = std::max(options.BusyMilliseconds, 0);
    // SQLite would open a temporary database for an empty path and read another no further than a zero.
    if (path.empty() || path.find(u'\0') != std::u16string_view::npos)
        throw Noted(SQLITE_CANTOPEN, Stage::Opening, Common::ToUtf16(sqlite3_errstr(SQLITE_CANTOPEN)));

    const int access = options.ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    const int code = sqlite3_open_v2(Common::ToUtf8(path).c_str(), &handle_,
                                     access | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    if (code != SQLITE_OK)
        throw Noted(code, Stage::Opening);
    sqlite3_busy_timeout(handle_, busyMilliseconds_);

    // Opening reads nothing yet; the first question finds out whether this is a database that can be read.
    sqlite3_stmt* statement = nullptr;
    int answer = sqlite3_prepare_v2(handle_, "PRAGMA encoding", -1, &statement, nullptr);
    if (answer == SQLITE_OK) {
        answer = sqlite3_step(statement);
        if (answer == SQLITE_ROW) {
            const auto* encoding = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
            storesUtf16_ = encoding != nullptr && std::string_view(encoding).starts_with("UTF-16");
        }
        answer = sqlite3_finalize(statement);
    }
    if (answer != SQLITE_OK)
        throw Noted(answer, Stage::Opening);
    isOpen_ = true;
}

void SqliteDatabase::Hold()
{
    if (holders_ == 0) {
        errors_.clear();
        const int code = sqlite3_exec(handle_, "BEGIN", nullptr, nullptr, nullptr);
        if (code != SQLITE_OK)
            throw Noted(code, Stage::Walking);
    }
    ++holders_;
}

void SqliteDatabase::Release() noexcept
{
    // Nothing was written, so the end of the transaction only drops its lock.
    if (--holders_ == 0 && sqlite3_get_autocommit(handle_) == 0)
        sqlite3_exec(handle_, "COMMIT", nullptr, nullptr, nullptr);
}

Failure SqliteDatabase::Noted(int code, Stage stage)
{
    return Noted(code, stage, Common::ToUtf16(handle_ != nullptr ? sqlite3_errmsg(handle_) : sqlite3_errstr(code)));
}

Failure SqliteDatabase::Noted(int code, Stage stage, std::u16string description)
{
    const Classification classification = Classify(code, stage, description);
    if (classification.Number == Common::WaitedInVain)
        description += u" (waited " + Common::ToUtf16(std::to_string(busyMilliseconds_)) + u" milliseconds)";
    if (stage == Stage::Opening)
        description += u": " + path_;
    errors_.assign(1, {classification.Number, description, u"SQLite", code, classification.State, {}, 0});
    return Failure(classification.Number, u"Recordset", std::move(description));
}

} // namespace Tessellon
