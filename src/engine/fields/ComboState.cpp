#include "engine/fields/ComboState.h"

#include <algorithm>
#include <cstddef>

namespace Tessellon {

std::u16string_view ComboState::Item(std::int32_t index) const
{
    if (index < 0 || index >= Count())
        return {};
    return items_[static_cast<std::size_t>(index)];
}

std::int32_t ComboState::Current() const
{
    // Two items may read the same; without the chosen one Down would never come past the first of them.
    if (chosen_ != None && Item(chosen_) == field_.Text())
        return chosen_;
    const auto found = std::ranges::find(items_, field_.Text());
    return found == items_.end() ? None : static_cast<std::int32_t>(found - items_.begin());
}

void ComboState::AddItem(std::u16string_view item)
{
    items_.emplace_back(item);
}

void ComboState::Clear()
{
    items_.clear();
    chosen_ = None;
    field_.Text({});
}

bool ComboState::Down()
{
    return Choose(Current() + 1);
}

bool ComboState::Up()
{
    const std::int32_t current = Current();
    return current != None && Choose(current - 1);
}

bool ComboState::Choose(std::int32_t index)
{
    if (index < 0 || index >= Count())
        return false;
    chosen_ = index;
    return field_.Text(Item(index));
}

} // namespace Tessellon
