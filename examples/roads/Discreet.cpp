#include "roads/Discreet.h"

#include "platform/Failure.h"
#include "recordset/common/Unicode.h"

namespace Roads {

using namespace Tessellon;

std::u16string Hidden(const Secrets& secrets, std::u16string_view text)
{
    return Common::ToUtf16(secrets.Hide(Common::ToUtf8(text)));
}

const std::vector<ProviderError>& DiscreetConnection::Errors()
{
    errors_ = connection_->Errors();
    for (ProviderError& error : errors_) {
        error.Description = Hidden(secrets_, error.Description);
        error.Source = Hidden(secrets_, error.Source);
    }
    return errors_;
}

template <class Call>
auto DiscreetRecordset::Ask(const Call& call)
{
    try {
        return call();
    } catch (Failure& failure) {
        failure.Description = Hidden(secrets_, failure.Description);
        throw;
    }
}

bool DiscreetRecordset::AtEnd()
{
    return Ask([this] { return records_->AtEnd(); });
}

void DiscreetRecordset::MoveFirst()
{
    Ask([this] { records_->MoveFirst(); });
}

void DiscreetRecordset::MoveNext()
{
    Ask([this] { records_->MoveNext(); });
}

std::int32_t DiscreetRecordset::FieldCount()
{
    return Ask([this] { return records_->FieldCount(); });
}

std::int32_t DiscreetRecordset::FieldType(std::int32_t field)
{
    return Ask([this, field] { return records_->FieldType(field); });
}

Value DiscreetRecordset::FieldValue(std::int32_t field)
{
    return Ask([this, field] { return records_->FieldValue(field); });
}

} // namespace Roads
