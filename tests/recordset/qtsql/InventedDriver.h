#pragma once

#include <QSqlDriver>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlResult>
#include <QVariant>

#include <utility>
#include <vector>

namespace Tessellon {

using Rows = std::vector<QVariantList>;

/// A driver that Tessellon knows nothing of. It hands out whatever values a test wants.
class InventedDriver : public QSqlDriver {
public:
    InventedDriver() { setOpen(true); }

    bool hasFeature(DriverFeature /*feature*/) const override { return false; }
    bool open(const QString&, const QString&, const QString&, const QString&, int, const QString&) override
    {
        return true;
    }
    void close() override { setOpen(false); }
    QSqlResult* createResult() const override { return nullptr; }
};

/// Its result. Each walk that begins at the first record finds the next of several states of a table.
class InventedResult : public QSqlResult {
public:
    InventedResult(const QSqlDriver* driver, QSqlRecord record, std::vector<Rows> states)
        : QSqlResult(driver)
        , record_(std::move(record))
        , states_(std::move(states))
    {
        setSelect(true);
        setActive(true);
    }

protected:
    QVariant data(int field) override { return Current()[static_cast<std::size_t>(at())].value(field); }
    bool isNull(int field) override { return data(field).isNull(); }
    bool reset(const QString& /*statement*/) override { return false; }
    bool fetch(int index) override
    {
        if (index < 0 || static_cast<std::size_t>(index) >= Current().size())
            return false;
        setAt(index);
        return true;
    }
    bool fetchFirst() override
    {
        ++walks_;
        return fetch(0);
    }
    bool fetchLast() override { return fetch(static_cast<int>(Current().size()) - 1); }
    int size() override { return -1; }
    int numRowsAffected() override { return -1; }
    QSqlRecord record() const override { return record_; }

private:
    const Rows& Current() const { return states_[std::min(walks_, states_.size()) - 1]; }

    QSqlRecord record_;
    std::vector<Rows> states_;
    std::size_t walks_ = 0;
};

/// A query of one record with one field.
inline QSqlQuery Invented(const InventedDriver& driver, const QSqlField& field, const QVariant& value)
{
    QSqlRecord record;
    record.append(field);
    return QSqlQuery(new InventedResult(&driver, record, {{{value}}}));
}

} // namespace Tessellon
