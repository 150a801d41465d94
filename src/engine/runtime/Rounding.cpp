#include "engine/runtime/Rounding.h"

#include "engine/Failures.h"

#include <cmath>

namespace Tessellon {

std::int32_t RoundToLong(double number)
{
    const double below = std::floor(number);
    const double rest = number - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
    const double rounded = up ? below + 1.0 : below;
    if (!(rounded >= -2147483648.0 && rounded <= 2147483647.0))
        Fail(6, u"TessellonSheet");
    return static_cast<std::int32_t>(rounded);
}

} // namespace Tessellon
