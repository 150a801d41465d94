#include "engine/fields/ListState.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <initializer_list>
#include <vector>

namespace Tessellon {
namespace {

constexpr std::int16_t none = 0;
constexpr std::int16_t shift = 1;
constexpr std::int16_t control = 2;
constexpr std::int16_t alt = 4;

ListState Holding(std::initializer_list<std::u16string_view> entries)
{
    ListState state;
    for (const auto entry : entries)
        state.AddItem(entry);
    return state;
}

ListState FiveEntries()
{
    return Holding({u"ant", u"bee", u"cow", u"Bear", u"dog"});
}

std::vector<std::int32_t> Selection(const ListState& state)
{
    std::vector<std::int32_t> selection;
    for (std::int32_t index = 0; index < state.Count(); ++index)
        if (state.Selected(index))
            selection.push_back(index);
    return selection;
}

using Indices = std::vector<std::int32_t>;

TEST(ListBox, StartsWithoutEntriesAndSelection)
{
    const ListState state;
    EXPECT_EQ(state.Count(), 0);
    EXPECT_EQ(state.FirstSelected(), ListState::None);
    EXPECT_EQ(state.Reached(), ListState::None);
}

TEST(ListBox, NewEntryIsTheLastAndNotSelected)
{
    auto state = Holding({u"a"});
    state.AddItem(u"b");
    EXPECT_EQ(state.Count(), 2);
    EXPECT_EQ(state.Entry(1), u"b");
    EXPECT_EQ(Selection(state), Indices{});
}

TEST(ListBox, EntryPastTheLast_IsEmpty)
{
    const auto state = Holding({u"a"});
    EXPECT_EQ(state.Entry(1), u"");
    EXPECT_EQ(state.Entry(-1), u"");
}

TEST(ListBox, SelectingAnEntryThatIsNotThere_IsRefused)
{
    auto state = Holding({u"a"});
    EXPECT_FALSE(state.Selected(1, true));
    EXPECT_FALSE(state.Selected(-1, false));
    EXPECT_FALSE(state.Has(1));
    EXPECT_EQ(Selection(state), Indices{});
}

TEST(ListBox, CodeMaySelectSeveralEntries_AndTheFirstCounts)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Selected(3, true));
    EXPECT_TRUE(state.Selected(1, true));
    EXPECT_EQ(Selection(state), (Indices{1, 3}));
    EXPECT_EQ(state.FirstSelected(), 1);
}

TEST(ListBox, TextWritten_SelectsTheFirstEntryThatEqualsIt)
{
    auto state = Holding({u"a", u"b", u"b"});
    EXPECT_TRUE(state.Selected(0, true));
    state.Text(u"b");
    EXPECT_EQ(Selection(state), Indices{1});
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{2});
}

TEST(ListBox, TextWrittenThatEqualsNoEntry_SelectsNone)
{
    auto state = Holding({u"a", u"b"});
    EXPECT_TRUE(state.Selected(1, true));
    state.Text(u"B");
    EXPECT_EQ(Selection(state), Indices{});
    EXPECT_EQ(state.Reached(), ListState::None);

    ListState empty;
    empty.Text(u"");
    EXPECT_EQ(empty.FirstSelected(), ListState::None);
}

TEST(ListBox, Clear_TakesEntriesSelectionAndAnchor)
{
    auto state = FiveEntries();
    state.Choose(3);
    state.Clear();
    EXPECT_EQ(state.Count(), 0);
    EXPECT_EQ(state.FirstSelected(), ListState::None);
    state.AddItem(u"a");
    state.AddItem(u"b");
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), Indices{0});
}

TEST(ListBox, KeysMoveTheOneSelection)
{
    auto state = FiveEntries();
    state.Choose(2);
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{3});
    EXPECT_TRUE(state.Press(ListKey::Up, none));
    EXPECT_EQ(Selection(state), Indices{2});
    EXPECT_TRUE(state.Press(ListKey::End, none));
    EXPECT_EQ(Selection(state), Indices{4});
    EXPECT_TRUE(state.Press(ListKey::Home, none));
    EXPECT_EQ(Selection(state), Indices{0});
}

