#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <ostream>

namespace Tessellon {
namespace {

class ControlArrays : public testing::Test {
protected:
    void Declare(const std::vector<FieldControlType>& kinds)
    {
        Sheet->Cols(static_cast<std::int32_t>(kinds.size()) + 1);
        std::int32_t col = 0;
        for (const FieldControlType kind : kinds)
            Sheet.Column(++col, kind);
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    std::int16_t IndexOf(std::int32_t col)
    {
        return Members.ColumnData.at(static_cast<std::size_t>(col - 1)).cdControlIndex;
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

TEST_F(ControlArrays, ColumnOfEachKind_FindsItsEditor)
{
    Sheet.Build({fcTextBox, fcCheckBox, fcComboBox, fcListBox, fcDatePicker, fcMaskedEditBox, fcRichTextBox,
                 fcCommandButton, fcComboBox, fcListBox, fcMaskedEditBox, fcCommandButton},
                1);
    const std::vector<std::u16string> names{u"Text1",     u"Check1",        u"Combo1(0)",     u"List1(0)",
                                            u"DTPicker1", u"MaskEdBox1(0)", u"RichTextBox1",  u"Command1(0)",
                                            u"Combo1(1)", u"List1(1)",      u"MaskEdBox1(1)", u"Command1(1)"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto editor = Probe.GetColControl(static_cast<std::int32_t>(i) + 1);
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->Name(), names[i]);
    }
}

TEST_F(ControlArrays, ColumnWithoutAnEditor_FindsNoneAndIsNoFailure)
{
    Sheet.Build({fcTextBox, fcNil}, 1);
    EXPECT_EQ(Probe.GetColControl(2), nullptr);
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ControlArrays, ColumnOutsideTheTable_IsAFailureAndHasNoEditor)
{
    Declare({fcTextBox, fcTextBox});
    EXPECT_EQ(Probe.GetColControl(0), nullptr);
    EXPECT_EQ(Probe.GetColControl(3), nullptr);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), (Lines{"GetColControl", "GetColControl"}));
}

TEST_F(ControlArrays, InstanceThatIsNotThere_IsAFailureAndNoEditor)
{
    Declare({fcComboBox});
    Members.ColumnData.at(0).cdControlIndex = 3;
    EXPECT_EQ(Probe.GetColControl(1), nullptr);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"GetColControl"});
}

TEST_F(ControlArrays, OnlyTheFourArrayKinds_AreArrays)
{
    Sheet.Build({fcTextBox, fcCheckBox, fcComboBox, fcListBox, fcDatePicker, fcMaskedEditBox, fcRichTextBox,
                 fcCommandButton, fcNil},
                1);
    const std::vector<bool> arrays{false, false, true, true, false, true, false, true, false};
    for (std::size_t i = 0; i < arrays.size(); ++i)
        EXPECT_EQ(Probe.IsArrayControl(static_cast<std::int32_t>(i) + 1), arrays[i]) << "column " << i + 1;
}

TEST_F(ControlArrays, OutsideTheColumnsOrWithoutRows_NothingIsAnArray)
{
    Sheet.Build({fcComboBox, fcComboBox}, 1);
    EXPECT_FALSE(Probe.IsArrayControl(0));
    EXPECT_FALSE(Probe.IsArrayControl(-1));
    EXPECT_FALSE(Probe.IsArrayControl(3));
    EXPECT_TRUE(Probe.IsArrayControl(2));
    for (std::int32_t SheetMembers::*count :
         {&SheetMembers::ColumnBound, &SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = Members.*count;
        Members.*count = count == &SheetMembers::ColumnBound ? 0 : 1;
        EXPECT_FALSE(Probe.IsArrayControl(1));
        Members.*count = kept;
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ControlArrays, IsArrayControlThatFails_ReportsUnderItsLabelAndIsFalse)
{
    Sheet.Build({fcComboBox}, 1);
    Members.ColumnData.clear();
    EXPECT_FALSE(Probe.IsArrayControl(1));
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"IsArrayControl"});
}

TEST_F(ControlArrays, ColumnsWithAnEditorInView_AreEditable)
{
    Sheet.Build({fcTextBox, fcNil, fcCheckBox, fcListBox}, 1);
    Members.ColumnData.at(2).cdHidden = true;
    Sheet.Platform->MSFlexGrid1().ColWidth(4, 0);
    EXPECT_TRUE(Probe.IsColEditable(1));
    EXPECT_FALSE(Probe.IsColEditable(2)) << "no editor";
    EXPECT_FALSE(Probe.IsColEditable(3)) << "hidden";
    EXPECT_FALSE(Probe.IsColEditable(4)) << "no width";
}

