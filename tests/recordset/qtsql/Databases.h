#pragma once

#include "recordset/qtsql/QtSqlConnection.h"
#include "recordset/qtsql/QtSqlRecordset.h"
#include "support/PostgresServer.h"
#include "support/Recordsets.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Tessellon {

/// A connection of Qt's to a database, gone behind it.
class Database {
public:
    explicit Database(const QString& driver)
        : name_(QStringLiteral("connection %1").arg(++count))
        , qt(QSqlDatabase::addDatabase(driver, name_))
    {
    }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database()
    {
        qt.close();
        qt = {};
        QSqlDatabase::removeDatabase(name_);
    }

    /// A query that is executed, whether it succeeds or not.
    [[nodiscard]] QSqlQuery Executed(const QString& statement, bool isForwardOnly)
    {
        QSqlQuery query(qt);
        query.setForwardOnly(isForwardOnly);
        query.exec(statement);
        return query;
    }
    void Do(const QString& statement)
    {
        QSqlQuery query(qt);
        EXPECT_TRUE(query.exec(statement)) << query.lastError().text().toStdString();
    }

private:
    inline static int count = 0;
    QString name_;

public:
    QSqlDatabase qt;
};

inline void Reach(Database& database, const PostgresServer& server)
{
    database.qt.setHostName(QString::fromStdString(server.SocketFolder().string()));
    database.qt.setPort(PostgresServer::Port);
    database.qt.setDatabaseName(QLatin1String(PostgresServer::Database));
    database.qt.setUserName(QLatin1String(PostgresServer::User));
    ASSERT_TRUE(database.qt.open()) << database.qt.lastError().text().toStdString();
}

/// A SQLite file of the test's own.
class SqliteQueries : public testing::Test {
protected:
    SqliteQueries()
    {
        database_.qt.setDatabaseName(folder_.filePath(QStringLiteral("test.db")));
        EXPECT_TRUE(database_.qt.open());
    }
    std::shared_ptr<QtSqlRecordset> Query(const QString& statement, bool isForwardOnly = true)
    {
        return connection_->Records(database_.Executed(statement, isForwardOnly));
    }

    QTemporaryDir folder_;
    Database database_{QStringLiteral("QSQLITE")};
    std::shared_ptr<QtSqlConnection> connection_ = std::make_shared<QtSqlConnection>();
};

/// The PostgreSQL server of the program.
class PostgresQueries : public testing::Test {
protected:
    PostgresQueries() { Reach(database_, PostgresServer::Shared()); }
    std::shared_ptr<QtSqlRecordset> Query(const QString& statement, bool isForwardOnly = true)
    {
        return connection_->Records(database_.Executed(statement, isForwardOnly));
    }

    Database database_{QStringLiteral("QPSQL")};
    std::shared_ptr<QtSqlConnection> connection_ = std::make_shared<QtSqlConnection>();
};

} // namespace Tessellon
