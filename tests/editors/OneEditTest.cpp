#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

/// Three rows of two text columns with texts, the grid holding the focus on the first cell, nothing up.
class OneEdit : public testing::Test {
protected:
    OneEdit()
    {
        Sheet.Build({fcTextBox, fcTextBox}, 3);
        for (std::int32_t row = 1; row <= 3; ++row)
            Sheet->TextMatrix(row, 1, u"old");
        Sheet.Press(27);
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(OneEdit, PressAndRelease_LeaveTheOldCellEnterTheNewOneAndThenTheRelease)
{
    Sheet.Hand.Click(2, 1);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"MouseDown Button=1 Shift=0 x=1440 y=600", "LeaveCell",
                                         "EditorChange", // The box held the other cell's text.
                                         "EnterCell", "RowColChange", "SelChange",
                                         "MouseDown Button=1 Shift=0 x=1440 y=600", "EnterCell"}));
    EXPECT_EQ(Members.LastRow, 1);
    EXPECT_EQ(Members.LastCol, 1);
    EXPECT_EQ(Members.CurrentRow, 2);
    EXPECT_EQ(Members.CurrentCol, 1);
    EXPECT_EQ(Members.MarkerRow, 2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"old\""});
    EXPECT_EQ(Sheet.Focus(), "Text1");
    EXPECT_EQ(Sheet.Calls->Text1()->Tag(), u"old");
}

TEST_F(OneEdit, PressAndRelease_LayTheEditorTwiceAndSweepOnceInBetween)
{
    Sheet.Hand.Click(2, 1);
    const Lines calls = Sheet.TakeCalls();
    EXPECT_EQ(CountOf(calls, "Text1.Move(960,480,960,238)"), 2);
    EXPECT_EQ(CountOf(calls, "Text1.Tag=\"old\""), 2);
    EXPECT_EQ(CountOf(calls, "Check1.ZOrder(1)"), 1);
    EXPECT_LT(PlaceOf(calls, "Text1.SetFocus()"), PlaceOf(calls, "Check1.ZOrder(1)"));
}

TEST_F(OneEdit, EachCharacter_WritesTheCellTrimmed)
{
    Sheet.Hand.Click(2, 1);
    Forget();
    Sheet.Hand.Caret(3);
    Sheet.Type(u" x");
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"MSFlexGrid1.TextMatrix"}),
              (Lines{"MSFlexGrid1.TextMatrix(2,1)=\"old\"", "MSFlexGrid1.TextMatrix(2,1)=\"old x\""}));
    EXPECT_EQ(CountOf(Sheet.TakeEvents(), "EditorChange"), 2);
}

TEST_F(OneEdit, Enter_CarriesTheUserOnWithTheNextEditorUp)
{
    Sheet.Hand.Click(2, 1);
    Sheet.Type(u"x");
    Forget();
    Sheet.Press(13);
    EXPECT_EQ(Sheet.TakeEventNames(), (Lines{"AdvanceToNextCell", "LeaveCell", "EnterCell", "RowColChange", "SelChange",
                                             "EditorChange", "EnterCell", "KeyDown", "KeyPress", "KeyUp"}));
    EXPECT_EQ(Sheet->TextMatrix(2, 1), u"xold");
    EXPECT_EQ(Sheet->TextMatrix(2, 2), u"");
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_EQ(Sheet.Focus(), "Text1");
}

TEST_F(OneEdit, EnterOnTheLastCell_EndsInTheGridWithoutANewRow)
{
    Sheet.Hand.Click(3, 2);
    Sheet.Type(u"x");
    Sheet.Press(13);
    EXPECT_EQ(Sheet->Rows(), 4);
    EXPECT_EQ(Sheet->TextMatrix(3, 2), u"x");
    EXPECT_EQ(Sheet.Focus(), "MSFlexGrid1");
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
}

TEST_F(OneEdit, Scroll_TakesTheEditorDownUntilTheNextEntry)
{
    Sheet.Build({fcTextBox, fcTextBox}, 60);
    Sheet.Hand.Click(2, 1);
    Sheet.Type(u"x");
    Forget();
    Sheet.Hand.Scroll(10, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{"Scroll"});
    EXPECT_EQ(Sheet.EditorsUp(), Lines());
    EXPECT_EQ(Only(Sheet.TakeCalls(), {"Text1.Move"}), Lines());
    EXPECT_EQ(Sheet->TextMatrix(2, 1), u"x");
    Sheet.Press(113);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"x\""});
}

// A move costs a fixed number of calls, however long the sheet is.
TEST_F(OneEdit, Advance_CostsTheSameCallsOnAShortSheetAndOnALongOne)
{
    const auto callsOf = [](std::int32_t rows, std::int16_t key) {
        SheetUnderTest sheet;
        sheet.Build({fcTextBox, fcTextBox, fcTextBox}, rows);
        sheet.Hand.Click(2, 2);
        sheet.Calls->Notes(true);
        static_cast<void>(sheet.TakeCalls());
        sheet.Press(key);
        return sheet.TakeCalls().size();
    };
    // The stand-down and the sweep of the seven other kinds that its loss of focus starts.
    constexpr std::size_t leaving = 3 + 7 * 3;
    // The cursor with the refresh that its change brings; then refresh, place, six steps of the load, five to finish.
    constexpr std::size_t moving = 4 + 1;
    constexpr std::size_t entering = 1 + 1 + 6 + 5;
    // Another row: the marker goes from the one and comes to the other.
    constexpr std::size_t marking = 12 + 13;
    for (const std::int32_t rows : {3, 5000}) {
        EXPECT_EQ(callsOf(rows, 13), leaving + moving + entering);
        EXPECT_EQ(callsOf(rows, 40), leaving + marking + moving + entering);
    }
}

} // namespace
} // namespace Tessellon
