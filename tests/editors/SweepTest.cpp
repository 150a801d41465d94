#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

namespace Tessellon {
namespace {

constexpr std::int16_t first = 0;
constexpr std::int16_t second = 1;

Lines PutAway(const std::string& name)
{
    return {name + ".ZOrder(1)", name + ".Visible=False", name + ".Enabled=False"};
}

Lines Join(const std::vector<Lines>& parts)
{
    Lines all;
    for (const Lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

/// A built sheet with two instances of each array, its editors down and no request standing.
class Sweep : public testing::Test {
protected:
    Sweep()
    {
        Sheet.Build({fcTextBox, fcComboBox, fcComboBox, fcListBox, fcListBox, fcMaskedEditBox, fcMaskedEditBox,
                     fcCommandButton, fcCommandButton, fcRichTextBox, fcCheckBox, fcDatePicker},
                    1);
        Probe.SetAllDisable();
        Request(false, false);
    }
    void Request(bool show, bool hide)
    {
        Members.ShowEditorRequest = show;
        Members.HideEditorRequest = hide;
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    Lines Swept(std::int32_t kind, std::int16_t index)
    {
        Probe.SetObjVisible(kind, index);
        return Sheet.TakeCalls();
    }

    const Lines names{"Text1",     "Check1",        "Combo1(0)",     "Combo1(1)",    "List1(0)",    "List1(1)",
                      "DTPicker1", "MaskEdBox1(0)", "MaskEdBox1(1)", "RichTextBox1", "Command1(0)", "Command1(1)"};

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(Sweep, ForNoKind_PutsEveryInstanceAwayInTheOrderOfKindsAndKeepsTheRequests)
{
    Lines expected;
    for (const std::string& name : names)
        expected = Join({expected, PutAway(name)});
    Request(true, true);
    EXPECT_EQ(Swept(fcNil, first), expected);
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

struct BringUpCase {
    FieldControlType Kind;
    std::int16_t Index;
    std::string Name;
    Lines Steps;
};

void PrintTo(const BringUpCase& up, std::ostream* out)
{
    *out << up.Name;
}

class SweepThatShows : public Sweep, public testing::WithParamInterface<BringUpCase> {};

// The editor gets the focus at its own place: those of the kinds before it are down by then, those behind it follow.
TEST_P(SweepThatShows, BringsTheEditorUpAtItsPlaceAndPutsAllOthersAway)
{
    Lines expected;
    for (const std::string& name : names) {
        if (name != GetParam().Name)
            expected = Join({expected, PutAway(name)});
        else
            for (const std::string& step : GetParam().Steps)
                expected.push_back(name + step);
    }
    Request(true, false);
    EXPECT_EQ(Swept(GetParam().Kind, GetParam().Index), expected);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.Focus(), GetParam().Name);
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
}

const Lines plain{".Visible=True", ".Enabled=True", ".ZOrder(0)", ".SetFocus()"};
const Lines textual{".Visible=True", ".Enabled=True", ".SelStart=0", ".ZOrder(0)", ".SetFocus()"};
const Lines enabledFirst{".Enabled=True", ".Visible=True", ".ZOrder(0)", ".SetFocus()"};

INSTANTIATE_TEST_SUITE_P(OfEachKind, SweepThatShows,
                         testing::Values(BringUpCase{fcTextBox, first, "Text1", textual},
                                         BringUpCase{fcCheckBox, first, "Check1", plain},
                                         BringUpCase{fcComboBox, second, "Combo1(1)", plain},
                                         BringUpCase{fcListBox, first, "List1(0)", plain},
                                         BringUpCase{fcDatePicker, first, "DTPicker1", plain},
                                         BringUpCase{fcMaskedEditBox, second, "MaskEdBox1(1)", textual},
                                         BringUpCase{fcRichTextBox, first, "RichTextBox1", textual},
                                         BringUpCase{fcCommandButton, second, "Command1(1)", enabledFirst}),
                         [](const auto& up) { return up.param.Name.substr(0, up.param.Name.find('(')); });

TEST_F(Sweep, Button_ComesUpEnabledFirstAndAnyOtherVisibleFirst)
{
    for (const FieldControlType kind : {fcTextBox, fcCheckBox, fcComboBox, fcListBox, fcDatePicker, fcMaskedEditBox,
                                        fcRichTextBox, fcCommandButton}) {
        Probe.SetAllDisable();
        Request(true, false);
        const Lines calls = Swept(kind, first);
        const auto ends = [](const std::string& end) {
            return [end](const std::string& line) { return line.ends_with(end); };
        };
        const auto visible = std::find_if(calls.begin(), calls.end(), ends(".Visible=True"));
        const auto enabled = std::find_if(calls.begin(), calls.end(), ends(".Enabled=True"));
        ASSERT_NE(visible, calls.end());
        ASSERT_NE(enabled, calls.end());
        EXPECT_EQ(enabled < visible, kind == fcCommandButton) << kind;
    }
}

TEST_F(Sweep, IndexOfASingleKind_IsNotLookedAt)
{
    Request(true, false);
    Swept(fcCheckBox, 5);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Check1 \"0\""});
}

TEST_F(Sweep, IndexPastTheInstances_PutsAllAwayAndKeepsTheRequest)
{
    Request(true, false);
    const Lines calls = Only(Swept(fcComboBox, 2), {"Combo1"});
    EXPECT_EQ(calls, Join({PutAway("Combo1(0)"), PutAway("Combo1(1)")}));
    EXPECT_TRUE(Members.ShowEditorRequest);
}

TEST_F(Sweep, GridNotReady_PutsTheCurrentEditorAwayAndKeepsTheRequests)
{
    Members.GridReady = false;
    Request(true, true);
    EXPECT_EQ(Only(Swept(fcTextBox, first), {"Text1"}), PutAway("Text1"));
    EXPECT_EQ(Only(Swept(fcComboBox, second), {"Combo1(1)"}), PutAway("Combo1(1)"));
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
}

TEST_F(Sweep, WithoutARequest_LeavesTheCurrentEditorAsItIs)
{
    Request(true, false);
    Swept(fcComboBox, first);
    Request(false, false);
    const Lines calls = Swept(fcComboBox, first);
    EXPECT_EQ(Only(calls, {"Combo1(0)"}), Lines());
    EXPECT_EQ(Only(calls, {"Combo1(1)"}), PutAway("Combo1(1)"));
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
    EXPECT_EQ(Only(Swept(fcTextBox, first), {"Text1"}), Lines());
}

TEST_F(Sweep, HideRequest_PutsTheCurrentEditorAwayAndIsSpent)
{
    Request(true, false);
    Swept(fcTextBox, first);
    Request(false, true);
    // Hiding it takes its focus away, and the loss sweeps with the request that still stands.
    EXPECT_EQ(Only(Swept(fcTextBox, first), {"Text1"}),
              Join({{"Text1.ZOrder(1)", "Text1.Visible=False"}, PutAway("Text1"), {"Text1.Enabled=False"}}));
    EXPECT_FALSE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());

    Request(false, true);
    EXPECT_EQ(Only(Swept(fcTextBox, first), {"Text1"}), PutAway("Text1"));
}

TEST_F(Sweep, BothRequests_AreOneShowAndTheOtherStaysForTheNext)
{
    Request(true, true);
    Swept(fcListBox, second);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_TRUE(Members.HideEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp().size(), 1U);
    Swept(fcListBox, second);
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_FALSE(Members.HideEditorRequest);
}

TEST_F(Sweep, EditorThatIsNotUpBehindItsSteps_IsNotAskedForTheFocusAndTheRequestIsSpent)
{
    Sheet->DateFormat(u"dd/MM/yyyy XX");
    Sheet->Format += [&](std::u16string&, std::u16string&) { Probe.SetAllDisable(); };
    Request(true, false);
    const Lines calls = Swept(fcDatePicker, first);
    EXPECT_EQ(CountOf(calls, "DTPicker1.Visible=True"), 1);
    EXPECT_EQ(CountOf(calls, "DTPicker1.SetFocus()"), 0);
    EXPECT_FALSE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.TakeEventNames(), Lines{"Format"});
}

TEST_F(Sweep, SweepInsideTheSweep_EndsInTheSameState)
{
    Probe.GetColControl(1)->Enabled(true);
    Probe.GetColControl(1)->Visible(true);
    Probe.GetColControl(1)->SetFocus();
    Members.CurrentCol = 11;
    Request(true, false);
    // The text box goes first and loses the focus; its handler sweeps for the check box too.
    const Lines calls = Swept(fcCheckBox, first);
    EXPECT_GE(CountOf(calls, "Check1.Visible=True"), 1);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Check1 \"0\""});
    EXPECT_EQ(Sheet.Focus(), "Check1");
    EXPECT_FALSE(Members.ShowEditorRequest);
}

TEST_F(Sweep, Failure_EndsItThereUnderItsOwnLabel)
{
    Request(true, false);
    Sheet.Calls->FailAtMember(u"List1(1).Enabled", 7);
    const Lines calls = Swept(fcRichTextBox, first);
    EXPECT_EQ(calls.back(), "List1(1).Enabled=False");
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"SetObjVisible"});
}

TEST_F(Sweep, FailureOfTheFocus_LeavesTheRequestStanding)
{
    Request(true, false);
    Sheet.Calls->FailAtMember(u"Text1.SetFocus", 5);
    EXPECT_EQ(Swept(fcTextBox, first).back(), "Text1.SetFocus()");
    EXPECT_TRUE(Members.ShowEditorRequest);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
}

} // namespace
} // namespace Tessellon
