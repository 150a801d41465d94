#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <any>
#include <functional>
#include <new>
#include <ostream>
#include <stdexcept>
#include <string>
#include <typeinfo>

namespace Tessellon {
namespace {

constexpr std::int16_t keyEnter = 13;
constexpr std::int16_t keyUp = 38;
constexpr std::int16_t keyF2 = 113;

class Frames : public testing::Test {
protected:
    Frames() { Sheet.Build({fcTextBox, fcDatePicker, fcRichTextBox, fcCheckBox}, 2); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
};

struct ThrowCase {
    const char* Name;
    std::function<void()> Throw;
    std::int32_t Number;
    std::string Description;
};

void PrintTo(const ThrowCase& thrown, std::ostream* out)
{
    *out << thrown.Name;
}

const std::vector<ThrowCase>& Throws()
{
    static const std::vector<ThrowCase> cases{
        {"NoMemory", [] { throw std::bad_alloc(); }, 7, "Out of memory"},
        {"NoMemoryForAnArray", [] { throw std::bad_array_new_length(); }, 7, "Out of memory"},
        {"TooLong", [] { throw std::length_error("long"); }, 7, "Out of memory"},
        {"OutOfRange", [] { throw std::out_of_range("far"); }, 9, "Subscript out of range"},
        {"BadCast", [] { throw std::bad_cast(); }, 13, "Type mismatch"},
        {"BadAnyCast", [] { throw std::bad_any_cast(); }, 13, "Type mismatch"},
        {"Overflow", [] { throw std::overflow_error("much"); }, 6, "Overflow"},
        {"BadArgument", [] { throw std::invalid_argument("bad"); }, 5, "Invalid procedure call or argument"},
        {"RunTimeError", [] { throw std::runtime_error("run"); }, 5, "Invalid procedure call or argument"},
        {"HostsOwn", [] { throw Failure(1234, u"me", u"mine"); }, 1234, "mine"},
        {"NumberNought", [] { throw Failure(0, u"me", u"mine"); }, 5, "Invalid procedure call or argument"},
    };
    return cases;
}

class Exceptions : public Frames, public testing::WithParamInterface<ThrowCase> {
protected:
    [[nodiscard]] std::string ErrInfo(std::string_view source) const
    {
        return "ErrInfo ErrNum=" + std::to_string(GetParam().Number) + " ErrSource=\"" + GetParam().Description +
               "\" ErrDesc=\"" + std::string(source) + "\" ErrHelpFile=\"\" ErrHelpContext=\"0\"";
    }
};

} // namespace

TEST_P(Exceptions, OfAHandlerInAFrame_BecomeFailuresOfTheHost)
{
    Sheet->ShowErrMessage(false);
    Sheet->AdvanceToNextCell += [](bool&) { GetParam().Throw(); };

    Probe.IncrementCell(1, 0);

    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"AdvanceToNextCell Cancel=False", ErrInfo("Host")}));
}

TEST_P(Exceptions, OfAHandlerOutsideAnyFrame_ReachWhoeverListensToThePlatform)
{
    Sheet.Hand.Click(1, 1);
    Sheet.Heard.clear();
    Sheet->KeyPress += [](std::int16_t&) { GetParam().Throw(); };

    Sheet.Type(u"a");

    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"KeyDown KeyCode=65 Shift=0", "KeyPress KeyAscii=97",
                                         "exception " + std::to_string(GetParam().Number)}));
}

TEST_P(Exceptions, OfARecordset_BecomeFailuresOfTheSheet)
{
    class Throwing : public TestRecordset {
    public:
        void MoveFirst() override { GetParam().Throw(); }
    };
    const auto records = std::make_shared<Throwing>();
    records->Records.emplace_back();
    Sheet->ShowErrMessage(false);

    Sheet->DataSource(records, std::make_shared<TestConnection>());

    const bool itsOwn = GetParam().Number == 1234;
    EXPECT_EQ(Sheet.TakeEvents(), Lines{ErrInfo(itsOwn ? "me" : "TessellonSheet")});
}

INSTANTIATE_TEST_SUITE_P(All, Exceptions, testing::ValuesIn(Throws()),
                         [](const auto& thrown) { return thrown.param.Name; });

TEST_F(Frames, HandlerThatThrowsNoException_IsFailureFive)
{
    Sheet->ShowErrMessage(false);
    Sheet->AdvanceToNextCell += [](bool&) { throw 1; };
    Probe.IncrementCell(1, 0);
    EXPECT_TRUE(Sheet.TakeEvents().back().starts_with("ErrInfo ErrNum=5 "));
}

TEST_F(Frames, PrivateProcedureThatFails_ReportsOnceAndItsCallerGoesOn)
{
    Sheet->ShowErrMessage(false);
    Sheet.Calls->FailAtMember(u"Text1.Visible", 7);

    Sheet->Delete(2);

    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "ErrInfo"), 1);
    EXPECT_EQ(Sheet->Rows(), 2);
}

