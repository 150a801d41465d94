#include "engine/EnginePlatform.h"
#include "engine/Journal.h"
#include "headless/HeadlessToolkit.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Tessellon {
namespace {

using Notes = std::vector<std::u16string>;

/// A recordset of one record that knows how it was moved.
class OneRecord : public Recordset {
public:
    bool AtEnd() override { return atEnd_; }
    void MoveFirst() override { atEnd_ = false; }
    void MoveNext() override { atEnd_ = true; }
    std::int32_t FieldCount() override { return 1; }
    std::int32_t FieldType(std::int32_t /*field*/) override { return 3; }
    Value FieldValue(std::int32_t /*field*/) override { return Value::OfInteger(7); }

private:
    bool atEnd_ = false;
};

class JournalTest : public testing::Test {
protected:
    static Failure FailureOf(const std::function<void()>& call)
    {
        try {
            call();
        } catch (const Failure& failure) {
            return failure;
        }
        return {0, u"", u""};
    }

    std::shared_ptr<EnginePlatform> platform_ =
        std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English());
    std::shared_ptr<Journal> journal_ = std::make_shared<Journal>(platform_);
};

TEST_F(JournalTest, NothingIsNoted_UntilItIsAskedFor)
{
    journal_->MSFlexGrid1().Rows(3);
    EXPECT_TRUE(journal_->TakeNotes().empty());
    EXPECT_EQ(platform_->MSFlexGrid1().Rows(), 3);
}

TEST_F(JournalTest, WritesOfTheGrid_AreNotedWithTheirArguments)
{
    journal_->Notes(true);
    Grid& grid = journal_->MSFlexGrid1();
    grid.Rows(4);
    grid.TextMatrix(3, 1, u"a\"\t\u0001");
    grid.ColWidth(1, 1500);
    grid.Redraw(false);
    grid.CellBackColor(static_cast<std::int32_t>(0x80000005));
    grid.CellPicture(Picture::Arrow);
    grid.CellPicture(Picture::None);
    grid.FontSize(7.25);
    grid.SetFont({u"Sans", 8});
    EXPECT_EQ(journal_->TakeNotes(),
              (Notes{u"MSFlexGrid1.Rows=4", u"MSFlexGrid1.TextMatrix(3,1)=\"a\\\"\\t\\u{1}\"",
                     u"MSFlexGrid1.ColWidth(1)=1500", u"MSFlexGrid1.Redraw=False",
                     u"MSFlexGrid1.CellBackColor=-2147483643", u"MSFlexGrid1.CellPicture=arrow",
                     u"MSFlexGrid1.CellPicture=none", u"MSFlexGrid1.FontSize=7.25", u"MSFlexGrid1.Font=\"Sans\",8"}));
    EXPECT_TRUE(journal_->TakeNotes().empty()) << "each call is handed out once";
}

TEST_F(JournalTest, MethodsWithoutAResult_AreNotedWithParentheses)
{
    journal_->Notes(true);
    journal_->MSFlexGrid1().Refresh();
    journal_->MSFlexGrid1().AddItem(u"x", -1);
    journal_->MSFlexGrid1().Move(0, 0, 9600, 4800.5F);
    journal_->Text1()->ZOrder(1);
    journal_->UserControl().PropertyChanged(u"Font");
    journal_->UserControl().SetFocus();
    EXPECT_EQ(journal_->TakeNotes(),
              (Notes{u"MSFlexGrid1.Refresh()", u"MSFlexGrid1.AddItem(\"x\",-1)", u"MSFlexGrid1.Move(0,0,9600,4800.5)",
                     u"Text1.ZOrder(1)", u"UserControl.PropertyChanged(\"Font\")", u"UserControl.SetFocus()"}));
}