TEST_F(ControlArrays, ColumnThatIsNotThereOrHasNoRows_CountsAsEditable)
{
    Sheet.Build({fcNil, fcNil}, 1);
    EXPECT_TRUE(Probe.IsColEditable(0));
    EXPECT_TRUE(Probe.IsColEditable(3));
    EXPECT_FALSE(Probe.IsColEditable(2));
    for (std::int32_t SheetMembers::*count :
         {&SheetMembers::ColumnBound, &SheetMembers::RowCount, &SheetMembers::ColCount}) {
        const std::int32_t kept = Members.*count;
        Members.*count = count == &SheetMembers::ColumnBound ? 0 : 1;
        EXPECT_TRUE(Probe.IsColEditable(1));
        Members.*count = 0;
        EXPECT_TRUE(Probe.IsColEditable(1));
        Members.*count = kept;
    }
    EXPECT_EQ(Sheet.TakeEvents(), Lines());
}

TEST_F(ControlArrays, IsColEditableThatFails_ReportsUnderItsLabelAndIsTrue)
{
    Sheet.Build({fcNil}, 1);
    Sheet.Calls->FailAtMember(u"MSFlexGrid1.ColWidth", 7);
    EXPECT_TRUE(Probe.IsColEditable(1));
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"IsColEditable"});
}

struct ArrayCase {
    FieldControlType Kind;
    std::string Name;
    void (SheetProbe::*Load)(std::int32_t, std::u16string);
    void (SheetProbe::*Reset)();
    std::int16_t SheetMembers::*Counter;
    std::string LoadLabel;
    std::string ResetLabel;
    std::string Filled; ///< The call that puts the setting into an instance.
    std::string Emptied; ///< The call that empties instance 0.
};

void PrintTo(const ArrayCase& array, std::ostream* out)
{
    *out << array.Name;
}

class ArrayOfAKind : public ControlArrays, public testing::WithParamInterface<ArrayCase> {
protected:
    void Load(std::int32_t index, std::u16string setting) { (Probe.*GetParam().Load)(index, std::move(setting)); }
    void Reset() { (Probe.*GetParam().Reset)(); }
    std::int16_t& Counter() { return Members.*GetParam().Counter; }
    [[nodiscard]] std::string Instance(int index) const { return GetParam().Name + "(" + std::to_string(index) + ")"; }
};

TEST_P(ArrayOfAKind, FirstColumn_UsesTheInstanceThatIsAlwaysThere)
{
    Declare({GetParam().Kind});
    Members.ColumnData.at(0).cdControlIndex = 5;
    Load(0, u"a");
    EXPECT_EQ(Sheet.TakeCalls(), Lines{Instance(0) + GetParam().Filled});
    EXPECT_EQ(IndexOf(1), 0);
    EXPECT_EQ(Counter(), 2);
    EXPECT_FALSE(Members.EditorLoading);
}

TEST_P(ArrayOfAKind, FurtherColumns_GetInstancesOfTheirOwn)
{
    Declare({GetParam().Kind, fcTextBox, GetParam().Kind, GetParam().Kind});
    for (const std::int32_t index : {0, 2, 3})
        Load(index, u"a");
    EXPECT_EQ(Sheet.TakeCalls(),
              (Lines{Instance(0) + GetParam().Filled, GetParam().Name + ".Load(1)", Instance(1) + GetParam().Filled,
                     GetParam().Name + ".Load(2)", Instance(2) + GetParam().Filled}));
    EXPECT_EQ(IndexOf(1), 0);
    EXPECT_EQ(IndexOf(3), 1);
    EXPECT_EQ(IndexOf(4), 2);
    EXPECT_EQ(Counter(), 4);
}

TEST_P(ArrayOfAKind, Reset_DestroysAllButTheFirstFromTheTopAndEmptiesIt)
{
    Declare({GetParam().Kind, GetParam().Kind, GetParam().Kind});
    for (const std::int32_t index : {0, 1, 2})
        Load(index, u"a");
    static_cast<void>(Sheet.TakeCalls());
    Reset();
    EXPECT_EQ(Sheet.TakeCalls(), (Lines{GetParam().Name + ".Unload(2)", GetParam().Name + ".Unload(1)",
                                        Instance(0) + GetParam().Emptied}));
    EXPECT_EQ(Counter(), 1);
    EXPECT_EQ(IndexOf(3), 2) << "stale until the next load";
}

