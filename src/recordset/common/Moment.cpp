#include "recordset/common/Moment.h"

#include "engine/runtime/Calendar.h"

#include <cstdint>

namespace Tessellon::Common {

namespace {

class Reader {
public:
    explicit Reader(std::u16string_view text)
        : text_(text)
    {
    }

    [[nodiscard]] bool AtEnd() const { return text_.empty(); }
    [[nodiscard]] bool Sees(char16_t character, std::size_t ahead = 0) const
    {
        return text_.size() > ahead && text_[ahead] == character;
    }
    [[nodiscard]] bool SeesDigit() const { return !text_.empty() && text_.front() >= u'0' && text_.front() <= u'9'; }

    bool Take(char16_t character)
    {
        if (!Sees(character))
            return false;
        text_.remove_prefix(1);
        return true;
    }

    /// A number of just so many digits, or -1.
    int Number(std::size_t digits)
    {
        if (text_.size() < digits)
            return -1;
        int number = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            const int digit = text_[i] - u'0';
            if (digit < 0 || digit > 9)
                return -1;
            number = number * 10 + digit;
        }
        text_.remove_prefix(digits);
        return number;
    }

private:
    std::u16string_view text_;
};

std::optional<std::int64_t> ReadDay(Reader& reader)
{
    const int year = reader.Number(4);
    if (year < 0 || !reader.Take(u'-'))
        return std::nullopt;
    const int month = reader.Number(2);
    if (month < 0 || !reader.Take(u'-'))
        return std::nullopt;
    const int day = reader.Number(2);
    if (day < 0)
        return std::nullopt;
    if (!IsLegalDate(year, month, day))
        return std::nullopt;
    return static_cast<std::int64_t>(SerialOf({year, month, day, 0, 0, 0}));
}

/// "HH:MM" as minutes.
std::optional<int> ReadMinutes(Reader& reader)
{
    const int hour = reader.Number(2);
    if (hour < 0 || hour > 23 || !reader.Take(u':'))
        return std::nullopt;
    const int minute = reader.Number(2);
    if (minute < 0 || minute > 59)
        return std::nullopt;
    return hour * 60 + minute;
}

/// The time of day in microseconds, less the offset of its zone.
std::optional<std::int64_t> ReadTime(Reader& reader)
{
    const std::optional<int> minutes = ReadMinutes(reader);
    if (!minutes)
        return std::nullopt;
    std::int64_t time = std::int64_t{*minutes} * 60'000'000;
    if (reader.Take(u':')) {
        const int second = reader.Number(2);
        if (second < 0 || second > 59)
            return std::nullopt;
        time += std::int64_t{second} * 1'000'000;
        if (reader.Take(u'.')) {
            if (!reader.SeesDigit())
                return std::nullopt;
            for (std::int64_t unit = 100'000; reader.SeesDigit(); unit /= 10)
                time += unit * reader.Number(1);
        }
    }
    reader.Take(u' ');
    if (reader.Take(u'Z') || reader.Take(u'z') || reader.AtEnd())
        return time;
    const std::int64_t sign = reader.Sees(u'-') ? -1 : 1;
    if (!reader.Take(u'+') && !reader.Take(u'-'))
        return std::nullopt;
    const std::optional<int> offset = ReadMinutes(reader);
    if (!offset)
        return std::nullopt;
    return time - sign * *offset * std::int64_t{60'000'000};
}

} // namespace

std::optional<double> SerialOfMicroseconds(std::int64_t microseconds)
{
    std::int64_t day = microseconds / MicrosecondsPerDay;
    std::int64_t rest = microseconds % MicrosecondsPerDay;
    if (rest < 0) {
        rest += MicrosecondsPerDay;
        --day;
    }
    if (!IsLegalSerial(static_cast<double>(day)))
        return std::nullopt;
    return SerialWithTime(static_cast<double>(day),
                          static_cast<double>(rest) / static_cast<double>(MicrosecondsPerDay));
}

std::optional<double> SerialOfDate(int year, int month, int day, std::int64_t microseconds)
{
    if (!IsLegalDate(year, month, day))
        return std::nullopt;
    const auto serial = static_cast<std::int64_t>(SerialOf({year, month, day, 0, 0, 0}));
    return SerialOfMicroseconds(serial * MicrosecondsPerDay + microseconds);
}

std::optional<double> SerialOfText(std::u16string_view text)
{
    Reader reader(text);
    std::optional<std::int64_t> day = 0;
    if (!reader.Sees(u':', 2)) {
        day = ReadDay(reader);
        if (!day)
            return std::nullopt;
        if (reader.AtEnd())
            return static_cast<double>(*day);
        if (!reader.Take(u'T') && !reader.Take(u't') && !reader.Take(u' '))
            return std::nullopt;
    }
    const std::optional<std::int64_t> time = ReadTime(reader);
    if (!time || !reader.AtEnd())
        return std::nullopt;
    return SerialOfMicroseconds(*day * MicrosecondsPerDay + *time);
}

} // namespace Tessellon::Common
