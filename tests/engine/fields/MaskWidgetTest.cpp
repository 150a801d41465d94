#include "MaskFixture.h"

namespace Tessellon {
namespace {

TEST(MaskedBox, ErasedSelection_EmptiesItsPlacesAndLeavesTheLiterals)
{
    MaskBox box(u"##/##/##");
    box.Typing(u"123456");
    box.State.Erase(1, 7);
    EXPECT_EQ(box.State.Text(), u"1_/__/_6");
    EXPECT_EQ(box.State.Caret(), 1);
}

TEST(MaskedBox, ErasedSelectionWithoutMask_TakesTheUnitsOut)
{
    MaskBox box;
    box.Typing(u"abcdef");
    box.State.Erase(1, 4);
    EXPECT_EQ(box.State.Text(), u"aef");
    EXPECT_EQ(box.State.Caret(), 1);
}

TEST(MaskedBox, InsertedText_PassesLiteralsAndLeavesOutWhatDoesNotFit)
{
    MaskBox box(u"##/##/##");
    EXPECT_TRUE(box.State.Insert(u"12/34\r\n"));
    EXPECT_EQ(box.State.Text(), u"12/34/__");
    EXPECT_EQ(box.State.Caret(), 5);
    EXPECT_FALSE(box.State.Insert(u"x5y6"));
    EXPECT_EQ(box.State.Text(), u"12/34/56");
    EXPECT_FALSE(box.State.Insert(u"7"));
    EXPECT_TRUE(box.State.Insert(u"\n")) << "the break that a copied cell ends with";
    EXPECT_EQ(box.State.Text(), u"12/34/56");
}

TEST(MaskedBox, InsertedTextWithoutMask_IsHeldToTheLimitAndToOneLine)
{
    MaskBox box;
    box.State.MaxLength(6);
    box.Typing(u"ad").At(1);
    EXPECT_TRUE(box.State.Insert(u"b\r\nc"));
    EXPECT_EQ(box.State.Text(), u"ab cd");
    EXPECT_EQ(box.State.Caret(), 4);
    EXPECT_FALSE(box.State.Insert(u"\U0001F600"));
    EXPECT_EQ(box.State.Text(), u"ab cd");
}

TEST(MaskedBox, TextThatWasKept_IsPutBackWithItsCaret)
{
    for (const std::u16string_view mask : {u"##/##", u""}) {
        MaskBox box(mask);
        box.Typing(u"12").At(1);
        const std::u16string before(box.State.Text());
        const MaskState::Kept kept = box.State.Keep();
        box.State.Erase(0, 2);
        box.Typing(u"9");
        EXPECT_NE(box.State.Text(), before);
        box.State.PutBack(kept);
        EXPECT_EQ(box.State.Text(), before);
        EXPECT_EQ(box.State.Caret(), 1);
    }
}

} // namespace
} // namespace Tessellon
