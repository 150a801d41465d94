#include "recordset/common/Digits.h"

namespace Tessellon::Common {

bool IsDecimal(std::u16string_view text)
{
    if (!text.empty() && (text.front() == u'-' || text.front() == u'+'))
        text.remove_prefix(1);
    bool hasPoint = false;
    bool hasDigit = false;
    for (const char16_t character : text) {
        if (character >= u'0' && character <= u'9')
            hasDigit = true;
        else if (character == u'.' && !hasPoint)
            hasPoint = true;
        else
            return false;
    }
    return hasDigit;
}

std::u16string_view HexadecimalDigits(const void* bytes, std::size_t count, std::u16string& buffer)
{
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    if (buffer.size() < 2 * count)
        buffer.resize(3 * count);
    const auto* const from = static_cast<const unsigned char*>(bytes);
    for (std::size_t i = 0; i < count; ++i) {
        buffer[2 * i] = digits[from[i] >> 4U];
        buffer[2 * i + 1] = digits[from[i] & 0xFU];
    }
    return {buffer.data(), 2 * count};
}

} // namespace Tessellon::Common
