#include "examples/window/Clerk.h"

#include "orders/QuerySource.h"
#include "support/PostgresServer.h"

#include <QLabel>
#include <QTest>

#include <stdexcept>

namespace Orders {

namespace {

using Tessellon::PostgresServer;

/// Rows of a PostgreSQL server, by each of the roads to it.
class PostgresRows : public Clerk, public testing::WithParamInterface<const char*> {
protected:
    [[nodiscard]] static bool IsOdbc() { return std::string_view(GetParam()) == "odbc"; }
    [[nodiscard]] static std::string Connection(const std::string& user, const std::string& password,
                                                PostgresServer& server = PostgresServer::Shared())
    {
        const std::string folder = server.SocketFolder().string();
        const std::string port = std::to_string(PostgresServer::Port);
        if (IsOdbc())
            return "odbc:Driver={PostgreSQL Unicode};Server=" + folder + ";Port=" + port +
                   ";Database=" + PostgresServer::Database + ";UID=" + user +
                   (password.empty() ? "" : ";PWD={" + password + "}");
        std::string encoded;
        for (const char character : password)
            encoded += character == '{' ? std::string("%7B") : std::string(1, character);
        return "postgresql://" + user + (encoded.empty() ? "" : ":" + encoded) + "@/" + PostgresServer::Database +
               "?host=" + folder + "&port=" + port;
    }
    [[nodiscard]] static std::string Connection() { return Connection(PostgresServer::User, ""); }
    [[nodiscard]] static std::string RefusalOf(const std::string& connection, const std::string& query)
    {
        try {
            OpenQuery(connection, query);
            return {};
        } catch (const std::runtime_error& refusal) {
            return refusal.what();
        }
    }
    void OpenAll(const std::string& query) { OpenRows("", query, Connection()); }
    [[nodiscard]] std::string Text(int row, int col) const { return Sheet().TextMatrix(row, col).toStdString(); }
    [[nodiscard]] Tessellon::FieldControlType KindOf(int col, const std::string& query) const
    {
        return OpenQuery(Connection(), query).Layout.At(col)->Kind;
    }
};

/// ODBC has no word by which a server refuses to write.
class PostgresRowsByUrl : public PostgresRows {};

} // namespace

INSTANTIATE_TEST_SUITE_P(ByUrl, PostgresRowsByUrl, testing::Values("postgresql"));
INSTANTIATE_TEST_SUITE_P(ByEachRoad, PostgresRows, testing::Values("odbc", "postgresql"),
                         [](const auto& road) { return std::string(road.param); });

TEST_P(PostgresRows, AreShownByType)
{
    const std::string query = "SELECT true AS b, date '2024-03-15' AS d, 12345678901234567890.05::numeric(25, 2) AS n, "
                              "-7::bigint AS i, 0.25::float8 AS r, '  Ada '::text AS s, 'x'::varchar(5) AS v";
    OpenAll(query);
    const char* const texts[] = {"True", "2024-03-15", "12345678901234567890.05", "-7", "0.25", "Ada", "x"};
    for (int col = 1; col <= 7; ++col)
        EXPECT_EQ(Text(1, col), texts[col - 1]) << col;
    EXPECT_EQ(Sheet().ColumnHeader(3), QStringLiteral("n"));
    EXPECT_EQ(KindOf(1, query), Tessellon::fcCheckBox);
    EXPECT_EQ(KindOf(2, query), Tessellon::fcDatePicker);
    EXPECT_EQ(KindOf(3, query), Tessellon::fcMaskedEditBox);
}

TEST_P(PostgresRows, AreEdited_AndWrittenNowhere)
{
    PostgresServer::Shared().Run(
        "CREATE TABLE IF NOT EXISTS kept(s text); TRUNCATE kept; INSERT INTO kept VALUES ('Ada')");
    OpenAll("SELECT s FROM kept");
    GoTo(1, 1);
    Press(Qt::Key_F2);
    Press(Qt::Key_End);
    Type(QStringLiteral(" B"));
    EXPECT_EQ(Text(1, 1), "Ada B");
    EXPECT_EQ(PostgresServer::Shared().Run("SELECT s FROM kept"), "Ada\n");
}

TEST_P(PostgresRowsByUrl, AreNotChangedByAQuery)
{
    PostgresServer::Shared().Run(
        "CREATE TABLE IF NOT EXISTS gone(s text); TRUNCATE gone; INSERT INTO gone VALUES ('Ada')");
    EXPECT_NE(RefusalOf(Connection(), "DELETE FROM gone RETURNING s").find("read-only transaction"), std::string::npos);
    EXPECT_EQ(PostgresServer::Shared().Run("SELECT s FROM gone"), "Ada\n");
}

TEST_P(PostgresRows, ComeWithAPassword_ThatNobodySees)
{
    OpenRows("", "SELECT 1 AS one", Connection(PostgresServer::GuardedUser, PostgresServer::Password));
    EXPECT_EQ(Text(1, 1), "1");
    for (const QLabel* const label : Window().findChildren<QLabel*>())
        EXPECT_FALSE(label->text().contains(PostgresServer::Password));
    EXPECT_FALSE(Window().windowTitle().contains(PostgresServer::Password));
}

TEST_P(PostgresRows, OfAWrongPassword_AreRefusedInTheServersWords_WithoutIt)
{
    const std::string refusal = RefusalOf(Connection(PostgresServer::GuardedUser, "wrong{word"), "SELECT 1");
    EXPECT_NE(refusal.find("password authentication failed for user \"guarded\""), std::string::npos) << refusal;
    EXPECT_EQ(refusal.find("wrong{word"), std::string::npos) << refusal;
    EXPECT_EQ(refusal.find('\n'), std::string::npos);
}

TEST_P(PostgresRows, OfASyntaxError_AreRefusedInTheServersWords)
{
    const std::string refusal = RefusalOf(Connection(), "SELEC 1");
    EXPECT_NE(refusal.find("syntax error at or near \"SELEC\""), std::string::npos) << refusal;
}

TEST_P(PostgresRows, WithoutFields_AreRefused)
{
    EXPECT_TRUE(RefusalOf(Connection(), "SELECT").starts_with("cannot read "));
}

TEST_P(PostgresRows, WithTooManyColumns_AreRefusedInTheServersWords)
{
    std::string query = "SELECT 0";
    for (int field = 1; field < 5'000; ++field)
        query += "," + std::to_string(field);
    const std::string refusal = RefusalOf(Connection(), query);
    EXPECT_NE(refusal.find("target lists can have at most 1664 entries"), std::string::npos) << refusal;
}

TEST_P(PostgresRows, WithOddValues_AreShownAsFarAsTheyCanBe)
{
    OpenAll(
        "SELECT 'NaN'::float8 AS a, 'Infinity'::numeric AS b, '20240-01-01'::date AS c, '0044-03-15 BC'::date AS d, "
        "(repeat('9', 400))::numeric AS e, '00000000-0000-0000-0000-000000000001'::uuid AS f, "
        "point(1, 2) AS g, ARRAY[1, 2] AS h, 'Ada' AS i, 1 AS i");
    EXPECT_EQ(Orders(), 1);
    EXPECT_EQ(Boxes, 0);
    EXPECT_EQ(Text(1, 5), std::string(400, '9'));
    EXPECT_EQ(Text(1, 9), "Ada");
    EXPECT_EQ(Text(1, 10), "1");
    EXPECT_TRUE(Window().LoadFailure().isEmpty());
}

TEST_P(PostgresRows, WhoseConnectionIsLost_AreToldInOneBox_AndTheRowsBeforeStay)
{
    PostgresServer server;
    const std::string connection =
        Connection(PostgresServer::User, "", server) + (IsOdbc() ? ";UseDeclareFetch=1;Fetch=100" : "");
    OpenRows("", "SELECT i, repeat('x', 1000) AS s FROM generate_series(1, 50000) AS i", connection);
    ASSERT_EQ(Orders(), 50'000);
    const Source again =
        OpenQuery(connection, "SELECT -i AS i, repeat('x', 1000) AS s FROM generate_series(1, 50000) AS i");
    server.StopNow();
    std::string words;
    InNextBox([&](QWidget& box) {
        words = box.property("text").toString().toStdString();
        QTest::keyClick(&box, Qt::Key_Return);
    });
    Window().Load(again);
    EXPECT_EQ(Boxes, 1);
    EXPECT_TRUE(words.starts_with("cannot read ")) << words;
    EXPECT_FALSE(Window().LoadFailure().isEmpty());
    EXPECT_EQ(Orders(), 50'000);
    EXPECT_EQ(Text(50'000, 1), "50000");
    // Asking again finds no server; what is there stays.
    InNextBox([&](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Press(Qt::Key_F5);
    EXPECT_EQ(Boxes, 2);
    EXPECT_EQ(Orders(), 50'000);
}

} // namespace Orders