TEST_P(ArrayOfAKind, ResetOfTheOnlyInstance_DestroysNothingAndEmptiesIt)
{
    Declare({GetParam().Kind});
    Load(0, u"a");
    static_cast<void>(Sheet.TakeCalls());
    Reset();
    EXPECT_EQ(Sheet.TakeCalls(), Lines{Instance(0) + GetParam().Emptied});
    EXPECT_EQ(Counter(), 1);
}

TEST_P(ArrayOfAKind, LoadThatFails_StopsThereAndTheNextOneCannotMakeItsInstance)
{
    Declare({GetParam().Kind, GetParam().Kind});
    Load(0, u"a");
    const std::string filled = GetParam().Filled.substr(0, GetParam().Filled.find_first_of("(="));
    Sheet.Calls->FailAtMember(Utf16(Instance(1) + filled), 380);
    Load(1, u"a");
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{GetParam().LoadLabel});
    EXPECT_EQ(Counter(), 2);
    EXPECT_EQ(IndexOf(2), GetParam().Kind == fcCommandButton ? 0 : 1) << "the button's index is set behind its caption";
    EXPECT_EQ(Members.EditorLoading, GetParam().Kind == fcMaskedEditBox);
    static_cast<void>(Sheet.TakeCalls());
    Load(1, u"a");
    EXPECT_EQ(Sheet.TakeCalls(), Lines{GetParam().Name + ".Load(1)"});
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{GetParam().LoadLabel});
    EXPECT_EQ(Counter(), 2);
}

TEST_P(ArrayOfAKind, ColumnsIndex_IsSetAheadOfReachingForTheInstance)
{
    Declare({GetParam().Kind, GetParam().Kind});
    Load(0, u"a");
    Sheet.Calls->FailAtMember(Utf16(GetParam().Name + ".Item"), 7);
    Load(1, u"a");
    EXPECT_EQ(IndexOf(2), GetParam().Kind == fcCommandButton ? 0 : 1);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{GetParam().LoadLabel});
}

TEST_P(ArrayOfAKind, ResetThatFails_ReportsUnderItsLabel)
{
    Declare({GetParam().Kind, GetParam().Kind});
    Load(0, u"a");
    Load(1, u"a");
    Sheet.Calls->FailAtMember(Utf16(GetParam().Name + ".Unload"), 7);
    Reset();
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{GetParam().ResetLabel});
    EXPECT_EQ(Counter(), 1);
}

INSTANTIATE_TEST_SUITE_P(Each, ArrayOfAKind,
                         testing::Values(ArrayCase{fcComboBox, "Combo1", &SheetProbe::LoadComboState,
                                                   &SheetProbe::ResetComboState, &SheetMembers::NextComboIndex,
                                                   "LoadComboState", "ResetComboState", ".AddItem(\"a\")", ".Clear()"},
                                         ArrayCase{fcListBox, "List1", &SheetProbe::LoadListState,
                                                   &SheetProbe::ResetListState, &SheetMembers::NextListIndex,
                                                   "LoadListState", "ResetListState", ".AddItem(\"a\")", ".Clear()"},
                                         ArrayCase{fcMaskedEditBox, "MaskEdBox1", &SheetProbe::LoadMaskState,
                                                   &SheetProbe::ResetMaskState, &SheetMembers::NextMaskIndex,
                                                   "LoadMaskState", "ResetMaskState", ".Format=\"a\"", ".Mask=\"\""},
                                         ArrayCase{fcCommandButton, "Command1", &SheetProbe::LoadCommandState,
                                                   &SheetProbe::ResetCommandState, &SheetMembers::NextCommandIndex,
                                                   "LoadListState", "ResetListState", ".Caption=\"a\"",
                                                   ".Caption=\"\""}),
                         [](const auto& array) { return array.param.Name; });

