#include "recordset/common/Unicode.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sqlite3.h>
#include <string>

namespace Tessellon {
namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr std::int32_t many = 50'000;
#else
constexpr std::int32_t many = 1'000'000;
#endif
constexpr std::int32_t some = 20'000;
constexpr int fields = 10;

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

/// A database with a table of many records of ten fields of mixed types, gone at the end.
class OrdersFile {
public:
    OrdersFile()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "load-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
        sqlite3* opened = nullptr;
        sqlite3_open(Path().c_str(), &opened);
        const std::unique_ptr<sqlite3, Closer> database(opened);
        const std::string statements =
            "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN;"
            "CREATE TABLE orders (id INTEGER PRIMARY KEY, customer VARCHAR(60), city TEXT, ordered DATE, amount REAL,"
            " quantity INT, price DECIMAL(12, 2), paid BOOLEAN, phone VARCHAR(24), note TEXT);"
            "WITH RECURSIVE numbers (n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM numbers WHERE n < " +
            std::to_string(many) +
            ") INSERT INTO orders SELECT n, 'Customer ' || (n * 7919 % 10007),"
            " CASE n % 5 WHEN 0 THEN '  Zürich ' WHEN 1 THEN 'Łódź' WHEN 2 THEN '' ELSE 'Bern' END,"
            " CASE WHEN n % 11 THEN date('1999-12-31', n * 31 % 9000 || ' days') END,"
            " (n * 7919 % 1000003 - 500000) / 100.0, CASE WHEN n % 7 THEN n % 1000 END, n % 4000 / 8.0, n % 3 = 0,"
            " '+41 ' || n * 77 % 8999999, CASE WHEN n % 4 THEN 'By the door of number ' || n % 200 END FROM numbers;"
            "COMMIT";
        char* message = nullptr;
        EXPECT_EQ(sqlite3_exec(opened, statements.c_str(), nullptr, nullptr, &message), SQLITE_OK) << message;
    }
    OrdersFile(const OrdersFile&) = delete;
    OrdersFile& operator=(const OrdersFile&) = delete;
    ~OrdersFile() { std::filesystem::remove_all(folder_); }

    [[nodiscard]] std::filesystem::path Path() const { return folder_ / "orders.db"; }

private:
    std::filesystem::path folder_;
};

const OrdersFile& Orders()
{
    static const OrdersFile file;
    return file;
}

/// What the sheet is to show of a field, from the text that SQLite has for it.
std::string ShownText(const std::string& type, const char* text)
{
    const std::string_view stored = text != nullptr ? text : "";
    if (type == "BOOLEAN")
        return stored == "1" ? "True" : "False";
    if (type == "DATE")
        return text == nullptr ? ""
                               : std::string(stored.substr(8, 2)) + "/" + std::string(stored.substr(5, 2)) + "/" +
                                     std::string(stored.substr(0, 4));
    if (type == "REAL" || type == "DECIMAL(12, 2)" || type.starts_with("INT"))
        return text == nullptr ? "0" : std::string(stored.substr(0, stored.size() - (stored.ends_with(".0") ? 2 : 0)));
    const std::size_t first = stored.find_first_not_of(' ');
    return first == std::string_view::npos
               ? ""
               : std::string(stored.substr(first, stored.find_last_not_of(' ') + 1 - first));
}

/// A load of so many records into ten columns, the second of which grows with its texts.
class LargeLoad {
public:
    explicit LargeLoad(std::int32_t records)
        : records_(records)
    {
        Sheet->Cols(fields + 1);
        for (std::int32_t col = 1; col <= fields; ++col)
            Sheet->CreateColumnDataType(col, u"C", fcTextBox, u"", false, fcLeft, 40, col == 2 ? faContent : faNil,
                                        false);
        Sheet->BuildGridColumns();
        Sheet.TakeEvents();
        // What the sheet has told is looked at row by row, so that no record of the whole load is kept.
        Sheet->RowColChange += [this] { OnRow(); };
    }

    void Run()
    {
        const auto connection = SqliteConnection::Open(Orders().Path().u16string());
        const std::u16string_view query = u"SELECT * FROM orders WHERE id <= ";
        Sheet->DataSource(connection->Query(std::u16string(query) + Utf16(std::to_string(records_))), connection);
    }

    SheetUnderTest Sheet;
    std::function<void()> OnRow = [this] { Sheet.Heard.clear(); };

private:
    std::int32_t records_;
};

