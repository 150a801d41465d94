#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// What a piece of a date picker's format stands for. From Day on they are fields.
enum class PickerPart : std::uint8_t {
    Literal,
    ShortWeekday,
    LongWeekday,
    Day,
    Month,
    Year,
    Hour12,
    Hour24,
    Minute,
    Second,
    Half,
    Callback
};

/// One piece of a date picker's format.
struct PickerPiece {
    PickerPart Part;
    std::u16string Text; ///< A literal's own text, without its quotes; else the run of signs, as it stands.

    [[nodiscard]] bool IsField() const { return Part >= PickerPart::Day; }
};

/// Reads a date picker's format: runs of `d` and `dd`, `M`, `y`, `h`, `H`, `m`, `s`, `t` and `X` are fields, longer
/// runs of `d` are weekdays; what stands in single quotes is text, `''` inside them one quote; all else is text.
std::vector<PickerPiece> ReadPickerFormat(std::u16string_view format);

} // namespace Tessellon
