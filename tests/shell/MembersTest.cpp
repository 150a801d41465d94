#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <type_traits>

namespace Tessellon {
namespace {

/// A sheet as it stands when it was made: no saved properties were read.
class NewSheet : public testing::Test {
protected:
    SheetPointer Sheet = TessellonSheet::Create(
        std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English()));
    const SheetMembers& Members = Sheet->Members();
};

template <class Member>
const void* Place(const Member& member)
{
    return &member;
}

} // namespace

TEST_F(NewSheet, HasNoEditorAndNoRecordset)
{
    EXPECT_EQ(Members.ActiveEditor, nullptr);
    EXPECT_EQ(Members.BoundRecordset, nullptr);
}

TEST_F(NewSheet, CountsItsEditorsFromOne)
{
    EXPECT_EQ(Members.NextComboIndex, 1);
    EXPECT_EQ(Members.NextMaskIndex, 1);
    EXPECT_EQ(Members.NextListIndex, 1);
    EXPECT_EQ(Members.NextCommandIndex, 1);
}

TEST_F(NewSheet, HasOneColumnDescriptorAndNoDataColumn)
{
    ASSERT_EQ(Members.ColumnData.size(), 1U);
    EXPECT_EQ(Members.ColumnData[0].cdAlign, fcLeft);
    EXPECT_EQ(Members.ColumnData[0].cdObjectIndex, 1);
    EXPECT_EQ(Members.ColumnBound, 0);
    EXPECT_FALSE(Members.ColumnsDeclared);
}

TEST_F(NewSheet, WritesDatesAsDayMonthYear)
{
    EXPECT_EQ(Members.DateFormatText, u"dd/MM/yyyy");
}

TEST_F(NewSheet, HasNoDimensionsWithoutSavedProperties)
{
    for (const float dimension :
         {Members.DefaultRowHeight, Members.DefaultColWidth, Members.InitialRowHeight, Members.InitialColWidth,
          Members.HeaderRowHeight, Members.ControlWidth, Members.ControlHeight}) {
        EXPECT_EQ(dimension, 0.0F);
    }
    EXPECT_EQ(Members.VisibleRows, 0);
}

TEST_F(NewSheet, PaintsEvenRowsCyanAndOddOnesAsInformation)
{
    EXPECT_EQ(Members.SectionColors[0], 0x00FFFF00);
    EXPECT_EQ(Members.SectionColors[1], static_cast<std::int32_t>(0x80000018));
}

TEST_F(NewSheet, HasNoMarkerNoLastCellAndNoFirstColumns)
{
    EXPECT_EQ(Members.MarkerRow, -1);
    EXPECT_EQ(Members.LastCol, -1);
    EXPECT_EQ(Members.LastRow, -1);
    EXPECT_EQ(Members.FirstEditableCol, -1);
    EXPECT_EQ(Members.FirstVisibleCol, -1);
}

TEST_F(NewSheet, MirrorsAGridOfOneCell)
{
    EXPECT_EQ(Members.RowCount, 1);
    EXPECT_EQ(Members.ColCount, 1);
    EXPECT_EQ(Members.CurrentRow, 0);
    EXPECT_EQ(Members.CurrentCol, 0);
}

TEST_F(NewSheet, HasAllFlagsDownButThatOfTheMaskedCell)
{
    EXPECT_TRUE(Members.MaskCellHadText);
    for (const bool flag :
         {Members.EditorLoading,      Members.AllowAddNewFlag,   Members.ShowEditorRequest,   Members.HideEditorRequest,
          Members.ListKeyHandled,     Members.AdvancingCell,     Members.SkipEnterCell,       Members.ColumnsDeclared,
          Members.ScrollRightPending, Members.ScrollDownPending, Members.GridReady,           Members.Terminating,
          Members.CommandActivated,   Members.GridClickPending,  Members.GridRowClickPending, Members.AdvancePending,
          Members.LoadingRecordset,   Members.RefreshingColors,  Members.GridScrolled,        Members.GridClicked,
          Members.AddingRows}) {
        EXPECT_FALSE(flag);
    }
}

TEST_F(NewSheet, HasAllOtherNumbersAtNought)
{
    for (const std::int32_t number : {Members.ComboFocusCol, Members.ComboPreviousIndex, Members.LastLeaveCol,
                                      Members.PendingTopRow, Members.PreviousMarkerRow}) {
        EXPECT_EQ(number, 0);
    }
    EXPECT_EQ(Members.MaskBuffer, u"");
}

TEST_F(NewSheet, ReportsByTheBoxAndRaisesNothing)
{
    EXPECT_TRUE(Sheet->ShowErrMessage());
    EXPECT_FALSE(Sheet->RaiseError());
}

