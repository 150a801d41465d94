#include "Form.h"

#include <QSqlDatabase>
#include <QSqlQuery>

namespace Tessellon {

namespace {

/// The sheet of a form, and a host's database.
class WidgetWithQuery : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
        Sheet->ShowErrMessage(false);
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        database.setDatabaseName(QStringLiteral(":memory:"));
        ASSERT_TRUE(database.open());
    }
    void TearDown() override
    {
        Form::TearDown();
        QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    }
};

} // namespace

TEST_F(WidgetWithQuery, DataSource_TakesAQuery)
{
    QSqlQuery query(QStringLiteral("SELECT 'Ada', 'Zoë', 1 UNION ALL SELECT 'Grace', NULL, 0"));
    Sheet->DataSource(std::move(query));
    EXPECT_EQ(Sheet->Rows(), 3);
    EXPECT_EQ(Sheet->TextMatrix(1, 1), QStringLiteral("Ada"));
    EXPECT_EQ(Sheet->TextMatrix(1, 2), QStringLiteral("Zoë"));
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("Grace"));
    EXPECT_EQ(Sheet->TextMatrix(2, 2), QString());
}

TEST_F(WidgetWithQuery, DataSource_TakesAQueryThatGoesForwardOnly)
{
    QSqlQuery query;
    query.setForwardOnly(true);
    ASSERT_TRUE(query.exec(QStringLiteral("SELECT 'Ada' UNION ALL SELECT 'Grace'")));
    Sheet->DataSource(std::move(query));
    EXPECT_EQ(Sheet->Rows(), 3);
    EXPECT_EQ(Sheet->TextMatrix(2, 1), QStringLiteral("Grace"));
}

TEST_F(WidgetWithQuery, QueryThatFails_IsToldByErrInfo)
{
    QList<int> numbers;
    QStringList descriptions;
    QObject::connect(Sheet, &SheetWidget::ErrInfo, [&](int number, const QString& description) {
        numbers += number;
        descriptions += description;
    });
    Sheet->DataSource(QSqlQuery(QStringLiteral("SELEC")));
    EXPECT_EQ(numbers, QList<int>{-2147217900});
    EXPECT_EQ(descriptions, QStringList{"near \"SELEC\": syntax error Unable to execute statement"});
    Sheet->DataSource(QSqlQuery());
    EXPECT_EQ(descriptions.value(1), QStringLiteral("the query was not executed"));
    EXPECT_EQ(Sheet->Rows(), 4);
}

TEST_F(WidgetWithQuery, WidgetThatIsDeletedInItsLoad_LeavesNothingBehind)
{
    QObject::connect(Sheet, &SheetWidget::RowColChange, [this] {
        delete Sheet;
        Sheet = nullptr;
    });
    Sheet->DataSource(QSqlQuery(QStringLiteral("SELECT 'Ada' UNION ALL SELECT 'Grace'")));
    EXPECT_EQ(Sheet, nullptr);
}

} // namespace Tessellon
