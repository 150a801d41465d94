#include "engine/fields/DateFields.h"

#include "engine/runtime/Calendar.h"
#include "engine/runtime/CaseMap.h"
#include "engine/runtime/Locale.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Tessellon {

namespace {

struct Limits {
    std::int32_t Least;
    std::int32_t Most;
    std::size_t Digits;
};

Limits LimitsOf(const PickerPiece& piece)
{
    switch (piece.Part) {
    case PickerPart::Day: return {1, 31, 2};
    case PickerPart::Month: return {1, 12, 2};
    case PickerPart::Year: return {FirstYear, LastYear, piece.Text.size() > 2 ? 4U : 2U};
    case PickerPart::Hour12: return {1, 12, 2};
    case PickerPart::Hour24: return {0, 23, 2};
    default: return {0, 59, 2};
    }
}

bool IsNumber(const PickerPiece& piece)
{
    return piece.IsField() && piece.Part != PickerPart::Half && piece.Part != PickerPart::Callback;
}

std::int32_t NumberOf(std::u16string_view digits)
{
    std::int32_t number = 0;
    for (const char16_t digit : digits)
        number = number * 10 + (digit - u'0');
    return number;
}

/// One step from a number, round in a ring of `size` numbers from `least` on.
std::int32_t Roll(std::int32_t number, std::int32_t direction, std::int32_t least, std::int32_t size)
{
    return (number - least + direction + size) % size + least;
}

std::u16string Digits(std::int32_t number, std::size_t width)
{
    std::u16string digits;
    for (; number > 0 || digits.size() < width; number /= 10)
        digits.insert(digits.begin(), static_cast<char16_t>(u'0' + number % 10));
    return digits;
}

DateResult Both(DateResult first, DateResult second)
{
    return {first.Changed || second.Changed, first.Bell || second.Bell, first.ForCallback || second.ForCallback};
}

constexpr DateResult bell{false, true, false};
constexpr DateResult forCallback{false, false, true};

} // namespace

DateFields::DateFields(const Locale& locale)
    : locale_(locale)
    , wantedDay_(FieldsOf(value_).Day)
{
}

DateWrite DateFields::Value(double date)
{
    if (!IsLegalSerial(date))
        return DateWrite::OutOfRange;
    pending_.clear();
    wantedDay_ = FieldsOf(date).Day;
    if (date == value_)
        return DateWrite::Same;
    value_ = date;
    ++revision_;
    return DateWrite::Changed;
}

bool DateFields::CustomFormat(std::u16string_view format)
{
    pending_.clear();
    if (format == format_)
        return false;
    format_ = std::u16string(format);
    pieces_ = ReadPickerFormat(format_);
    fields_.clear();
    for (std::size_t piece = 0; piece < pieces_.size(); ++piece)
        if (pieces_[piece].IsField())
            fields_.push_back(piece);
    current_ = std::min(std::max(current_, 0), FieldCount() - 1);
    ++revision_;
    return true;
}

DateResult DateFields::CurrentField(std::int32_t field)
{
    const DateResult taken = TakePending();
    current_ = std::min(std::max(field, 0), FieldCount() - 1);
    return taken;
}

std::u16string_view DateFields::FieldRun(std::int32_t field) const
{
    if (field < 0 || field >= FieldCount())
        return {};
    return pieces_[fields_[static_cast<std::size_t>(field)]].Text;
}

bool DateFields::IsCallbackField() const
{
    const PickerPiece* piece = CurrentPiece();
    return piece != nullptr && piece->Part == PickerPart::Callback;
}

void DateFields::TakeFocus()
{
    pending_.clear();
    current_ = fields_.empty() ? None : 0;
}

DateResult DateFields::Press(DateKey key)
{
    const DateResult taken = TakePending();
    switch (key) {
    case DateKey::Left: return Both(taken, CurrentField(current_ - 1));
    case DateKey::Right: return Both(taken, CurrentField(current_ + 1));
    case DateKey::Home: return Both(taken, CurrentField(0));
    case DateKey::End: return Both(taken, CurrentField(FieldCount() - 1));
    default: break;
    }
    const PickerPiece* piece = CurrentPiece();
    return piece == nullptr ? taken : Both(taken, Step(*piece, key == DateKey::Up ? 1 : -1));
}

