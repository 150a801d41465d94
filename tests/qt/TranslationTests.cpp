#include "qt/KeyTranslation.h"
#include "qt/Metrics.h"
#include "qt/QtLocale.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace Tessellon {

namespace {

Stroke Of(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {})
{
    return StrokeOf(QKeyEvent(QEvent::KeyPress, key, modifiers, text));
}

} // namespace

TEST(KeysOfQt, HaveTheirCodes)
{
    struct Row {
        int Key;
        int Code;
    };
    for (const Row row : {Row{Qt::Key_A, 65},           Row{Qt::Key_Z, 90},
                          Row{Qt::Key_7, 55},           Row{Qt::Key_Exclam, 49},
                          Row{Qt::Key_ParenRight, 48},  Row{Qt::Key_Semicolon, 186},
                          Row{Qt::Key_Colon, 186},      Row{Qt::Key_Slash, 191},
                          Row{Qt::Key_AsciiTilde, 192}, Row{Qt::Key_BracketLeft, 219},
                          Row{Qt::Key_QuoteDbl, 222},   Row{Qt::Key_Return, 13},
                          Row{Qt::Key_Enter, 13},       Row{Qt::Key_Backtab, 9},
                          Row{Qt::Key_F1, 112},         Row{Qt::Key_F16, 127},
                          Row{Qt::Key_F17, 0},          Row{Qt::Key_Left, 37},
                          Row{Qt::Key_Down, 40},        Row{Qt::Key_PageUp, 33},
                          Row{Qt::Key_Delete, 46},      Row{Qt::Key_Shift, 16},
                          Row{Qt::Key_Adiaeresis, 0}})
        EXPECT_EQ(Of(row.Key).Code, row.Code) << row.Key;
}

TEST(KeysOfQt, AreFoundBackFromTheirCodes)
{
    for (std::int16_t code = 1; code < 256; ++code) {
        const Qt::Key key = QtKeyOf(code);
        if (key != Qt::Key_unknown) {
            EXPECT_EQ(Of(key).Code, code);
        }
    }
    EXPECT_EQ(QtKeyOf(0), Qt::Key_unknown);
}

TEST(KeysOfQt, Characters_AreTheTextsOrTheKeysOwn)
{
    EXPECT_EQ(Of(Qt::Key_A, {}, QStringLiteral("a")).Character, u'a');
    EXPECT_EQ(Of(Qt::Key_Return, {}, QStringLiteral("\r")).Character, 13);
    EXPECT_EQ(Of(Qt::Key_Backspace, {}, QStringLiteral("\b")).Character, 8);
    EXPECT_FALSE(Of(Qt::Key_Delete, {}, QStringLiteral("\x7F")).HasCharacter);
    EXPECT_FALSE(Of(Qt::Key_F2).HasCharacter);
    EXPECT_EQ(Of(Qt::Key_C, Qt::ControlModifier, QStringLiteral("\x03")).Character, 3);
    EXPECT_EQ(Of(Qt::Key_Return, Qt::ControlModifier).Character, 10);
    EXPECT_FALSE(Of(Qt::Key_1, Qt::ControlModifier, QStringLiteral("1")).HasCharacter);
    EXPECT_FALSE(Of(Qt::Key_A, Qt::AltModifier, QStringLiteral("a")).HasCharacter);
}

TEST(KeysOfQt, ThirdLevelOfAKeyboard_TypesItsCharacter)
{
    EXPECT_EQ(Of(Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, QStringLiteral("@")).Character, u'@');
}

TEST(KeysOfQt, KeypadHasCodesOfItsOwn)
{
    EXPECT_EQ(Of(Qt::Key_0, Qt::KeypadModifier, QStringLiteral("0")).Code, 96);
    EXPECT_EQ(Of(Qt::Key_Period, Qt::KeypadModifier, QStringLiteral(".")).Code, 110);
}

TEST(LocaleOfQt, German)
{
    const Locale locale = LocaleFrom(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(locale.DecimalSeparator, u',');
    EXPECT_EQ(locale.GroupSeparator, u'.');
    EXPECT_EQ(locale.DateSeparator, u'.');
    EXPECT_EQ(locale.TimeSeparator, u':');
    EXPECT_EQ(locale.DateOrder, (std::array{DatePart::Day, DatePart::Month, DatePart::Year}));
    EXPECT_EQ(locale.MonthNames[2], u"M\u00E4rz");
    EXPECT_EQ(locale.DayNames[0], u"Sonntag");
    EXPECT_EQ(locale.DayNames[6], u"Samstag");
    EXPECT_EQ(locale.FirstDayOfWeek, 2);
    EXPECT_EQ(locale.CurrencySign, u"\u20AC");
    EXPECT_FALSE(locale.CurrencyInFront);
    EXPECT_EQ(locale.ShortTime, u"HH:nn");
}

TEST(LocaleOfQt, American)
{
    const Locale locale = LocaleFrom(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(locale.DateOrder, (std::array{DatePart::Month, DatePart::Day, DatePart::Year}));
    EXPECT_EQ(locale.DateSeparator, u'/');
    EXPECT_EQ(locale.FirstDayOfWeek, 1);
    EXPECT_EQ(locale.CurrencySign, u"$");
    EXPECT_TRUE(locale.CurrencyInFront);
    EXPECT_EQ(locale.ShortTime, u"h:nn AM/PM");
    EXPECT_EQ(locale.LongTime, u"h:nn:ss AM/PM");
}

TEST(LocaleOfQt, Japanese_HasTheYearInFront)
{
    const Locale locale = LocaleFrom(QLocale(QLocale::Japanese, QLocale::Japan));
    EXPECT_EQ(locale.DateOrder, (std::array{DatePart::Year, DatePart::Month, DatePart::Day}));
}

TEST(SizesOfTheScreen, FollowTheFont)
{
    const QWidget widget;
    ScreenMetrics metrics(widget);
    const Font small;
    const Font large{small.Name, 20};
    EXPECT_GT(metrics.DefaultRowHeight(large), metrics.DefaultRowHeight(small));
    EXPECT_GT(metrics.DefaultColWidth(large), metrics.DefaultColWidth(small));
    EXPECT_GT(metrics.ComboBoxHeight(large), metrics.ComboBoxHeight(small));
    EXPECT_GT(metrics.TextWidth(u"text", large), metrics.TextWidth(u"text", small));
    EXPECT_GT(metrics.TextWidth(u"mm", small), metrics.TextWidth(u"ii", small));
    EXPECT_EQ(metrics.DefaultRowHeight(small) % 15, 0);
}

TEST(SizesOfARecord, AreFixed)
{
    FixedMetrics metrics;
    EXPECT_EQ(metrics.TextWidth(u"four", {u"Any", 30}), 480);
    EXPECT_EQ(metrics.DefaultRowHeight({}), 240);
    EXPECT_EQ(metrics.DefaultColWidth({}), 960);
    EXPECT_EQ(metrics.ComboBoxHeight({}), 315);
    EXPECT_EQ(metrics.TwipsAPixel(), 15);
    EXPECT_EQ(metrics.ScrollBarPixels(), 0);
}

} // namespace Tessellon
