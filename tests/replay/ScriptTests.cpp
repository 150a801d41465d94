#include "Script.h"
#include "ScriptError.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Tessellon::Replay {
namespace {

/// The line in which a script cannot be read; 0 if it can.
int BadLine(std::string_view text)
{
    try {
        ReadScript(text);
    } catch (const ScriptError& error) {
        EXPECT_FALSE(error.Wrong.empty());
        return error.Line;
    }
    return 0;
}

std::vector<std::string> Lines(std::string_view text)
{
    std::vector<std::string> lines;
    for (const Command& command : ReadScript(text).Commands)
        lines.push_back(command.Line);
    return lines;
}

TEST(Script, EmptyLinesAndComments_AreNoCommands)
{
    EXPECT_EQ(Lines("\n# c\n \t \nRow 1\n  # d"), std::vector<std::string>{"Row 1"});
    EXPECT_TRUE(Lines("").empty());
}

TEST(Script, Command_StaysAsItStands)
{
    EXPECT_EQ(Lines("  Row\t 1 # here\r\n? Row"), (std::vector<std::string>{"  Row\t 1 # here", "? Row"}));
}

TEST(Script, ByteOrderMark_IsPassedOver)
{
    EXPECT_EQ(Lines("\xEF\xBB\xBFRow 1"), std::vector<std::string>{"Row 1"});
}

TEST(Script, BytesThatAreNotUtf8_CannotBeReadInACommentEither)
{
    EXPECT_EQ(BadLine("Row 1\n# \xFF\n"), 2);
}

TEST(Script, AllOfIt_IsReadBehindTheEndToo)
{
    EXPECT_EQ(BadLine("end\nRow 1\nnonsense"), 3);
}

class ReadableLine : public testing::TestWithParam<const char*> {};

TEST_P(ReadableLine, IsRead)
{
    EXPECT_EQ(BadLine(GetParam()), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Script, ReadableLine,
    testing::Values("Row 3", "Add 2", "Add 0 3", "BackColor 0 Yellow", "BackColor 1 0x80000018",
                    "RowHeight 300.5 True False",
                    "CreateColumnDataType 1 \"N\" fcTextBox \"\" False fcLeft 40 faNil False", "SearchCol 1 \"x\"",
                    "Summation 2", "Minimum 1 mtDate", "Font \"Sans\" 10.5", "?Row", "? Row", "? hWnd", "? Font",
                    "? members", "? journal", "DataSource none", "press a", "press \"", "press \"#\" Shift",
                    "press F12 Ctrl+Alt", "type \"\"", "mouse down 1.5 2", "over dblclick 1 2", "hover -5 1e3",
                    "focus out", "window in", "pick 2024-03-15T10:00:00", "clock 2024-03-15", "wait", "end",
                    "on EnterCell do ? grid", "on EnterCell do Row 1 # c", "on EnterCell do end",
                    "on EnterCell throw -5", "on MouseDown x=1.5", "on Format FormattedString=\"Q 1\"",
                    "on DatePickerCallbackKeyDown CallbackDate=1999-12-31", "on KeyDown KeyCode=0", "off ErrInfo",
                    "fail 3 7", "fail MSFlexGrid1.TextMatrix 7", "fail Combo1(2).Text 7", "fail Combo1.Load 7",
                    "fail Command1(0).SetFocus 5", "fail Screen.MousePointer 5", "fail Recordset.EOF 5",
                    "fail DTPicker1.DataFormat 5", "fail UserControl.TextWidth 5"));

class UnreadableLine : public testing::TestWithParam<const char*> {};

TEST_P(UnreadableLine, IsRefusedWithItsNumber)
{
    EXPECT_EQ(BadLine(std::string("Row 1\n\n") + GetParam() + "\nRow 2\n"), 3);
}

INSTANTIATE_TEST_SUITE_P(
    Script, UnreadableLine,
    testing::Values(
        "nonsense", "row 1", "\"Row\" 1", "Row", "Row 1 2", "Row 1.5", "Row \"x\"", "Row True", "Rows 5", "hWnd",
        "? RowHeight", "? DateFormat", "? nonsense", "?", "? Row 1", "AllowAddNew 1", "DateFormat yyyy",
        "BackColor 40000 Red", "ColWidth 1 1e39", "TextMatrix 1 1 \"a", "Add", "Add 1 2 3", "Minimum 1", "DataSource",
        "DataSource noconnection", "DataSource nothing", "press", "press #", "press ab", "press Enter Enter",
        "press Enter Shift Ctrl", "type a", "mouse", "mouse drag 1 2", "mouse down 1", "over 1 2", "focus",
        "focus away", "window out now", "pick tomorrow", "clock 2023-02-29", "wait 1", "end now", "on", "on EnterCell",
        "on Nonsense throw 1", "on EnterCell do", "on EnterCell do press Enter", "on EnterCell do on EnterCell throw 1",
        "on EnterCell do fail 1 1", "on EnterCell do clock 2024-01-01", "on EnterCell throw", "on EnterCell throw x",
        "on EnterCell Cancel=True", "on ExitFocus Cancel=1", "on ExitFocus Cancel= True", "on ExitFocus Cancel",
        "on KeyDown KeyCode=40000", "on KeyDown Shift=\"1\"", "on ButtonClick ButtonIndex=1",
        "on DatePickerCallbackKeyDown KeyCode=1", "on ExitFocus Cancel=True Cancel=False", "off", "off Nonsense",
        "fail 1", "fail 0 7", "fail -1 7", "fail 1.5 7", "fail Nonsense 7", "fail Nonsense.Text 7",
        "fail Text1.Nonsense 7", "fail Text1(0).Text 7", "fail Combo1.Text 7", "fail Combo1(1).Load 7",
        "fail Combo1(x).Text 7", "fail Combo1(.Text 7", "fail Combo1(40000).Text 7", "fail Text1. 7", "field a 3",
        "record 1", "error 1 \"\" \"\" 1 \"\"", "recordset end", "recordset now"));

TEST(Script, Recordset_IsReadLineByLine)
{
    EXPECT_EQ(BadLine("recordset\nfield Name 202\nfield \"Paid on\" 7\nfield n 3\nrecord \"a\" 2024-03-15 5\n"
                      "record Null\nrecord\nerror 5 \"d\" \"s\" 7 \"HY\"\nrecordset end\nDataSource\nDataSource "
                      "noconnection\non EnterCell do DataSource"),
              0);
}

TEST(Script, RecordsetWithoutItsEnd_IsRefusedWhereItBegins)
{
    EXPECT_EQ(BadLine("Row 1\nrecordset\nfield a 3\nrecord 1\n"), 2);
    EXPECT_EQ(BadLine("recordset\nrecordset\nrecordset end\n"), 2);
    EXPECT_EQ(BadLine("recordset\nDataSource\nrecordset end\n"), 2);
}

/// Whether a field of a type takes a value.
bool Takes(int type, const std::string& value)
{
    return BadLine("recordset\nfield a " + std::to_string(type) + "\nrecord " + value + "\nrecordset end") == 0;
}

TEST(Script, RecordsValue_MustBeOfItsFieldsClass)
{
    for (const int type : {2, 3, 5, 6, 7, 11, 20, 131, 202, 72})
        EXPECT_TRUE(Takes(type, "Null"));
    EXPECT_TRUE(Takes(11, "True"));
    EXPECT_FALSE(Takes(11, "1"));
    EXPECT_TRUE(Takes(7, "2024-03-15"));
    EXPECT_FALSE(Takes(7, "\"2024-03-15\""));
    EXPECT_FALSE(Takes(7, "45000"));
    EXPECT_TRUE(Takes(202, "\"5\""));
    EXPECT_FALSE(Takes(202, "5"));
    EXPECT_FALSE(Takes(202, "True"));
    EXPECT_TRUE(Takes(5, "1.5e10"));
    EXPECT_FALSE(Takes(5, "\"1\""));
    EXPECT_FALSE(Takes(5, "True"));
    for (const char* value : {"1", "\"x\"", "True", "2024-03-15"})
        EXPECT_TRUE(Takes(72, value)) << "a field of another class takes what it gets";
    EXPECT_FALSE(Takes(3, "1 2")) << "a value without a field";
}

TEST(Script, RecordsNumber_MustFitItsFieldsType)
{
    EXPECT_TRUE(Takes(2, "-32768"));
    EXPECT_FALSE(Takes(2, "32768"));
    EXPECT_FALSE(Takes(3, "1.5"));
    EXPECT_FALSE(Takes(17, "-1"));
    EXPECT_TRUE(Takes(19, "4294967295"));
    EXPECT_TRUE(Takes(20, "-9223372036854775808"));
    EXPECT_TRUE(Takes(21, "18446744073709551615"));
    EXPECT_FALSE(Takes(21, "-1"));
    EXPECT_FALSE(Takes(4, "1e39"));
    EXPECT_TRUE(Takes(131, "123456789012345678901234567890.123"));
    EXPECT_FALSE(Takes(131, "1e5000"));
}

TEST(Script, JournalThatIsAskedForAnywhere_IsKept)
{
    EXPECT_FALSE(ReadScript("? members").AsksForJournal);
    EXPECT_TRUE(ReadScript("? journal").AsksForJournal);
    EXPECT_TRUE(ReadScript("on EnterCell do ? journal").AsksForJournal);
}

} // namespace
} // namespace Tessellon::Replay
