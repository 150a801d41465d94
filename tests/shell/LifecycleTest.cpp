#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

/// What a walk over all editors does to each: hide, disable, to the back.
Lines StandDowns(const Lines& editors)
{
    Lines calls;
    for (const std::string& editor : editors) {
        calls.push_back(editor + ".Visible=False");
        calls.push_back(editor + ".Enabled=False");
        calls.push_back(editor + ".ZOrder(1)");
    }
    return calls;
}

const Lines allEditors{"Text1",     "Check1",        "Combo1(0)",    "List1(0)",
                       "DTPicker1", "MaskEdBox1(0)", "RichTextBox1", "Command1(0)"};

/// A platform with its journal noting, before there is a sheet on it.
class Creation : public testing::Test {
protected:
    Creation()
    {
        Toolkit->OnMessageBox = [this](std::u16string_view text) { Heard.push_back("box " + Utf8(text)); };
        Calls->Notes(true);
    }
    SheetPointer Create() { return TessellonSheet::Create(Calls); }
    Lines Taken()
    {
        Lines calls;
        for (const std::u16string& call : Calls->TakeNotes())
            calls.push_back(Utf8(call));
        return calls;
    }

    Lines Heard;
    std::shared_ptr<HeadlessToolkit> Toolkit = std::make_shared<HeadlessToolkit>();
    std::shared_ptr<EnginePlatform> Platform = std::make_shared<EnginePlatform>(Toolkit, Locale::English());
    std::shared_ptr<Journal> Calls = std::make_shared<Journal>(Platform);
};

class Lifecycle : public testing::Test {
protected:
    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    TestBag Bag;
};

} // namespace

TEST_F(Creation, GoesStepByStep)
{
    Lines expected{"DTPicker1.Format=3",
                   "DTPicker1.CustomFormat=\"dd/MM/yyyy\"",
                   "DTPicker1.DataFormat=\"dd/MM/yyyy\"",
                   "Check1.Caption=\"\"",
                   "Text1.Text=\"\"",
                   "RichTextBox1.Text=\"\"",
                   "MaskEdBox1(0).Text=\"\"",
                   "MaskEdBox1(0).Mask=\"\"",
                   "MaskEdBox1(0).Format=\"\"",
                   "MSFlexGrid1.AllowUserResizing=1",
                   "MSFlexGrid1.Col=0",
                   "MSFlexGrid1.Row=0",
                   "MSFlexGrid1.Rows=1",
                   "MSFlexGrid1.Cols=1",
                   "MSFlexGrid1.Rows=1"};
    for (const std::string& call : StandDowns(allEditors))
        expected.push_back(call);

    const SheetPointer sheet = Create();

    EXPECT_EQ(Taken(), expected);
    EXPECT_EQ(Heard, Lines{});
}

TEST_F(Creation, WhoseFirstStepsFail_LeavesTheFlagsOfTheThreadAlone)
{
    const SheetPointer first = Create();
    first->RaiseError(true);
    first->ShowErrMessage(false);
    const auto journal = std::make_shared<Journal>(std::make_shared<EnginePlatform>(Toolkit, Locale::English()));
    journal->FailAtMember(u"DTPicker1.CustomFormat", 7);

    const SheetPointer second = TessellonSheet::Create(journal);

    EXPECT_TRUE(first->RaiseError());
    EXPECT_FALSE(first->ShowErrMessage());
    EXPECT_EQ(second->Members().NextComboIndex, 0);
    EXPECT_EQ(second->Members().DateFormatText, u"dd/MM/yyyy");
}

TEST_F(Creation, FailuresBearTheNameOfTheirProcedure)
{
    constexpr int picker = 1;
    constexpr int fields = 4;
    constexpr int resize = 11;
    constexpr int original = 15;
    constexpr int disable = 16;
    const std::vector<std::pair<int, std::string>> labels{{picker, "UserControl_Initialize"},
                                                          {fields, "InitializeFields"},
                                                          {resize, "ResizeGrid"},
                                                          {original, "GetOriginalGridSize"},
                                                          {disable, "SetAllDisable"}};
    const SheetPointer showing = Create();
    for (const auto& [call, label] : labels) {
        const auto journal = std::make_shared<Journal>(std::make_shared<EnginePlatform>(Toolkit, Locale::English()));
        journal->FailAtCall(call, 7);
        const SheetPointer sheet = TessellonSheet::Create(journal);
        EXPECT_EQ(Labels(std::exchange(Heard, {})), Lines{label});
    }
}

