#pragma once

#include "engine/fields/UnitPairs.h"

#include <string>
#include <utility>

namespace Tessellon {

/// What is typed comes unit by unit; the halves of a pair of surrogates go in together, or not at all.
class GatheredUnits {
public:
    /// What there is to put in now; nothing while the second half of a pair is awaited.
    [[nodiscard]] std::u16string Take(char16_t unit)
    {
        const char16_t first = std::exchange(first_, IsHighSurrogate(unit) ? unit : u'\0');
        if (first_ != 0)
            return {};
        if (first != 0 && IsLowSurrogate(unit))
            return {first, unit};
        return {unit};
    }
    void Drop() { first_ = 0; } ///< The second half will not come.

private:
    char16_t first_ = 0;
};

} // namespace Tessellon
