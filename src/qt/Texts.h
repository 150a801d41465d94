#pragma once

#include "engine/fields/UnitPairs.h"

#include <QString>

#include <string_view>

namespace Tessellon {

[[nodiscard]] inline QString OwnText(std::u16string_view text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

/// Without a copy: valid as long as `text` is.
[[nodiscard]] inline QString SharedText(std::u16string_view text)
{
    return QString::fromRawData(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

[[nodiscard]] inline std::u16string_view UnitsOf(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

/// A text where there is room for one line: line breaks and other control characters are blanks.
[[nodiscard]] inline QString OneLine(std::u16string_view text)
{
    QString line = OwnText(text);
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (QChar& unit : line)
        unit = IsControlCharacter(unit.unicode()) ? QChar(u' ') : unit;
    return line;
}

} // namespace Tessellon
