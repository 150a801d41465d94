#include "orders/OrdersDatabase.h"

#include "orders/BareLoop.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"

#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>
#include <vector>

namespace Orders {

namespace {

/// A folder of its own for each test, gone behind it.
class OrdersTest : public testing::Test {
protected:
    OrdersTest()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "orders test-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~OrdersTest() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path Path(const std::string& name = "orders.db") const { return folder_ / name; }
    std::shared_ptr<Tessellon::SqliteRecordset> Records(const std::u16string& query) const
    {
        return Tessellon::SqliteConnection::Open(Path().u16string())->Query(query);
    }
    std::int64_t Count(const std::u16string& condition) const
    {
        return Records(u"SELECT count(*) FROM orders WHERE " + condition)->FieldValue(0).Integer;
    }
    std::vector<std::string> Files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_))
            names.push_back(entry.path().filename().string());
        return names;
    }
    static std::string Bytes(const std::filesystem::path& path)
    {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    static std::string FailureOf(const std::filesystem::path& path, std::int64_t count)
    {
        try {
            MakeDatabase(path, count);
        } catch (const std::runtime_error& failure) {
            return failure.what();
        }
        return "nothing failed";
    }

private:
    std::filesystem::path folder_;
};

TEST_F(OrdersTest, Database_HasTheOrdersThatWereAskedFor)
{
    MakeDatabase(Path());
    EXPECT_EQ(Count(u"true"), UsualCount);
    EXPECT_EQ(Count(u"id BETWEEN 10001 AND 12000"), UsualCount);
    EXPECT_EQ(Files(), std::vector<std::string>{"orders.db"});
}

TEST_F(OrdersTest, Query_GivesElevenFieldsOfMixedTypesAndTheKey)
{
    MakeDatabase(Path(), 10);
    const std::string query = Query;
    const auto records = Records(std::u16string(query.begin(), query.end()));
    const std::int32_t types[] = {20, 202, 202, 133, 14, 130, 11, 203, 202, 203, 203, 20};
    ASSERT_EQ(records->FieldCount(), 12);
    for (std::int32_t field = 0; field < 12; ++field)
        EXPECT_EQ(records->FieldType(field), types[field]) << field;
    EXPECT_EQ(records->FieldValue(3).Type, Tessellon::Value::Kind::Date);
    EXPECT_EQ(records->FieldValue(6).Type, Tessellon::Value::Kind::Boolean);
}

TEST_F(OrdersTest, Orders_LookReal)
{
    MakeDatabase(Path());
    EXPECT_EQ(Count(u"amount > 0 AND amount < 50000"), UsualCount);
    EXPECT_EQ(Count(u"round(amount, 2) = amount"), UsualCount);
    EXPECT_GT(Count(u"notes LIKE '%' || char(10) || '%'"), 100);
    EXPECT_GT(Count(u"notes IS NULL"), 1000);
    EXPECT_GT(Count(u"phone IS NULL"), 10);
    EXPECT_GT(Count(u"paid"), 1500);
    EXPECT_GT(Count(u"NOT paid"), 50);
    EXPECT_GT(Count(u"shipped"), 1500);
    EXPECT_GT(Count(u"NOT shipped"), 50);
    EXPECT_EQ(Count(u"ordered BETWEEN '2019-07-01' AND '2024-06-30' AND date(ordered) = ordered"), UsualCount);
    EXPECT_GE(Records(u"SELECT count(DISTINCT currency) FROM orders")->FieldValue(0).Integer, 8);
    EXPECT_GE(Records(u"SELECT count(DISTINCT city) FROM orders")->FieldValue(0).Integer, 25);
    EXPECT_GE(Records(u"SELECT count(DISTINCT customer) FROM orders")->FieldValue(0).Integer, 150);
}

TEST_F(OrdersTest, SameCount_GivesTheSameFile)
{
    MakeDatabase(Path("one.db"), 500);
    MakeDatabase(Path("two.db"), 500);
    EXPECT_EQ(Bytes(Path("one.db")), Bytes(Path("two.db")));
}

TEST_F(OrdersTest, NoOrders_AreADatabaseToo)
{
    MakeDatabase(Path(), 0);
    EXPECT_EQ(Count(u"true"), 0);
}

TEST_F(OrdersTest, EarlierFile_IsReplaced)
{
    MakeDatabase(Path(), 20);
    MakeDatabase(Path(), 10);
    EXPECT_EQ(Count(u"true"), 10);
}

TEST_F(OrdersTest, WhatCannotBeWritten_IsOneLineAndLeavesNothing)
{
    const std::string missing = FailureOf(Path("missing/orders.db"), 10);
    EXPECT_EQ(missing, "cannot write " + Path("missing/orders.db").string() + ": there is no folder " +
                           Path("missing").string());
    std::filesystem::create_directory(Path("folder"));
    EXPECT_EQ(FailureOf(Path("folder"), 10), "cannot write " + Path("folder").string() + ": it is a folder");
    EXPECT_NE(FailureOf(Path(), -1).find("-1 orders"), std::string::npos);
    EXPECT_EQ(Files(), std::vector<std::string>{"folder"});
}

TEST_F(OrdersTest, BareLoop_CountsAndReadsAll)
{
    MakeDatabase(Path(), 300);
    const BareLoopResult result = RunBareLoop(Path(), "SELECT currency, id FROM orders");
    EXPECT_EQ(result.Rows, 300);
    std::uint64_t checksum = 0;
    const auto records = Records(u"SELECT currency FROM orders");
    for (; !records->AtEnd(); records->MoveNext())
        checksum += records->FieldValue(0).Characters[0] + 3 + '1' + 5;
    EXPECT_EQ(result.Checksum, checksum);
    EXPECT_GT(result.Seconds, 0);
}

TEST_F(OrdersTest, BareLoop_SaysWhatItCannotRead)
{
    EXPECT_THROW(RunBareLoop(Path("missing.db"), Query), std::runtime_error);
    EXPECT_FALSE(std::filesystem::exists(Path("missing.db")));
    MakeDatabase(Path(), 1);
    EXPECT_THROW(RunBareLoop(Path(), "SELECT nothing FROM orders"), std::runtime_error);
    EXPECT_THROW(RunBareLoop(Path(), "SELECT abs(-9223372036854775807 - 1)"), std::runtime_error);
}

TEST(PeakMemory, GrowsWithWhatIsUsed_AndStaysBehindIt)
{
    const auto before = PeakMemory();
    ASSERT_TRUE(before.has_value());
    constexpr std::int64_t size = 64 << 20;
    {
        const std::vector<char> block(size, 'x');
    }
    EXPECT_GE(*PeakMemory(), *before + size / 2);
}

} // namespace

} // namespace Orders
