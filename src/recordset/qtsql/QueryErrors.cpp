#include "recordset/qtsql/QueryErrors.h"

#include "recordset/common/FailureNumbers.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>

namespace Tessellon::QtSql {

namespace {

QString NameOf(const QSqlDriver* driver)
{
    QString name =
        driver != nullptr ? QString::fromLatin1(driver->metaObject()->className()) : QStringLiteral("Qt SQL");
    if (name.endsWith(QLatin1String("Driver")))
        name.chop(6);
    return name;
}

/// The words for what Qt says nothing of.
ProviderError ErrorWithoutWords(const QSqlQuery& query, bool isOpen)
{
    ProviderError error;
    if (!isOpen) {
        error.Description = u"the database is not open";
        error.SQLState = u"08003";
    } else if (!query.isActive()) {
        error.Description = u"the query was not executed";
        error.SQLState = u"HY010";
    } else {
        error.Description = u"the query gives no records";
        error.SQLState = u"42000";
    }
    error.Number = Common::NumberOfState(error.SQLState);
    return error;
}

ProviderError ErrorOf(const QSqlError& told, const QSqlDriver* driver)
{
    ProviderError error;
    error.Description = told.text().trimmed().toStdU16String();
    if (driver != nullptr && driver->inherits("QPSQLDriver")) {
        error.SQLState = told.nativeErrorCode().toStdU16String();
        error.Number = Common::NumberOfState(error.SQLState);
    } else {
        error.NativeError = told.nativeErrorCode().toInt();
        error.Number = told.type() == QSqlError::StatementError ? Common::WrongCommand : Common::Unspecified;
    }
    return error;
}

} // namespace

Failure Noted(const QSqlQuery& query, std::vector<ProviderError>& errors)
{
    const QSqlDriver* const driver = query.driver();
    const bool isOpen = driver != nullptr && driver->isOpen() && !driver->isOpenError();
    QSqlError told = query.lastError();
    if (!told.isValid() && driver != nullptr && !isOpen)
        told = driver->lastError();
    ProviderError error = told.isValid() ? ErrorOf(told, driver) : ErrorWithoutWords(query, isOpen);
    error.Source = NameOf(driver).toStdU16String();
    errors.assign(1, error);
    return Failure(error.Number, u"Recordset", error.Description);
}

} // namespace Tessellon::QtSql
