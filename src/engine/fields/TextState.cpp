#include "engine/fields/TextState.h"

#include "engine/fields/UnitPairs.h"

#include <algorithm>

namespace Tessellon {

bool TextState::Text(std::u16string_view text)
{
    firstHalfRefused_ = false;
    if (text == text_)
        return false;
    text_ = std::u16string(text);
    caret_ = 0;
    return true;
}

bool TextState::Caret(std::int32_t position)
{
    if (position < 0)
        return false;
    firstHalfRefused_ = false;
    caret_ = std::min(static_cast<std::size_t>(position), text_.size());
    return true;
}

bool TextState::Type(char16_t unit)
{
    // The halves of a pair come one by one; a first half that found no room takes its second half with it.
    const bool lostItsFirstHalf = firstHalfRefused_ && IsLowSurrogate(unit);
    firstHalfRefused_ = false;
    if (lostItsFirstHalf || IsControlCharacter(unit))
        return false;
    if (!HasRoom(IsHighSurrogate(unit) ? 2 : 1)) {
        firstHalfRefused_ = IsHighSurrogate(unit);
        return false;
    }
    return Insert({&unit, 1});
}

bool TextState::LineBreak()
{
    firstHalfRefused_ = false;
    return multiline_ && HasRoom(2) && Insert(u"\r\n");
}

bool TextState::Backspace()
{
    if (IsInsidePair(text_, caret_))
        return Remove(caret_ - 1, caret_ + 1);
    return Remove(StepBack(text_, caret_), caret_);
}

bool TextState::Delete()
{
    if (IsInsidePair(text_, caret_))
        return Remove(caret_ - 1, caret_ + 1);
    return Remove(caret_, StepOn(text_, caret_));
}

bool TextState::TakeFrom(std::u16string_view text, std::int32_t caret)
{
    const bool changed = Text(text);
    caret_ = std::min(static_cast<std::size_t>(std::max(caret, 0)), text_.size());
    return changed;
}

void TextState::Left()
{
    firstHalfRefused_ = false;
    caret_ = StepBack(text_, caret_);
}

void TextState::Right()
{
    firstHalfRefused_ = false;
    caret_ = StepOn(text_, caret_);
}

void TextState::Home()
{
    firstHalfRefused_ = false;
    caret_ = 0;
}

void TextState::End()
{
    firstHalfRefused_ = false;
    caret_ = text_.size();
}

bool TextState::HasRoom(std::size_t units) const
{
    return maxLength_ <= 0 || text_.size() + units <= static_cast<std::size_t>(maxLength_);
}

bool TextState::Insert(std::u16string_view units)
{
    text_.insert(caret_, units);
    caret_ += units.size();
    return true;
}

bool TextState::Remove(std::size_t from, std::size_t to)
{
    firstHalfRefused_ = false;
    text_.erase(from, to - from);
    caret_ = from;
    return from != to;
}

} // namespace Tessellon
