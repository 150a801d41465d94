#include "recordset/qtsql/QtSqlConnection.h"
#include "recordset/qtsql/QtSqlRecordset.h"
#include "roads/PostgresUrl.h"
#include "roads/Ways.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QStringList>
#include <QUuid>

#include <memory>
#include <stdexcept>
#include <utility>

namespace Roads {

using namespace Tessellon;

namespace {

const std::string postgresReadOnly = "-c default_transaction_read_only=on";

/// A connection of Qt's is known by a name, which goes with this.
class NamedConnection {
public:
    explicit NamedConnection(const QString& driver)
    {
        if (!QSqlDatabase::isDriverAvailable(driver))
            throw std::runtime_error("Qt has no driver " + driver.toStdString() + " here, but " +
                                     QSqlDatabase::drivers().join(QStringLiteral(", ")).toStdString());
        Database = QSqlDatabase::addDatabase(driver, name_);
    }
    NamedConnection(const NamedConnection&) = delete;
    NamedConnection& operator=(const NamedConnection&) = delete;
    ~NamedConnection()
    {
        Database = QSqlDatabase();
        QSqlDatabase::removeDatabase(name_);
    }

    QSqlDatabase Database;

private:
    const QString name_ = QUuid::createUuid().toString();
};

/// The database's own words, or the driver's where it is the driver that refuses.
[[noreturn]] void Refuse(const QSqlError& error)
{
    const QString words = error.databaseText().isEmpty() ? error.driverText() : error.databaseText();
    throw std::runtime_error(words.toStdString());
}

/// All that a destination lives on. What was made last goes first.
struct Journey {
    explicit Journey(const QString& driver)
        : Named(driver)
    {
    }

    NamedConnection Named;
    QtSqlConnection Connection;
    std::shared_ptr<QtSqlRecordset> Records;
};

Destination TravelOn(const std::shared_ptr<Journey>& journey, const std::string& text)
{
    QSqlDatabase& database = journey->Named.Database;
    if (!database.open())
        Refuse(database.lastError());
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.exec(QString::fromStdString(text)))
        Refuse(query.lastError());
    const QSqlRecord record = query.record();
    journey->Records = journey->Connection.Records(std::move(query));

    Destination destination{std::shared_ptr<Connection>(journey, &journey->Connection),
                            std::shared_ptr<Recordset>(journey, journey->Records.get()),
                            {}};
    for (std::int32_t field = 0; field < journey->Records->FieldCount(); ++field)
        destination.Fields.push_back({record.fieldName(field).toStdU16String(), journey->Records->FieldType(field)});
    return destination;
}

/// A parameter as the driver passes it on.
QString Option(const std::string& key, const std::string& value)
{
    if ((key + value).find(';') != std::string::npos)
        throw std::runtime_error("the parameter " + key + " cannot be passed on: there is a ; in it");
    QString quoted = QString::fromStdString(value);
    quoted.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
    return QString::fromStdString(key) + QStringLiteral("='") + quoted + u'\'';
}

} // namespace

Destination TravelByPostgres(const std::string& text, const std::string& query)
{
    const PostgresUrl url(text);
    const auto journey = std::make_shared<Journey>(QStringLiteral("QPSQL"));
    QSqlDatabase& database = journey->Named.Database;
    database.setUserName(QString::fromStdString(url.User));
    database.setPassword(QString::fromStdString(url.Password));
    database.setHostName(QString::fromStdString(url.Host));
    database.setPort(url.Port);
    database.setDatabaseName(QString::fromStdString(url.Database));
    QStringList options;
    std::string serverOptions = postgresReadOnly;
    for (const auto& [key, value] : url.Parameters) {
        if (key == "options")
            serverOptions += " " + value;
        else
            options += Option(key, value);
    }
    options += Option("options", serverOptions);
    database.setConnectOptions(options.join(u';'));
    return TravelOn(journey, query);
}

Destination TravelByQtSql(const std::string& driverAndName, const std::string& query)
{
    const std::size_t colon = driverAndName.find(':');
    if (colon == std::string::npos)
        throw std::runtime_error("qtsql: wants a driver, a colon and the name of a database behind it");
    const QString driver = QString::fromStdString(driverAndName.substr(0, colon));
    const auto journey = std::make_shared<Journey>(driver);
    journey->Named.Database.setDatabaseName(QString::fromStdString(driverAndName.substr(colon + 1)));
    // SQLite's would also make a file that is missing.
    if (driver == QStringLiteral("QSQLITE"))
        journey->Named.Database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    else if (driver == QStringLiteral("QPSQL"))
        journey->Named.Database.setConnectOptions(Option("options", postgresReadOnly));
    return TravelOn(journey, query);
}

} // namespace Roads
