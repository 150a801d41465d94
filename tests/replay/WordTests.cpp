#include "ScriptError.h"
#include "Utf8.h"
#include "Words.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace Tessellon::Replay {
namespace {

std::vector<std::u16string> BareWords(std::u16string_view line)
{
    std::vector<std::u16string> words;
    for (const Word& word : SplitWords(line))
        words.push_back(word.Bare);
    return words;
}

std::u16string TextOf(std::u16string_view line)
{
    const std::vector<Word> words = SplitWords(line);
    return words.size() == 1 && words[0].IsText() ? *words[0].Text : u"no text";
}

TEST(Words, BlanksAndTabs_PartWords)
{
    EXPECT_EQ(BareWords(u"  a\tb \t c  "), (std::vector<std::u16string>{u"a", u"b", u"c"}));
    EXPECT_TRUE(SplitWords(u" \t").empty());
}

TEST(Words, SignAtTheStartOfAWord_BeginsAComment)
{
    EXPECT_EQ(BareWords(u"a #b \"c"), std::vector<std::u16string>{u"a"});
    EXPECT_TRUE(SplitWords(u"# \\ \"").empty());
}

TEST(Words, SignWithinAWordOrText_IsItself)
{
    EXPECT_EQ(BareWords(u"a#b"), std::vector<std::u16string>{u"a#b"});
    EXPECT_EQ(TextOf(u"\"a #b\""), u"a #b");
}

TEST(Words, Escapes_AreResolved)
{
    EXPECT_EQ(TextOf(u"\"\\\"\\\\\\n\\r\\t\""), u"\"\\\n\r\t");
    EXPECT_EQ(TextOf(u"\"\\u{41}\\u{1f600}\\u{D83D}\""), std::u16string(u"A\U0001F600") + u'\xD83D');
    EXPECT_EQ(TextOf(u"\"\""), u"");
}

TEST(Words, TextBehindAnEqualsSign_BelongsToTheWord)
{
    const std::vector<Word> words = SplitWords(u"on Format FormattedString=\"Q 1\" # x");
    ASSERT_EQ(words.size(), 3U);
    EXPECT_EQ(words[2].Bare, u"FormattedString=");
    EXPECT_EQ(words[2].Text, u"Q 1");
}

TEST(Words, QuoteThatStandsAlone_IsAWord)
{
    EXPECT_TRUE(SplitWords(u"press \"")[1].Is(u"\""));
    EXPECT_TRUE(SplitWords(u"press \" Shift")[1].Is(u"\""));
    EXPECT_EQ(TextOf(u"\" \""), u" ");
}

class UnreadableWords : public testing::TestWithParam<const char16_t*> {};

TEST_P(UnreadableWords, AreRefused)
{
    EXPECT_THROW(SplitWords(GetParam()), ScriptError);
}

INSTANTIATE_TEST_SUITE_P(Words, UnreadableWords,
                         testing::Values(u"\"a", u"\"a\\\"", u"\"a\"b", u"\"a\"\"b\"", u"a\"b\"", u"\"\\q\"",
                                         u"\"\\u41\"", u"\"\\u{}\"", u"\"\\u{110000}\"", u"\"\\u{4G}\"", u"\"\\u{41\"",
                                         u"\"a\"#b"));

TEST(Utf8, MalformedBytes_AreRefused)
{
    for (const char* bytes : {"\xC3", "\xC3(", "\x80", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                              "\xF8\x88\x80\x80\x80", "\xFF"})
        EXPECT_THROW(FromUtf8(bytes), ScriptError);
}

TEST(Utf8, LoneSurrogate_BecomesTheReplacementCharacter)
{
    EXPECT_EQ(ToUtf8(std::u16string(u"a") + u'\xD83D' + u"b"), "a\xEF\xBF\xBD"
                                                               "b");
}

RC_GTEST_PROP(Utf8, AnyText_ComesBack, (const std::vector<std::uint32_t>& points))
{
    std::u16string text;
    for (const std::uint32_t point : points) {
        const char32_t drawn = point % 0x110000;
        AppendCodePoint(text, drawn >= 0xD800 && drawn <= 0xDFFF ? U'x' : drawn);
    }
    RC_ASSERT(FromUtf8(ToUtf8(text)) == text);
}

} // namespace
} // namespace Tessellon::Replay