// ---- Saved properties ----------------------------------------------------------------------------------------------

TEST_F(Creation, DimensionsAreThoseOfTheSavedFont)
{
    class SizedToolkit : public HeadlessToolkit {
    public:
        std::int32_t DefaultRowHeight(const Font& font) override { return static_cast<std::int32_t>(font.Size * 30); }
        std::int32_t DefaultColWidth(const Font& font) override { return static_cast<std::int32_t>(font.Size * 100); }
    };
    const SheetPointer sheet =
        TessellonSheet::Create(std::make_shared<EnginePlatform>(std::make_shared<SizedToolkit>(), Locale::English()));
    TestBag bag;
    Font saved{u"Serif", 20};
    bag.SavedFont = &saved;

    sheet->UserControl_ReadProperties(bag);

    EXPECT_EQ(sheet->Members().DefaultRowHeight, 600.0F);
    EXPECT_EQ(sheet->Members().InitialRowHeight, 600.0F);
    EXPECT_EQ(sheet->Members().HeaderRowHeight, 600.0F);
    EXPECT_EQ(sheet->Members().DefaultColWidth, 2000.0F);
    EXPECT_EQ(sheet->Members().InitialColWidth, 2000.0F);
    EXPECT_EQ(sheet->Font().Name, u"Serif");
}

TEST_F(Lifecycle, SavedPropertiesAreReadFontFirst)
{
    const Lines calls = CallsOf([&] { Sheet->UserControl_ReadProperties(Bag); });
    EXPECT_EQ(Bag.Calls, (Lines{"Read Font", "Read Enabled"}));
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_TRUE(calls[0].starts_with("MSFlexGrid1.Font="));
    EXPECT_EQ(calls[1], "MSFlexGrid1.Enabled=True");
}

TEST_F(Lifecycle, DesignWithoutSavedValues_LoadsEnabledWithTheFontOfTheContainer)
{
    Sheet->Enabled(false);
    Sheet->Font({u"Other", 30});
    Sheet->UserControl_ReadProperties(Bag);
    EXPECT_TRUE(Sheet->Enabled());
    EXPECT_EQ(Sheet->Font().Name, Sheet.Toolkit->AmbientFont().Name);
    EXPECT_EQ(Sheet->Font().Size, Sheet.Toolkit->AmbientFont().Size);
}

TEST_F(Lifecycle, DesignSavedDisabled_LoadsDisabled)
{
    bool saved = false;
    Bag.SavedEnabled = &saved;
    Sheet->UserControl_ReadProperties(Bag);
    EXPECT_FALSE(Sheet->Enabled());
}

TEST_F(Lifecycle, PropertiesAreWrittenFontFirstEachWithItsDefault)
{
    Sheet->Font({u"Serif", 12});
    Sheet->Enabled(false);
    Sheet->UserControl_WriteProperties(Bag);
    EXPECT_EQ(Bag.Calls, (Lines{"Write Font Serif 12 (default Sans 8)", "Write Enabled False (default True)"}));
}

TEST_F(Lifecycle, FontAndEnabled_MarkTheirPropertyBehindTheWrite)
{
    Lines calls = CallsOf([&] { Sheet->Font({u"Serif", 12}); });
    ASSERT_EQ(calls.size(), 2U);
    EXPECT_TRUE(calls[0].starts_with("MSFlexGrid1.Font="));
    EXPECT_EQ(calls[1], "UserControl.PropertyChanged(\"Font\")");
    calls = CallsOf([&] { Sheet->Enabled(false); });
    EXPECT_EQ(calls, (Lines{"MSFlexGrid1.Enabled=False", "UserControl.PropertyChanged(\"Enabled\")"}));
}

