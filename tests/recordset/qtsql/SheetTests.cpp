#include "recordset/qtsql/Databases.h"
#include "support/SheetUnderTest.h"

namespace Tessellon {

namespace {

/// A sheet that is filled from queries, on both drivers.
class QuerySheet : public testing::Test {
protected:
    QuerySheet()
    {
        memory_.qt.setDatabaseName(":memory:");
        EXPECT_TRUE(memory_.qt.open());
        Reach(postgres_, PostgresServer::Shared());
    }
    void Load(QSqlQuery query, std::int32_t columns)
    {
        sheet_.Build(std::vector<FieldControlType>(static_cast<std::size_t>(columns), fcTextBox), 0);
        sheet_->DataSource(connection_->Records(std::move(query)), connection_);
    }
    std::string Text(std::int32_t row, std::int32_t col) { return Utf8(sheet_->TextMatrix(row, col)); }
    std::vector<std::string> Row(std::int32_t row)
    {
        std::vector<std::string> texts;
        for (std::int32_t col = 1; col < sheet_->Cols(); ++col)
            texts.push_back(Text(row, col));
        return texts;
    }
    std::vector<std::string> HeardOfFailures()
    {
        std::vector<std::string> failures;
        for (const std::string& event : sheet_.TakeEvents())
            if (event.starts_with("box") || event.starts_with("ErrInfo"))
                failures.push_back(event);
        return failures;
    }

    Database memory_{"QSQLITE"};
    Database postgres_{"QPSQL"};
    SheetUnderTest sheet_;
    std::shared_ptr<QtSqlConnection> connection_ = std::make_shared<QtSqlConnection>();
};

using Lines = std::vector<std::string>;

TEST_F(QuerySheet, EveryType_IsShownAsItsClassTells)
{
    sheet_->DateFormat(u"yyyy-mm-dd hh:nn:ss");
    for (const bool isForwardOnly : {true, false}) {
        Load(postgres_.Executed("SELECT true, 7::int2, -9223372036854775807, 0.1::float4, 0.1::float8, "
                                "123456789012345678901234567890.50::numeric, '2024-03-15'::date, "
                                "'2024-03-15 10:30:00'::timestamp, ' Zoë '::text, '\\x00ff'::bytea, "
                                "'0b5c0000-0000-0000-0000-000000000001'::uuid",
                                isForwardOnly),
             11);
        EXPECT_EQ(HeardOfFailures(), Lines{});
        EXPECT_EQ(sheet_->Rows(), 2);
        EXPECT_EQ(Row(1), (Lines{"True", "7", "-9223372036854775807", "0.1", "0.1", "123456789012345678901234567890.5",
                                 "2024-03-15 00:00:00", "2024-03-15 10:30:00", "Zoë", "00FF", ""}));
    }
}

TEST_F(QuerySheet, Nulls_AreShownAsTheirClassTells)
{
    Load(postgres_.Executed("SELECT NULL::bool, NULL::int4, NULL::numeric, NULL::date, NULL::text", true), 5);
    EXPECT_EQ(Row(1), (Lines{"False", "0", "0", "", ""}));
}

TEST_F(QuerySheet, ManyRecords_AreAllThere)
{
    for (Database* database : {&memory_, &postgres_})
        for (const bool isForwardOnly : {true, false}) {
            Load(database->Executed("WITH RECURSIVE c(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM c WHERE n < 5000) "
                                    "SELECT n, 'customer ' || n FROM c",
                                    isForwardOnly),
                 2);
            EXPECT_EQ(sheet_->Rows(), 5001);
            EXPECT_EQ(Row(1), (Lines{"1", "customer 1"}));
            EXPECT_EQ(Row(5000), (Lines{"5000", "customer 5000"}));
        }
}

TEST_F(QuerySheet, QueryWithoutRecords_ReplacesNothing)
{
    Load(memory_.Executed("SELECT 1", true), 1);
    sheet_->DataSource(connection_->Records(memory_.Executed("SELECT 1 WHERE 0", true)), connection_);
    EXPECT_EQ(sheet_->Rows(), 2);
    EXPECT_EQ(HeardOfFailures(), Lines{});
}

TEST_F(QuerySheet, QueryThatFailed_IsToldByErrInfo)
{
    sheet_->ShowErrMessage(false);
    Load(memory_.Executed("SELEC", true), 1);
    EXPECT_EQ(HeardOfFailures(), (Lines{"ErrInfo ErrNum=-2147217900 "
                                        "ErrSource=\"near \"SELEC\": syntax error Unable to execute statement\" "
                                        "ErrDesc=\"QSQLite\" ErrHelpFile=\"\" ErrHelpContext=\"0\""}));
    EXPECT_EQ(sheet_->Rows(), 1);
}

TEST_F(QuerySheet, QueryThatFailed_IsToldByABoxToo)
{
    Load(postgres_.Executed("SELECT * FROM nowhere", true), 1);
    const Lines heard = HeardOfFailures();
    ASSERT_EQ(heard.size(), 2U);
    for (const char* words :
         {"in function DataSource of module TessellonSheet", "relation \"nowhere\" does not exist",
          " ADO Error #\t : -2147217865", " SQL Status\t : 42P01", " Native Error\t : 0", " Source\t : QPSQL"})
        EXPECT_NE(heard[0].find(words), std::string::npos) << words << "\n" << heard[0];
    EXPECT_TRUE(heard[1].starts_with("ErrInfo ErrNum=-2147217865 "));
}

TEST_F(QuerySheet, ServerThatStopsInTheMiddle_LeavesTheRowsThatWereThere)
{
    PostgresServer server;
    Database postgres("QPSQL");
    Reach(postgres, server);
    sheet_->ShowErrMessage(false);
    Load(memory_.Executed("SELECT 'before'", true), 1);
    QSqlQuery query = postgres.Executed("SELECT repeat('x', 1000) FROM generate_series(1, 100000) AS n", true);
    ASSERT_TRUE(query.next());
    server.StopNow();
    sheet_->DataSource(connection_->Records(std::move(query)), connection_);
    const Lines heard = HeardOfFailures();
    // The count of the records tells it, and then the load that cannot go on.
    ASSERT_EQ(heard.size(), 2U);
    for (const std::string& failure : heard)
        EXPECT_NE(failure.find("server closed the connection unexpectedly"), std::string::npos) << failure;
    EXPECT_EQ(sheet_->Rows(), 2);
    EXPECT_EQ(Text(1, 1), "before");
}

} // namespace

} // namespace Tessellon