TEST(ListBox, KeysAtTheEnds_ChangeNothing)
{
    auto state = FiveEntries();
    state.Choose(0);
    EXPECT_FALSE(state.Press(ListKey::Up, none));
    EXPECT_FALSE(state.Press(ListKey::Home, none));
    EXPECT_EQ(Selection(state), Indices{0});
    state.Choose(4);
    EXPECT_FALSE(state.Press(ListKey::Down, none));
    EXPECT_FALSE(state.Press(ListKey::End, none));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, KeyAtTheEnd_LeavesOneSelectionOfSeveral)
{
    auto state = FiveEntries();
    state.Choose(3);
    state.Choose(4, control);
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, KeysInAnEmptyList_DoNothing)
{
    ListState state;
    for (const auto key : {ListKey::Up, ListKey::Down, ListKey::Home, ListKey::End}) {
        EXPECT_FALSE(state.Press(key, none));
        EXPECT_FALSE(state.Press(key, shift));
        EXPECT_FALSE(state.WouldChange(key, none));
    }
    EXPECT_FALSE(state.Type(u'a'));
    EXPECT_FALSE(state.Choose(0));
}

TEST(ListBox, KeysStartFromTheEntryLastSetTrue)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Selected(3, true));
    EXPECT_TRUE(state.Selected(1, true));
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{2});
}

TEST(ListBox, KeysStartFromTheEntryReachedWithShift)
{
    auto state = FiveEntries();
    state.Choose(1);
    state.Press(ListKey::Down, shift);
    state.Press(ListKey::Down, shift);
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, WhenCodeLeavesNoneSelected_KeysTakeTheFirst_EndTheLast)
{
    for (const auto key : {ListKey::Up, ListKey::Down, ListKey::Home, ListKey::End}) {
        auto state = FiveEntries();
        state.Choose(2);
        EXPECT_TRUE(state.Selected(2, false));
        EXPECT_EQ(state.Reached(), ListState::None);
        EXPECT_TRUE(state.Press(key, none));
        EXPECT_EQ(Selection(state), (key == ListKey::End ? Indices{4} : Indices{0}));
    }
}

TEST(ListBox, WhenCodeLeavesAnotherSelected_KeysStillStartFromTheEntryReached)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Selected(0, true));
    EXPECT_TRUE(state.Selected(3, true));
    EXPECT_TRUE(state.Selected(3, false));
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, LoadEntryByEntry_StartsTheKeysFromTheEntryThatItSelects)
{
    auto state = FiveEntries();
    state.Choose(3);
    for (std::int32_t index = 0; index < state.Count(); ++index)
        EXPECT_TRUE(state.Selected(index, index == 1));
    EXPECT_EQ(Selection(state), Indices{1});
    EXPECT_EQ(state.Reached(), 1);
}

TEST(ListBox, LoadEntryByEntryThatSelectsNone_ForgetsTheLastRow)
{
    auto state = FiveEntries();
    state.Choose(2);
    for (std::int32_t index = 0; index < state.Count(); ++index)
        EXPECT_TRUE(state.Selected(index, false));
    EXPECT_TRUE(state.Press(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{0});
}

TEST(ListBox, KeysWithControlOrAlt_DoNothing)
{
    auto state = FiveEntries();
    state.Choose(2);
    for (const std::int16_t held : {control, alt, static_cast<std::int16_t>(control | shift),
                                    static_cast<std::int16_t>(alt | shift), static_cast<std::int16_t>(control | alt)}) {
        for (const auto key : {ListKey::Up, ListKey::Down, ListKey::Home, ListKey::End}) {
            EXPECT_FALSE(state.WouldChange(key, held));
            EXPECT_FALSE(state.Press(key, held));
        }
        EXPECT_FALSE(state.Type(u'd', held));
    }
    EXPECT_EQ(Selection(state), Indices{2});
}

TEST(ListBox, Letter_GoesToTheNextEntryThatBeginsWithIt_CaseNotCounting_AndRound)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Type(u'B'));
    EXPECT_EQ(Selection(state), Indices{1});
    EXPECT_TRUE(state.Type(u'b'));
    EXPECT_EQ(Selection(state), Indices{3});
    EXPECT_TRUE(state.Type(u'b'));
    EXPECT_EQ(Selection(state), Indices{1});
}

