#include "data/LoadFixture.h"
#include "recordset/odbc/DriverCalls.h"
#include "recordset/odbc/OdbcTest.h"

#include <functional>

namespace Tessellon {

namespace {

/// Another recordset, with something done ahead of a move to the next record.
class Interrupted : public Recordset {
public:
    Interrupted(std::shared_ptr<Recordset> records, int move, std::function<void()> deed)
        : records_(std::move(records))
        , move_(move)
        , deed_(std::move(deed))
    {
    }
    bool AtEnd() override { return records_->AtEnd(); }
    void MoveFirst() override { records_->MoveFirst(); }
    void MoveNext() override
    {
        if (--move_ == 0)
            deed_();
        records_->MoveNext();
    }
    std::int32_t FieldCount() override { return records_->FieldCount(); }
    std::int32_t FieldType(std::int32_t field) override { return records_->FieldType(field); }
    Value FieldValue(std::int32_t field) override { return records_->FieldValue(field); }

private:
    std::shared_ptr<Recordset> records_;
    int move_;
    std::function<void()> deed_;
};

class OdbcLoads : public Load {
protected:
    OdbcLoads()
    {
        Columns({fcTextBox, fcTextBox});
        Sheet->ShowErrMessage(false);
    }
    static std::u16string Server(std::string_view more = {})
    {
        return Common::ToUtf16(PostgresServer::Shared().OdbcText(more));
    }
    Lines HeardOf(const std::shared_ptr<Recordset>& records, const std::shared_ptr<OdbcConnection>& connection)
    {
        Forget();
        Sheet->DataSource(records, connection);
        return Only(Sheet.TakeEvents(), {"ErrInfo", "box"});
    }
    static std::string ErrInfoOf(const ProviderError& error)
    {
        return "ErrInfo ErrNum=" + std::to_string(error.Number) + " ErrSource=\"" + Utf8(error.Description) +
               "\" ErrDesc=\"" + Utf8(error.Source) + "\" ErrHelpFile=\"\" ErrHelpContext=\"0\"";
    }
    /// The first failure ends the count; the load, which goes on, then meets it at the first record.
    void ExpectToldAndLeft(const Lines& heard, const std::shared_ptr<OdbcConnection>& connection)
    {
        const std::vector<ProviderError>& errors = connection->Errors();
        ASSERT_FALSE(errors.empty());
        Lines expected;
        const ProviderError& first = errors.front();
        expected.push_back(ErrInfoOf({first.Number, first.Description, u"Recordset", 0, u"", u"", 0}));
        for (const ProviderError& error : errors)
            expected.push_back(ErrInfoOf(error));
        EXPECT_EQ(heard, expected);

        EXPECT_TRUE(Members.LoadingRecordset);
        EXPECT_FALSE(Members.ColumnsDeclared);
        EXPECT_TRUE(Members.GridReady);
        EXPECT_NE(Members.BoundRecordset, nullptr);
        EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
    }
    void LoadTwoRows()
    {
        Sheet->DataSource(OdbcConnection::Open(Server())->Query(u"SELECT i, 'old' FROM generate_series(1, 2) i"), Link);
        ASSERT_EQ(Sheet->Rows(), 3);
    }
    void ExpectTwoRows()
    {
        EXPECT_EQ(Sheet->Rows(), 3);
        EXPECT_EQ(Text(1, 1), u"1");
        EXPECT_EQ(Text(2, 2), u"old");
    }
};

TEST_F(OdbcLoads, AllKindsOfFields_MakeTheirCells)
{
    const auto cellOf = [&](std::u16string_view expression) {
        const auto connection = OdbcConnection::Open(Server());
        const auto records = connection->Query(u"SELECT " + std::u16string(expression));
        EXPECT_EQ(HeardOf(records, connection), Lines()) << Utf8(expression);
        return Text(1, 1);
    };
    EXPECT_EQ(cellOf(u"true"), u"True");
    EXPECT_EQ(cellOf(u"NULL::boolean"), u"False");
    EXPECT_EQ(cellOf(u"NULL::integer"), u"0");
    EXPECT_EQ(cellOf(u"NULL::date"), u"");
    EXPECT_EQ(cellOf(u"NULL::text"), u"");
    EXPECT_EQ(cellOf(u"'  blanks  '::text"), u"blanks");
    EXPECT_EQ(cellOf(u"123456789012345678901234567890.12"), u"123456789012345678901234567890.12");
    EXPECT_EQ(cellOf(u"9223372036854775807"), u"9223372036854775807");
    EXPECT_EQ(cellOf(u"'a0eebc99-9c0b-4ef8-bb6d-6bb9bd380a11'::uuid"), u"");
    EXPECT_EQ(cellOf(u"'\\xff00'::bytea"), u"FF00");
}

TEST_F(OdbcLoads, ManyRecords_AreAllThere)
{
    const auto connection = OdbcConnection::Open(Server());
    const auto records = connection->Query(u"SELECT i, 'name ' || i FROM generate_series(1, 3000) i ORDER BY i");
    EXPECT_EQ(HeardOf(records, connection), Lines());
    EXPECT_EQ(Sheet->Rows(), 3001);
    for (std::int32_t row = 1; row <= 3000; ++row) {
        ASSERT_EQ(Text(row, 1), Utf16(std::to_string(row)));
        ASSERT_EQ(Text(row, 2), Utf16("name " + std::to_string(row)));
    }
    EXPECT_EQ(records->FieldValue(0).Integer, 1);
}

TEST_F(OdbcLoads, ServerStoppedWhileRecordsCome_IsToldForEachOfItsErrors_AndTheOldRowsStay)
{
    LoadTwoRows();
    PostgresServer server;
    const auto connection = OdbcConnection::Open(Common::ToUtf16(server.OdbcText("UseDeclareFetch=1;Fetch=100;")));
    const auto records = std::make_shared<Interrupted>(
        connection->Query(u"SELECT i, repeat('x', 200) FROM generate_series(1, 100000) i"), 1000,
        [&] { server.StopNow(); });
    const Lines heard = HeardOf(records, connection);
    ExpectToldAndLeft(heard, connection);
    ExpectTwoRows();
}

TEST_F(OdbcLoads, RecordThatCannotBeRead_IsToldForEachOfItsErrors_AndTheOldRowsStay)
{
    LoadTwoRows();
    const auto connection = OdbcConnection::Open(Server("UseDeclareFetch=1;Fetch=10;"));
    const auto records = connection->Query(u"SELECT 1000 / (5000 - i), 'new' FROM generate_series(1, 10000) i");
    const Lines heard = HeardOf(records, connection);
    ExpectToldAndLeft(heard, connection);
    ExpectTwoRows();

    // The next build and load set right what was left.
    Sheet->BuildGridColumns();
    const auto next = OdbcConnection::Open(Server());
    EXPECT_EQ(HeardOf(next->Query(u"SELECT i, 'new' FROM generate_series(1, 3) i"), next), Lines());
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Text(3, 2), u"new");
    EXPECT_FALSE(Members.LoadingRecordset);
}

TEST_F(OdbcLoads, FailureOfSeveralRecords_IsToldOnceForEach)
{
    LoadTwoRows();
    const auto connection = OdbcConnection::Open(Server("UseDeclareFetch=1;Fetch=10;"));
    const auto records = connection->Query(u"SELECT CASE WHEN i = 1000 THEN repeat('x', i + 500)::integer ELSE i END, "
                                           u"'new' FROM generate_series(1, 2000) i");
    const Lines heard = HeardOf(records, connection);
    EXPECT_GE(connection->Errors().size(), 3U);
    ExpectToldAndLeft(heard, connection);
    ExpectTwoRows();
}

TEST_F(OdbcLoads, RecordThatCannotBeReadFirst_FailsAheadOfTheCount)
{
    LoadTwoRows();
    Calls().FailsAtFetch = Calls().Fetches + 1;
    const auto connection = OdbcConnection::Open(Server());
    const auto records = connection->Query(u"SELECT i, 'new' FROM generate_series(1, 10) i");
    const Lines heard = HeardOf(records, connection);
    ASSERT_FALSE(connection->Errors().empty());
    Lines expected;
    for (const ProviderError& error : connection->Errors())
        expected.push_back(ErrInfoOf(error));
    EXPECT_EQ(heard, expected);
    ExpectTwoRows();
}

TEST_F(OdbcLoads, EmptyRecords_LeaveTheOldRows)
{
    LoadTwoRows();
    const auto connection = OdbcConnection::Open(Server());
    const auto records = connection->Query(u"SELECT 1, 'new' WHERE false");
    EXPECT_EQ(HeardOf(records, connection), Lines());
    ExpectTwoRows();
}

TEST_F(OdbcLoads, TableChangedBetweenTheWalks_IsLoadedAsItWasCounted)
{
    PostgresServer& server = PostgresServer::Shared();
    server.Run("CREATE TABLE loaded AS SELECT i, 'as counted' AS a FROM generate_series(1, 3000) i");
    const auto connection = OdbcConnection::Open(Server("UseDeclareFetch=1;Fetch=100;"));
    const auto records =
        std::make_shared<Interrupted>(connection->Query(u"SELECT i, a FROM loaded ORDER BY i"), 3000, [&] {
            server.Run("DELETE FROM loaded WHERE i > 10; UPDATE loaded SET a = 'late'");
        });
    EXPECT_EQ(HeardOf(records, connection), Lines());
    EXPECT_EQ(Sheet->Rows(), 3001);
    EXPECT_EQ(Text(1, 2), u"as counted");
    EXPECT_EQ(Text(3000, 1), u"3000");
    server.Run("DROP TABLE loaded");
}

TEST_F(OdbcLoads, SheetOutlivesTheConnection)
{
    auto connection = OdbcConnection::Open(Server());
    Sheet->DataSource(connection->Query(u"SELECT i, 'a' FROM generate_series(1, 5) i"), connection);
    connection.reset();
    EXPECT_EQ(Sheet->Rows(), 6);
    Sheet->Clear();
    EXPECT_EQ(Members.BoundRecordset, nullptr);
}

} // namespace

} // namespace Tessellon
