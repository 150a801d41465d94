#include "ScriptRecordset.h"

#include "Forms.h"
#include "Literals.h"
#include "ScriptError.h"
#include "engine/Failures.h"
#include "engine/runtime/NumberText.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace Tessellon::Replay {

namespace {

enum class FieldClass : std::uint8_t { Boolean, Date, Whole, BigUnsigned, Single, Double, Decimal, Text, Other };

struct FieldKind {
    std::int32_t Type;
    FieldClass Class;
    std::int64_t Least = 0; ///< Of whole numbers.
    std::int64_t Most = 0;
};

template <class Number>
constexpr FieldKind Whole(std::int32_t type)
{
    return {type, FieldClass::Whole, std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()};
}

constexpr std::array kinds{
    Whole<std::int16_t>(2), // adSmallInt
    Whole<std::int32_t>(3), // adInteger
    FieldKind{4, FieldClass::Single}, // adSingle
    FieldKind{5, FieldClass::Double}, // adDouble
    FieldKind{6, FieldClass::Decimal}, // adCurrency
    FieldKind{7, FieldClass::Date}, // adDate
    FieldKind{8, FieldClass::Text}, // adBSTR
    FieldKind{11, FieldClass::Boolean}, // adBoolean
    FieldKind{14, FieldClass::Decimal}, // adDecimal
    Whole<std::int8_t>(16), // adTinyInt
    Whole<std::uint8_t>(17), // adUnsignedTinyInt
    Whole<std::uint16_t>(18), // adUnsignedSmallInt
    Whole<std::uint32_t>(19), // adUnsignedInt
    Whole<std::int64_t>(20), // adBigInt
    FieldKind{21, FieldClass::BigUnsigned}, // adUnsignedBigInt
    FieldKind{128, FieldClass::Text}, // adBinary
    FieldKind{129, FieldClass::Text}, // adChar
    FieldKind{130, FieldClass::Text}, // adWChar
    FieldKind{131, FieldClass::Decimal}, // adNumeric
    FieldKind{133, FieldClass::Date}, // adDBDate
    FieldKind{134, FieldClass::Date}, // adDBTime
    FieldKind{135, FieldClass::Date}, // adDBTimeStamp
    FieldKind{139, FieldClass::Decimal}, // adVarNumeric
    FieldKind{200, FieldClass::Text}, // adVarChar
    FieldKind{201, FieldClass::Text}, // adLongVarChar
    FieldKind{202, FieldClass::Text}, // adVarWChar
    FieldKind{203, FieldClass::Text}, // adLongVarWChar
    FieldKind{204, FieldClass::Text}, // adVarBinary
    FieldKind{205, FieldClass::Text}, // adLongVarBinary
};

FieldKind KindOf(std::int32_t type)
{
    const auto* const found =
        std::find_if(kinds.begin(), kinds.end(), [&](const FieldKind& kind) { return kind.Type == type; });
    return found == kinds.end() ? FieldKind{type, FieldClass::Other} : *found;
}

DecimalDigits ReadDigits(const Word& word)
{
    // A decimal keeps all its digits; an exponent of thousands would be written out as zeros.
    constexpr std::int64_t mostPlaces = 1000;
    const std::optional<DecimalDigits> digits = ReadNumber(word);
    if (!digits || digits->Point > mostPlaces || digits->Point < -mostPlaces)
        throw ScriptError(Shown(word) + " is not a number");
    return *digits;
}

Value ReadWholeField(const Word& word, const FieldKind& kind)
{
    const std::optional<std::int64_t> number = WholeNumber(ReadDigits(word), kind.Least, kind.Most);
    if (!number)
        throw ScriptError(Shown(word) + " does not fit the type of its field");
    return Value::OfInteger(*number);
}

Value ReadBigUnsigned(const Word& word)
{
    const DecimalDigits digits = ReadDigits(word);
    const std::optional<std::uint64_t> number = WholeMagnitude(digits);
    if (!number || digits.Negative)
        throw ScriptError(Shown(word) + " does not fit the type of its field");
    return Value::OfUnsigned(*number);
}

/// A value by what its word looks like.
Value ReadOther(const Word& word, std::u16string& characters)
{
    if (word.IsText()) {
        characters = *word.Text;
        return Value::OfText({});
    }
    if (word.Is(u"True") || word.Is(u"False"))
        return Value::OfBoolean(ReadAs<bool>(word));
    if (const std::optional<DateLiteral> date = ReadDate(word))
        return Value::OfDate(date->Serial);
    return Value::OfDouble(ReadAs<double>(word));
}

} // namespace

ScriptRecordset::Kept ScriptRecordset::Read(const Word& word, std::int32_t type)
{
    Kept kept;
    if (word.Is(u"Null"))
        return kept;
    const FieldKind kind = KindOf(type);
    switch (kind.Class) {
    case FieldClass::Boolean: kept.Is = Value::OfBoolean(ReadAs<bool>(word)); break;
    case FieldClass::Date: kept.Is = Value::OfDate(ReadAs<DateLiteral>(word).Serial); break;
    case FieldClass::Whole: kept.Is = ReadWholeField(word, kind); break;
    case FieldClass::BigUnsigned: kept.Is = ReadBigUnsigned(word); break;
    case FieldClass::Single: kept.Is = Value::OfSingle(ReadAs<float>(word)); break;
    case FieldClass::Double: kept.Is = Value::OfDouble(ReadAs<double>(word)); break;
    case FieldClass::Decimal:
        AppendPlain(kept.Characters, ReadDigits(word), u'.');
        kept.Is = Value::OfDecimal({});
        break;
    case FieldClass::Text:
        kept.Characters = ReadAs<std::u16string>(word);
        kept.Is = Value::OfText({});
        break;
    case FieldClass::Other: kept.Is = ReadOther(word, kept.Characters); break;
    }
    return kept;
}

void ScriptRecordset::AddRecord(Words words)
{
    CheckCount(u"record", words.size(), 0, types_.size());
    std::vector<Kept>& record = records_.emplace_back();
    for (std::size_t field = 0; field < words.size(); ++field)
        record.push_back(Read(words[field], types_[field]));
}

void ScriptRecordset::MoveFirst()
{
    if (records_.empty())
        Fail(3021, u"Recordset");
    current_ = 0;
}

void ScriptRecordset::MoveNext()
{
    if (AtEnd())
        Fail(3021, u"Recordset");
    ++current_;
}

Value ScriptRecordset::FieldValue(std::int32_t field)
{
    if (AtEnd())
        Fail(3021, u"Recordset");
    const std::vector<Kept>& record = records_[current_];
    const auto place = static_cast<std::size_t>(field);
    if (place >= record.size())
        return Value::Null();
    Value value = record[place].Is;
    value.Characters = record[place].Characters;
    return value;
}

} // namespace Tessellon::Replay
