#include "MaskFixture.h"

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <vector>

namespace Tessellon {
namespace {

rc::Gen<std::u16string> Masks()
{
    return rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"##99AAaa??CC&&><.,:/-() xß")));
}

rc::Gen<std::u16string> Texts()
{
    return rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"01589 aZßäÄİﬁか_-./\t\xD83D\xDE00")));
}

std::size_t Positions(std::u16string_view mask)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(mask, [](char16_t sign) { return sign != u'>' && sign != u'<'; }));
}

/// What a user may do to a masked box.
void Act(MaskState& state)
{
    switch (*rc::gen::inRange(0, 9)) {
    case 0: state.Backspace(); break;
    case 1: state.Delete(); break;
    case 2: state.Left(); break;
    case 3: state.Right(); break;
    case 4: RC_ASSERT(state.Caret(*rc::gen::inRange(0, 20))); break;
    default:
        for (const char16_t unit : *Texts())
            state.Type(unit);
    }
}

RC_GTEST_PROP(MaskProperties, TextWithPromptsIsAsLongAsTheMask_AndTheCaretStaysInIt, ())
{
    const std::u16string mask = *rc::gen::nonEmpty(Masks());
    MaskBox box(mask);
    for (int count = *rc::gen::inRange(0, 10); count > 0; --count) {
        Act(box.State);
        RC_ASSERT(box.State.Text().size() == Positions(mask));
        RC_ASSERT(box.State.FormattedText().size() == Positions(mask));
        RC_ASSERT(box.State.Caret() >= 0 && box.State.Caret() <= static_cast<std::int32_t>(Positions(mask)));
    }
}

RC_GTEST_PROP(MaskProperties, LiteralsNeverMove, ())
{
    const std::u16string mask = *rc::gen::nonEmpty(Masks());
    MaskBox box(mask);
    const std::u16string empty(box.State.Text());
    const auto pattern = MaskPattern::Read(mask, box.Functions.GetLocale());
    for (int count = *rc::gen::inRange(0, 10); count > 0; --count)
        Act(box.State);
    for (std::size_t position = 0; position < empty.size(); ++position)
        if (pattern->IsLiteral(position))
            RC_ASSERT(box.State.Text()[position] == empty[position]);
}

RC_GTEST_PROP(MaskProperties, WhatWasTypedAndTaken_StandsBeforeTheCaret, ())
{
    MaskBox box(*rc::gen::nonEmpty(Masks()));
    const auto pattern = MaskPattern::Read(box.State.Mask(), box.Functions.GetLocale());
    for (const char16_t unit : *Texts()) {
        const std::u16string before(box.State.Text());
        const auto caret = box.State.Caret();
        switch (box.State.Type(unit)) {
        case MaskTyping::Taken: {
            const auto place = static_cast<std::size_t>(box.State.Caret() - 1);
            RC_ASSERT(pattern->Fit(place, unit).has_value());
            RC_ASSERT(box.State.Text()[place] == *pattern->Fit(place, unit));
            break;
        }
        case MaskTyping::Passed:
            RC_ASSERT(box.State.Text() == before);
            RC_ASSERT(box.State.Caret() == caret + 1);
            break;
        case MaskTyping::Refused:
            RC_ASSERT(box.State.Text() == before);
            RC_ASSERT(box.State.Caret() == caret);
            break;
        }
    }
}

RC_GTEST_PROP(MaskProperties, WritingBackWhatTextGave_ChangesNothing, ())
{
    MaskBox box(*Masks());
    for (int count = *rc::gen::inRange(0, 6); count > 0; --count)
        Act(box.State);
    box.State.PromptInclude(*rc::gen::arbitrary<bool>());
    const std::u16string text(box.State.Text());
    const std::u16string shown(box.State.ShownText());
    const std::u16string formatted(box.State.FormattedText());
    const auto caret = box.State.Caret();
    RC_ASSERT(box.State.Text(text) == MaskWrite::Same);
    RC_ASSERT(box.State.Text() == text);
    RC_ASSERT(box.State.ShownText() == shown);
    RC_ASSERT(box.State.FormattedText() == formatted);
    RC_ASSERT(box.State.Caret() == caret);
}

RC_GTEST_PROP(MaskProperties, WhatTextGave_ReadsTheSameInAnotherBoxOfThatMask, ())
{
    const std::u16string mask = *Masks();
    MaskBox box(mask);
    for (int count = *rc::gen::inRange(0, 6); count > 0; --count)
        Act(box.State);
    MaskBox other(mask);
    RC_ASSERT(other.State.Text(box.State.Text()) != MaskWrite::DoesNotFit);
    RC_ASSERT(other.State.Text() == box.State.Text());
}

RC_GTEST_PROP(MaskProperties, RefusedTextLeavesEverything_AndATakenOneFitsEveryPlace, ())
{
    MaskBox box(*rc::gen::nonEmpty(Masks()));
    box.State.PromptInclude(*rc::gen::arbitrary<bool>());
    box.Typing(*Texts());
    const std::u16string shown(box.State.ShownText());
    const auto caret = box.State.Caret();
    const auto result = box.State.Text(*Texts());
    if (result == MaskWrite::Changed)
        RC_ASSERT(box.State.Caret() == 0);
    else
        RC_ASSERT(box.State.Caret() == caret);
    if (result == MaskWrite::DoesNotFit)
        RC_ASSERT(box.State.ShownText() == shown);
}

RC_GTEST_PROP(MaskProperties, NoTextCostsAColumnItsMask, ())
{
    MaskBox box;
    const std::u16string text = *Texts();
    RC_ASSERT(box.State.Text(text) != MaskWrite::DoesNotFit);
    const std::u16string mask = *rc::gen::nonEmpty(Masks());
    RC_ASSERT(box.State.Mask(mask));
    RC_ASSERT(box.State.Text().size() == Positions(mask));
}

} // namespace
} // namespace Tessellon
