#pragma once

#include "engine/fields/TextState.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// Text field and items of a combo box. The text need not be an item, and has no limit of length.
class ComboState {
public:
    static constexpr std::int32_t None = -1;

    /// The text field: what is typed, erased and written goes to it directly.
    [[nodiscard]] TextState& Field() { return field_; }
    [[nodiscard]] const TextState& Field() const { return field_; }

    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(items_.size()); }
    /// Empty past the last. Valid until the items change.
    [[nodiscard]] std::u16string_view Item(std::int32_t index) const;
    /// The item that the text equals: the one chosen, as long as the text is still its own, else the first. Or None.
    [[nodiscard]] std::int32_t Current() const;

    void AddItem(std::u16string_view item);
    /// Takes the items and the text away. Never told as a change.
    void Clear();

    // What the user does. Each returns whether the text became another.

    bool Down(); ///< The item behind the current one, or the first where there is none.
    bool Up(); ///< The item before the current one.
    bool Choose(std::int32_t index); ///< An index that is not there: nothing.

private:
    TextState field_;
    std::vector<std::u16string> items_;
    std::int32_t chosen_ = None;
};

} // namespace Tessellon
