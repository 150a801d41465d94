// load sheet|walk|bare DATABASE: fills a sheet; asks for all that a load asks for but has no sheet; walks the records
// with nothing but SQLite's own calls.

#include "orders/BareLoop.h"
#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "support/Figures.h"
#include "support/HeadlessSheet.h"
#include "support/Records.h"

#include <cstring>
#include <sqlite3.h>

namespace Bench {
namespace {

using namespace Tessellon;

void TellPeak()
{
    Tell("peak", static_cast<double>(Orders::PeakMemory().value_or(0)));
}

/// The bytes that the texts need by themselves: one a unit where all of a cell are below 256, else two.
double BytesOf(std::u16string_view text)
{
    const bool isNarrow = std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 256; });
    return static_cast<double>(isNarrow ? text.size() : 2 * text.size());
}

void LoadSheet(const std::string& database)
{
    const HeadlessSheet headless;
    TessellonSheet& sheet = *headless.Sheet;
    Tell("seconds", SecondsOf([&] { Load(sheet, database); }));
    TellPeak();
    Tell("rows", sheet.Rows() - 1);
    Checksum checksum;
    double bytes = 0;
    for (std::int32_t row = 1; row < sheet.Rows(); ++row) {
        for (const int field : plainFields)
            checksum.Add(sheet.TextMatrix(row, field + 1));
        for (int field = 0; field < fieldCount; ++field)
            bytes += BytesOf(sheet.TextMatrix(row, field + 1));
    }
    Tell("checksum", checksum.Value());
    Tell("text", bytes);
}

void WalkOnly(const std::string& database)
{
    const HeadlessSheet headless;
    // A few, so that the code of the load is in memory here too.
    Load(*headless.Sheet, database, " LIMIT 100");
    const auto connection = SqliteConnection::Open(Common::ToUtf16(database));
    const auto records = connection->Query(Common::ToUtf16(query));
    std::int64_t rows = 0;
    for (; !records->AtEnd(); records->MoveNext())
        ++rows;
    std::uint64_t used = 0;
    for (records->MoveFirst(); !records->AtEnd(); records->MoveNext())
        for (std::int32_t field = 0; field < fieldCount; ++field)
            used += records->FieldValue(field).Characters.size();
    TellPeak();
    Tell("rows", static_cast<double>(rows));
    Tell("used", static_cast<double>(used));
}

double ChecksumOf(const std::string& database)
{
    sqlite3* opened = nullptr;
    sqlite3_stmt* statement = nullptr;
    sqlite3_open_v2(database.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_prepare_v2(opened, query, -1, &statement, nullptr);
    Checksum checksum;
    std::u16string text;
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (const int field : plainFields)
            checksum.Add(Common::ToUtf16(reinterpret_cast<const char*>(sqlite3_column_text(statement, field)), text));
    sqlite3_finalize(statement);
    sqlite3_close(opened);
    return checksum.Value();
}

void RunBare(const std::string& database)
{
    Orders::BareLoopResult result;
    Tell("seconds", SecondsOf([&] { result = Orders::RunBareLoop(database, query); }));
    TellPeak();
    Tell("rows", static_cast<double>(result.Rows));
    Tell("used", static_cast<double>(result.Checksum));
    Tell("checksum", ChecksumOf(database));
}

} // namespace
} // namespace Bench

int main(int count, char** arguments)
{
    const auto is = [&](const char* what) { return count == 3 && std::strcmp(arguments[1], what) == 0; };
    if (is("sheet"))
        Bench::LoadSheet(arguments[2]);
    else if (is("walk"))
        Bench::WalkOnly(arguments[2]);
    else if (is("bare"))
        Bench::RunBare(arguments[2]);
    else
        return 2;
}
