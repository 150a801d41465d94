#include "failure/FailureRecord.h"
#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

namespace Tessellon {
namespace {

constexpr std::int16_t keyEnter = 13;

/// A sheet with a column of each kind, two rows, its first text cell entered by the user.
class EndedSheet : public testing::Test {
protected:
    EndedSheet()
    {
        Sheet.Build({fcTextBox, fcDatePicker, fcCommandButton, fcTextBox}, 2);
        Sheet.Hand.Click(1, 1);
        Sheet.Heard.clear();
    }

    /// Lets go of the sheet, as a host does that closes its window.
    void End()
    {
        ++Endings;
        Sheet.Sheet.reset();
    }
    [[nodiscard]] Lines Up() const { return Sheet.EditorsUp(); }

    SheetUnderTest Sheet;
    int Endings = 0;
};

struct EventCase {
    std::string Name;
    std::function<void(TessellonSheet&, std::function<void()>)> Listen;
    std::function<void(SheetUnderTest&)> Cause;
};

void PrintTo(const EventCase& event, std::ostream* out)
{
    *out << event.Name;
}

/// What adds a handler of any event that runs a call.
template <class Event>
auto On(Event TessellonSheet::*event)
{
    return [event](TessellonSheet& sheet, std::function<void()> call) {
        (sheet.*event) += [call = std::move(call)](auto&&...) { call(); };
    };
}

void RaiseCompare(SheetUnderTest& sheet)
{
    EventArguments arguments;
    SheetProbe(*sheet).Raise(Child::MSFlexGrid1, ChildEvent::Compare, arguments);
}

void EnterPicker(SheetUnderTest& sheet)
{
    sheet->Row(1);
    sheet->Col(2);
    sheet.Hand.Click(1, 2);
}

void EnterButton(SheetUnderTest& sheet)
{
    sheet.Hand.Click(1, 3);
}

const std::vector<EventCase>& AllEvents()
{
    using Sheet = TessellonSheet;
    using Test = SheetUnderTest;
    constexpr double someDay = 45000;
    static const std::vector<EventCase> events{
        {"Compare", On(&Sheet::Compare), RaiseCompare},
        {"AdvanceToNextCell", On(&Sheet::AdvanceToNextCell), [](Test& s) { s.Press(keyEnter); }},
        {"ExitFocus", On(&Sheet::ExitFocus), [](Test& s) { s.Hand.FocusOut(); }},
        {"MouseDown", On(&Sheet::MouseDown), [](Test& s) { s.Hand.Click(2, 1); }},
        {"MouseMove", On(&Sheet::MouseMove),
         [](Test& s) {
             EnterButton(s);
             s.Hand.Over(OverEvent::Move, 15, 15);
         }},
        {"MouseUp", On(&Sheet::MouseUp),
         [](Test& s) {
             EnterButton(s);
             s.Hand.Over(OverEvent::Up, 15, 15);
         }},
        {"Click", On(&Sheet::Click),
         [](Test& s) {
             EnterPicker(s);
             s.Hand.Over(OverEvent::Click, 15, 15);
         }},
        {"DblClick", On(&Sheet::DblClick), [](Test& s) { s.Hand.DoubleClick(1, 1); }},
        {"KeyUp", On(&Sheet::KeyUp), [](Test& s) { s.Type(u"a"); }},
        {"KeyDown", On(&Sheet::KeyDown), [](Test& s) { s.Type(u"a"); }},
        {"KeyPress", On(&Sheet::KeyPress), [](Test& s) { s.Type(u"a"); }},
        {"RowColChange", On(&Sheet::RowColChange), [](Test& s) { s->Row(2); }},
        {"Scroll", On(&Sheet::Scroll),
         [](Test& s) {
             s->Add(2, 40);
             s.Hand.Scroll(5, 1);
         }},
        {"SelChange", On(&Sheet::SelChange), [](Test& s) { s.Hand.Drag(1, 1, 2, 1); }},
        {"LeaveCell", On(&Sheet::LeaveCell), [](Test& s) { s->Row(2); }},
        {"EnterCell", On(&Sheet::EnterCell), [](Test& s) { s.Press(keyEnter); }},
        {"EditorValidate", On(&Sheet::EditorValidate), [](Test& s) { s.Hand.Click(2, 2); }},
        {"EditorChange", On(&Sheet::EditorChange), [](Test& s) { s.Type(u"a"); }},
        {"DateBoxCloseUp", On(&Sheet::DateBoxCloseUp),
         [](Test& s) {
             EnterPicker(s);
             s.Hand.Pick(someDay, false);
         }},
        {"DateBoxDropDown", On(&Sheet::DateBoxDropDown),
         [](Test& s) {
             EnterPicker(s);
             s.Hand.Pick(someDay, false);
         }},
        {"Format", On(&Sheet::Format),
         [](Test& s) {
             s->DateFormat(u"XX");
             EnterPicker(s);
         }},
        {"DatePickerCallbackKeyDown", On(&Sheet::DatePickerCallbackKeyDown),
         [](Test& s) {
             s->DateFormat(u"XX");
             EnterPicker(s);
             s.Type(u"7");
         }},
        {"ButtonClick", On(&Sheet::ButtonClick),
         [](Test& s) {
             EnterButton(s);
             s.Hand.Push();
         }},
        {"UseAdvanceToNextCell", On(&Sheet::UseAdvanceToNextCell),
         [](Test& s) {
             EnterButton(s);
             s.Hand.Push();
         }},
        {"ErrInfo", On(&Sheet::ErrInfo),
         [](Test& s) {
             s.Calls->FailAtMember(u"Text1.Visible", 7);
             s.Press(keyEnter);
         }},
    };
    return events;
}

class EndedInsideAnEvent : public EndedSheet, public testing::WithParamInterface<EventCase> {};

} // namespace

TEST_P(EndedInsideAnEvent, TellsNothingMoreAndLeavesNoEditorUp)
{
    std::size_t heardUntilThen = 0;
    GetParam().Listen(*Sheet.Sheet, [&] {
        End();
        heardUntilThen = Sheet.Heard.size();
    });

    EXPECT_NO_THROW(GetParam().Cause(Sheet));

    ASSERT_EQ(Endings, 1);
    ASSERT_GT(heardUntilThen, 0U);
    EXPECT_EQ(Sheet.Heard.at(heardUntilThen - 1).substr(0, GetParam().Name.size()), GetParam().Name);
    EXPECT_EQ(Sheet.Heard.size(), heardUntilThen);
    EXPECT_EQ(Up(), Lines{});
    EXPECT_EQ(Sheet.Sheet, nullptr);
}

TEST_P(EndedInsideAnEvent, WhileAFailureIsDue_ShowsNoBoxAndCarriesOn)
{
    GetParam().Listen(*Sheet.Sheet, [&] {
        Sheet.Calls->FailAtMember(u"Text1.ZOrder", 7);
        End();
        Sheet.Heard.clear();
    });

    EXPECT_NO_THROW(GetParam().Cause(Sheet));

    EXPECT_EQ(Endings, 1);
    EXPECT_EQ(Sheet.Heard, Lines{});
    EXPECT_EQ(ThreadFailureRecord().Number, 0);
}

INSTANTIATE_TEST_SUITE_P(Each, EndedInsideAnEvent, testing::ValuesIn(AllEvents()),
                         [](const auto& event) { return event.param.Name; });

TEST(AllEvents, AreTwentyFive)
{
    EXPECT_EQ(AllEvents().size(), 25U);
}

TEST_F(EndedSheet, WhileTheMessageBoxIsUp_RaisesNoErrInfo)
{
    Sheet.Toolkit->OnMessageBox = [&](std::u16string_view) { End(); };
    Sheet.Calls->FailAtMember(u"Text1.Visible", 7);

    EXPECT_NO_THROW(Sheet.Press(keyEnter));

    EXPECT_EQ(Endings, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
    EXPECT_EQ(Up(), Lines{});
}

TEST_F(EndedSheet, InTheMessageBoxOfAHostCall_GivesTheDefaultResult)
{
    Sheet.Toolkit->OnMessageBox = [&](std::u16string_view) { End(); };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);

    EXPECT_EQ(Sheet->TextMatrix(1, 1), u"");
    EXPECT_EQ(Endings, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

// The host's own frame lies between: it must come to its end like any other, and see the call return.
TEST_F(EndedSheet, InAnEventOfACallThatAHandlerMade_LetsTheHandlerFinish)
{
    bool finished = false;
    Sheet->Scroll += [&] { End(); };
    Sheet->KeyDown += [&](std::int16_t&, std::int16_t&) {
        TessellonSheet& sheet = *Sheet.Sheet;
        sheet.Add(2, 40);
        EXPECT_EQ(sheet.Row(), 0);
        finished = true;
    };

    EXPECT_NO_THROW(Sheet.Type(u"a"));

    EXPECT_EQ(Endings, 1);
    EXPECT_TRUE(finished);
    EXPECT_EQ(Sheet.TakeEventNames().back(), "Scroll");
}

// A handler may open a window of its own, whose loop hands in the next key: no end may come up through that loop.
TEST_F(EndedSheet, InAnEventOfAKeyPressedInsideAHandler_DoesNotReachTheLoopBetween)
{
    bool returned = false;
    Sheet->KeyPress += [&](std::int16_t&) { End(); };
    bool inside = false;
    Sheet->KeyDown += [&](std::int16_t&, std::int16_t&) {
        if (inside)
            return;
        inside = true;
        EXPECT_NO_THROW(Sheet.Type(u"b"));
        returned = true;
    };

    EXPECT_NO_THROW(Sheet.Type(u"a"));

    EXPECT_EQ(Endings, 1);
    EXPECT_TRUE(returned);
}

TEST_F(EndedSheet, InACallMadeWhileTheMessageBoxIsUp_DoesNotReachTheBox)
{
    bool closed = false;
    Sheet->RowColChange += [&] { End(); };
    Sheet.Toolkit->OnMessageBox = [&](std::u16string_view) {
        EXPECT_NO_THROW(Sheet->Row(2));
        closed = true;
    };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);

    EXPECT_EQ(Sheet->TextMatrix(1, 1), u"");

    EXPECT_EQ(Endings, 1);
    EXPECT_TRUE(closed);
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "ErrInfo"), 0);
}

