#include "engine/fields/MaskState.h"

#include "engine/fields/PastedText.h"
#include "engine/fields/UnitPairs.h"
#include "engine/runtime/RunTimeFunctions.h"
#include "platform/RunTime.h"

#include <algorithm>
#include <utility>

namespace Tessellon {

MaskState::MaskState(const RunTimeFunctions& functions)
    : functions_(functions)
{
}

bool MaskState::Mask(std::u16string_view mask)
{
    auto pattern = MaskPattern::Read(mask, functions_.GetLocale());
    if (!pattern)
        return false;
    const std::u16string text = mask.empty() ? std::u16string(Text()) : BareText();
    mask_ = std::u16string(mask);
    pattern_ = std::move(*pattern);
    caret_ = 0;
    firstHalfRefused_ = false;
    plain_.TakeFrom(IsMasked() ? std::u16string_view() : text, 0);
    held_ = NothingHeld();
    if (IsMasked())
        held_ = HeldOf(text);
    return true;
}

std::u16string_view MaskState::Text() const
{
    if (promptInclude_ || !IsMasked())
        return ShownText();
    text_ = BareText();
    return text_;
}

MaskWrite MaskState::Text(std::u16string_view text)
{
    if (!IsMasked())
        return plain_.Text(text) ? MaskWrite::Changed : MaskWrite::Same;
    firstHalfRefused_ = false;
    if (text == Text())
        return MaskWrite::Same;
    // A text that goes without literals may hold a character that is one of them, so the places are tried alone first.
    std::optional<Held> held;
    if (!promptInclude_)
        held = Read(text, Literals::NotPassed);
    if (!held)
        held = Read(text, Literals::Passed);
    if (!held)
        return MaskWrite::DoesNotFit;
    const std::u16string before(Text());
    held_ = std::move(*held);
    if (Text() == before)
        return MaskWrite::Same;
    caret_ = 0;
    return MaskWrite::Changed;
}

std::u16string_view MaskState::ShownText() const
{
    return IsMasked() ? std::u16string_view(held_.Shown) : plain_.Text();
}

std::u16string_view MaskState::FormattedText() const
{
    if (IsMasked()) {
        formatted_ = held_.Shown;
        for (std::size_t position = 0; position < formatted_.size(); ++position)
            if (!pattern_.IsLiteral(position) && !held_.Filled[position])
                formatted_[position] = u' ';
        return formatted_;
    }
    const auto text = plain_.Text();
    const bool blanksAlone = !text.empty() && Trim(text).empty();
    if (format_.empty() || blanksAlone)
        return text;
    formatted_.clear();
    functions_.FormatTo(formatted_, Value::OfText(text), format_);
    return formatted_;
}

std::int32_t MaskState::Caret() const
{
    return IsMasked() ? static_cast<std::int32_t>(caret_) : plain_.Caret();
}

bool MaskState::Caret(std::int32_t position)
{
    if (!IsMasked())
        return plain_.Caret(position);
    if (position < 0)
        return false;
    MoveTo(std::min(static_cast<std::size_t>(position), pattern_.Size()));
    return true;
}

MaskTyping MaskState::Type(char16_t unit)
{
    if (!IsMasked())
        return plain_.Type(unit) ? MaskTyping::Taken : MaskTyping::Refused;
    // The halves of a pair come one by one; a first half that found no room takes its second half with it.
    const bool lostItsFirstHalf = firstHalfRefused_ && IsLowSurrogate(unit);
    firstHalfRefused_ = false;
    if (lostItsFirstHalf || IsControlCharacter(unit))
        return MaskTyping::Refused;
    if (caret_ < pattern_.Size() && pattern_.IsLiteral(caret_) && pattern_.Literal(caret_) == unit) {
        ++caret_;
        return MaskTyping::Passed;
    }
    const std::size_t place = pattern_.PlaceFrom(caret_);
    const auto character = pattern_.Fit(place, unit);
    if (!character || (IsHighSurrogate(unit) && !pattern_.Fit(place + 1, unit))) {
        firstHalfRefused_ = IsHighSurrogate(unit);
        return MaskTyping::Refused;
    }
    Put(place, *character);
    caret_ = place + 1;
    return MaskTyping::Taken;
}

bool MaskState::Backspace()
{
    if (!IsMasked())
        return plain_.Backspace();
    firstHalfRefused_ = false;
    for (std::size_t position = caret_; position > 0; --position) {
        const std::size_t place = position - 1;
        if (pattern_.IsLiteral(place))
            continue;
        caret_ = std::min(place, OtherHalf(place).value_or(place));
        return Empty(place);
    }
    return false;
}

bool MaskState::Delete()
{
    if (!IsMasked())
        return plain_.Delete();
    firstHalfRefused_ = false;
    if (caret_ >= pattern_.Size() || pattern_.IsLiteral(caret_))
        return false;
    const std::size_t place = caret_;
    caret_ = std::min(place, OtherHalf(place).value_or(place));
    return Empty(place);
}

void MaskState::Left()
{
    if (IsMasked())
        MoveTo(StepBack(held_.Shown, caret_));
    else
        plain_.Left();
}

void MaskState::Right()
{
    if (IsMasked())
        MoveTo(StepOn(held_.Shown, caret_));
    else
        plain_.Right();
}

void MaskState::Home()
{
    if (IsMasked())
        MoveTo(0);
    else
        plain_.Home();
}

void MaskState::End()
{
    if (IsMasked())
        MoveTo(pattern_.Size());
    else
        plain_.End();
}

void MaskState::Erase(std::size_t first, std::size_t last)
{
    if (!IsMasked()) {
        std::u16string text(plain_.Text());
        text.erase(first, last - first);
        plain_.TakeFrom(text, static_cast<std::int32_t>(first));
        return;
    }
    for (std::size_t position = first; position < last; ++position)
        if (!pattern_.IsLiteral(position))
            Empty(position);
    MoveTo(first);
}

bool MaskState::Insert(std::u16string_view text)
{
    if (!IsMasked()) {
        std::u16string whole(plain_.Text());
        const auto caret = static_cast<std::size_t>(plain_.Caret());
        const std::u16string pasted = PastedText(text, Lines::One, RoomUnder(plain_.MaxLength(), whole.size()));
        whole.insert(caret, pasted);
        plain_.TakeFrom(whole, static_cast<std::int32_t>(caret + pasted.size()));
        return pasted == PastedText(text, Lines::One, RoomUnder(0, 0));
    }
    bool isAllTaken = true;
    for (const char16_t unit : text) {
        if (IsControlCharacter(unit))
            continue;
        if (caret_ == pattern_.Size())
            return false;
        isAllTaken = Type(unit) != MaskTyping::Refused && isAllTaken;
    }
    return isAllTaken;
}

MaskState::Kept MaskState::Keep() const
{
    Kept kept;
    kept.held_ = held_;
    kept.plain_ = std::u16string(plain_.Text());
    kept.caret_ = static_cast<std::size_t>(Caret());
    return kept;
}

void MaskState::PutBack(const Kept& kept)
{
    held_ = kept.held_;
    plain_.TakeFrom(kept.plain_, static_cast<std::int32_t>(kept.caret_));
    MoveTo(kept.caret_);
}

std::u16string MaskState::BareText() const
{
    if (!IsMasked())
        return std::u16string(plain_.Text());
    std::u16string text;
    for (std::size_t position = 0; position < held_.Shown.size(); ++position)
        if (held_.Filled[position])
            text += held_.Shown[position];
    return text;
}

MaskState::Held MaskState::NothingHeld() const
{
    Held held{std::u16string(pattern_.Size(), PromptChar), std::vector<bool>(pattern_.Size(), false)};
    for (std::size_t position = 0; position < pattern_.Size(); ++position)
        if (pattern_.IsLiteral(position))
            held.Shown[position] = pattern_.Literal(position);
    return held;
}

MaskState::Held MaskState::HeldOf(std::u16string_view text) const
{
    Held held = NothingHeld();
    std::size_t place = pattern_.PlaceFrom(0);
    for (std::size_t unit = 0; unit < text.size() && place < pattern_.Size(); ++unit) {
        const auto character = pattern_.Fit(place, text[unit]);
        const bool isPair = unit + 1 < text.size() && IsHighSurrogate(text[unit]) && IsLowSurrogate(text[unit + 1]);
        if (isPair && !(character && pattern_.Fit(place + 1, text[unit + 1]))) {
            ++unit;
            continue;
        }
        if (character)
            held.Fill(place, *character);
        else if (text[unit] != u' ')
            continue;
        place = pattern_.PlaceFrom(place + 1);
    }
    return held;
}

std::optional<MaskState::Held> MaskState::Read(std::u16string_view text, Literals literals) const
{
    Held held = NothingHeld();
    std::size_t position = 0;
    for (const char16_t unit : text) {
        if (literals == Literals::Passed && position < pattern_.Size() && pattern_.IsLiteral(position) &&
            pattern_.Literal(position) == unit) {
            ++position;
            continue;
        }
        const std::size_t place = pattern_.PlaceFrom(position);
        if (place == pattern_.Size())
            return std::nullopt;
        position = place + 1;
        if (promptInclude_ && unit == PromptChar)
            continue;
        if (const auto character = pattern_.Fit(place, unit))
            held.Fill(place, *character);
        else if (unit != u' ')
            return std::nullopt;
    }
    return held;
}

std::optional<std::size_t> MaskState::OtherHalf(std::size_t place) const
{
    const auto isPair = [this](std::size_t first) {
        return held_.Filled[first] && held_.Filled[first + 1] && IsUnitPair(held_.Shown[first], held_.Shown[first + 1]);
    };
    if (place + 1 < pattern_.Size() && isPair(place))
        return place + 1;
    if (place > 0 && isPair(place - 1))
        return place - 1;
    return std::nullopt;
}

void MaskState::Put(std::size_t place, char16_t character)
{
    const auto other = OtherHalf(place);
    held_.Fill(place, character);
    if (other && OtherHalf(place) != other)
        held_.Empty(*other);
}

bool MaskState::Empty(std::size_t place)
{
    if (!held_.Filled[place])
        return false;
    if (const auto other = OtherHalf(place))
        held_.Empty(*other);
    held_.Empty(place);
    return true;
}

void MaskState::MoveTo(std::size_t caret)
{
    caret_ = caret;
    firstHalfRefused_ = false;
}

} // namespace Tessellon
