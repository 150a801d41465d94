#include "data/LoadFixture.h"

namespace Tessellon {
namespace {

class LoadThatFails : public Load {
protected:
    LoadThatFails() { Columns({fcTextBox}); }
    Lines HeardOf(std::u16string_view member, std::int32_t number = 7)
    {
        Forget();
        Sheet.Calls->FailAtMember(member, number);
        Sheet->DataSource(Texts({u"a", u"b"}), Link);
        return Sheet.TakeEvents();
    }
    void ExpectLeft(bool loading, bool declared, bool ready)
    {
        EXPECT_EQ(Members.LoadingRecordset, loading);
        EXPECT_EQ(Members.ColumnsDeclared, declared);
        EXPECT_EQ(Members.GridReady, ready);
        EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
    }
};

TEST_F(LoadThatFails, InARow_IsReportedAndLeavesAllAsItStood)
{
    const Lines heard = HeardOf(u"MSFlexGrid1.RowHeight");
    EXPECT_EQ(Labels(heard), Lines{"DataSource"});
    EXPECT_EQ(heard.back(), "ErrInfo ErrNum=0 ErrSource=\"\" ErrDesc=\"\" ErrHelpFile=\"\" ErrHelpContext=\"0\"");
    ExpectLeft(true, false, false);
    EXPECT_EQ(Sheet->Rows(), 3);
    EXPECT_EQ(Text(1, 1), u"a");
    EXPECT_EQ(Text(2, 1), u"");
    EXPECT_NE(Members.BoundRecordset, nullptr);
    EXPECT_EQ(Members.MarkerRow, -1);
}

TEST_F(LoadThatFails, InASecondRow_KeepsTheFirst)
{
    Forget();
    // Ten calls fill and paint the first row, from the ninth on; the second row's height is the 21st.
    Sheet.Calls->FailAtCall(21, 7);
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    EXPECT_EQ(Text(1, 1), u"a");
    EXPECT_EQ(Text(2, 1), u"b");
    ExpectLeft(true, false, false);
}

TEST_F(LoadThatFails, AheadOfTheRows_LeavesTheGridReady)
{
    HeardOf(u"MSFlexGrid1.Rows");
    ExpectLeft(true, false, true);
    EXPECT_EQ(Members.RowCount, 1);
}

TEST_F(LoadThatFails, BehindTheRows_LeavesTheGridReady)
{
    HeardOf(u"MSFlexGrid1.LeftCol");
    ExpectLeft(true, false, true);
    EXPECT_EQ(Sheet->Row(), 2);
    EXPECT_EQ(Text(2, 1), u"b");
}

TEST_F(LoadThatFails, AtItsFirstStep_TouchesNothing)
{
    const Lines heard = HeardOf(u"Screen.MousePointer");
    EXPECT_EQ(Labels(heard), Lines{"DataSource"});
    ExpectLeft(false, true, true);
    EXPECT_EQ(Members.BoundRecordset, nullptr);
}

// The frame ends only behind the pointer: what fails there is reported like any other step, and the step comes again.
TEST_F(LoadThatFails, AtItsLastStep_IsReportedAndThePointerComesBack)
{
    Forget();
    Sheet.Calls->FailAtCall(2, 7);
    EXPECT_NO_THROW(Sheet->DataSource(nullptr, Link));
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"DataSource"});
    EXPECT_EQ(Sheet.TakeCalls(), (Lines{"Screen.MousePointer=11", "Screen.MousePointer=0", "Screen.MousePointer=0"}));
    ExpectLeft(false, true, true);
}

TEST_F(LoadThatFails, BehindItsReport_FailsAtTheHost)
{
    Sheet->ErrInfo += [&](auto&&...) { Sheet.Calls->FailAtMember(u"Screen.MousePointer", 1000); };
    Forget();
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.RowHeight", 7);
    try {
        Sheet->DataSource(Texts({u"a"}), Link);
        ADD_FAILURE() << "no failure reached the host";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 1000);
    }
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"DataSource"});
}

TEST_F(LoadThatFails, AtTheRecordsetsEnd_HasTakenTheRecordset)
{
    HeardOf(u"Recordset.EOF");
    ExpectLeft(true, false, true);
    EXPECT_NE(Members.BoundRecordset, nullptr);
}

TEST_F(LoadThatFails, InTheMarker_IsTheMarkersOwnFailure)
{
    const Lines heard = HeardOf(u"MSFlexGrid1.CellPictureAlignment");
    EXPECT_EQ(Labels(heard), Lines{"RefreshPicture"});
    EXPECT_EQ(Members.MarkerRow, -1);
    EXPECT_FALSE(Members.LoadingRecordset);
    EXPECT_TRUE(Members.ColumnsDeclared);
}

