// query_load sheet|bare forward|back DATABASE: fills a sheet from a query of Qt's, or walks one with nothing but Qt's
// own calls, to count its records and then to read every field once as text. A query that goes forward only is executed
// for each of the two walks.

#include "orders/BareLoop.h"
#include "recordset/qtsql/QtSqlConnection.h"
#include "recordset/qtsql/QtSqlRecordset.h"
#include "support/Figures.h"
#include "support/HeadlessSheet.h"
#include "support/Records.h"

#include <QCoreApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>

namespace Bench {
namespace {

using namespace Tessellon;

QSqlQuery Executed(bool goesForwardOnly)
{
    QSqlQuery executed;
    executed.setForwardOnly(goesForwardOnly);
    if (!executed.exec(QLatin1String(query)))
        std::exit(1);
    return executed;
}

void TellPeak()
{
    Tell("peak", static_cast<double>(Orders::PeakMemory().value_or(0)));
}

void LoadSheet(bool goesForwardOnly)
{
    const HeadlessSheet headless;
    TessellonSheet& sheet = *headless.Sheet;
    Tell("seconds", SecondsOf([&] {
             const auto connection = std::make_shared<QtSqlConnection>();
             sheet.DataSource(connection->Records(Executed(goesForwardOnly)), connection);
         }));
    TellPeak();
    Tell("rows", sheet.Rows() - 1);
    Checksum checksum;
    for (std::int32_t row = 1; row < sheet.Rows(); ++row)
        for (const int field : plainFields)
            checksum.Add(sheet.TextMatrix(row, field + 1));
    Tell("checksum", checksum.Value());
}

void RunBare(bool goesForwardOnly)
{
    std::int64_t rows = 0;
    qsizetype used = 0;
    Tell("seconds", SecondsOf([&] {
             QSqlQuery walked = Executed(goesForwardOnly);
             while (walked.next())
                 ++rows;
             if (goesForwardOnly)
                 walked = Executed(true);
             for (bool isOnRecord = walked.first(); isOnRecord; isOnRecord = walked.next())
                 for (int field = 0; field < fieldCount; ++field)
                     used += walked.value(field).toString().size();
         }));
    TellPeak();
    Tell("rows", static_cast<double>(rows));
    Tell("used", static_cast<double>(used));
    Checksum checksum;
    for (QSqlQuery walked = Executed(true); walked.next();)
        for (const int field : plainFields)
            checksum.Add(walked.value(field).toString().toStdU16String());
    Tell("checksum", checksum.Value());
}

} // namespace
} // namespace Bench

int main(int count, char** arguments)
{
    const QCoreApplication application(count, arguments);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 4)
        return 2;
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(words[3]);
    if (!database.open())
        return 1;
    const bool goesForwardOnly = words[2] == QLatin1String("forward");
    if (words[1] == QLatin1String("sheet"))
        Bench::LoadSheet(goesForwardOnly);
    else if (words[1] == QLatin1String("bare"))
        Bench::RunBare(goesForwardOnly);
    else
        return 2;
}
