#pragma once

#include <string>

namespace Tessellon {

/// What the sheet says of a font. Size is in points and above 0.
struct Font {
    std::u16string Name = u"Sans";
    double Size = 8;

    bool operator==(const Font&) const = default;
};

} // namespace Tessellon
