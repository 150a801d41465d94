#include "failure/Frames.h"

#include <algorithm>

namespace Tessellon {

namespace {

std::u16string Space(std::size_t count)
{
    return std::u16string(count, u' ');
}

} // namespace

/// Takes a mask's literals off a text that was stored with them, and pads it in front, so that the bare characters
/// land at the mask's right end. The text is set at the exit, also behind a failure.
void TessellonSheet::FormatStr(std::u16string& Text, std::u16string Mask)
{
    std::u16string result = Text;
    Armed(u"FormatStr", [&] {
        Mask = std::u16string(Trim(Mask));
        if (Text.empty() || Mask.empty())
            return;
        const std::size_t valueLength = Text.size();
        const std::size_t maskLength = Mask.size();
        std::u16string literals(RunTime->Format(Value::OfText(Space(maskLength)), Mask));
        std::erase(literals, u' ');
        if (literals.empty())
            return;
        std::ranges::sort(literals);
        literals.erase(std::ranges::unique(literals).begin(), literals.end());
        for (const char16_t literal : literals)
            std::erase(result, literal);
        const std::size_t removed = valueLength - result.size();
        if (Trim(result).empty() || valueLength == maskLength)
            return;
        if (valueLength > maskLength) {
            result = Text.substr(0, valueLength - maskLength) + result;
        } else if (removed > 0) {
            result = Space(maskLength - valueLength) + result;
        } else {
            const std::size_t formatted = RunTime->Format(Value::OfText(Text), Mask).size();
            if (maskLength > formatted)
                result = Space(maskLength - formatted) + result;
        }
    });
    Text = result;
}

} // namespace Tessellon
