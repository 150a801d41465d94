#include "recordset/qtsql/QtSqlRecordset.h"

#include "engine/Failures.h"
#include "recordset/common/FailureNumbers.h"
#include "recordset/qtsql/QueryErrors.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlRecord>

#include <new>
#include <utility>

namespace Tessellon {

namespace {

QtSql::Numbering NumberingOf(const QSqlDriver& driver)
{
    if (driver.inherits("QSQLiteDriver"))
        return QtSql::Numbering::Sqlite;
    return driver.inherits("QPSQLDriver") ? QtSql::Numbering::Postgres : QtSql::Numbering::Unknown;
}

} // namespace

QtSqlRecordset::QtSqlRecordset(QSqlQuery query, std::shared_ptr<std::vector<ProviderError>> errors)
    : query_(std::move(query))
    , errors_(std::move(errors))
{
}

QtSqlRecordset::~QtSqlRecordset() = default;

bool QtSqlRecordset::AtEnd()
{
    Begin();
    return kept_ ? kept_->AtEnd() : !query_.isValid();
}

void QtSqlRecordset::MoveFirst()
{
    Begin();
    if (kept_) {
        kept_->MoveFirst();
    } else if (!query_.first()) {
        CheckEnd();
        Fail(Common::NoCurrentRecord, u"Recordset");
    }
}

void QtSqlRecordset::MoveNext()
{
    if (AtEnd())
        Fail(Common::NoCurrentRecord, u"Recordset");
    if (!kept_) {
        if (!query_.next())
            CheckEnd();
        return;
    }
    kept_->MoveNext();
    if (kept_->AtEnd() && query_.isActive())
        Keep(query_.next());
}

std::int32_t QtSqlRecordset::FieldCount()
{
    Begin();
    return static_cast<std::int32_t>(fields_.size());
}

std::int32_t QtSqlRecordset::FieldType(std::int32_t field)
{
    if (field < 0 || field >= FieldCount())
        Fail(Common::SubscriptOutOfRange, u"Recordset");
    return fields_[static_cast<std::size_t>(field)].Type;
}

Value QtSqlRecordset::FieldValue(std::int32_t field)
{
    if (AtEnd())
        Fail(Common::NoCurrentRecord, u"Recordset");
    if (kept_)
        return kept_->FieldValue(field);
    if (field < 0 || field >= FieldCount())
        Fail(Common::SubscriptOutOfRange, u"Recordset");
    return Read(field);
}

void QtSqlRecordset::Begin()
{
    if (failure_)
        throw *failure_;
    if (lacksMemory_)
        Fail(Common::OutOfMemory, u"Recordset");
    if (!isOpen_)
        Open();
    isOpen_ = true;
}

void QtSqlRecordset::Open()
{
    if (!query_.isActive() || !query_.isSelect() || !query_.driver() || !query_.driver()->isOpen())
        BreakOff(QtSql::Noted(query_, *errors_));
    const QtSql::Numbering numbering = NumberingOf(*query_.driver());
    // Other drivers drop the records of the query at this.
    if (numbering == QtSql::Numbering::Postgres)
        query_.setNumericalPrecisionPolicy(QSql::HighPrecision);
    const QSqlRecord record = query_.record();
    fields_.clear();
    for (int field = 0; field < record.count(); ++field)
        fields_.push_back(QtSql::ShapeOf(record.field(field), numbering));

    if (query_.isForwardOnly() || numbering == QtSql::Numbering::Unknown) {
        kept_.emplace(static_cast<std::int32_t>(fields_.size()));
        Keep(query_.isForwardOnly() ? query_.isValid() || query_.next() : query_.first());
    } else if (!query_.first()) {
        CheckEnd();
    }
}

/// Keeps the record on which the query stands; behind the last the query has done its work.
void QtSqlRecordset::Keep(bool isOnRecord)
{
    if (!isOnRecord) {
        CheckEnd();
        query_.finish();
        return;
    }
    try {
        for (std::int32_t field = 0; field < static_cast<std::int32_t>(fields_.size()); ++field)
            kept_->Add(Read(field));
    } catch (const std::bad_alloc&) {
        lacksMemory_ = true;
        throw;
    }
}

/// Tells the end of the records, where nothing is wrong, from a walk that broke off.
void QtSqlRecordset::CheckEnd()
{
    const QSqlDriver* const driver = query_.driver();
    if (query_.lastError().isValid() || driver == nullptr || !driver->isOpen())
        BreakOff(QtSql::Noted(query_, *errors_));
}

/// What was read so far is not all there is: nothing may take it for that later.
void QtSqlRecordset::BreakOff(Failure failure)
{
    failure_ = std::move(failure);
    kept_.reset();
    query_.finish();
    throw *failure_;
}

Value QtSqlRecordset::Read(std::int32_t field)
{
    value_ = query_.value(field);
    return QtSql::ValueOf(value_, fields_[static_cast<std::size_t>(field)].As, text_);
}

} // namespace Tessellon
