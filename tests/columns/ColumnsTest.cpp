#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tessellon {
namespace {

class Columns : public testing::Test {
protected:
    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }
    const ColDataType& Of(std::int32_t col) { return Members.ColumnData.at(static_cast<std::size_t>(col) - 1); }
    void Declare(std::int32_t col, std::u16string_view heading)
    {
        Sheet->CreateColumnDataType(col, heading, fcRichTextBox, u"set", true, fcRight, 7, faContent, true);
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

void ExpectBlank(const ColDataType& column)
{
    EXPECT_EQ(column.cdColName, u"");
    EXPECT_EQ(column.cdObjectIndex, 0);
    EXPECT_EQ(column.cdControlType, fcNil);
    EXPECT_EQ(column.cdControlSettingString, u"");
    EXPECT_EQ(column.cdControlIndex, 0);
    EXPECT_FALSE(column.cdHidden);
    EXPECT_EQ(static_cast<int>(column.cdAlign), 0);
    EXPECT_EQ(column.cdMaxLength, 0);
    EXPECT_EQ(column.cdAutoAdjust, faNil);
    EXPECT_FALSE(column.cdUseMask);
}

void ExpectDefault(const ColDataType& column, std::int32_t objectIndex)
{
    ColDataType likeBlank = column;
    EXPECT_EQ(column.cdAlign, fcLeft);
    EXPECT_EQ(column.cdObjectIndex, objectIndex);
    likeBlank.cdAlign = FieldControlAlign{};
    likeBlank.cdObjectIndex = 0;
    ExpectBlank(likeBlank);
}

} // namespace

// ---- Declaring -----------------------------------------------------------------------------------------------------

TEST_F(Columns, DeclarationGoesIntoEveryField)
{
    Sheet->Cols(3);
    Sheet->CreateColumnDataType(2, u"  Name ", fcDatePicker, u" a|b ", true, fcCenter, 12, faHeader, true);
    const ColDataType& column = Of(2);
    EXPECT_EQ(column.cdColName, u"  Name ");
    EXPECT_EQ(column.cdControlType, fcDatePicker);
    EXPECT_EQ(column.cdControlSettingString, u"a|b");
    EXPECT_TRUE(column.cdHidden);
    EXPECT_EQ(column.cdAlign, fcCenter);
    EXPECT_EQ(column.cdMaxLength, 12);
    EXPECT_EQ(column.cdAutoAdjust, faHeader);
    EXPECT_TRUE(column.cdUseMask);
    ExpectBlank(Of(1));
}

TEST_F(Columns, DeclarationTouchesNoGridAndNoEditor)
{
    Sheet->Cols(3);
    EXPECT_EQ(CallsOf([&] { Declare(1, u"A"); }), Lines{});
}

TEST_F(Columns, DeclarationBeforeThereAreColumns_IsIgnored)
{
    Declare(1, u"A");
    ExpectDefault(Of(1), 1);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Columns, DeclarationOutsideTheColumns_IsIgnored)
{
    Sheet->Cols(3);
    for (const std::int32_t col : {0, -1, 3, std::numeric_limits<std::int32_t>::max()})
        Declare(col, u"A");
    ExpectBlank(Of(1));
    ExpectBlank(Of(2));
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

TEST_F(Columns, LastDeclarable_IsOneBelowTheNumberOfColumns)
{
    Sheet->Cols(3);
    Declare(3, u"beyond");
    Declare(2, u"last");
    EXPECT_EQ(Of(2).cdColName, u"last");
    EXPECT_EQ(Sheet->ColumnHeader(3), u"");
    EXPECT_EQ(Sheet->Cols(), 3);
}

TEST_F(Columns, SettingOfBlanks_IsEmpty)
{
    Sheet->Cols(2);
    Sheet->CreateColumnDataType(1, u"A", fcComboBox, u"   ", false, fcLeft, 0, faNil, false);
    EXPECT_EQ(Of(1).cdControlSettingString, u"");
    Sheet->CreateColumnDataType(1, u"A", fcComboBox, {}, false, fcLeft, 0, faNil, false);
    EXPECT_EQ(Of(1).cdControlSettingString, u"");
}

TEST_F(Columns, KindAndAlignmentThatAreNone_AreStored)
{
    Sheet->Cols(2);
    Sheet->CreateColumnDataType(1, u"A", static_cast<FieldControlType>(77), u"", false,
                                static_cast<FieldControlAlign>(-5), 0, static_cast<FieldAutoAdjustType>(9), false);
    EXPECT_EQ(static_cast<int>(Of(1).cdControlType), 77);
    EXPECT_EQ(static_cast<int>(Of(1).cdAlign), -5);
    EXPECT_EQ(static_cast<int>(Of(1).cdAutoAdjust), 9);
}

TEST_F(Columns, CombosWithATextColumnBetween_AreTheFirstTwoInstances)
{
    Sheet->Cols(4);
    Sheet.Column(1, fcComboBox, u"a");
    Sheet.Column(2, fcTextBox);
    Sheet.Column(3, fcComboBox, u"b");
    Sheet->BuildGridColumns();
    EXPECT_EQ(Of(1).cdControlIndex, 0);
    EXPECT_EQ(Of(3).cdControlIndex, 1);
    EXPECT_EQ(Sheet.Platform->Combo1().Count(), 2);
}

TEST_F(Columns, MaskLongerThanTheField_SetsTheLengthOfMaskedColumnsAlone)
{
    Sheet->Cols(2);
    const auto lengthOf = [&](FieldControlType kind, std::int32_t length) {
        Sheet->CreateColumnDataType(1, u"A", kind, u"  ###-##-##  ", false, fcLeft, length, faNil, true);
        return Of(1).cdMaxLength;
    };
    EXPECT_EQ(lengthOf(fcMaskedEditBox, 3), 9);
    EXPECT_EQ(lengthOf(fcMaskedEditBox, 9), 9);
    EXPECT_EQ(lengthOf(fcMaskedEditBox, 20), 20);
    EXPECT_EQ(lengthOf(fcTextBox, 3), 3);
    EXPECT_EQ(lengthOf(fcComboBox, -4), -4);
}

TEST_F(Columns, DeclarationAgain_KeepsObjectAndInstanceIndex)
{
    Sheet->Cols(3);
    Sheet.Column(1, fcComboBox, u"a");
    Sheet.Column(2, fcComboBox, u"b");
    Sheet->BuildGridColumns();
    Declare(2, u"Again");
    EXPECT_EQ(Of(2).cdControlIndex, 1);
    EXPECT_EQ(Of(2).cdObjectIndex, 2);
}

TEST_F(Columns, Enumerations_HaveTheirNumbers)
{
    const std::vector<int> kinds{fcNil,        fcTextBox,       fcCheckBox,    fcComboBox,     fcListBox,
                                 fcDatePicker, fcMaskedEditBox, fcRichTextBox, fcCommandButton};
    for (std::size_t i = 0; i < kinds.size(); ++i)
        EXPECT_EQ(kinds[i], static_cast<int>(i));
    EXPECT_EQ(static_cast<int>(fcLeft), 1);
    EXPECT_EQ(static_cast<int>(fcCenter), 2);
    EXPECT_EQ(static_cast<int>(fcRight), 3);
    EXPECT_EQ(static_cast<int>(faNil), 0);
    EXPECT_EQ(static_cast<int>(faHeader), 1);
    EXPECT_EQ(static_cast<int>(faContent), 2);
}

// ---- Headings ------------------------------------------------------------------------------------------------------

TEST_F(Columns, HeadingIsReadTrimmedAndKeptAsItStands)
{
    Sheet->Cols(3);
    Declare(1, u"  two words ");
    EXPECT_EQ(Sheet->ColumnHeader(1), u"two words");
    EXPECT_EQ(Of(1).cdColName, u"  two words ");
}

TEST_F(Columns, HeadingOutsideTheColumns_IsEmpty)
{
    Sheet->Cols(3);
    Declare(1, u"A");
    Declare(2, u"B");
    Sheet.Platform->MSFlexGrid1().TextMatrix(0, 0, u"corner");
    for (const std::int32_t col : {0, -1, 3, 4})
        EXPECT_EQ(Sheet->ColumnHeader(col), u"") << col;
    EXPECT_EQ(Sheet->ColumnHeader(2), u"B");
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
}

// ---- The number of columns -----------------------------------------------------------------------------------------

TEST_F(Columns, NumberOfColumnsNotAboveNought_IsIgnored)
{
    Sheet->Cols(3);
    EXPECT_EQ(CallsOf([&] {
                  Sheet->Cols(0);
                  Sheet->Cols(-2);
              }),
              Lines{});
    EXPECT_EQ(Members.ColumnBound, 2);
}

TEST_F(Columns, NumberOfColumns_SetsBoundGridAndCount)
{
    EXPECT_EQ(CallsOf([&] { Sheet->Cols(4); }), Lines{"MSFlexGrid1.Cols=4"});
    EXPECT_EQ(Members.ColumnBound, 3);
    EXPECT_EQ(Members.ColCount, 4);
    ASSERT_EQ(Members.ColumnData.size(), 3U);
    for (const ColDataType& column : Members.ColumnData)
        ExpectBlank(column);
}

TEST_F(Columns, SameNumberOfColumns_RepaintsAndKeepsTheDescriptors)
{
    Sheet.Build({fcTextBox, fcTextBox}, 2);
    const ColDataType* const first = Members.ColumnData.data();
    const Lines calls = CallsOf([&] { Sheet->Cols(3); });
    EXPECT_EQ(calls.front(), "MSFlexGrid1.Cols=3");
    EXPECT_EQ(Only(calls, {"MSFlexGrid1.CellBackColor"}).size(), 2U);
    EXPECT_EQ(Members.ColumnData.data(), first);
}

TEST_F(Columns, SameNumberOfColumns_DoesNotReachForTheDescriptors)
{
    Sheet->Cols(3);
    Members.ColumnData.resize(1);
    Sheet->Cols(3);
    EXPECT_EQ(Sheet.TakeEvents(), Lines{});
    EXPECT_EQ(Members.ColumnData.size(), 1U);
}

TEST_F(Columns, RepaintBehindTheNumberOfColumns_LeavesTheCursorOnTheFirstCell)
{
    Sheet.Build({fcTextBox, fcTextBox}, 3);
    Sheet->Row(3);
    Sheet->Cols(4);
    EXPECT_EQ(Sheet.Platform->TheGrid().Row(), 1);
    EXPECT_EQ(Sheet.Platform->TheGrid().Col(), 1);
}

// ---- Descriptors anew ----------------------------------------------------------------------------------------------

TEST_F(Columns, FirstState_IsOneDescriptorOfDefaults)
{
    Sheet->Cols(4);
    Declare(1, u"A");
    Members.ColumnBound = 0;
    Probe.InitializeArray();
    ASSERT_EQ(Members.ColumnData.size(), 1U);
    ExpectDefault(Of(1), 1);
}

TEST_F(Columns, FirstStateOfSeveral_FillsTheFirstAlone)
{
    Members.ColumnBound = 2;
    Probe.InitializeArray();
    ASSERT_EQ(Members.ColumnData.size(), 3U);
    ExpectDefault(Of(1), 1);
    ExpectBlank(Of(2));
    ExpectBlank(Of(3));
}

TEST_F(Columns, MoreDescriptors_KeepTheOldAndAddDefaults)
{
    Sheet->Cols(4);
    for (std::int32_t col = 1; col <= 3; ++col)
        Declare(col, u"A");
    Members.ColumnData[2].cdControlIndex = 5;
    Probe.ReConstructArray(3, 5);
    ASSERT_EQ(Members.ColumnData.size(), 5U);
    for (std::int32_t col = 1; col <= 3; ++col) {
        EXPECT_EQ(Of(col).cdColName, u"A");
        EXPECT_EQ(Of(col).cdControlSettingString, u"set");
        EXPECT_TRUE(Of(col).cdHidden);
    }
    EXPECT_EQ(Of(3).cdControlIndex, 5);
    ExpectDefault(Of(4), 4);
    ExpectDefault(Of(5), 5);
}

TEST_F(Columns, FewerDescriptors_DropTheLast)
{
    Sheet->Cols(6);
    for (std::int32_t col = 1; col <= 5; ++col)
        Declare(col, u"A" + std::u16string(1, static_cast<char16_t>(u'0' + col)));
    Probe.ReConstructArray(5, 3);
    ASSERT_EQ(Members.ColumnData.size(), 3U);
    EXPECT_EQ(Of(1).cdColName, u"A1");
    EXPECT_EQ(Of(2).cdColName, u"A2");
    EXPECT_EQ(Of(3).cdColName, u"A3");
}

TEST_F(Columns, SameNumberOfDescriptors_KeepsThem)
{
    Sheet->Cols(2);
    Declare(1, u"A");
    Probe.ReConstructArray(1, 1);
    ASSERT_EQ(Members.ColumnData.size(), 1U);
    EXPECT_EQ(Of(1).cdColName, u"A");
}

TEST_F(Columns, DescriptorsFromNothing_AreBlankFromTwoOn)
{
    Members.ColumnData[0].cdColName = u"first";
    Probe.ReConstructArray(0, 1);
    ASSERT_EQ(Members.ColumnData.size(), 1U);
    EXPECT_EQ(Of(1).cdColName, u"first");
    Probe.ReConstructArray(-1, 0);
    EXPECT_EQ(Members.ColumnData.size(), 1U);
    Probe.ReConstructArray(0, 4);
    ASSERT_EQ(Members.ColumnData.size(), 4U);
    for (const ColDataType& column : Members.ColumnData)
        ExpectBlank(column);
}

TEST_F(Columns, DescriptorsToNothing_StayAsTheyAre)
{
    Sheet->Cols(3);
    Declare(1, u"A");
    Declare(2, u"B");
    Probe.ReConstructArray(2, 0);
    ASSERT_EQ(Members.ColumnData.size(), 2U);
    EXPECT_EQ(Of(2).cdColName, u"B");
}

TEST_F(Columns, FirstOfTheColumnsThatWereGivenUp_IsTakenUpByOneColumnButNotByMore)
{
    Sheet->Cols(4);
    Declare(1, u"A");
    Sheet->Cols(1);
    Sheet->Cols(2);
    EXPECT_EQ(Sheet->ColumnHeader(1), u"A");
    Sheet->Cols(1);
    Sheet->Cols(3);
    EXPECT_EQ(Sheet->ColumnHeader(1), u"");
    ExpectBlank(Of(1));
}

TEST_F(Columns, DescriptorsLeftOver_AreNotTakenUpAgain)
{
    Sheet->Cols(4);
    for (std::int32_t col = 1; col <= 3; ++col)
        Declare(col, u"A");
    Probe.ReConstructArray(1, 3);
    EXPECT_EQ(Of(1).cdColName, u"A");
    ExpectDefault(Of(2), 2);
    ExpectDefault(Of(3), 3);
}

TEST_F(Columns, OldNumberBeyondTheDescriptors_FailsAndLeavesThem)
{
    Sheet->ShowErrMessage(false);
    Probe.ReConstructArray(2, 5);
    EXPECT_TRUE(Sheet.TakeEvents().front().starts_with("ErrInfo ErrNum=9 "));
    EXPECT_EQ(Members.ColumnData.size(), 1U);
}

// ---- Labels --------------------------------------------------------------------------------------------------------

TEST_F(Columns, FailuresBearTheNameOfTheirProcedure)
{
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.Cols", 7);
    Sheet->Cols(5);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"ColsProperty"});

    Probe.ReConstructArray(9, 10);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"ReConstructArray"});

    Members.ColumnBound = 9;
    Declare(9, u"A");
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"CreateColumnDataTypeProperty"});

    Members.ColCount = 9;
    EXPECT_EQ(Sheet->ColumnHeader(8), u"");
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"ColumnHeaderProperty"});

    Members.ColumnBound = -1;
    Probe.InitializeArray();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"InitializeArray"});
}

} // namespace Tessellon