TEST(LoadOfManyRows, ShowsInEachCellWhatSqliteHasInItsField)
{
    LargeLoad load(many);
    load.Run();
    ASSERT_EQ(load.Sheet->Rows(), many + 1);

    sqlite3* opened = nullptr;
    sqlite3_open(Orders().Path().c_str(), &opened);
    const std::unique_ptr<sqlite3, Closer> database(opened);
    sqlite3_stmt* prepared = nullptr;
    sqlite3_prepare_v2(opened, "SELECT * FROM orders", -1, &prepared, nullptr);
    const std::unique_ptr<sqlite3_stmt, Closer> statement(prepared);
    std::int32_t row = 0;
    while (sqlite3_step(prepared) == SQLITE_ROW) {
        ++row;
        for (int field = 0; field < fields; ++field) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(prepared, field));
            const std::string expected = ShownText(sqlite3_column_decltype(prepared, field), text);
            ASSERT_EQ(Common::ToUtf8(load.Sheet->TextMatrix(row, field + 1)), expected)
                << "row " << row << ", field " << field;
        }
    }
    EXPECT_EQ(row, many);
}

/// One row asks for ten texts, RowHeight, Redraw, Row, FillStyle twice, Col, ColSel, CellBackColor, the Refresh of its
/// event, and MoveNext in both walks. What is asked once is the same for any number of rows.
TEST(LoadOfManyRows, MakesAsManyCallsForEachRowAsOneOfFewRows)
{
    constexpr std::int32_t ofARow = 21;
    std::int32_t few = 0;
    {
        LargeLoad load(some);
        load.OnRow = [&] { few += static_cast<std::int32_t>(load.Sheet.Calls->TakeNotes().size()); };
        load.Sheet.Calls->Notes(true);
        load.Run();
        load.OnRow();
    }

    LargeLoad load(many);
    int failures = 0;
    load.Sheet->ErrInfo += [&](auto&&...) { ++failures; };
    load.Sheet.Calls->FailAtCall(few + (many - some) * ofARow + 1, 5);
    load.Run();
    EXPECT_EQ(load.Sheet->Rows(), many + 1);
    EXPECT_EQ(failures, 0) << "the load made more calls";
    load.Sheet->ColWidth(1, 900);
    EXPECT_EQ(failures, 1) << "the load made fewer calls";
}

TEST(LoadOfSomeRows, MakesEachCallAndTellsEachEventAsOftenAsTheRulesSay)
{
    using Counts = std::map<std::string, std::int32_t>;
    Counts calls;
    Counts events;
    LargeLoad load(some);
    const auto count = [&] {
        for (const std::string& call : load.Sheet.TakeCalls())
            ++calls[call.substr(0, call.find_first_of("(="))];
        for (const std::string& event : load.Sheet.TakeEventNames())
            ++events[event];
    };
    load.OnRow = count;
    load.Sheet.Calls->Notes(true);
    load.Run();
    count();

    // Ahead of the editor, which is laid once: at the end, in the first cell.
    std::erase_if(calls, [](const auto& call) { return call.first.starts_with("Text1."); });
    EXPECT_EQ(calls, (Counts{{"MSFlexGrid1.CellBackColor", some},
                             {"MSFlexGrid1.CellPicture", 2},
                             {"MSFlexGrid1.CellPictureAlignment", 1},
                             {"MSFlexGrid1.Col", some + 3},
                             {"MSFlexGrid1.ColSel", some + 3},
                             {"MSFlexGrid1.ColWidth", 2},
                             {"MSFlexGrid1.FillStyle", some * 2},
                             {"MSFlexGrid1.LeftCol", 1},
                             {"MSFlexGrid1.Redraw", some + 4},
                             {"MSFlexGrid1.Refresh", some + 4},
                             {"MSFlexGrid1.Row", some + 3},
                             {"MSFlexGrid1.RowHeight", some},
                             {"MSFlexGrid1.RowSel", 2},
                             {"MSFlexGrid1.Rows", 2},
                             {"MSFlexGrid1.TextMatrix", some * fields + 1},
                             {"MSFlexGrid1.TopRow", 1},
                             {"Recordset.MoveFirst", 4},
                             {"Recordset.MoveNext", some * 2},
                             {"Screen.MousePointer", 2}}));
    EXPECT_EQ(events, (Counts{{"EditorChange", 1},
                              {"EnterCell", some + 1},
                              {"LeaveCell", some + 1},
                              {"RowColChange", some + 1},
                              {"SelChange", some + 1}}));
}

} // namespace
} // namespace Tessellon
