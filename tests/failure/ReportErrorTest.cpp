#include "failure/FailureRecord.h"
#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Tessellon {
namespace {

constexpr std::string_view opening = "box Critical error occurs at 15/03/2024 in function ";

std::string Box(std::string_view procedure, std::string_view rest)
{
    return std::string(opening) + std::string(procedure) + " of module TessellonSheet\r\n" + std::string(rest);
}

std::string ErrInfo(int number, std::string_view first, std::string_view second, std::string_view helpFile = "",
                    int helpContext = 0)
{
    return "ErrInfo ErrNum=" + std::to_string(number) + " ErrSource=\"" + std::string(first) + "\" ErrDesc=\"" +
           std::string(second) + "\" ErrHelpFile=\"" + std::string(helpFile) + "\" ErrHelpContext=\"" +
           std::to_string(helpContext) + '"';
}

const std::string emptyErrInfo = ErrInfo(0, "", "");
const std::string invalidRaise = ErrInfo(5, "Invalid procedure call or argument", "");
const std::string outOfMemoryBox = Box("TextMatrixProperty", "Error Number \t : 7\r\n"
                                                             "Description\t : Out of memory\r\n"
                                                             "Source\t : MSFlexGrid1");

/// A source of records whose first move fails with all that a failure can carry.
class FailingRecords : public TestRecordset {
public:
    FailingRecords()
    {
        constexpr std::int32_t adVarWChar = 202;
        Types = {adVarWChar};
        Records = {{{.Kind = Value::Kind::Text, .Text = u"a"}}};
    }
    void MoveFirst() override { throw Failure(1234, u"  Provider ", u"  no line  ", u"db.hlp", 42); }
};

class Report : public testing::Test {
protected:
    Report() { Sheet.Build({fcTextBox}, 2); }

    void FailInTextMatrix()
    {
        Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
        EXPECT_EQ(Sheet->TextMatrix(1, 1), u"");
    }
    void FailInLoad() { Sheet->DataSource(std::make_shared<FailingRecords>(), Connection); }

    SheetUnderTest Sheet;
    std::shared_ptr<TestConnection> Connection = std::make_shared<TestConnection>();
};

ProviderError Entry(std::int32_t number, std::u16string description, std::u16string source, std::int32_t native,
                    std::u16string state)
{
    return {.Number = number,
            .Description = std::move(description),
            .Source = std::move(source),
            .NativeError = native,
            .SQLState = std::move(state),
            .HelpFile = u"p.hlp",
            .HelpContext = 9};
}

struct FlagsCase {
    const char* Name;
    bool Show;
    bool Raise;
    Lines Heard;
};

void PrintTo(const FlagsCase& flags, std::ostream* out)
{
    *out << flags.Name;
}

class ReportFlags : public Report, public testing::WithParamInterface<FlagsCase> {};

} // namespace

// With the box shown the host gets the record as the box's routine left it: empty, or with the raise that failed.
TEST_P(ReportFlags, DecideWhatIsShownAndTold)
{
    Sheet->ShowErrMessage(GetParam().Show);
    Sheet->RaiseError(GetParam().Raise);

    EXPECT_NO_THROW(FailInTextMatrix());

    EXPECT_EQ(Sheet.TakeEvents(), GetParam().Heard);
}

INSTANTIATE_TEST_SUITE_P(
    All, ReportFlags,
    testing::Values(FlagsCase{"Silent", false, false, {ErrInfo(7, "Out of memory", "MSFlexGrid1")}},
                    FlagsCase{"SilentRaising", false, true, {ErrInfo(7, "Out of memory", "MSFlexGrid1")}},
                    FlagsCase{"Shown", true, false, {outOfMemoryBox, emptyErrInfo}},
                    FlagsCase{"ShownRaising", true, true, {invalidRaise}}),
    [](const auto& flags) { return flags.param.Name; });

TEST_F(Report, ByDefault_ShowsTheBoxAndThenTellsAnEmptyRecord)
{
    FailInTextMatrix();
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{outOfMemoryBox, emptyErrInfo}));
}

TEST_F(Report, WithoutTheBox_TellsTheFailureWithDescriptionAndSourceCrossed)
{
    Sheet->ShowErrMessage(false);
    FailInTextMatrix();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{ErrInfo(7, "Out of memory", "MSFlexGrid1")});
}

