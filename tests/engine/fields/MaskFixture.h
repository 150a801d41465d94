#pragma once

#include "engine/fields/MaskState.h"
#include "engine/runtime/RunTimeFunctions.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tessellon {

/// A masked box in the English locale, unless a test gives another.
struct MaskBox {
    explicit MaskBox(std::u16string_view mask = u"", Locale locale = Locale::English())
        : Functions(std::move(locale))
    {
        EXPECT_TRUE(State.Mask(mask));
    }

    MaskBox& Typing(std::u16string_view units)
    {
        for (const char16_t unit : units)
            State.Type(unit);
        return *this;
    }
    MaskBox& At(std::int32_t caret)
    {
        EXPECT_TRUE(State.Caret(caret));
        return *this;
    }

    RunTimeFunctions Functions;
    MaskState State{Functions};
};

} // namespace Tessellon