TEST_F(ControlArrays, ItemsOfASetting_StandBetweenItsSeparatorsUntrimmedAndEmptyOnesToo)
{
    Declare({fcComboBox, fcListBox});
    Probe.LoadComboState(0, u" a |b||c|");
    Probe.LoadListState(1, u"|x");
    EXPECT_EQ(Sheet.TakeCalls(),
              (Lines{"Combo1(0).AddItem(\" a \")", "Combo1(0).AddItem(\"b\")", "Combo1(0).AddItem(\"\")",
                     "Combo1(0).AddItem(\"c\")", "Combo1(0).AddItem(\"\")", "List1(0).AddItem(\"\")",
                     "List1(0).AddItem(\"x\")"}));
}

TEST_F(ControlArrays, EmptySetting_GivesNoItems)
{
    Declare({fcComboBox, fcListBox});
    Probe.LoadComboState(0, u"");
    Probe.LoadListState(1, u"");
    EXPECT_EQ(Sheet.TakeCalls(), Lines());
    EXPECT_EQ(Members.NextComboIndex, 2);
    EXPECT_EQ(Members.NextListIndex, 2);
}

TEST_F(ControlArrays, CaptionOfAButton_IsTrimmed)
{
    Declare({fcCommandButton});
    Probe.LoadCommandState(0, u"  Go on ");
    EXPECT_EQ(Sheet.TakeCalls(), Lines{"Command1(0).Caption=\"Go on\""});
}

TEST_F(ControlArrays, PatternOfAMaskedBox_IsAMaskOnlyWhereTheColumnSaysSo)
{
    Declare({fcMaskedEditBox, fcMaskedEditBox});
    Members.ColumnData.at(1).cdUseMask = true;
    Probe.LoadMaskState(0, u"0.00");
    Probe.LoadMaskState(1, u"##");
    EXPECT_EQ(Sheet.TakeCalls(),
              (Lines{"MaskEdBox1(0).Format=\"0.00\"", "MaskEdBox1.Load(1)", "MaskEdBox1(1).Mask=\"##\""}));
}

TEST_F(ControlArrays, MaskThatCannotBeRead_FailsTheLoad)
{
    Declare({fcMaskedEditBox});
    Members.ColumnData.at(0).cdUseMask = true;
    Probe.LoadMaskState(0, u"##\\");
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"LoadMaskState"});
    EXPECT_EQ(Members.NextMaskIndex, 1);
    EXPECT_TRUE(Members.EditorLoading);
}

TEST_F(ControlArrays, FormatOfTheFirstMaskedBox_SurvivesAReset)
{
    Declare({fcMaskedEditBox});
    Probe.LoadMaskState(0, u"0.00");
    Sheet.Calls->MaskEdBox1().Item(0)->Mask(u"##");
    Probe.ResetMaskState();
    EXPECT_EQ(Sheet.Calls->MaskEdBox1().Item(0)->Mask(), u"");
    EXPECT_EQ(Sheet.Calls->MaskEdBox1().Item(0)->Format(), u"0.00");
}

TEST_F(ControlArrays, ResetOfAllKinds_GoesMaskComboListButton)
{
    Declare({fcTextBox});
    Probe.ResetControlState();
    EXPECT_EQ(Sheet.TakeCalls(),
              (Lines{"MaskEdBox1(0).Mask=\"\"", "Combo1(0).Clear()", "List1(0).Clear()", "Command1(0).Caption=\"\""}));
}

TEST_F(ControlArrays, FailureOfOneReset_LeavesTheOthersTheirTurn)
{
    Declare({fcTextBox});
    Sheet.Calls->FailAtMember(u"MaskEdBox1(0).Mask", 7);
    Probe.ResetControlState();
    EXPECT_EQ(Sheet.TakeCalls().back(), "Command1(0).Caption=\"\"");
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"ResetMaskState"});
}

TEST_F(ControlArrays, ColumnsBuiltAgain_HaveTheirInstancesOnce)
{
    Sheet.Build({fcComboBox, fcTextBox, fcComboBox, fcComboBox}, 1);
    Sheet->BuildGridColumns();
    EXPECT_EQ(Sheet.Calls->Combo1().Count(), 3);
    EXPECT_EQ(Members.NextComboIndex, 4);
    EXPECT_EQ(IndexOf(1), 0);
    EXPECT_EQ(IndexOf(3), 1);
    EXPECT_EQ(IndexOf(4), 2);
    EXPECT_EQ(Sheet.Platform->Combo1().Count(), 3);
}

} // namespace
} // namespace Tessellon