DateResult DateFields::Type(char16_t unit)
{
    if (Gathers(unit))
        return Gather(unit);
    const DateResult taken = TakePending();
    const PickerPiece* piece = CurrentPiece();
    if (piece == nullptr)
        return Both(taken, bell);
    if (piece->Part == PickerPart::Callback)
        return Both(taken, forCallback);
    const auto date = FieldsOf(value_);
    if (piece->Part == PickerPart::Half && (unit == u'a' || unit == u'A'))
        return Both(taken, SetTime(date.Hour % 12, date.Minute, date.Second));
    if (piece->Part == PickerPart::Half && (unit == u'p' || unit == u'P'))
        return Both(taken, SetTime(date.Hour % 12 + 12, date.Minute, date.Second));
    if (!IsBehindCurrent(unit))
        return Both(taken, bell);
    return Both(taken, CurrentField(current_ + 1));
}

bool DateFields::Gathers(char16_t unit) const
{
    const PickerPiece* piece = CurrentPiece();
    return piece != nullptr && IsNumber(*piece) && IsDigit(unit);
}

DateResult DateFields::TakePending()
{
    const PickerPiece* piece = CurrentPiece();
    if (pending_.empty() || piece == nullptr)
        return {};
    const std::u16string digits = std::exchange(pending_, {});
    std::int32_t number = NumberOf(digits);
    const Limits limits = LimitsOf(*piece);
    if (piece->Part == PickerPart::Year && digits.size() == 2)
        number += number < 30 ? 2000 : 1900;
    else if (piece->Part == PickerPart::Year && digits.size() != 4)
        return bell;
    if (number < limits.Least || number > limits.Most)
        return bell;
    return SetNumber(*piece, number);
}

DateResult DateFields::Move(CalendarMove move)
{
    const DateResult taken = TakePending();
    const auto date = FieldsOf(value_);
    const auto byDays = [&](double days) {
        const auto today = SerialOf({date.Year, date.Month, date.Day, 0, 0, 0});
        return Both(taken, PickDay(today + days));
    };
    const auto toDay = [&](std::int32_t day) {
        wantedDay_ = day;
        return Both(taken, SetDay(date.Year, date.Month));
    };
    switch (move) {
    case CalendarMove::PreviousDay: return byDays(-1);
    case CalendarMove::NextDay: return byDays(1);
    case CalendarMove::PreviousWeek: return byDays(-7);
    case CalendarMove::NextWeek: return byDays(7);
    case CalendarMove::PreviousMonth:
        return Both(taken, date.Month > 1 ? SetDay(date.Year, date.Month - 1) : SetDay(date.Year - 1, 12));
    case CalendarMove::NextMonth:
        return Both(taken, date.Month < 12 ? SetDay(date.Year, date.Month + 1) : SetDay(date.Year + 1, 1));
    case CalendarMove::FirstOfMonth: return toDay(1);
    default: return toDay(DaysInMonth(date.Year, date.Month));
    }
}

DateResult DateFields::PickDay(double day)
{
    const DateResult taken = TakePending();
    if (!IsLegalSerial(day))
        return Both(taken, bell);
    const auto picked = FieldsOf(std::trunc(day));
    wantedDay_ = picked.Day;
    return Both(taken, SetDay(picked.Year, picked.Month));
}

DateResult DateFields::PickDate(double date)
{
    const DateResult taken = TakePending();
    if (!IsLegalSerial(date))
        return Both(taken, bell);
    wantedDay_ = FieldsOf(date).Day;
    return Both(taken, Take(date));
}

bool DateFields::Assemble(const CallbackText& callback)
{
    // A callback may write the format and the value, and have the text put together while this one is under way.
    const auto pieces = pieces_;
    const std::uint32_t revision = revision_;
    std::u16string text;
    std::vector<Span> spans;
    for (const PickerPiece& piece : pieces) {
        const std::u16string part = piece.Part == PickerPart::Callback ? callback(piece.Text) : TextOf(piece);
        if (revision != revision_)
            return false;
        if (piece.IsField())
            spans.push_back({text.size(), part.size()});
        text += part;
    }
    display_ = std::move(text);
    spans_ = std::move(spans);
    return true;
}

DateFields::Span DateFields::FieldSpan(std::int32_t field) const
{
    const auto index = static_cast<std::size_t>(field);
    return field >= 0 && index < spans_.size() ? spans_[index] : Span{};
}

const PickerPiece* DateFields::CurrentPiece() const
{
    return current_ == None ? nullptr : &pieces_[fields_[static_cast<std::size_t>(current_)]];
}

bool DateFields::IsBehindCurrent(char16_t unit) const
{
    const std::size_t behind = fields_[static_cast<std::size_t>(current_)] + 1;
    return behind < pieces_.size() && pieces_[behind].Part == PickerPart::Literal &&
           pieces_[behind].Text.front() == unit;
}

