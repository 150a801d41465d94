#include "engine/fields/ListState.h"

#include "engine/runtime/CaseMap.h"

#include <algorithm>

namespace Tessellon {

namespace {

constexpr std::int16_t shiftKey = 1;
constexpr std::int16_t controlKey = 2;
constexpr std::int16_t controlOrAltKey = 2 | 4;

bool IsDown(std::int16_t shift, std::int16_t keys)
{
    return (shift & keys) != 0;
}

} // namespace

std::u16string_view ListState::Entry(std::int32_t index) const
{
    return Has(index) ? std::u16string_view(entries_[static_cast<std::size_t>(index)]) : std::u16string_view();
}

bool ListState::Selected(std::int32_t index) const
{
    return Has(index) && selected_[static_cast<std::size_t>(index)];
}

std::int32_t ListState::FirstSelected() const
{
    const auto found = std::ranges::find(selected_, true);
    return found == selected_.end() ? None : static_cast<std::int32_t>(found - selected_.begin());
}

void ListState::AddItem(std::u16string_view entry)
{
    entries_.emplace_back(entry);
    selected_.push_back(false);
}

void ListState::Clear()
{
    entries_.clear();
    selected_.clear();
    selectedCount_ = 0;
    ForgetWithoutSelection();
}

bool ListState::Selected(std::int32_t index, bool selected)
{
    if (!Has(index))
        return false;
    if (Selected(index) != selected)
        TurnOver(index);
    if (selected)
        reached_ = anchor_ = index;
    else
        ForgetWithoutSelection();
    return true;
}

void ListState::Text(std::u16string_view text)
{
    const auto found = std::ranges::find(entries_, text);
    if (found != entries_.end()) {
        Take(Alone(static_cast<std::int32_t>(found - entries_.begin())));
        return;
    }
    selected_.assign(entries_.size(), false);
    selectedCount_ = 0;
    ForgetWithoutSelection();
}

bool ListState::Press(ListKey key, std::int16_t shift)
{
    const auto target = Target(key, shift);
    return target && Take(*target);
}

bool ListState::WouldChange(ListKey key, std::int16_t shift) const
{
    const auto target = Target(key, shift);
    return target && !IsSelection(*target);
}

bool ListState::Type(char16_t letter, std::int16_t shift)
{
    if (!IsLetter(letter) || IsDown(shift, controlOrAltKey))
        return false;
    for (std::int32_t step = 1; step <= Count(); ++step) {
        const std::int32_t index = (reached_ + step) % Count();
        if (StartsWithIgnoringCase(Entry(index), {&letter, 1}))
            return Take(Alone(index));
    }
    return false;
}

bool ListState::Choose(std::int32_t index, std::int16_t shift)
{
    if (!Has(index))
        return false;
    if (IsDown(shift, shiftKey))
        return Take(FromAnchor(index));
    if (!IsDown(shift, controlKey))
        return Take(Alone(index));
    TurnOver(index);
    reached_ = anchor_ = index;
    return true;
}

std::optional<ListState::Range> ListState::Target(ListKey key, std::int16_t shift) const
{
    if (entries_.empty() || IsDown(shift, controlOrAltKey))
        return std::nullopt;
    const std::int32_t last = Count() - 1;
    std::int32_t index = 0;
    if (key == ListKey::End)
        index = last;
    else if (key != ListKey::Home && reached_ != None)
        index = std::clamp(key == ListKey::Down ? reached_ + 1 : reached_ - 1, 0, last);
    return IsDown(shift, shiftKey) ? FromAnchor(index) : Alone(index);
}

ListState::Range ListState::Alone(std::int32_t index)
{
    return {index, index, index, index};
}

ListState::Range ListState::FromAnchor(std::int32_t index) const
{
    if (anchor_ == None)
        return Alone(index);
    return {std::min(anchor_, index), std::max(anchor_, index), index, anchor_};
}

bool ListState::IsSelection(const Range& range) const
{
    const auto first = selected_.begin() + range.First;
    const auto end = selected_.begin() + range.Last + 1;
    return selectedCount_ == end - first && std::find(first, end, false) == end;
}

bool ListState::Take(const Range& range)
{
    const bool changed = !IsSelection(range);
    std::fill(selected_.begin(), selected_.end(), false);
    std::fill(selected_.begin() + range.First, selected_.begin() + range.Last + 1, true);
    selectedCount_ = range.Last - range.First + 1;
    reached_ = range.Reached;
    anchor_ = range.Anchor;
    return changed;
}

void ListState::TurnOver(std::int32_t index)
{
    auto selected = selected_[static_cast<std::size_t>(index)];
    selected.flip();
    selectedCount_ += selected ? 1 : -1;
}

void ListState::ForgetWithoutSelection()
{
    if (selectedCount_ == 0)
        reached_ = anchor_ = None;
}

} // namespace Tessellon
