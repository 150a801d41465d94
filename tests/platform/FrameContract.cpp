#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(FrameContract);

TEST_P(FrameContract, Resize_GivesTheSheetItsSize_AndIsTold)
{
    Recorder.Once("UserControl.Resize", [&](EventArguments&) {
        EXPECT_EQ(Engine().UserControl().ScaleWidth(), 6000);
        EXPECT_EQ(Engine().UserControl().ScaleHeight(), 3000);
    });
    User().Resize(6000, 3000);
    EXPECT_EQ(Told(), Names{"UserControl.Resize"});
}

TEST_P(FrameContract, Image_HasOneMember)
{
    EXPECT_EQ(Engine().ImgAction(1).GetPicture(), Picture::Arrow);
    EXPECT_EQ(NumberOf([&] { Engine().ImgAction(0); }), 340);
}

TEST_P(FrameContract, EditorsAreToldByTheirClass)
{
    EXPECT_EQ(Text().ClassName(), u"TEXTBOX");
    EXPECT_EQ(Check().ClassName(), u"CHECKBOX");
    EXPECT_EQ(Combo().ClassName(), u"COMBOBOX");
    EXPECT_EQ(List().ClassName(), u"LISTBOX");
    EXPECT_EQ(Picker().ClassName(), u"DTPICKER");
    EXPECT_EQ(Mask().ClassName(), u"MASKEDBOX");
    EXPECT_EQ(Rich().ClassName(), u"RICHTEXTBOX");
    EXPECT_EQ(Button().ClassName(), u"COMMANDBUTTON");
}

TEST_P(FrameContract, EditorsBeginHidden)
{
    for (const auto& editor : Engine().Editors())
        EXPECT_FALSE(editor->IsVisible()) << Narrow(editor->ControlName());
    EXPECT_EQ(Engine().EditorThatIsUp(), nullptr);
}

TEST_P(FrameContract, FailureOfTheUsersDoing_EndsAtTheWayIn_AndIsToldToTheHost)
{
    Recorder.Once("MSFlexGrid1.LeaveCell", [](EventArguments&) { throw Failure(11, u"Host", u""); });
    Cells().SetFocus();
    Key(KeyCode::Down);
    EXPECT_EQ(Under->UnhandledFailures(), std::vector<std::int32_t>{11});
    EXPECT_EQ(Cells().Row(), 1);
}

TEST_P(FrameContract, RefreshCostsNothing_AndRaisesNothing)
{
    Cells().Refresh();
    Cells().Redraw(false);
    Cells().TextMatrix(1, 1, u"x");
    Cells().Refresh();
    Cells().Redraw(true);
    EXPECT_EQ(Told(), Names{});
}

TEST_P(FrameContract, WithoutAListener_NothingIsTold_AndAllWorks)
{
    Engine().Listen(nullptr);
    Enter(Text());
    Type(u"a");
    User().Click(2, 2);
    EXPECT_EQ(Text().Text(), u"a");
    EXPECT_EQ(Holder(), "MSFlexGrid1");
    EXPECT_EQ(Cells().Row(), 2);
    EXPECT_EQ(Told(), Names{});
}

} // namespace Tessellon::Contract
