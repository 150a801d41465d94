#pragma once

#include "platform/Container.h"

namespace Tessellon {

/// The properties of a design in which nothing was saved: each reads as its default, and nothing is kept.
struct DefaultProperties final : PropertyBag {
    Font ReadFont(std::u16string_view /*name*/, const Font& byDefault) override { return byDefault; }
    bool ReadTruth(std::u16string_view /*name*/, bool byDefault) override { return byDefault; }
    void WriteFont(std::u16string_view /*name*/, const Font& /*font*/, const Font& /*byDefault*/) override {}
    void WriteTruth(std::u16string_view /*name*/, bool /*truth*/, bool /*byDefault*/) override {}
};

} // namespace Tessellon