TEST(ListBox, LetterOfTheOnlyEntryThatBeginsWithIt_StaysThere)
{
    auto state = FiveEntries();
    state.Choose(4);
    EXPECT_FALSE(state.Type(u'd'));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, LetterThatNoEntryBeginsWith_DoesNothing)
{
    auto state = FiveEntries();
    state.Choose(4);
    EXPECT_FALSE(state.Type(u'x'));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, CharactersThatAreNoLetters_DoNothing)
{
    auto state = Holding({u"a", u"1", u" ", u"\U0001F600", u""});
    state.Choose(0);
    for (const char16_t unit : {u'1', u' ', char16_t(0xD83D), char16_t(0xDE00), char16_t(0)})
        EXPECT_FALSE(state.Type(unit));
    EXPECT_EQ(Selection(state), Indices{0});
}

TEST(ListBox, LettersOfAnyScript_GoByTheSimpleMapping)
{
    auto state = Holding({u"x", u"Äpfel", u"ßa", u"SS", u"かな", u"カナ", u"ﬁn", u"İzmir"});
    EXPECT_TRUE(state.Type(u'ä'));
    EXPECT_EQ(Selection(state), Indices{1});
    EXPECT_TRUE(state.Type(u'ß'));
    EXPECT_EQ(Selection(state), Indices{2});
    EXPECT_TRUE(state.Type(u's'));
    EXPECT_EQ(Selection(state), Indices{3});
    EXPECT_TRUE(state.Type(u'か'));
    EXPECT_EQ(Selection(state), Indices{4});
    EXPECT_TRUE(state.Type(u'カ'));
    EXPECT_EQ(Selection(state), Indices{5});
    EXPECT_TRUE(state.Type(u'ﬁ'));
    EXPECT_EQ(Selection(state), Indices{6});
    EXPECT_TRUE(state.Type(u'İ'));
    EXPECT_EQ(Selection(state), Indices{7});
}

TEST(ListBox, ShiftWithAKey_SelectsFromTheAnchorToTheEntryReachedAndNothingElse)
{
    auto state = FiveEntries();
    state.Choose(0);
    state.Choose(2, control);
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{2, 3}));
    EXPECT_TRUE(state.Press(ListKey::End, shift));
    EXPECT_EQ(Selection(state), (Indices{2, 3, 4}));
    EXPECT_TRUE(state.Press(ListKey::Home, shift));
    EXPECT_EQ(Selection(state), (Indices{0, 1, 2}));
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{1, 2}));
}

TEST(ListBox, ShiftAtTheEnd_ChangesNothing)
{
    auto state = FiveEntries();
    state.Choose(3);
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_FALSE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{3, 4}));
}

TEST(ListBox, ShiftWithoutAnAnchor_CountsAsAbsent)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), Indices{0});
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{0, 1}));

    auto other = FiveEntries();
    EXPECT_TRUE(other.Choose(3, shift));
    EXPECT_EQ(Selection(other), Indices{3});
}

TEST(ListBox, ShiftWithALetter_CountsAsAbsent)
{
    auto state = FiveEntries();
    state.Choose(0);
    EXPECT_TRUE(state.Type(u'C', shift));
    EXPECT_EQ(Selection(state), Indices{2});
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{2, 3}));
}

TEST(ListBox, AnchorIsTheEntryLastChosenByAKey)
{
    auto state = FiveEntries();
    state.Press(ListKey::End, none);
    state.Press(ListKey::Up, none);
    EXPECT_TRUE(state.Press(ListKey::Home, shift));
    EXPECT_EQ(Selection(state), (Indices{0, 1, 2, 3}));
}

TEST(ListBox, AnchorIsTheEntryLastSetTrueByCode)
{
    auto state = FiveEntries();
    state.Choose(4);
    EXPECT_TRUE(state.Selected(1, true));
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{1, 2}));
}

TEST(ListBox, EntrySetTrueAgain_IsTheAnchorToo)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Selected(1, true));
    EXPECT_TRUE(state.Selected(3, true));
    EXPECT_TRUE(state.Selected(1, true));
    EXPECT_TRUE(state.Press(ListKey::Down, shift));
    EXPECT_EQ(Selection(state), (Indices{1, 2}));
}