std::u16string DateFields::TextOf(const PickerPiece& piece) const
{
    const auto date = FieldsOf(value_);
    const std::size_t length = piece.Text.size();
    const std::size_t width = std::min<std::size_t>(length, 2);
    const auto weekday = static_cast<std::size_t>(WeekdayOf(date) - 1);
    const auto month = static_cast<std::size_t>(date.Month - 1);
    switch (piece.Part) {
    case PickerPart::ShortWeekday: return locale_.DayAbbreviations[weekday];
    case PickerPart::LongWeekday: return locale_.DayNames[weekday];
    case PickerPart::Day: return Digits(date.Day, width);
    case PickerPart::Month:
        if (length > 2)
            return length == 3 ? locale_.MonthAbbreviations[month] : locale_.MonthNames[month];
        return Digits(date.Month, width);
    case PickerPart::Year: return length > 2 ? Digits(date.Year, 4) : Digits(date.Year % 100, 2);
    case PickerPart::Hour12: return Digits((date.Hour + 11) % 12 + 1, width);
    case PickerPart::Hour24: return Digits(date.Hour, width);
    case PickerPart::Minute: return Digits(date.Minute, width);
    case PickerPart::Second: return Digits(date.Second, width);
    case PickerPart::Half: {
        const std::u16string& half = date.Hour < 12 ? locale_.Am : locale_.Pm;
        return length == 1 ? half.substr(0, 1) : half;
    }
    default: return piece.Text;
    }
}

DateResult DateFields::Gather(char16_t digit)
{
    const PickerPiece& piece = *CurrentPiece();
    pending_ += digit;
    const Limits limits = LimitsOf(piece);
    if (pending_.size() < limits.Digits && NumberOf(pending_) * 10 <= limits.Most)
        return {};
    return TakePending();
}

DateResult DateFields::Step(const PickerPiece& piece, std::int32_t direction)
{
    const auto date = FieldsOf(value_);
    switch (piece.Part) {
    case PickerPart::Day: return SetNumber(piece, Roll(date.Day, direction, 1, DaysInMonth(date.Year, date.Month)));
    case PickerPart::Month: return SetNumber(piece, Roll(date.Month, direction, 1, 12));
    case PickerPart::Year: return SetNumber(piece, date.Year + direction);
    case PickerPart::Hour12: return SetNumber(piece, Roll(date.Hour % 12, direction, 0, 12));
    case PickerPart::Hour24: return SetNumber(piece, Roll(date.Hour, direction, 0, 24));
    case PickerPart::Minute: return SetNumber(piece, Roll(date.Minute, direction, 0, 60));
    case PickerPart::Second: return SetNumber(piece, Roll(date.Second, direction, 0, 60));
    case PickerPart::Half: return SetTime((date.Hour + 12) % 24, date.Minute, date.Second);
    default: return forCallback;
    }
}

DateResult DateFields::SetNumber(const PickerPiece& piece, std::int32_t number)
{
    const auto date = FieldsOf(value_);
    switch (piece.Part) {
    case PickerPart::Day: wantedDay_ = number; return SetDay(date.Year, date.Month);
    case PickerPart::Month: return SetDay(date.Year, number);
    case PickerPart::Year: return SetDay(number, date.Month);
    // The half of the day is a field of its own, and stays.
    case PickerPart::Hour12: return SetTime(date.Hour / 12 * 12 + number % 12, date.Minute, date.Second);
    case PickerPart::Hour24: return SetTime(number, date.Minute, date.Second);
    case PickerPart::Minute: return SetTime(date.Hour, number, date.Second);
    default: return SetTime(date.Hour, date.Minute, number);
    }
}

DateResult DateFields::SetDay(std::int32_t year, std::int32_t month)
{
    if (year < FirstYear || year > LastYear)
        return bell;
    auto date = FieldsOf(value_);
    date.Year = year;
    date.Month = month;
    date.Day = std::min(wantedDay_, DaysInMonth(year, month));
    return TakeFields(date);
}

DateResult DateFields::SetTime(std::int32_t hour, std::int32_t minute, std::int32_t second)
{
    auto date = FieldsOf(value_);
    date.Hour = hour;
    date.Minute = minute;
    date.Second = second;
    return TakeFields(date);
}

DateResult DateFields::TakeFields(const CivilTime& date)
{
    // The fields know no fraction of a second: what they leave as it is keeps its own.
    return date == FieldsOf(value_) ? DateResult{} : Take(SerialOf(date));
}

DateResult DateFields::Take(double date)
{
    if (date == value_)
        return {};
    value_ = date;
    ++revision_;
    return {true, false, false};
}

} // namespace Tessellon