TEST_F(LoadThatFails, InTheCount_IsReportedThereAndTheLoadGoesOnWithWhatWasCounted)
{
    Forget();
    // The fourth call is the first step of the count.
    Sheet.Calls->FailAtCall(4, 7);
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), (Lines{"GetRecSize", "DataSource"}));
    EXPECT_EQ(Sheet->Rows(), 2) << "one record was counted ahead of the step";
    EXPECT_EQ(Text(1, 1), u"a");
    EXPECT_FALSE(Members.GridReady);
}

TEST_F(LoadThatFails, WithoutMessages_TellsTheFailureWithDescriptionAndSourceCrossed)
{
    Sheet->ShowErrMessage(false);
    EXPECT_EQ(Only(HeardOf(u"MSFlexGrid1.RowHeight"), {"ErrInfo", "box"}),
              Lines{"ErrInfo ErrNum=7 ErrSource=\"Out of memory\" ErrDesc=\"MSFlexGrid1\" ErrHelpFile=\"\" "
                    "ErrHelpContext=\"0\""});
}

TEST_F(LoadThatFails, WithAFailingConnection_ShowsOneBoxAndTellsEachOfItsErrors)
{
    Link->Entries = {{-1, u"first", u"db", 17, u"42000", u"help", 3}, {2, u"second", u"db", 0, u"", u"", 0}};
    const Lines heard = Only(HeardOf(u"MSFlexGrid1.RowHeight"), {"ErrInfo", "box"});
    ASSERT_EQ(heard.size(), 3U);
    EXPECT_EQ(heard[0], "box Critical error occurs at 15/03/2024 in function DataSource of module TessellonSheet\r\n"
                        " ADO Error #\t : -1\r\n Description\t : first\r\n Native Error\t : 17\r\n"
                        " SQL Status\t : 42000\r\n Source\t : db\r\n\r\n"
                        " ADO Error #\t : 2\r\n Description\t : second\r\n Native Error\t : 0\r\n"
                        " SQL Status\t : \r\n Source\t : db\r\n\r\n");
    EXPECT_EQ(heard[1],
              "ErrInfo ErrNum=-1 ErrSource=\"first\" ErrDesc=\"db\" ErrHelpFile=\"help\" ErrHelpContext=\"3\"");
    EXPECT_EQ(heard[2], "ErrInfo ErrNum=2 ErrSource=\"second\" ErrDesc=\"db\" ErrHelpFile=\"\" ErrHelpContext=\"0\"");
    ExpectLeft(true, false, false);
}

TEST_F(LoadThatFails, WithoutAConnection_ShowsTheBoxAndFailsAtTheHostWith91)
{
    Forget();
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.RowHeight", 7);
    try {
        Sheet->DataSource(Texts({u"a"}), nullptr);
        ADD_FAILURE() << "no failure reached the host";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 91);
    }
    const Lines heard = Sheet.TakeEvents();
    EXPECT_EQ(Labels(heard), Lines{"DataSource"});
    EXPECT_EQ(Only(heard, {"ErrInfo"}), Lines());
    EXPECT_TRUE(Members.LoadingRecordset);
}

TEST_F(LoadThatFails, WithoutAConnectionThatGoesWell_NeedsNone)
{
    Sheet->DataSource(Texts({u"a"}), nullptr);
    EXPECT_EQ(Text(1, 1), u"a");
}

TEST_F(LoadThatFails, HostThatFailsInAnEventOfTheLoad_IsAFailureOfTheEventsOwnWay)
{
    Sheet->EnterCell += [] { throw Failure(7, u"", u""); };
    Forget();
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"DataSource"});
    ExpectLeft(true, false, false);
}

TEST_F(LoadThatFails, NextBuildAndNextLoad_SetRightWhatWasLeft)
{
    HeardOf(u"MSFlexGrid1.RowHeight");
    Sheet->BuildGridColumns();
    EXPECT_TRUE(Members.GridReady);
    EXPECT_TRUE(Members.ColumnsDeclared);
    EXPECT_TRUE(Members.LoadingRecordset);
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    ExpectLeft(false, true, true);
    EXPECT_EQ(Members.MarkerRow, 1);
}

TEST_F(LoadThatFails, NextLoadAlone_LeavesTheColumnsUndeclared)
{
    HeardOf(u"MSFlexGrid1.RowHeight");
    Sheet->DataSource(Texts({u"a", u"b"}), Link);
    ExpectLeft(false, false, true);
}

} // namespace
} // namespace Tessellon