TEST_F(Frames, ReadThatFails_GivesTheEmptyValueAndReportsSuccess)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Cols", 7);
    EXPECT_EQ(Sheet->Cols(), 0);
    EXPECT_EQ(Sheet->Cols(), 5);
    Sheet.Calls->FailAtMember(u"UserControl.hWnd", 7);
    EXPECT_EQ(Sheet->hWnd(), 0);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
    EXPECT_EQ(Sheet->SearchCol(1, u"x"), 0);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), (Lines{"ColsProperty", "hWndProperty", "SearchCol"}));
}

TEST_F(Frames, FailureLeavesWhatWasDoneAsItStands)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Cols", 7);
    Sheet->Cols(9);
    EXPECT_EQ(Sheet.Members().ColumnBound, 8);
    EXPECT_EQ(Sheet.Members().ColCount, 5);
    EXPECT_EQ(Sheet.Members().ColumnData.size(), 4U);
}

// ---- Events that a handler forwards behind its frame ---------------------------------------------------------------

namespace {

struct ForwardCase {
    std::string Label;
    std::string Event;
    std::function<void(SheetUnderTest&)> FailInBody;
};

void PrintTo(const ForwardCase& forward, std::ostream* out)
{
    *out << forward.Label;
}

void Tell(SheetUnderTest& sheet, ChildEvent event)
{
    SheetProbe(*sheet).Raise(Child::MSFlexGrid1, event);
}

/// Enters a cell as the user does, and makes the member fail behind that.
void EnterThenFail(SheetUnderTest& sheet, std::int32_t col, std::u16string_view member)
{
    sheet.Hand.Click(1, col);
    sheet.Heard.clear();
    sheet.Calls->FailAtMember(member, 7);
}

const std::vector<ForwardCase>& Forwards()
{
    using Test = SheetUnderTest;
    static const std::vector<ForwardCase> cases{
        {"Text1_Change", "EditorChange",
         [](Test& s) {
             EnterThenFail(s, 1, u"MSFlexGrid1.TextMatrix");
             s.Type(u"a");
         }},
        {"DTPicker1_Change", "EditorChange",
         [](Test& s) {
             EnterThenFail(s, 2, u"MSFlexGrid1.TextMatrix");
             s.Press(keyUp);
         }},
        {"RichTextBox1_Change", "EditorChange",
         [](Test& s) {
             EnterThenFail(s, 3, u"MSFlexGrid1.TextMatrix");
             s.Type(u"a");
         }},
        {"Text1_KeyDown", "KeyDown",
         [](Test& s) {
             EnterThenFail(s, 1, u"Text1.Visible");
             s.Press(keyEnter);
         }},
        {"DTPicker1_KeyDown", "KeyDown",
         [](Test& s) {
             EnterThenFail(s, 2, u"DTPicker1.Visible");
             s.Press(keyEnter);
         }},
        {"MSFlexGrid1_KeyDown", "KeyDown",
         [](Test& s) {
             s->EnterCell += [] { throw Failure(7, u"", u""); };
             EventArguments arguments;
             arguments.KeyCode = keyF2;
             SheetProbe(*s).Raise(Child::MSFlexGrid1, ChildEvent::KeyDown, arguments);
         }},
        {"MSFlexGrid1_EnterCell", "EnterCell",
         [](Test& s) {
             s.Calls->FailAtMember(u"MSFlexGrid1.Row", 7);
             Tell(s, ChildEvent::EnterCell);
         }},
        {"MSFlexGrid1_MouseDown", "MouseDown",
         [](Test& s) {
             s.Calls->FailAtMember(u"MSFlexGrid1.ColWidth", 7);
             Tell(s, ChildEvent::MouseDown);
         }},
        {"MSFlexGrid1_RowColChange", "RowColChange",
         [](Test& s) {
             s.Calls->FailAtMember(u"MSFlexGrid1.Row", 7);
             Tell(s, ChildEvent::RowColChange);
         }},
        {"MSFlexGrid1_Scroll", "Scroll",
         [](Test& s) {
             s.Calls->FailAtMember(u"Text1.Enabled", 7);
             Tell(s, ChildEvent::Scroll);
         }},
        {"MSFlexGrid1_SelChange", "SelChange",
         [](Test& s) {
             s.Calls->FailAtMember(u"MSFlexGrid1.Row", 7);
             Tell(s, ChildEvent::SelChange);
         }},
    };
    return cases;
}

class TrailingForward : public Frames, public testing::WithParamInterface<ForwardCase> {};

} // namespace

TEST_P(TrailingForward, ComesBehindTheReportOfAFailure)
{
    Lines heard;
    GetParam().FailInBody(Sheet);
    heard = Sheet.TakeEvents();

    EXPECT_EQ(Labels(heard), Lines{GetParam().Label});
    Lines names = heard;
    for (std::string& name : names)
        name = name.substr(0, name.find(' '));
    const std::size_t box = PlaceOf(names, "box");
    ASSERT_LT(box + 2, names.size());
    EXPECT_EQ(names.at(box + 1), "ErrInfo");
    EXPECT_EQ(names.at(box + 2), GetParam().Event);
}