TEST_F(Lifecycle, Enabled_DisablesTheGridAlone)
{
    Sheet.Build({fcTextBox}, 1);
    const Lines up = Sheet.EditorsUp();
    ASSERT_EQ(up.size(), 1U);
    const Lines calls = CallsOf([&] { Sheet->Enabled(false); });
    EXPECT_EQ(Only(calls, {"MSFlexGrid1.", "Text1."}), Lines{"MSFlexGrid1.Enabled=False"});
    EXPECT_EQ(Sheet.EditorsUp(), up);
    EXPECT_TRUE(Sheet.Platform->TheTextBox()->Enabled());
    EXPECT_FALSE(Sheet->Enabled());
}

TEST_F(Lifecycle, AccessorsOfTheDesign_LetFailuresOut)
{
    const auto throws = [&](std::u16string_view member, const auto& call) {
        Sheet.Calls->FailAtMember(member, 7);
        EXPECT_THROW(call(), Failure) << Utf8(member);
    };
    throws(u"MSFlexGrid1.Font", [&] { static_cast<void>(Sheet->Font()); });
    throws(u"MSFlexGrid1.Font", [&] { Sheet->Font({u"Serif", 12}); });
    throws(u"UserControl.PropertyChanged", [&] { Sheet->Font({u"Serif", 12}); });
    throws(u"MSFlexGrid1.Enabled", [&] { static_cast<void>(Sheet->Enabled()); });
    throws(u"MSFlexGrid1.Enabled", [&] { Sheet->Enabled(true); });
    throws(u"UserControl.AmbientFont", [&] { Sheet->UserControl_ReadProperties(Bag); });
    throws(u"MSFlexGrid1.Enabled", [&] { Sheet->UserControl_ReadProperties(Bag); });
    throws(u"MSFlexGrid1.Font", [&] { Sheet->UserControl_WriteProperties(Bag); });
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Lifecycle, DimensionsThatCannotBeRead_AreReportedAndTheRestIsLoaded)
{
    Sheet->Enabled(false);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.RowHeight", 7);
    Sheet->UserControl_ReadProperties(Bag);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"GetDefaultDimension"});
    EXPECT_TRUE(Sheet->Enabled());
}

// ---- Size and focus ------------------------------------------------------------------------------------------------

TEST_F(Lifecycle, Resize_FillsTheComponentWithTheGrid)
{
    const Lines calls = CallsOf([&] { Sheet.Platform->Resize(5000, 3000); });
    EXPECT_EQ(calls, Lines{"MSFlexGrid1.Move(0,0,5000,3000)"});
    EXPECT_EQ(Sheet.Members().ControlWidth, 5000.0F);
    EXPECT_EQ(Sheet.Members().ControlHeight, 3000.0F);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Lifecycle, Resize_LeavesTheEditorWhereItIs)
{
    Sheet.Build({fcTextBox}, 3);
    Sheet.Hand.Click(3, 1);
    const auto place = [&] {
        TextBoxControl& editor = *Sheet.Platform->TheTextBox();
        return std::vector{editor.Left(), editor.Top(), editor.Width(), editor.Height()};
    };
    const Lines up = Sheet.EditorsUp();
    const std::vector<float> before = place();
    ASSERT_EQ(up.size(), 1U);
    ASSERT_GT(before[1], 0.0F);
    const Lines calls = CallsOf([&] { Sheet.Platform->Resize(500, 300); });
    EXPECT_EQ(Only(calls, {"Text1."}), Lines{});
    EXPECT_EQ(Sheet.EditorsUp(), up);
    EXPECT_EQ(place(), before);
    EXPECT_EQ(Sheet.Focus(), "Text1");
}

TEST_F(Lifecycle, Resize_DoesNotCountTheVisibleRowsAnew)
{
    Sheet.Build({fcTextBox}, 3);
    Sheet->RowHeight(300, false, false);
    const std::int32_t rows = Sheet.Members().VisibleRows;
    ASSERT_GT(rows, 0);
    Sheet.Platform->Resize(9000, 900);
    EXPECT_EQ(Sheet.Members().VisibleRows, rows);
}