TEST_F(EndedSheet, InAnEventOfTheLoad_GivesTheMousePointerBack)
{
    constexpr std::int32_t adVarWChar = 202;
    const auto records = std::make_shared<TestRecordset>();
    records->Types = {adVarWChar};
    records->Records = {{{.Kind = Value::Kind::Text, .Text = u"a"}}, {{.Kind = Value::Kind::Text, .Text = u"b"}}};
    std::int16_t pointerInside = 0;
    Sheet->RowColChange += [&] {
        pointerInside = Sheet.Toolkit->Pointer;
        End();
    };

    Sheet->DataSource(records, std::make_shared<TestConnection>());

    EXPECT_EQ(Endings, 1);
    EXPECT_EQ(pointerInside, 11);
    EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
}

TEST_F(EndedSheet, InTheReportOfAFailedLoad_GivesTheMousePointerBack)
{
    const auto records = std::make_shared<TestRecordset>();
    records->Types = {202};
    records->Records = {{{.Kind = Value::Kind::Text, .Text = u"a"}}};
    Sheet->ErrInfo += [&](auto&&...) { End(); };
    Sheet.Calls->FailAtMember(u"Recordset.MoveFirst", 7);

    Sheet->DataSource(records, std::make_shared<TestConnection>());

    EXPECT_EQ(Endings, 1);
    EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
}

