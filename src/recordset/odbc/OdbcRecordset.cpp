#include "recordset/odbc/OdbcRecordset.h"

#include "engine/Failures.h"
#include "recordset/common/FailureNumbers.h"
#include "recordset/kept/KeptRecords.h"
#include "recordset/odbc/OdbcSession.h"
#include "recordset/odbc/RecordReader.h"

#include <cstddef>
#include <new>
#include <utility>

namespace Tessellon {

/// What a read failed with, and what the provider said of it.
struct OdbcRecordset::Break {
    Failure Reason;
    std::vector<ProviderError> Errors;
};

OdbcRecordset::OdbcRecordset(std::shared_ptr<OdbcSession> session, std::unique_ptr<Odbc::Statement> statement)
    : session_(std::move(session))
    , reader_(std::make_unique<Odbc::RecordReader>(std::move(statement)))
{
    for (Odbc::RecordReader::Field& field : reader_->TakeFields())
        fields_.push_back({std::move(field.Name), field.Shape.Type});
    records_ = std::make_unique<KeptRecords>(FieldCount());
    session_->Enter(*this);
}

OdbcRecordset::~OdbcRecordset()
{
    LetGo();
}

bool OdbcRecordset::AtEnd()
{
    Arrive();
    return records_->AtEnd();
}

void OdbcRecordset::MoveFirst()
{
    if (break_)
        FailAgain();
    if (records_->Count() == 0)
        Arrive();
    records_->MoveFirst();
}

void OdbcRecordset::MoveNext()
{
    Arrive();
    records_->MoveNext();
}

std::int32_t OdbcRecordset::FieldCount()
{
    return static_cast<std::int32_t>(fields_.size());
}

std::int32_t OdbcRecordset::FieldType(std::int32_t field)
{
    return FieldAt(field).Type;
}

Value OdbcRecordset::FieldValue(std::int32_t field)
{
    Arrive();
    return records_->FieldValue(field);
}

std::u16string OdbcRecordset::FieldName(std::int32_t field)
{
    return FieldAt(field).Name;
}

void OdbcRecordset::Settle()
{
    while (reader_)
        ReadOn();
}

void OdbcRecordset::Arrive()
{
    if (records_->AtEnd() && reader_)
        ReadOn();
    if (records_->AtEnd() && break_)
        FailAgain();
}

void OdbcRecordset::ReadOn()
{
    try {
        if (!reader_->Read(*records_))
            LetGo();
    } catch (const Failure& failure) {
        break_ = std::make_unique<Break>(Break{failure, session_->Errors()});
    } catch (const std::bad_alloc&) {
        break_ = std::make_unique<Break>(Break{FailureOf(Common::OutOfMemory, u"Recordset"), {}});
    }
    if (break_)
        LetGo();
}

void OdbcRecordset::LetGo()
{
    reader_.reset();
    session_->Leave(*this);
}

void OdbcRecordset::FailAgain() const
{
    session_->NoteAgain(break_->Errors);
    throw break_->Reason;
}

const OdbcRecordset::Field& OdbcRecordset::FieldAt(std::int32_t field) const
{
    if (field < 0 || static_cast<std::size_t>(field) >= fields_.size())
        Fail(Common::SubscriptOutOfRange, u"Recordset");
    return fields_[static_cast<std::size_t>(field)];
}

} // namespace Tessellon