TEST_F(Lifecycle, ResizeThatFails_KeepsTheOldSizes)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Move", 7);
    Sheet.Platform->Resize(5000, 3000);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"UserControl_Resize"});
    EXPECT_EQ(Sheet.Members().ControlWidth, 9600.0F);
    EXPECT_EQ(Sheet.Members().ControlHeight, 4800.0F);
}

TEST_F(Lifecycle, ExitFocus_TakesAllEditorsDown)
{
    Sheet.Build({fcTextBox}, 1);
    Probe.Members().ShowEditorRequest = true;
    Probe.Members().HideEditorRequest = false;
    bool askedWith = true;
    Sheet->ExitFocus += [&](bool& cancel) { askedWith = cancel; };

    const Lines calls = CallsOf([&] { Probe.Raise(Child::UserControl, ChildEvent::ExitFocus); });

    EXPECT_FALSE(askedWith);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
    EXPECT_FALSE(Sheet.Members().ShowEditorRequest);
    EXPECT_EQ(CountOf(calls, "UserControl.SetFocus()"), 0);
    EXPECT_EQ(calls.front(), "Text1.Visible=False");
}

TEST_F(Lifecycle, ExitFocusWithoutAnEditorUp_LeavesTheRequestToHide)
{
    Probe.Members().ShowEditorRequest = true;
    Probe.Raise(Child::UserControl, ChildEvent::ExitFocus);
    EXPECT_FALSE(Sheet.Members().ShowEditorRequest);
    EXPECT_TRUE(Sheet.Members().HideEditorRequest);
}

TEST_F(Lifecycle, ExitFocusThatTheHostCancels_KeepsTheEditorAndGivesTheFocusBack)
{
    Sheet.Build({fcTextBox}, 1);
    Sheet->ExitFocus += [](bool& cancel) { cancel = true; };
    const Lines up = Sheet.EditorsUp();
    const bool show = Sheet.Members().ShowEditorRequest;
    const bool hide = Sheet.Members().HideEditorRequest;

    const Lines calls = CallsOf([&] { Sheet.Hand.FocusOut(); });

    EXPECT_EQ(calls, Lines{"UserControl.SetFocus()"});
    EXPECT_EQ(Sheet.EditorsUp(), up);
    EXPECT_EQ(Sheet.Focus(), "Text1");
    EXPECT_EQ(Sheet.Members().ShowEditorRequest, show);
    EXPECT_EQ(Sheet.Members().HideEditorRequest, hide);
}

TEST_F(Lifecycle, ExitFocusHandlerThatFails_DoesNotStopTheHiding)
{
    Sheet.Build({fcTextBox}, 1);
    Sheet->ExitFocus += [](bool&) { throw Failure(1000, u"", u""); };
    Probe.Raise(Child::UserControl, ChildEvent::ExitFocus);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{});
    EXPECT_EQ(Sheet.TakeEventNames(), Lines{"ExitFocus"});
}

TEST_F(Lifecycle, FocusThatCannotBeGivenBack_IsPassedOver)
{
    Sheet->ExitFocus += [](bool& cancel) { cancel = true; };
    Sheet.Calls->FailAtMember(u"UserControl.SetFocus", 7);
    EXPECT_NO_THROW(Probe.Raise(Child::UserControl, ChildEvent::ExitFocus));
    EXPECT_EQ(Sheet.TakeEventNames(), Lines{"ExitFocus"});
}

// ---- The empty grid -------------------------------------------------------------------------------------------------

TEST_F(Lifecycle, GridThatKeepsItsColumns_HasItsRowsNotCountedAnew)
{
    Sheet.Build({fcTextBox}, 3);
    std::int32_t rowsInside = 0;
    Sheet->ErrInfo += [&](auto&&...) { rowsInside = Sheet.Members().RowCount; };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Cols", 7);
    Sheet->Clear();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"ResizeGrid"});
    EXPECT_EQ(rowsInside, 4);
}

TEST_F(Lifecycle, MirrorsOfTheCursor_AreReadFromTheEmptyGrid)
{
    Probe.Members().CurrentRow = Probe.Members().CurrentCol = 7;
    Sheet->Clear();
    EXPECT_EQ(Sheet->Row(), 0);
    EXPECT_EQ(Sheet->Col(), 0);
}