TEST_F(NewSheet, SetsTheFlagsOfAllSheetsOfTheThread)
{
    Sheet->RaiseError(true);
    Sheet->ShowErrMessage(false);

    const SheetPointer second = TessellonSheet::Create(
        std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English()));

    EXPECT_FALSE(Sheet->RaiseError());
    EXPECT_TRUE(Sheet->ShowErrMessage());
    second->RaiseError(true);
    EXPECT_TRUE(Sheet->RaiseError());
}

TEST_F(NewSheet, OnAnotherThread_LeavesTheFlagsOfThisOne)
{
    Sheet->RaiseError(true);
    Sheet->ShowErrMessage(false);
    std::thread([] {
        const SheetPointer other = TessellonSheet::Create(
            std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English()));
        EXPECT_FALSE(other->RaiseError());
        EXPECT_TRUE(other->ShowErrMessage());
    }).join();
    EXPECT_TRUE(Sheet->RaiseError());
    EXPECT_FALSE(Sheet->ShowErrMessage());
}

// Reports of defects show the members in this order.
TEST_F(NewSheet, KeepsItsMembersInTheOrderOfTheTable)
{
    const SheetMembers& m = Members;
    const std::vector<const void*> places{Place(m.ActiveEditor),
                                          Place(m.NextComboIndex),
                                          Place(m.NextMaskIndex),
                                          Place(m.NextListIndex),
                                          Place(m.NextCommandIndex),
                                          Place(m.ColumnData),
                                          Place(m.EditorLoading),
                                          Place(m.DateFormatText),
                                          Place(m.BoundRecordset),
                                          Place(m.ColumnBound),
                                          Place(m.AllowAddNewFlag),
                                          Place(m.ComboFocusCol),
                                          Place(m.DefaultRowHeight),
                                          Place(m.DefaultColWidth),
                                          Place(m.InitialRowHeight),
                                          Place(m.InitialColWidth),
                                          Place(m.ShowEditorRequest),
                                          Place(m.ComboPreviousIndex),
                                          Place(m.HideEditorRequest),
                                          Place(m.LastLeaveCol),
                                          Place(m.ListKeyHandled),
                                          Place(m.SectionColors),
                                          Place(m.MarkerRow),
                                          Place(m.AdvancingCell),
                                          Place(m.VisibleRows),
                                          Place(m.ControlWidth),
                                          Place(m.ControlHeight),
                                          Place(m.SkipEnterCell),
                                          Place(m.CurrentCol),
                                          Place(m.CurrentRow),
                                          Place(m.RowCount),
                                          Place(m.ColCount),
                                          Place(m.ColumnsDeclared),
                                          Place(m.PendingTopRow),
                                          Place(m.ScrollRightPending),
                                          Place(m.ScrollDownPending),
                                          Place(m.GridReady),
                                          Place(m.LastCol),
                                          Place(m.LastRow),
                                          Place(m.Terminating),
                                          Place(m.MaskCellHadText),
                                          Place(m.FirstEditableCol),
                                          Place(m.FirstVisibleCol),
                                          Place(m.MaskBuffer),
                                          Place(m.CommandActivated),
                                          Place(m.GridClickPending),
                                          Place(m.GridRowClickPending),
                                          Place(m.AdvancePending),
                                          Place(m.PreviousMarkerRow),
                                          Place(m.LoadingRecordset),
                                          Place(m.HeaderRowHeight),
                                          Place(m.RefreshingColors),
                                          Place(m.GridScrolled),
                                          Place(m.GridClicked),
                                          Place(m.AddingRows)};
    EXPECT_EQ(places.size(), 55U);
    EXPECT_TRUE(std::is_sorted(places.begin(), places.end(), std::less<const void*>()));
}

TEST_F(NewSheet, KeepsItsMembersInTheirWidths)
{
    static_assert(std::is_same_v<decltype(Members.NextComboIndex), std::int16_t>);
    static_assert(std::is_same_v<decltype(Members.NextMaskIndex), std::int16_t>);
    static_assert(std::is_same_v<decltype(Members.NextListIndex), std::int16_t>);
    static_assert(std::is_same_v<decltype(Members.NextCommandIndex), std::int16_t>);
    static_assert(std::is_same_v<decltype(Members.DefaultRowHeight), float>);
    static_assert(std::is_same_v<decltype(Members.ControlHeight), float>);
    static_assert(std::is_same_v<decltype(Members.HeaderRowHeight), float>);
    static_assert(std::is_same_v<decltype(Members.SectionColors), std::array<std::int32_t, 2>>);
    static_assert(std::is_same_v<decltype(Members.ComboPreviousIndex), std::int32_t>);
    static_assert(std::is_same_v<decltype(POINTAPI::x), std::int32_t>);
    static_assert(std::is_same_v<decltype(POINTAPI::y), std::int32_t>);
    SUCCEED();
}

} // namespace Tessellon
