#include "engine/fields/PastedText.h"

#include <gtest/gtest.h>

#include <limits>

namespace Tessellon {
namespace {

constexpr std::size_t anyRoom = std::numeric_limits<std::size_t>::max();

TEST(PastedTexts, FieldOfOneLine_HasBlanksForBreaksAndControlCharacters)
{
    EXPECT_EQ(PastedText(u"a\r\nb\nc\rd\te\u0007", Lines::One, anyRoom), u"a b c d e ");
}

TEST(PastedTexts, FieldOfManyLines_KeepsTabs_AndEachBreakIsReturnAndFeed)
{
    EXPECT_EQ(PastedText(u"a\r\nb\nc\rd\te\u0007", Lines::Many, anyRoom), u"a\r\nb\r\nc\r\nd\te ");
}

TEST(PastedTexts, NoPairOfUnits_IsCutInTwo)
{
    EXPECT_EQ(PastedText(u"ab\U0001F600", Lines::One, 3), u"ab");
    EXPECT_EQ(PastedText(u"ab\U0001F600", Lines::One, 4), u"ab\U0001F600");
    EXPECT_EQ(PastedText(u"ab\n", Lines::Many, 3), u"ab");
    EXPECT_EQ(PastedText(u"ab\nc", Lines::Many, 4), u"ab\r\n");
    EXPECT_EQ(PastedText(u"abc", Lines::One, 0), u"");
}

TEST(PastedTexts, RoomUnderALimit_IsWhatIsLeft_AndNoLimitIsNone)
{
    EXPECT_EQ(RoomUnder(5, 3), 2U);
    EXPECT_EQ(RoomUnder(5, 9), 0U);
    EXPECT_EQ(RoomUnder(0, 9), anyRoom);
    EXPECT_EQ(RoomUnder(-1, 9), anyRoom);
}

} // namespace
} // namespace Tessellon
