#include "Output.h"
#include "Runner.h"
#include "Script.h"
#include "Stage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {
namespace {

/// Three empty rows of a text column and a check box column, the editor up in the first cell.
constexpr std::string_view smallSheet = R"(Cols 3
CreateColumnDataType 1 "Name" fcTextBox "" False fcLeft 40 faNil False
CreateColumnDataType 2 "Paid" fcCheckBox "" False fcCenter 0 faHeader False
BuildGridColumns
AllowAddNew True
ShowErrMessage False
Add 0 3
)";

/// What a script prints, a line each.
std::vector<std::string> LinesOf(std::string_view script)
{
    const std::unique_ptr<Stage> stage = MakeHeadlessStage();
    Output output;
    Runner(*stage, output).Run(ReadScript(script));
    std::vector<std::string> lines;
    std::string_view rest = output.Kept();
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        lines.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    return lines;
}

/// What comes of a script behind the small sheet's own commands.
std::vector<std::string> OnSmallSheet(const std::string& script)
{
    std::vector<std::string> lines = LinesOf(std::string(smallSheet) + "wait\n" + script);
    const auto start = std::find(lines.begin(), lines.end(), "> wait");
    lines.erase(lines.begin(), start + 1);
    return lines;
}

using Lines = std::vector<std::string>;

TEST(Runner, Commands_AreEchoedAsTheyStand)
{
    EXPECT_EQ(LinesOf("  AllowAddNew\tTrue # c \r\n\n# d\nwait"), (Lines{">   AllowAddNew\tTrue # c ", "> wait"}));
}

TEST(Runner, Questions_AreAnsweredByType)
{
    EXPECT_EQ(LinesOf("? Row\n? RaiseError\n? GetRowHeight 1\n? ColumnHeader 1\n? hWnd\n? Font"),
              (Lines{"> ? Row", "= 0", "> ? RaiseError", "= False", "> ? GetRowHeight 1", "= 0", "> ? ColumnHeader 1",
                     "= \"\"", "> ? hWnd", "= 0", "> ? Font", "= \"Sans\",8"}));
}

TEST(Runner, Aggregates_TellTheirSuccess)
{
    EXPECT_EQ(OnSmallSheet("TextMatrix 1 1 \"12.25\"\nTextMatrix 2 1 \"0.25\"\n? Summation 1\n? Maximum 1 mtNumeric\n"
                           "? Minimum 9 mtNumeric"),
              (Lines{"> TextMatrix 1 1 \"12.25\"", "> TextMatrix 2 1 \"0.25\"", "> ? Summation 1",
                     "= 12.5 Success=True", "> ? Maximum 1 mtNumeric", "= \"12.25\" Success=True",
                     "> ? Minimum 9 mtNumeric", "= \"\" Success=False"}));
}

TEST(Runner, EventsValues_AreGivenBackBehindItsLine)
{
    EXPECT_EQ(
        OnSmallSheet("on KeyPress KeyAscii=98\non KeyPress KeyAscii=99\ntype \"a\"\n? TextMatrix 1 1"),
        (Lines{"> on KeyPress KeyAscii=98", "> on KeyPress KeyAscii=99", "> type \"a\"", "KeyDown KeyCode=65 Shift=0",
               "KeyPress KeyAscii=97", "EditorChange", "KeyUp KeyCode=65 Shift=0", "> ? TextMatrix 1 1", "= \"c\""}));
}

TEST(Runner, Deeds_RunInTheirOrderWithoutEcho)
{
    EXPECT_EQ(OnSmallSheet("on EditorChange do ? TextMatrix 1 1\non EditorChange do ? Row\nTextMatrix 1 1 \"x\"\n"
                           "type \"a\""),
              (Lines{"> on EditorChange do ? TextMatrix 1 1", "> on EditorChange do ? Row", "> TextMatrix 1 1 \"x\"",
                     "> type \"a\"", "KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "EditorChange", "= \"a\"",
                     "= 1", "KeyUp KeyCode=65 Shift=0"}));
}

TEST(Runner, DeedThatIsRunning_IsPassedOverAndOthersAreNot)
{
    EXPECT_EQ(OnSmallSheet("on EnterCell do ? Row\non EnterCell do Row 3\nRow 2"),
              (Lines{"> on EnterCell do ? Row", "> on EnterCell do Row 3", "> Row 2", "LeaveCell", "EnterCell", "= 2",
                     "LeaveCell", "EnterCell", "= 3", "RowColChange", "SelChange", "RowColChange", "SelChange"}));
}

