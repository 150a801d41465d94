#pragma once

#include "engine/runtime/DateTokens.h"
#include "engine/runtime/FormatSigns.h"
#include "engine/runtime/Locale.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// A format, read once for the many dates that are written in it.
class DatePattern {
public:
    explicit DatePattern(std::u16string_view format);

    [[nodiscard]] std::u16string_view Format() const { return format_; }
    [[nodiscard]] bool HasDateSigns() const { return hasDateSigns_; } ///< No name, but signs that only dates have.
    /// Appends a date; weeks begin on Sunday, the first has the 1st of January.
    /// A serial outside the years 100 to 9999: failure 5.
    void Append(std::u16string& out, double serial, const Locale& locale) const;

private:
    struct Piece {
        DateSign Kind;
        std::size_t Begin; ///< Of its text, in the format.
        std::size_t Size;
    };

    std::u16string format_;
    std::vector<Piece> pieces_;
    bool hasDateSigns_;
    bool twelveHours_;
};

/// Appends a date in a format that has a name. A serial outside the years 100 to 9999: failure 5.
void AppendNamedDate(std::u16string& out, double serial, NamedFormat format, const Locale& locale);
/// The text that a date has of itself: short date and long time, without whichever is zero.
void AppendGeneralDate(std::u16string& out, double serial, const Locale& locale);

} // namespace Tessellon