TEST_F(JournalTest, Editors_AreNotedByNameAndArraysByTheirs)
{
    journal_->Notes(true);
    journal_->Combo1().Load(1);
    journal_->Combo1().Item(1)->AddItem(u"a");
    journal_->Combo1().Item(1)->Text(u"a");
    journal_->List1().Item(0)->AddItem(u"a");
    journal_->List1().Item(0)->Selected(0, true);
    journal_->Combo1().Unload(1);
    journal_->Text1()->Visible(false);
    journal_->Check1()->Value(2);
    journal_->DTPicker1()->Value(45366.4375);
    journal_->DTPicker1()->DataFormat(u"dd/MM/yyyy");
    journal_->MaskEdBox1().Item(0)->FontName(u"Sans");
    journal_->Screen().MousePointer(11);
    journal_->UserControl().FontSize(8.35);
    EXPECT_EQ(
        journal_->TakeNotes(),
        (Notes{u"Combo1.Load(1)", u"Combo1(1).AddItem(\"a\")", u"Combo1(1).Text=\"a\"", u"List1(0).AddItem(\"a\")",
               u"List1(0).Selected(0)=True", u"Combo1.Unload(1)", u"Text1.Visible=False", u"Check1.Value=2",
               u"DTPicker1.Value=2024-03-15", u"DTPicker1.DataFormat=\"dd/MM/yyyy\"",
               u"MaskEdBox1(0).FontName=\"Sans\"", u"Screen.MousePointer=11", u"UserControl.FontSize=8.35"}));
}

TEST_F(JournalTest, Reads_AreNotNoted)
{
    journal_->Notes(true);
    EXPECT_EQ(journal_->MSFlexGrid1().Rows(), 2);
    EXPECT_EQ(journal_->MSFlexGrid1().TextMatrix(0, 0), u"");
    EXPECT_EQ(journal_->Combo1().Count(), 1);
    EXPECT_EQ(journal_->Combo1().Item(0)->Name(), u"Combo1(0)");
    EXPECT_EQ(journal_->UserControl().TextWidth(u"ab"), 240);
    EXPECT_EQ(journal_->List1().Item(0)->List(0), u"");
    EXPECT_TRUE(journal_->TakeNotes().empty());
}

TEST_F(JournalTest, MovesOfARecordset_AreNoted)
{
    journal_->Notes(true);
    const std::shared_ptr<Recordset> recordset = journal_->Watched(std::make_shared<OneRecord>());
    recordset->MoveFirst();
    EXPECT_EQ(recordset->FieldValue(0).Integer, 7);
    EXPECT_FALSE(recordset->AtEnd());
    recordset->MoveNext();
    EXPECT_TRUE(recordset->AtEnd());
    EXPECT_EQ(journal_->TakeNotes(), (Notes{u"Recordset.MoveFirst()", u"Recordset.MoveNext()"}));
    EXPECT_EQ(journal_->Watched(nullptr), nullptr);
}

TEST_F(JournalTest, NamedMember_FailsOnceAndLeavesTheCallUndone)
{
    journal_->Notes(true);
    journal_->FailAtMember(u"MSFlexGrid1.Rows", 7);
    journal_->MSFlexGrid1().Cols(3);
    const Failure failure = FailureOf([&] { journal_->MSFlexGrid1().Rows(5); });
    EXPECT_EQ(failure.Number, 7);
    EXPECT_EQ(failure.Source, u"MSFlexGrid1");
    EXPECT_EQ(failure.Description, u"Out of memory");
    EXPECT_EQ(platform_->MSFlexGrid1().Rows(), 2);
    journal_->MSFlexGrid1().Rows(5);
    EXPECT_EQ(platform_->MSFlexGrid1().Rows(), 5);
    EXPECT_EQ(journal_->TakeNotes(), (Notes{u"MSFlexGrid1.Cols=3", u"MSFlexGrid1.Rows=5", u"MSFlexGrid1.Rows=5"}))
        << "the call that failed is noted too";
}

TEST_F(JournalTest, NamedMember_FailsWhenItIsRead)
{
    journal_->FailAtMember(u"MSFlexGrid1.TextMatrix", 381);
    EXPECT_EQ(FailureOf([&] { journal_->MSFlexGrid1().TextMatrix(1, 1); }).Number, 381);
    EXPECT_EQ(FailureOf([&] { journal_->MSFlexGrid1().TextMatrix(1, 1); }).Number, 0);
}

TEST_F(JournalTest, NamedMemberOfAnInstance_FailsForThatInstanceAlone)
{
    journal_->Combo1().Load(1);
    journal_->FailAtMember(u"Combo1(1).Text", 7);
    EXPECT_EQ(journal_->Combo1().Item(0)->Text(), u"");
    const Failure failure = FailureOf([&] { journal_->Combo1().Item(1)->Text(u"a"); });
    EXPECT_EQ(failure.Number, 7);
    EXPECT_EQ(failure.Source, u"Combo1(1)");
}

