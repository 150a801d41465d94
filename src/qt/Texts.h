#pragma once

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

} // namespace Tessellon