TEST(Runner, Throw_IsAFailureOfTheHandlerBehindItsDeeds)
{
    EXPECT_EQ(OnSmallSheet("on LeaveCell throw 5\non LeaveCell throw 77\non LeaveCell do ? Col\nRow 2\n? Row"),
              (Lines{"> on LeaveCell throw 5", "> on LeaveCell throw 77", "> on LeaveCell do ? Col", "> Row 2",
                     "LeaveCell", "= 1",
                     "ErrInfo ErrNum=77 ErrSource=\"Application-defined error\" ErrDesc=\"Host\" ErrHelpFile=\"\" "
                     "ErrHelpContext=\"0\"",
                     "> ? Row", "= 1"}));
}

TEST(Runner, Off_TakesAllAnswersBack)
{
    EXPECT_EQ(
        OnSmallSheet("on EditorChange do ? Row\non EditorChange throw 5\noff EditorChange\ntype \"a\""),
        (Lines{"> on EditorChange do ? Row", "> on EditorChange throw 5", "> off EditorChange", "> type \"a\"",
               "KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97", "EditorChange", "KeyUp KeyCode=65 Shift=0"}));
}

TEST(Runner, FailureThatReachesTheHost_IsAnException)
{
    EXPECT_EQ(OnSmallSheet("fail MSFlexGrid1.TopRow 7\nBackColor 0 Red\nFont \"Sans\" 0\nFont \"Sans\" 9"),
              (Lines{"> fail MSFlexGrid1.TopRow 7", "> BackColor 0 Red", "exception 7", "> Font \"Sans\" 0",
                     "exception 380", "> Font \"Sans\" 9"}));
}

TEST(Runner, FailureOfWhatTheUserDid_EndsTheRestOfTheCommand)
{
    EXPECT_EQ(OnSmallSheet("on EditorChange throw 77\ntype \"ab\"\n? TextMatrix 1 1"),
              (Lines{"> on EditorChange throw 77", "> type \"ab\"", "KeyDown KeyCode=65 Shift=0",
                     "KeyPress KeyAscii=97", "EditorChange", "exception 77", "> ? TextMatrix 1 1", "= \"a\""}));
}

TEST(Runner, FailureInADeed_IsOneOfTheHandler)
{
    EXPECT_EQ(OnSmallSheet("on LeaveCell do Font \"Sans\" 0\non LeaveCell do ? Row\nRow 2"),
              (Lines{"> on LeaveCell do Font \"Sans\" 0", "> on LeaveCell do ? Row", "> Row 2", "LeaveCell",
                     "ErrInfo ErrNum=380 ErrSource=\"Invalid property value\" ErrDesc=\"Host\" ErrHelpFile=\"\" "
                     "ErrHelpContext=\"0\""}));
}

TEST(Runner, End_LeavesTheRestUnrun)
{
    EXPECT_EQ(LinesOf("? Row\nend\n? Row"), (Lines{"> ? Row", "= 0", "> end"}));
}

TEST(Runner, EndWithinAnEvent_TellsNothingMore)
{
    EXPECT_EQ(OnSmallSheet("on LeaveCell do end\non LeaveCell do ? Row\nRow 2\n? Row"),
              (Lines{"> on LeaveCell do end", "> on LeaveCell do ? Row", "> Row 2", "LeaveCell"}));
    EXPECT_EQ(OnSmallSheet("on KeyPress do end\ntype \"ab\"\n? Row"),
              (Lines{"> on KeyPress do end", "> type \"ab\"", "KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97"}));
}

TEST(Runner, MessageBox_IsPrintedEscaped)
{
    const Lines lines = OnSmallSheet("ShowErrMessage True\nfail MSFlexGrid1.Row 7\nRow 2");
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[3].rfind("box \"", 0), 0U);
    EXPECT_NE(lines[3].find("\\r\\nError Number \\t : 7"), std::string::npos);
}

TEST(Runner, Journal_BeginsWithTheMakingOfTheSheetAndIsHandedOutOnce)
{
    const Lines lines = LinesOf("? journal\n? journal\nEnabled False\n? Row\n? journal");
    ASSERT_GT(lines.size(), 8U);
    EXPECT_EQ(lines[1], "DTPicker1.Format=3");
    const Lines tail(lines.end() - 9, lines.end());
    EXPECT_EQ(tail, (Lines{"MSFlexGrid1.Enabled=True", "MSFlexGrid1.Move(0,0,9600,4800)", "> ? journal",
                           "> Enabled False", "> ? Row", "= 0", "> ? journal", "MSFlexGrid1.Enabled=False",
                           "UserControl.PropertyChanged(\"Enabled\")"}));
}

