#include "platform/PlatformContract.h"

namespace Tessellon::Contract {

CONTRACT_SUITE(TextContract);

TEST_P(TextContract, Change_IsToldAtOnce_ByUserAndByCode)
{
    Enter(Text());
    Recorder.Once("Text1.Change", [&](EventArguments&) { EXPECT_EQ(Text().Text(), u"ab"); });
    Text().Text(u"ab");
    EXPECT_EQ(Told(), Names{"Text1.Change"});
    Type(u"c");
    EXPECT_EQ(Told(), Stroked("Text1", 67, 99, {"Text1.Change"}));
    Up(Rich());
    Rich().Text(u"r");
    EXPECT_EQ(Told(), Names{"RichTextBox1.Change"});
}

TEST_P(TextContract, SameTextWritten_TellsNothing)
{
    Text().Text(u"ab");
    Told();
    Text().Text(u"ab");
    EXPECT_EQ(Told(), Names{});
}

TEST_P(TextContract, TextThatBecomesAnother_PutsTheCaretTo0_TheSameLeavesIt)
{
    Text().Text(u"abc");
    Text().SelStart(2);
    Text().Text(u"abc");
    EXPECT_EQ(Text().SelStart(), 2);
    Text().Text(u"abd");
    EXPECT_EQ(Text().SelStart(), 0);
}

TEST_P(TextContract, SelStart_AboveTheLengthIsTheLength_Below0IsFailure380)
{
    const auto tried = [&](auto& editor) {
        editor.Text(u"abc");
        editor.SelStart(9);
        EXPECT_EQ(editor.SelStart(), 3);
        EXPECT_EQ(NumberOf([&] { editor.SelStart(-1); }), 380);
        EXPECT_EQ(editor.SelStart(), 3);
    };
    tried(Text());
    tried(Rich());
    tried(Mask());
    EXPECT_EQ(SourceOf([&] { Mask().SelStart(-1); }), "MaskEdBox1(0)");
}

TEST_P(TextContract, MaxLength_LimitsTyping_NotWhatCodeWrites)
{
    Enter(Text());
    Text().MaxLength(2);
    Type(u"abc");
    EXPECT_EQ(Text().Text(), u"ab");
    Text().Text(u"abcde");
    EXPECT_EQ(Text().Text(), u"abcde");
    Told();
    Type(u"x");
    EXPECT_EQ(Told(), Stroked("Text1", 88, 120));
    Text().MaxLength(0);
    Type(u"x");
    EXPECT_EQ(Text().Text(), u"xabcde");
}

TEST_P(TextContract, MaxLength_LimitsRichTextToo_LineBreakCountsTwo)
{
    Enter(Rich());
    Rich().MaxLength(3);
    Type(u"ab");
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Rich().Text(), u"ab");
    Key(KeyCode::Home);
    Key(KeyCode::Delete);
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Rich().Text(), u"\r\nb");
}

TEST_P(TextContract, ArrowsHomeAndEnd_GoByTheUnitAndToTheEnds)
{
    Enter(Text());
    Text().Text(u"abc");
    const auto at = [&](std::int16_t key) {
        Key(key);
        return Text().SelStart();
    };
    EXPECT_EQ(at(KeyCode::Left), 0);
    EXPECT_EQ(at(KeyCode::Right), 1);
    EXPECT_EQ(at(KeyCode::End), 3);
    EXPECT_EQ(at(KeyCode::Right), 3);
    EXPECT_EQ(at(KeyCode::Left), 2);
    EXPECT_EQ(at(KeyCode::Home), 0);
}

TEST_P(TextContract, DeleteAndBackspace_TakeAUnit_AndTellOnlyWhatChanged)
{
    Enter(Text());
    Text().Text(u"abc");
    Text().SelStart(1);
    Told();
    Key(KeyCode::Delete);
    EXPECT_EQ(Text().Text(), u"ac");
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(46,0)", "Text1.Change", "Text1.KeyUp(46,0)"}));
    Key(KeyCode::Backspace);
    EXPECT_EQ(Text().Text(), u"c");
    Told();
    Key(KeyCode::Backspace, u'\b');
    EXPECT_EQ(Told(), (Names{"Text1.KeyDown(8,0)", "Text1.KeyPress(8)", "Text1.KeyUp(8,0)"}));
}

TEST_P(TextContract, PairOfSurrogates_IsPassedAndRemovedAsOne)
{
    Enter(Text());
    Text().Text(u"a\U0001F600b");
    Text().SelStart(1);
    Key(KeyCode::Right);
    EXPECT_EQ(Text().SelStart(), 3);
    Key(KeyCode::Left);
    EXPECT_EQ(Text().SelStart(), 1);
    Key(KeyCode::Delete);
    EXPECT_EQ(Text().Text(), u"ab");
}

TEST_P(TextContract, CarriageReturnWithItsLineFeed_IsPassedAndRemovedAsOne)
{
    Enter(Rich());
    Rich().Text(u"a\r\nb");
    Rich().SelStart(3);
    Key(KeyCode::Left);
    EXPECT_EQ(Rich().SelStart(), 1);
    Key(KeyCode::Right);
    EXPECT_EQ(Rich().SelStart(), 3);
    Key(KeyCode::Backspace);
    EXPECT_EQ(Rich().Text(), u"ab");
}

TEST_P(TextContract, EnterInATextBox_InsertsNothing)
{
    Enter(Text());
    Text().Text(u"ab");
    Key(KeyCode::Enter, u'\r');
    EXPECT_EQ(Text().Text(), u"ab");
}

TEST_P(TextContract, LengthsCountUnits)
{
    Enter(Text());
    Text().MaxLength(3);
    Type(u"\U0001F600\U0001F600");
    EXPECT_EQ(Text().Text(), u"\U0001F600");
    Text().SelStart(99);
    EXPECT_EQ(Text().SelStart(), 2);
}

TEST_P(TextContract, Caret_IsPutOnlyInTheFieldThatHasTheFocus)
{
    Enter(Text());
    Text().Text(u"abc");
    User().Caret(2);
    EXPECT_EQ(Text().SelStart(), 2);
    Enter(Check());
    User().Caret(1);
    EXPECT_EQ(Text().SelStart(), 2);
}

TEST_P(TextContract, BadFontSize_IsFailure380)
{
    EXPECT_EQ(NumberOf([&] { Text().FontSize(0); }), 380);
    EXPECT_EQ(NumberOf([&] { Combo().FontSize(-1); }), 380);
    EXPECT_EQ(NumberOf([&] { Cells().FontSize(0); }), 380);
    EXPECT_EQ(NumberOf([&] { Engine().UserControl().FontSize(0); }), 380);
    EXPECT_EQ(SourceOf([&] { Combo().FontSize(-1); }), "Combo1(0)");
    EXPECT_EQ(SourceOf([&] { Engine().UserControl().FontSize(0); }), "UserControl");
}

} // namespace Tessellon::Contract
