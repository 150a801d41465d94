#include "shell/Entry.h"

#include <cmath>

namespace Tessellon {

namespace {

constexpr int smaller = -1;
constexpr int larger = 1;
constexpr double firstDate = 1.0; // 31 December 1899

} // namespace

std::u16string TessellonSheet::Minimum(std::int32_t col, ManipulateType dataType, bool& success)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"Minimum", std::u16string(),
                           [&](std::u16string& result) { Extreme(col, dataType, smaller, result, success); });
    });
}

std::u16string TessellonSheet::Maximum(std::int32_t col, ManipulateType dataType, bool& success)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"Maximum", std::u16string(),
                           [&](std::u16string& result) { Extreme(col, dataType, larger, result, success); });
    });
}

bool TessellonSheet::CanAggregate(std::int32_t col) const
{
    return RowCount >= 2 && ColCount >= 2 && col >= 1 && col < ColCount;
}

template <class Visit>
void TessellonSheet::ForEachText(std::int32_t col, const Visit& visit)
{
    for (std::int32_t row = 1; row < RowCount; ++row) {
        const std::u16string_view text = Trim(MSFlexGrid1->TextMatrix(row, col));
        if (!text.empty())
            visit(text);
    }
}

/// The first cell that fits is taken as it is, a later one only if it is strictly further in the direction.
void TessellonSheet::Extreme(std::int32_t col, ManipulateType dataType, int direction, std::u16string& result,
                             bool& success)
{
    success = false;
    if (!CanAggregate(col))
        return;
    bool any = false;
    switch (dataType) {
    case mtString:
        ForEachText(col, [&](std::u16string_view text) {
            if (!any || (direction == smaller ? text < result : text > result))
                result = text;
            any = true;
        });
        break;
    case mtNumeric: {
        double value = 0;
        ForEachText(col, [&](std::u16string_view text) {
            if (!RunTime->IsNumeric(text))
                return;
            const double number = RunTime->ToNumber(text);
            if (!any || (direction == smaller ? number < value : number > value))
                value = number;
            any = true;
        });
        result = RunTime->GeneralText(Value::OfDouble(value));
        break;
    }
    case mtDate: {
        double value = firstDate;
        ForEachText(col, [&](std::u16string_view text) {
            if (!RunTime->IsDate(text))
                return;
            // What the sheet's date format keeps of the date is what counts.
            const std::u16string kept(RunTime->Format(Value::OfDate(RunTime->ToDate(text)), DateFormatText));
            const double date = RunTime->ToDate(kept);
            const double seconds = any ? RunTime->DateDifferenceInSeconds(value, date) : 0;
            if (!any || (direction == smaller ? seconds < 0 : seconds > 0))
                value = date;
            any = true;
        });
        result = RunTime->Format(Value::OfDate(value), DateFormatText);
        break;
    }
    default: break;
    }
    success = true;
}

double TessellonSheet::Summation(std::int32_t col, bool& success)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"Summation", 0.0, [&](double& result) {
            success = false;
            if (!CanAggregate(col))
                return;
            double sum = 0;
            ForEachText(col, [&](std::u16string_view text) {
                if (RunTime->IsNumeric(text))
                    sum += RunTime->ToNumber(text);
                if (!std::isfinite(sum))
                    Fail(6);
            });
            success = true;
            result = sum;
        });
    });
}

} // namespace Tessellon
