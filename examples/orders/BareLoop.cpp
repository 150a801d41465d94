#include "orders/BareLoop.h"

#include <chrono>
#include <fstream>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace Orders {

namespace {

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

} // namespace

BareLoopResult RunBareLoop(const std::filesystem::path& path, const std::string& query)
{
    const auto start = std::chrono::steady_clock::now();

    sqlite3* opened = nullptr;
    int code = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
    const std::unique_ptr<sqlite3, Closer> database(opened);
    const auto check = [&](bool isDone) {
        if (!isDone)
            throw std::runtime_error("cannot read " + path.string() + ": " + sqlite3_errmsg(database.get()));
    };
    check(code == SQLITE_OK);
    sqlite3_busy_timeout(database.get(), 5000);
    sqlite3_stmt* prepared = nullptr;
    code = sqlite3_prepare_v2(database.get(), query.c_str(), -1, &prepared, nullptr);
    const std::unique_ptr<sqlite3_stmt, Closer> statement(prepared);
    check(code == SQLITE_OK);

    BareLoopResult result;
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW)
        ++result.Rows;
    check(code == SQLITE_DONE);
    sqlite3_reset(prepared);
    const int fields = sqlite3_column_count(prepared);
    while ((code = sqlite3_step(prepared)) == SQLITE_ROW) {
        for (int field = 0; field < fields; ++field) {
            if (const unsigned char* text = sqlite3_column_text(prepared, field))
                result.Checksum += *text + static_cast<std::uint64_t>(sqlite3_column_bytes(prepared, field));
        }
    }
    check(code == SQLITE_DONE);

    result.Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

std::optional<std::int64_t> PeakMemory()
{
    std::ifstream status("/proc/self/status");
    std::string label;
    std::int64_t kilobytes = 0;
    while (status >> label) {
        if (label == "VmHWM:" && status >> kilobytes)
            return kilobytes * 1024;
    }
    return std::nullopt;
}

} // namespace Orders