TEST_F(JournalTest, NamedMember_IsNotMetByALongerNameThatBeginsLikeIt)
{
    journal_->FailAtMember(u"MSFlexGrid1.Row", 7);
    journal_->MSFlexGrid1().RowSel(1);
    EXPECT_EQ(FailureOf([&] { journal_->MSFlexGrid1().Row(1); }).Number, 7);
}

TEST_F(JournalTest, ArraysContainerScreenAndRecordset_GiveTheirNamesAsSource)
{
    const auto sourceOf = [&](std::u16string_view member, const std::function<void()>& call) {
        journal_->FailAtMember(member, 9);
        return FailureOf(call).Source;
    };
    EXPECT_EQ(sourceOf(u"Combo1.Load", [&] { journal_->Combo1().Load(1); }), u"Combo1");
    EXPECT_EQ(sourceOf(u"Combo1.Item", [&] { journal_->Combo1().Item(0); }), u"Combo1");
    EXPECT_EQ(sourceOf(u"UserControl.ScaleWidth", [&] { journal_->UserControl().ScaleWidth(); }), u"UserControl");
    EXPECT_EQ(sourceOf(u"Screen.MousePointer", [&] { journal_->Screen().MousePointer(0); }), u"Screen");
    const std::shared_ptr<Recordset> recordset = journal_->Watched(std::make_shared<OneRecord>());
    EXPECT_EQ(sourceOf(u"Recordset.EOF", [&] { recordset->AtEnd(); }), u"Recordset");
    EXPECT_EQ(sourceOf(u"ImgAction(1).Picture", [&] { journal_->ImgAction(1).GetPicture(); }), u"ImgAction(1)");
}

TEST_F(JournalTest, CountedCall_FailsAtItsNumberAndReadsDoNotCount)
{
    journal_->FailAtCall(2, 13);
    Grid& grid = journal_->MSFlexGrid1();
    EXPECT_EQ(grid.Rows(), 2);
    grid.Rows(3);
    EXPECT_EQ(grid.Rows(), 3);
    EXPECT_EQ(FailureOf([&] { journal_->Text1()->Visible(false); }).Source, u"Text1");
    journal_->Text1()->Visible(false);
}

TEST_F(JournalTest, LaterFailure_ReplacesTheEarlier)
{
    journal_->FailAtMember(u"MSFlexGrid1.Rows", 7);
    journal_->FailAtCall(2, 8);
    journal_->MSFlexGrid1().Rows(3);
    EXPECT_EQ(FailureOf([&] { journal_->MSFlexGrid1().Rows(4); }).Number, 8);
    journal_->FailAtCall(1, 8);
    journal_->FailAtMember(u"MSFlexGrid1.Cols", 9);
    journal_->MSFlexGrid1().Rows(4);
    EXPECT_EQ(FailureOf([&] { journal_->MSFlexGrid1().Cols(4); }).Number, 9);
}

TEST_F(JournalTest, FailureOfTheControlItself_GoesThroughAndIsNoted)
{
    journal_->Notes(true);
    EXPECT_EQ(FailureOf([&] { journal_->MSFlexGrid1().Row(99); }).Number, 30009);
    EXPECT_EQ(journal_->TakeNotes(), Notes{u"MSFlexGrid1.Row=99"});
}

TEST_F(JournalTest, Instance_StaysTheSameAsLongAsTheOneUnderIt)
{
    journal_->Combo1().Load(1);
    const std::shared_ptr<ComboBox> first = journal_->Combo1().Item(1);
    EXPECT_EQ(journal_->Combo1().Item(1), first);
    journal_->Combo1().Unload(1);
    EXPECT_EQ(first->Name(), u"Combo1(1)") << "a handle outlives Unload";
    journal_->Combo1().Load(1);
    EXPECT_NE(journal_->Combo1().Item(1), first);
    EXPECT_EQ(FailureOf([&] { journal_->Combo1().Item(2); }).Number, 340);
    EXPECT_EQ(FailureOf([&] { journal_->Combo1().Item(-1); }).Number, 340);
}

} // namespace
} // namespace Tessellon