TEST_F(EndedSheet, LaterHandlersOfTheEventThatEndedIt_AreNotTold)
{
    bool later = false;
    Sheet->LeaveCell += [&] { End(); };
    Sheet->LeaveCell += [&] { later = true; };

    Sheet->Row(2);

    EXPECT_EQ(Endings, 1);
    EXPECT_FALSE(later);
}

TEST_F(EndedSheet, AHandlerThatFailsBehindTheEnd_IsNotHeardOf)
{
    Sheet->LeaveCell += [&] {
        End();
        throw Failure(1000, u"", u"");
    };

    EXPECT_NO_THROW(Sheet->Row(2));

    EXPECT_EQ(Sheet.TakeEventNames(), Lines{"LeaveCell"});
}

TEST_F(EndedSheet, AHandlerWithoutAFrameThatFailsBehindTheEnd_IsNotHeardOf)
{
    Sheet->KeyPress += [&](std::int16_t&) {
        End();
        throw Failure(1000, u"", u"");
    };

    Sheet.Type(u"a");

    EXPECT_EQ(Sheet.TakeEventNames(), (Lines{"KeyDown", "KeyPress"}));
}

TEST_F(EndedSheet, WhileTheBoxOfALoadWithoutAConnectionIsUp_LetsNoFailureOut)
{
    Sheet.Toolkit->OnMessageBox = [&](std::u16string_view) { End(); };
    const auto records = std::make_shared<TestRecordset>();
    records->Records.emplace_back();
    Sheet.Calls->FailAtMember(u"Recordset.MoveFirst", 7);

    EXPECT_NO_THROW(Sheet->DataSource(records, nullptr));

    EXPECT_EQ(Endings, 1);
}

TEST_F(EndedSheet, ByARecordsetThatThenFails_ShowsNoBox)
{
    class EndingRecords : public TestRecordset {
    public:
        std::function<void()> End;
        void MoveFirst() override
        {
            End();
            throw Failure(1000, u"", u"");
        }
    };
    const auto records = std::make_shared<EndingRecords>();
    records->Records.emplace_back();
    records->End = [&] { End(); };

    EXPECT_NO_THROW(Sheet->DataSource(records, nullptr));

    EXPECT_EQ(Endings, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
    EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
}

TEST_F(EndedSheet, CallsOnItInsideTheEvent_GiveDefaultResults)
{
    bool asked = false;
    Sheet->LeaveCell += [&] {
        TessellonSheet& sheet = *Sheet.Sheet;
        End();
        EXPECT_EQ(sheet.Rows(), 0);
        EXPECT_EQ(sheet.Cols(), 0);
        EXPECT_EQ(sheet.ColumnHeader(1), u"");
        EXPECT_FALSE(sheet.ShowErrMessage());
        sheet.TextMatrix(1, 1, u"x");
        asked = true;
    };

    Sheet->Row(2);

    EXPECT_TRUE(asked);
    EXPECT_EQ(Sheet.Platform->MSFlexGrid1().TextMatrix(1, 1), u"");
}

TEST_F(EndedSheet, OutsideAnyEvent_TakesTheEditorsDownAndIsSilent)
{
    ASSERT_EQ(Up(), Lines{"Text1 \"\""});

    End();

    EXPECT_EQ(Up(), Lines{});
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
    Sheet.Hand.Click(2, 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

} // namespace Tessellon