TEST_P(TrailingForward, IsLostWhenTheHostFailsInTheReport)
{
    Sheet->ErrInfo += [](auto&&...) { throw Failure(1400, u"", u""); };
    try {
        GetParam().FailInBody(Sheet);
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 1400);
    }
    const Lines names = Sheet.TakeEventNames();
    const std::size_t report = PlaceOf(names, "ErrInfo");
    ASSERT_LT(report, names.size());
    EXPECT_EQ(PlaceOf(Lines(names.begin() + static_cast<std::ptrdiff_t>(report), names.end()), GetParam().Event),
              names.size() - report);
}

INSTANTIATE_TEST_SUITE_P(Of, TrailingForward, testing::ValuesIn(Forwards()),
                         [](const auto& forward) { return forward.param.Label; });

// ---- Procedures that pass over failures, and procedures without a frame ---------------------------------------------

TEST_F(Frames, LossOfFocusWithoutAColumn_IsSilentForTextPickerAndRichText)
{
    Probe.Members().CurrentCol = 0;
    for (const Child child : {Child::Text1, Child::DTPicker1, Child::RichTextBox1}) {
        Probe.Raise(child, ChildEvent::LostFocus);
        EXPECT_EQ(Sheet.TakeEvents(), Lines{});
    }
    Probe.Raise(Child::Check1, ChildEvent::LostFocus);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"Check1_LostFocus"});
}

TEST_F(Frames, PickerClickAndCloseUp_GoOnBehindAFailingHandlerOfTheChange)
{
    Sheet->EditorChange += [] { throw Failure(1000, u"", u""); };
    Probe.Raise(Child::DTPicker1, ChildEvent::Click);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorChange", "Click"}));
    Probe.Raise(Child::DTPicker1, ChildEvent::CloseUp);
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{"EditorChange", "DateBoxCloseUp"}));
}

TEST_F(Frames, PickerClickAndCloseUp_PassOverAFailureOfTheirOwnEvent)
{
    Sheet->Click += [] { throw Failure(1000, u"", u""); };
    Sheet->DateBoxCloseUp += [] { throw Failure(1000, u"", u""); };
    EXPECT_NO_THROW(Probe.Raise(Child::DTPicker1, ChildEvent::Click));
    EXPECT_NO_THROW(Probe.Raise(Child::DTPicker1, ChildEvent::CloseUp));
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "ErrInfo"), 0);
}

TEST_F(Frames, PureForwardersOfTheGrid_LetAFailureOut)
{
    const auto fail = [](auto&&...) { throw Failure(1000, u"", u""); };
    Sheet->Compare += fail;
    Sheet->DblClick += fail;
    Sheet->KeyPress += fail;
    Sheet->KeyUp += fail;
    Sheet->MouseDown += fail;
    for (const ChildEvent event :
         {ChildEvent::Compare, ChildEvent::DblClick, ChildEvent::KeyPress, ChildEvent::KeyUp, ChildEvent::MouseUp}) {
        EXPECT_THROW(Probe.Raise(Child::MSFlexGrid1, event), Failure);
    }
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "ErrInfo"), 0);
}

TEST_F(Frames, ForwardBehindAFrame_LetsAFailureOfItsHandlerOut)
{
    Sheet->SelChange += [] { throw Failure(1000, u"", u""); };
    EXPECT_THROW(Probe.Raise(Child::MSFlexGrid1, ChildEvent::SelChange), Failure);
    EXPECT_EQ(Sheet.TakeEventNames(), Lines{"SelChange"});
}

// ---- The stack -----------------------------------------------------------------------------------------------------

TEST_F(Frames, HandlersThatStartOneAnotherWithoutEnd_EndInFailure28)
{
    Sheet->ShowErrMessage(false);
    int reports = 0;
    Sheet->ErrInfo += [&](std::int32_t number, auto&&...) { reports += number == 28 ? 1 : 0; };
    Sheet->RowColChange += [&] { Sheet->Row(Sheet->Row() == 1 ? 2 : 1); };

    EXPECT_NO_THROW(Sheet->Row(2));

    EXPECT_GE(reports, 1);
    Sheet->TextMatrix(1, 1, u"alive");
    EXPECT_EQ(Sheet->TextMatrix(1, 1), u"alive");
}

TEST_F(Frames, HostThatAnswersEachReportWithACall_IsStoppedWithoutACrash)
{
    Sheet->ShowErrMessage(false);
    int reports = 0;
    Sheet->ErrInfo += [&](auto&&...) {
        ++reports;
        Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
        Sheet->TextMatrix(1, 1);
    };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);

    EXPECT_NO_THROW(Sheet->TextMatrix(1, 1));

    EXPECT_GT(reports, 100);
}

} // namespace Tessellon