TEST(ListBox, WhenCodeLeavesNoneSelected_TheAnchorIsForgotten)
{
    auto state = FiveEntries();
    state.Choose(3);
    EXPECT_TRUE(state.Selected(3, false));
    EXPECT_TRUE(state.Press(ListKey::End, shift));
    EXPECT_EQ(Selection(state), Indices{4});
}

TEST(ListBox, MouseChoosesOneEntry)
{
    auto state = FiveEntries();
    EXPECT_TRUE(state.Choose(1));
    EXPECT_TRUE(state.Choose(3));
    EXPECT_EQ(Selection(state), Indices{3});
    EXPECT_FALSE(state.Choose(3));
}

TEST(ListBox, MouseWithControl_TurnsOneEntryOver)
{
    auto state = FiveEntries();
    state.Choose(1);
    EXPECT_TRUE(state.Choose(3, control));
    EXPECT_EQ(Selection(state), (Indices{1, 3}));
    EXPECT_TRUE(state.Choose(1, control));
    EXPECT_EQ(Selection(state), Indices{3});
}

TEST(ListBox, MouseWithShift_SelectsFromTheAnchor)
{
    auto state = FiveEntries();
    state.Choose(3);
    EXPECT_TRUE(state.Choose(1, shift));
    EXPECT_EQ(Selection(state), (Indices{1, 2, 3}));
    EXPECT_TRUE(state.Choose(4, shift));
    EXPECT_EQ(Selection(state), (Indices{3, 4}));
    EXPECT_FALSE(state.Choose(4, shift));
}

TEST(ListBox, MouseOnNoEntry_DoesNothing)
{
    auto state = FiveEntries();
    state.Choose(1);
    EXPECT_FALSE(state.Choose(5));
    EXPECT_FALSE(state.Choose(-1, control));
    EXPECT_EQ(Selection(state), Indices{1});
}

TEST(ListBox, WouldChange_TellsAheadWhatPressWouldTell)
{
    auto state = FiveEntries();
    state.Choose(3);
    EXPECT_TRUE(state.WouldChange(ListKey::Down, none));
    EXPECT_EQ(Selection(state), Indices{3});
    state.Press(ListKey::Down, none);
    EXPECT_FALSE(state.WouldChange(ListKey::Down, none));
}

RC_GTEST_PROP(ListBoxProperties, EachUserActionTellsWhetherTheSelectionBecameAnother, ())
{
    ListState state;
    const auto entries = *rc::gen::container<std::vector<std::u16string>>(
        rc::gen::container<std::u16string>(rc::gen::elementOf(std::u16string(u"aAbBß1"))));
    for (const auto& entry : entries)
        state.AddItem(entry);
    const auto index = rc::gen::inRange<std::int32_t>(-1, static_cast<std::int32_t>(entries.size()) + 1);
    const auto held = rc::gen::inRange<std::int16_t>(0, 8);
    for (const int action : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 5))) {
        const auto before = Selection(state);
        const auto key = *rc::gen::element(ListKey::Up, ListKey::Down, ListKey::Home, ListKey::End);
        const std::int16_t keys = *held;
        const std::int32_t at = *index;
        bool told = false;
        switch (action) {
        case 0: {
            const bool expected = state.WouldChange(key, keys);
            told = state.Press(key, keys);
            RC_ASSERT(told == expected);
            RC_ASSERT(told || keys < 2 || Selection(state) == before);
            break;
        }
        case 1: told = state.Type(*rc::gen::element(u'a', u'B', u'ß', u'z'), keys); break;
        case 2: told = state.Choose(at, keys); break;
        default:
            RC_ASSERT(state.Selected(at, action == 3) == state.Has(at));
            RC_ASSERT(state.Selected(at) == (state.Has(at) && action == 3));
            RC_ASSERT(state.FirstSelected() != ListState::None || state.Reached() == ListState::None || !state.Has(at));
            continue;
        }
        RC_ASSERT(told == (Selection(state) != before));
        RC_ASSERT(state.Reached() >= ListState::None && state.Reached() < std::max(state.Count(), 1));
    }
}

} // namespace
} // namespace Tessellon
