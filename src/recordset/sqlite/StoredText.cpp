#include "recordset/sqlite/StoredText.h"

#include "recordset/common/Digits.h"
#include "recordset/common/Moment.h"
#include "recordset/common/Words.h"

#include <optional>

namespace Tessellon::Sqlite {

using Common::WithoutBlanks;

Value ReadText(std::u16string_view text, Reading reading)
{
    switch (reading) {
    case Reading::Boolean:
        if (const std::optional<bool> truth = Common::TruthOf(WithoutBlanks(text)))
            return Value::OfBoolean(*truth);
        break;
    case Reading::DateTime:
    case Reading::Time:
        if (const std::optional<double> serial = Common::SerialOfText(WithoutBlanks(text)))
            return Value::OfDate(*serial);
        break;
    case Reading::Decimal:
        if (const std::u16string_view digits = WithoutBlanks(text); Common::IsDecimal(digits))
            return Value::OfDecimal(digits);
        break;
    default: break;
    }
    return Value::OfText(text);
}

} // namespace Tessellon::Sqlite
