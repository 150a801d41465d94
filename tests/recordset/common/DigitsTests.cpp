#include "recordset/common/Digits.h"

#include <gtest/gtest.h>

namespace Tessellon::Common {

namespace {

TEST(Digits, DecimalNumbers_AreKnownByTheirCharacters)
{
    for (const char16_t* text : {u"0", u"-12.50", u"+.5", u"7.", u"123456789012345678901234567890.00"})
        EXPECT_TRUE(IsDecimal(text)) << std::string(text, text + std::u16string_view(text).size());
    for (const char16_t* text : {u"", u".", u"-", u"1.2.3", u"1e5", u"NaN", u"1,5", u" 1", u"--1"})
        EXPECT_FALSE(IsDecimal(text)) << std::string(text, text + std::u16string_view(text).size());
}

TEST(Digits, Bytes_AreTwoDigitsEach)
{
    std::u16string buffer;
    EXPECT_EQ(HexadecimalDigits("\x00\xFF\xA5", 3, buffer), u"00FFA5");
    EXPECT_EQ(HexadecimalDigits("", 0, buffer), u"");
    EXPECT_EQ(HexadecimalDigits(nullptr, 0, buffer), u"");
}

} // namespace

} // namespace Tessellon::Common