TEST_F(Report, RaisingWithoutTheBox_ChangesNothing)
{
    Sheet->ShowErrMessage(false);
    FailInTextMatrix();
    const Lines heard = Sheet.TakeEvents();
    Sheet->RaiseError(true);
    FailInTextMatrix();
    EXPECT_EQ(Sheet.TakeEvents(), heard);
}

TEST_F(Report, RaisingInPlaceOfTheBox_ShowsNoneAndTheCallReturns)
{
    Sheet->RaiseError(true);
    EXPECT_NO_THROW(FailInTextMatrix());
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "box"), 0);
}

TEST_F(Report, LeavesTheRecordEmpty)
{
    Sheet->ShowErrMessage(false);
    FailInTextMatrix();
    EXPECT_EQ(ThreadFailureRecord().Number, 0);
    EXPECT_EQ(ThreadFailureRecord().Source, u"");
    EXPECT_EQ(ThreadFailureRecord().Description, u"");
}

TEST_F(Report, StillHoldsTheFailureInTheRecordWhileTheHostIsTold)
{
    Sheet->ShowErrMessage(false);
    std::int32_t inside = 0;
    Sheet->ErrInfo += [&](auto&&...) { inside = ThreadFailureRecord().Number; };
    FailInTextMatrix();
    EXPECT_EQ(inside, 7);
}

TEST_F(Report, BoxHasTheCriticalIconAndOneButton)
{
    class StyleToolkit : public HeadlessToolkit {
    public:
        void MessageBox(std::u16string_view, std::int16_t style) override { Style = style; }
        std::int16_t Style = 0;
    };
    const auto toolkit = std::make_shared<StyleToolkit>();
    const auto journal = std::make_shared<Journal>(std::make_shared<EnginePlatform>(toolkit, Locale::English()));
    const SheetPointer sheet = TessellonSheet::Create(journal);
    journal->FailAtMember(u"MSFlexGrid1.Cols", 7);

    EXPECT_EQ(sheet->Cols(), 0);

    EXPECT_EQ(toolkit->Style, 16);
}

TEST_F(Report, HelpFileAndContextReachTheHostTheContextAsDecimalText)
{
    Sheet->ShowErrMessage(false);
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{ErrInfo(1234, "  no line  ", "  Provider ", "db.hlp", 42)});
}

TEST_F(Report, BoxTrimsTheDescriptionAndLeavesTheSourceAsItStands)
{
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{Box("DataSource", "Error Number \t : 1234\r\n"
                                                           "Description\t : no line\r\n"
                                                           "Source\t :   Provider "),
                                         emptyErrInfo}));
}

TEST_F(Report, BoxThatFails_IsPassedOverAndLeavesItsFailureInTheRecord)
{
    Sheet.Toolkit->OnMessageBox = [](std::u16string_view) { throw Failure(1300, u"Desk", u"no desk"); };
    EXPECT_NO_THROW(FailInTextMatrix());
    EXPECT_EQ(Sheet.TakeEvents(), Lines{ErrInfo(1300, "no desk", "Desk")});
}

TEST_F(Report, ErrInfoHandlerThatFailsInAHostCall_ReachesTheHost)
{
    Sheet->ShowErrMessage(false);
    Sheet->ErrInfo += [](auto&&...) { throw Failure(1400, u"", u"mine"); };
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.TextMatrix", 7);
    try {
        Sheet->TextMatrix(1, 1);
        ADD_FAILURE() << "nothing came";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 1400);
        EXPECT_EQ(failure.Source, u"Host");
    }
}

TEST_F(Report, ErrInfoHandlerThatFailsInAnInnerProcedure_IsAFailureOfItsCaller)
{
    bool first = true;
    Sheet->ErrInfo += [&](auto&&...) {
        if (std::exchange(first, false))
            throw Failure(1400, u"", u"mine");
    };
    Sheet.Calls->FailAtMember(u"Text1.Visible", 7);

    Sheet->Delete(1);

    EXPECT_EQ(Labels(Sheet.TakeEvents()), (Lines{"SetAllDisable", "Delete"}));
    EXPECT_EQ(Sheet->Rows(), 3);
}

// ---- A load, with a connection ----------------------------------------------------------------------------------