TEST_F(Lifecycle, EndOfTheSheet_IsMarked)
{
    Sheet.Build({fcTextBox}, 2);
    bool marked = false;
    Sheet->LeaveCell += [&] {
        const TessellonSheet& sheet = *Sheet.Sheet;
        EXPECT_FALSE(sheet.Members().Terminating);
        Sheet.Sheet.reset();
        marked = sheet.Members().Terminating;
    };
    Sheet->Row(2);
    EXPECT_TRUE(marked);
}

// ---- Taking all editors down ---------------------------------------------------------------------------------------

TEST_F(Lifecycle, SetAllDisable_TakesEachEditorDownInOrder)
{
    EXPECT_EQ(CallsOf([&] { Probe.SetAllDisable(); }), StandDowns(allEditors));
}

TEST_F(Lifecycle, SetAllDisable_TakesEveryInstanceDown)
{
    Sheet.Build({fcComboBox, fcCommandButton, fcComboBox, fcListBox, fcMaskedEditBox, fcListBox, fcMaskedEditBox,
                 fcCommandButton},
                1);
    Probe.SetAllDisable();
    EXPECT_EQ(CallsOf([&] { Probe.SetAllDisable(); }),
              StandDowns({"Text1", "Check1", "Combo1(0)", "Combo1(1)", "List1(0)", "List1(1)", "DTPicker1",
                          "MaskEdBox1(0)", "MaskEdBox1(1)", "RichTextBox1", "Command1(0)", "Command1(1)"}));
}

TEST_F(Lifecycle, SetAllDisable_ChangesNoMember)
{
    Sheet.Build({fcTextBox}, 1);
    Probe.SetAllDisable();
    const auto editor = Sheet.Members().ActiveEditor;
    ASSERT_NE(editor, nullptr);
    for (const bool request : {true, false}) {
        Probe.Members().ShowEditorRequest = request;
        Probe.Members().HideEditorRequest = request;
        Probe.Members().GridReady = request;
        Probe.SetAllDisable();
        EXPECT_EQ(Sheet.Members().ShowEditorRequest, request);
        EXPECT_EQ(Sheet.Members().HideEditorRequest, request);
        EXPECT_EQ(Sheet.Members().ActiveEditor, editor);
    }
}

TEST_F(Lifecycle, RequestThatStandsBehindSetAllDisable_BringsTheEditorBackInItsPlace)
{
    Sheet.Build({fcTextBox}, 1);
    const float left = Sheet.Platform->TheTextBox()->Left();
    const float top = Sheet.Platform->TheTextBox()->Top();
    Sheet.Hand.WindowOut(); // No loss of focus comes between.
    Probe.Members().ShowEditorRequest = true;
    Probe.SetAllDisable();
    ASSERT_EQ(Sheet.EditorsUp(), Lines{});
    Probe.SetObjVisible(fcTextBox, 0);
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"Text1 \"\""});
    EXPECT_EQ(Sheet.Platform->TheTextBox()->Left(), left);
    EXPECT_EQ(Sheet.Platform->TheTextBox()->Top(), top);
    EXPECT_GT(left, 0.0F);
    EXPECT_GT(top, 0.0F);
}

TEST_F(Lifecycle, FailureInSetAllDisable_EndsTheWalkAtThatEditor)
{
    Sheet.Build({fcRichTextBox}, 1);
    ASSERT_EQ(Sheet.EditorsUp(), Lines{"RichTextBox1 \"\""});
    Sheet.Calls->FailAtMember(u"MaskEdBox1(0).Enabled", 7);
    const Lines calls = CallsOf([&] { Probe.SetAllDisable(); });
    EXPECT_EQ(calls.back(), "MaskEdBox1(0).Enabled=False");
    EXPECT_EQ(Sheet.EditorsUp(), Lines{"RichTextBox1 \"\""});
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"SetAllDisable"});
}

TEST_F(Lifecycle, End_TakesEachEditorDownAndNothingElse)
{
    Sheet.Build({fcTextBox}, 1);
    EXPECT_EQ(CallsOf([&] { Sheet.Sheet.reset(); }), StandDowns(allEditors));
}

} // namespace Tessellon
