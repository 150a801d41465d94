#include "recordset/common/Unicode.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace Tessellon::Common {

namespace {

TEST(Unicode, PlainText_OfAnyLength_IsWidened)
{
    for (std::size_t length = 0; length < 70; ++length) {
        std::string bytes;
        for (std::size_t i = 0; i < length; ++i)
            bytes += static_cast<char>('!' + i);
        EXPECT_EQ(ToUtf16(bytes), std::u16string(bytes.begin(), bytes.end()));
    }
}

TEST(Unicode, LettersOfEveryLength_AreRead)
{
    EXPECT_EQ(ToUtf16("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80z"), u"aä€😀z");
    EXPECT_EQ(ToUtf16("\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"),
              u"\x80\x7FF\x800\xFFFF\xD800\xDC00\xDBFF\xDFFF");
}

TEST(Unicode, LetterAcrossABlock_IsRead)
{
    for (std::size_t before = 0; before < 40; ++before)
        EXPECT_EQ(ToUtf16(std::string(before, 'x') + "\xE2\x82\xAC" + std::string(20, 'y')),
                  std::u16string(before, u'x') + u'€' + std::u16string(20, u'y'));
}

TEST(Unicode, BrokenBytes_AreReplaced)
{
    EXPECT_EQ(ToUtf16("a\x80z"), u"a\xFFFDz");
    EXPECT_EQ(ToUtf16("\xC0\xAF"), u"\xFFFD\xFFFD"); // overlong
    EXPECT_EQ(ToUtf16("\xE0\x80\x80"), u"\xFFFD\xFFFD\xFFFD"); // overlong
    EXPECT_EQ(ToUtf16("\xE2\x82z"), u"\xFFFDz"); // cut short by a letter
    EXPECT_EQ(ToUtf16("\xF0\x9F\x98"), u"\xFFFD"); // cut short by the end
    EXPECT_EQ(ToUtf16("\xF4\x90\x80\x80"), u"\xFFFD\xFFFD\xFFFD\xFFFD"); // past the last point
    EXPECT_EQ(ToUtf16("\xFF"), u"\xFFFD");
}

TEST(Unicode, LoneSurrogate_IsKept)
{
    EXPECT_EQ(ToUtf16("\xED\xA0\x80z"), u"\xD800z");
    EXPECT_EQ(ToUtf16("\xED\xBF\xBF"), u"\xDFFF");
    EXPECT_EQ(ToUtf8(u"\xD800z"), "\xED\xA0\x80z");
}

TEST(Unicode, Zero_IsKept)
{
    EXPECT_EQ(ToUtf16(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
}

TEST(Unicode, Buffer_IsUsedAgain)
{
    std::u16string buffer;
    EXPECT_EQ(ToUtf16("a long text for a start", buffer), u"a long text for a start");
    const char16_t* const room = buffer.data();
    const std::u16string_view text = ToUtf16("short", buffer);
    EXPECT_EQ(text, u"short");
    EXPECT_EQ(text.data(), room);
}

RC_GTEST_PROP(UnicodeProperty, AnyUnits_ComeBackAsTheyWere, (const std::vector<std::uint16_t>& units))
{
    const std::u16string text(units.begin(), units.end());
    RC_ASSERT(ToUtf16(ToUtf8(text)) == text);
}

RC_GTEST_PROP(UnicodeProperty, AnyBytes_GiveNoMoreUnitsThanBytes, (const std::string& bytes))
{
    RC_ASSERT(ToUtf16(bytes).size() <= bytes.size());
}

} // namespace

} // namespace Tessellon::Common