TEST_F(Report, OfALoad_ListsAllErrorsOfTheConnectionInOneBoxAndTellsEach)
{
    Connection->Entries = {Entry(-1, u"first", u"S1", 11, u"HY000"), Entry(2, u" second ", u"S2", -12, u"42S02")};

    FailInLoad();

    EXPECT_EQ(Sheet.TakeEvents(),
              (Lines{Box("DataSource", " ADO Error #\t : -1\r\n"
                                       " Description\t : first\r\n"
                                       " Native Error\t : 11\r\n"
                                       " SQL Status\t : HY000\r\n"
                                       " Source\t : S1\r\n\r\n"
                                       " ADO Error #\t : 2\r\n"
                                       " Description\t :  second \r\n"
                                       " Native Error\t : -12\r\n"
                                       " SQL Status\t : 42S02\r\n"
                                       " Source\t : S2\r\n\r\n"),
                     ErrInfo(-1, "first", "S1", "p.hlp", 9), ErrInfo(2, " second ", "S2", "p.hlp", 9)}));
}

TEST_F(Report, OfALoadThatRaises_ShowsNoBoxAndTellsEachError)
{
    Sheet->RaiseError(true);
    Connection->Entries = {Entry(0, u"none", u"S", 0, u""), Entry(2, u"second", u"S2", 0, u"")};
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), (Lines{ErrInfo(0, "none", "S", "p.hlp", 9), ErrInfo(2, "second", "S2", "p.hlp", 9)}));
}

TEST_F(Report, OfALoadWithoutTheBox_TellsTheConnectionsErrorsAndNotTheFailure)
{
    Sheet->ShowErrMessage(false);
    Connection->Entries = {Entry(3, u"only", u"S", 0, u"")};
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{ErrInfo(3, "only", "S", "p.hlp", 9)});
}

TEST_F(Report, OfALoadThatRaisesErrorsThatAreGoneBehindIt_TellsTheLastOfThem)
{
    /// Tells its errors once.
    class ForgetfulConnection : public TestConnection {
    public:
        const std::vector<ProviderError>& Errors() override
        {
            told_ = std::exchange(Entries, {});
            return told_;
        }

    private:
        std::vector<ProviderError> told_;
    };
    Sheet->RaiseError(true);
    Connection = std::make_shared<ForgetfulConnection>();
    Connection->Entries = {Entry(0, u"none", u"S", 0, u""), Entry(2, u"second", u"S2", 0, u"")};
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{ErrInfo(2, "second", "S2", "p.hlp", 9)});

    Connection->Entries = {Entry(2, u"second", u"S2", 0, u""), Entry(0, u"none", u"S", 0, u"")};
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{invalidRaise});
}

TEST_F(Report, OfALoadThatRaisesWithoutErrors_TellsTheRaiseThatFailed)
{
    Sheet->RaiseError(true);
    FailInLoad();
    EXPECT_EQ(Sheet.TakeEvents(), Lines{invalidRaise});
}

TEST_F(Report, OfALoad_GoesOnBehindTheHandler)
{
    FailInLoad();
    EXPECT_EQ(Sheet.Toolkit->Pointer, 0);
    EXPECT_TRUE(Sheet.Members().LoadingRecordset);
}

TEST_F(Report, OfALoadWithoutAConnection_ReachesTheHostBehindTheBox)
{
    Connection = nullptr;
    try {
        FailInLoad();
        ADD_FAILURE() << "nothing came";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.Number, 91);
        EXPECT_EQ(failure.Source, u"TessellonSheet");
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines{Box("DataSource", "Error Number \t : 1234\r\n"
                                                          "Description\t : no line\r\n"
                                                          "Source\t :   Provider ")});
    EXPECT_EQ(Sheet.Toolkit->Pointer, 11);
}

TEST_F(Report, OfALoadWhoseConnectionFailsToTell_ShowsTheFailureAndThenReachesTheHost)
{
    class DeadConnection : public Tessellon::Connection {
    public:
        const std::vector<ProviderError>& Errors() override { throw Failure(1500, u"Wire", u"cut"); }
    };
    EXPECT_THROW(Sheet->DataSource(std::make_shared<FailingRecords>(), std::make_shared<DeadConnection>()), Failure);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"DataSource"});
}

TEST_F(Report, LoadWithoutAConnectionThatSucceeds_IsSilent)
{
    const auto records = std::make_shared<TestRecordset>();
    EXPECT_NO_THROW(Sheet->DataSource(records, nullptr));
    EXPECT_EQ(CountOf(Sheet.TakeEventNames(), "ErrInfo"), 0);
}

} // namespace Tessellon