TEST(Runner, Members_AreListedInTheirOrder)
{
    const Lines lines = LinesOf("DateFormat \"d\\\"M\"\n? members");
    ASSERT_EQ(lines.size(), 57U);
    EXPECT_EQ(lines[2], "ActiveEditor=none");
    EXPECT_EQ(lines[7], "ColumnData=1");
    EXPECT_EQ(lines[9], "DateFormatText=\"d\\\"M\"");
    EXPECT_EQ(lines[10], "BoundRecordset=none");
    EXPECT_EQ(lines[14], "DefaultRowHeight=240");
    EXPECT_EQ(lines[23], "SectionColors=16776960,-2147483624");
    EXPECT_EQ(lines[27], "ControlWidth=9600");
    EXPECT_EQ(lines[56], "AddingRows=False");
}

TEST(Runner, Cells_AreEscapedAndTheMarkersRowIsShown)
{
    EXPECT_EQ(OnSmallSheet("TextMatrix 2 1 \"a\\tb\\u{D800}\"\n? cells"),
              (Lines{"> TextMatrix 2 1 \"a\\tb\\u{D800}\"", "> ? cells", "\tName\tPaid", ">\t\t", "\ta\\tb\\u{D800}\t",
                     "\t\t"}));
}

TEST(Runner, KeysWithModifiers_TypeWhatTheyTypeThere)
{
    EXPECT_EQ(OnSmallSheet("press a Ctrl\npress a Alt\npress A Shift\npress Enter Ctrl\n? grid"),
              (Lines{"> press a Ctrl",
                     "KeyDown KeyCode=65 Shift=2",
                     "KeyPress KeyAscii=1",
                     "KeyUp KeyCode=65 Shift=2",
                     "> press a Alt",
                     "KeyDown KeyCode=65 Shift=4",
                     "KeyUp KeyCode=65 Shift=4",
                     "> press A Shift",
                     "KeyDown KeyCode=65 Shift=1",
                     "KeyPress KeyAscii=65",
                     "EditorChange",
                     "KeyUp KeyCode=65 Shift=1",
                     "> press Enter Ctrl",
                     "AdvanceToNextCell Cancel=False",
                     "LeaveCell",
                     "EnterCell",
                     "RowColChange",
                     "SelChange",
                     "EnterCell",
                     "KeyDown KeyCode=13 Shift=2",
                     "> ? grid",
                     "Row=1 Col=2 RowSel=1 ColSel=2 TopRow=1 LeftCol=1 Rows=4 Cols=3 Focus=Check1"}));
}

TEST(Runner, Clock_StandsWhereItWasPut)
{
    const std::string script = "Cols 2\nCreateColumnDataType 1 \"D\" fcDatePicker \"\" False fcLeft 0 faNil False\n"
                               "BuildGridColumns\nAllowAddNew True\n";
    const auto shownDate = [&](const std::string& clock) {
        return LinesOf(script + clock + "Add 0\n? editors").back();
    };
    EXPECT_EQ(shownDate(""), "DTPicker1 Left=960 Top=240 Width=960 Height=315 Enabled=True Focus=True \"15/03/2024\"");
    EXPECT_EQ(shownDate("clock 1999-12-31\n"),
              "DTPicker1 Left=960 Top=240 Width=960 Height=315 Enabled=True Focus=True \"31/12/1999\"");
}

TEST(Runner, Recordset_IsLoadedWithTheTypesOfItsFields)
{
    const Lines lines = LinesOf("ShowErrMessage False\nCols 6\n"
                                "BuildGridColumns\nrecordset\nfield a 202\nfield b 11\nfield c 4\nfield d 131\n"
                                "field e 135\nrecord \" x \" True 0.1 1234567890123456789.10 2024-03-15T10:30:00\n"
                                "record\nrecordset end\nDataSource\n? cells");
    ASSERT_GT(lines.size(), 3U);
    EXPECT_EQ(lines[lines.size() - 2], ">\tx\tTrue\t0.1\t1234567890123456789.1\t15/03/2024");
    EXPECT_EQ(lines.back(), "\t\tFalse\t0\t0\t");
}

TEST(Runner, DataSourceWithoutConnection_FailsInItsHandler)
{
    const std::string load =
        "ShowErrMessage False\nCols 2\nBuildGridColumns\nrecordset\nfield a 3\nrecord 1\n"
        "error 99 \"gone\" \"provider\" 7 \"HY000\"\nrecordset end\nfail Recordset.MoveFirst 3021\n";
    EXPECT_EQ(LinesOf(load + "DataSource noconnection").back(), "exception 91");
    EXPECT_EQ(LinesOf(load + "DataSource").back(),
              "ErrInfo ErrNum=99 ErrSource=\"gone\" ErrDesc=\"provider\" ErrHelpFile=\"\" ErrHelpContext=\"0\"");
}

} // namespace
} // namespace Tessellon::Replay
