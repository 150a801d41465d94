#pragma once

#include "engine/fields/DateFields.h"
#include "engine/runtime/Calendar.h"
#include "engine/runtime/Locale.h"

#include <gtest/gtest.h>

#include <string>

namespace Tessellon {

inline double Moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return SerialOf({year, month, day, hour, minute, second});
}

/// The fields of a picker that has the focus, in the English locale.
struct Picker {
    Picker(std::u16string_view format, double value)
    {
        Fields.CustomFormat(format);
        EXPECT_NE(Fields.Value(value), DateWrite::OutOfRange);
        Fields.TakeFocus();
    }

    /// Types each character, as keys that are no digits of the field do: what waits is taken ahead.
    DateResult Typing(std::u16string_view units)
    {
        DateResult all;
        for (const char16_t unit : units) {
            const DateResult result = Fields.Type(unit);
            all.Changed = all.Changed || result.Changed;
            all.Bell = all.Bell || result.Bell;
            all.ForCallback = all.ForCallback || result.ForCallback;
        }
        return all;
    }
    DateResult Pressing(DateKey key) { return Fields.Press(key); }

    /// The value, written in full.
    std::u16string Shown()
    {
        DateFields full(Land);
        full.CustomFormat(u"yyyy-MM-dd HH:mm:ss");
        EXPECT_NE(full.Value(Fields.Value()), DateWrite::OutOfRange);
        EXPECT_TRUE(full.Assemble([](std::u16string_view) { return std::u16string(); }));
        return std::u16string(full.DisplayText());
    }
    std::u16string Day() { return Shown().substr(0, 10); }
    std::u16string Time() { return Shown().substr(11); }

    Locale Land = Locale::English();
    DateFields Fields{Land};
};

} // namespace Tessellon
