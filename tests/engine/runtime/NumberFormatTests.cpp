#include "Texts.h"

#include "platform/Failure.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

namespace Tessellon {
namespace {

struct FormatCase {
    double Number;
    std::u16string_view Format;
    std::u16string_view Text;
};

void ExpectFormats(const RunTimeFunctions& functions, std::initializer_list<FormatCase> cases)
{
    for (const auto& [number, format, text] : cases)
        EXPECT_EQ(Shown(functions.Format(Value::OfDouble(number), format)), Shown(text))
            << number << " in " << Shown(format);
}

TEST(NumberFormat, Places_ShowDigitsOrNothing)
{
    ExpectFormats(At2024(), {{5, u"0", u"5"},
                             {5, u"000", u"005"},
                             {5, u"#", u"5"},
                             {0, u"#", u""},
                             {0, u"0", u"0"},
                             {0, u"#.##", u"."},
                             {5, u"#.##", u"5."},
                             {5, u"0.00", u"5.00"},
                             {5.5, u"0.0#", u"5.5"},
                             {5.25, u"0.0#", u"5.25"},
                             {5, u"0.0#", u"5.0"},
                             {0.5, u"#.0", u".5"},
                             {12.5, u".00", u"12.50"},
                             {1234, u"0", u"1234"},
                             {7, u"#0#", u"07"},
                             {1234567, u"000-0000", u"123-4567"},
                             {123, u"####-####", u"-123"},
                             {12345678, u"##/##/####", u"12/34/5678"},
                             {1.2345, u"0.0-0-0-0", u"1.2-3-4-5"},
                             {0.05, u"0.#0", u"0.05"},
                             {0.5, u"0.#0", u"0.50"}});
}

TEST(NumberFormat, Halves_AreRoundedAwayFromZero)
{
    ExpectFormats(At2024(), {{0.5, u"0", u"1"},
                             {1.5, u"0", u"2"},
                             {2.5, u"0", u"3"},
                             {-2.5, u"0", u"-3"},
                             {1.005, u"0.00", u"1.01"},
                             {0.285, u"0.00", u"0.29"},
                             {2.675, u"0.00", u"2.68"},
                             {-1.115, u"0.00", u"-1.12"},
                             {0.49999, u"0", u"0"},
                             {9.995, u"0.00", u"10.00"},
                             {999.5, u"#,##0", u"1,000"},
                             {0.005, u"0.00", u"0.01"},
                             {0.05, u"0", u"0"}});
}

TEST(NumberFormat, CommaBetweenPlaces_GroupsByThousand)
{
    ExpectFormats(At2024(), {{1234567.891, u"#,##0.00", u"1,234,567.89"},
                             {999, u"#,##0", u"999"},
                             {1000, u"#,#", u"1,000"},
                             {5, u"0,000", u"0,005"},
                             {1234567, u"0,0", u"1,234,567"},
                             {123456, u"#,##-#", u"123,45-6"},
                             {-1234, u"#,##0", u"-1,234"},
                             {1234, u",0", u"1234"}});
}

TEST(NumberFormat, CommaAheadOfThePoint_DividesByAThousand)
{
    ExpectFormats(At2024(), {{1234567, u"#,##0,", u"1,235"},
                             {1234567, u"0,", u"1235"},
                             {1234567, u"0,,", u"1"},
                             {1234567, u"0,.0", u"1234.6"},
                             {1234567890, u"#,##0,,.00", u"1,234.57"},
                             {499, u"0,", u"0"},
                             {1234567, u"0, K", u"1235 K"}});
}

TEST(NumberFormat, PercentSign_MultipliesByAHundred)
{
    ExpectFormats(At2024(), {{0.5, u"0%", u"50%"},
                             {0.1234, u"0.0%", u"12.3%"},
                             {0.5, u"%0", u"%50"},
                             {0.5, u"0%%", u"5000%%"},
                             {0.5, u"0\\%", u"1%"},
                             {-0.256, u"0%", u"-26%"}});
}

TEST(NumberFormat, Exponents_ShowTheirSignAndFigures)
{
    ExpectFormats(At2024(), {{12345, u"0.00E+00", u"1.23E+04"},
                             {12345, u"0.00E-00", u"1.23E04"},
                             {12345, u"0.00e+0", u"1.23e+4"},
                             {0.00012345, u"0.00E-00", u"1.23E-04"},
                             {0.00012345, u"0.00e-0", u"1.23e-4"},
                             {12345, u"##0.0E+0", u"123.5E+2"},
                             {12345, u".00E+0", u".12E+5"},
                             {9.999, u"0.0E+0", u"1.0E+1"},
                             {0, u"0.00E+00", u"0.00E+00"},
                             {-12345, u"0E+000", u"-1E+004"},
                             {1e100, u"0E+0", u"1E+100"},
                             {5, u"0E", u"5E"},
                             {5, u"0E+", u"5E+"},
                             {5, u"E+0", u"E+5"},
                             {12345, u"0.0E+0 \\E+", u"1.2E+4 E+"}});
}

TEST(NumberFormat, LiteralsQuotesAndBackslashes_StandAsTheyAre)
{
    ExpectFormats(At2024(), {{5, u"$0", u"$5"},
                             {-5, u"$0", u"-$5"},
                             {5, u"(0)", u"(5)"},
                             {5, u"+0 -", u"+5 -"},
                             {5, u"\"0#\"0", u"0#5"},
                             {5, u"0\\#", u"5#"},
                             {5, u"0\\\\", u"5\\"},
                             {5, u"0\\", u"5"},
                             {5, u"0\"open", u"5open"},
                             {5, u"0\"\"", u"5"},
                             {5, u"0 kg", u"5 kg"},
                             {5, u"0 €\u3042\xD800", u"5 €\u3042\xD800"},
                             {5, u"\"only\"", u"only"},
                             {-5, u"\"only\"", u"-only"}});
}

TEST(NumberFormat, Sections_AreForPositiveNegativeAndZero)
{
    ExpectFormats(At2024(), {{5, u"0.0;(0.0)", u"5.0"},
                             {-5, u"0.0;(0.0)", u"(5.0)"},
                             {0, u"0.0;(0.0)", u"0.0"},
                             {0, u"0;-0;\"zero\"", u"zero"},
                             {5, u"0;-0;\"zero\"", u"5"},
                             {-5, u"0;;\"zero\"", u"-5"},
                             {0, u"0;(0);", u"0"},
                             {5, u";(0)", u""},
                             {5, u";;;", u""},
                             {-5, u"\"+\";\"neg\"", u"neg"},
                             {-0.2, u"0;\"neg\"", u"neg"},
                             {5, u"0\";\"0", u"0;5"},
                             {5, u"0\\;", u"5;"},
                             {5, u"0;1;2;3;4;5", u"5"}});
}

TEST(NumberFormat, NegativeNumberThatRoundsToZero_IsShownByTheFirstSectionWithoutSign)
{
    ExpectFormats(At2024(), {{-0.001, u"0.00", u"0.00"},
                             {-0.001, u"0.00;(0.00)", u"0.00"},
                             {-0.001, u"0.00;(0.00);\"zero\"", u"0.00"},
                             {-0.005, u"0.00;(0.00)", u"(0.01)"},
                             {-0.001, u"0%;(0%)", u"0%"},
                             {-4, u"0,;(0,)", u"0"},
                             {-0.4, u"0.0;(0)", u"-0.4"},
                             {-0.0, u"0;(0);\"zero\"", u"zero"}});
}

TEST(NumberFormat, MissingValue_HasTheFourthSectionOrNothing)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.Format(Value::Null(), u"0;-0;\"zero\";\"none\""), u"none");
    EXPECT_EQ(functions.Format(Value::Null(), u"0;-0;\"zero\""), u"");
    for (const std::u16string_view format : {u"", u"0.00", u"Fixed", u"dd/MM/yyyy", u"@@@", u">", u"##-##"})
        EXPECT_EQ(functions.Format(Value::Null(), format), u"") << Shown(format);
    EXPECT_EQ(functions.Format(Value::Null(), u"@@@;\"none\""), u"none");
}

TEST(NumberFormat, NamedFormats_HaveTheirPublishedMeaning)
{
    ExpectFormats(At2024(), {{1234567.5, u"General Number", u"1234567.5"},
                             {1e20, u"General Number", u"1E+20"},
                             {1234.5, u"Currency", u"$1,234.50"},
                             {-1234.5, u"Currency", u"-$1,234.50"},
                             {-0.001, u"Currency", u"$0.00"},
                             {1234.5, u"Fixed", u"1234.50"},
                             {0.5, u"fixed", u"0.50"},
                             {1234.565, u"Standard", u"1,234.57"},
                             {0.12345, u"Percent", u"12.35%"},
                             {12345, u"SCIENTIFIC", u"1.23E+04"},
                             {0, u"Yes/No", u"No"},
                             {-1, u"Yes/No", u"Yes"},
                             {0, u"True/False", u"False"},
                             {0.1, u"True/False", u"True"},
                             {0, u"On/Off", u"Off"},
                             {2, u"on/off", u"On"}});
    EXPECT_EQ(At2024(Locale::German()).Format(Value::OfDouble(-1234.5), u"Currency"), u"-1.234,50 €");
    EXPECT_EQ(At2024(Locale::German()).Format(Value::OfDouble(1234.5), u"Standard"), u"1.234,50");
    EXPECT_EQ(At2024(Locale::Japanese()).Format(Value::OfDouble(1234.5), u"Currency"), u"¥1,234.50");
    EXPECT_EQ(At2024(Locale::German()).Format(Value::OfDouble(1e-20), u"Scientific"), u"1,00E-20");
}

TEST(NumberFormat, Separators_AreTheLocales)
{
    EXPECT_EQ(At2024(Locale::German()).Format(Value::OfDouble(1234.5), u"#,##0.00"), u"1.234,50");
    EXPECT_EQ(At2024(Locale::German()).Format(Value::OfInteger(311299), u"00/00/00"), u"31.12.99");
}

TEST(NumberFormat, Booleans_AreMinusOneAndZero)
{
    const RunTimeFunctions functions = At2024();
    EXPECT_EQ(functions.Format(Value::OfBoolean(true), u"0"), u"-1");
    EXPECT_EQ(functions.Format(Value::OfBoolean(false), u"0.0"), u"0.0");
    EXPECT_EQ(functions.Format(Value::OfBoolean(true), u"Yes/No"), u"Yes");
    EXPECT_EQ(functions.Format(Value::OfBoolean(false), u"On/Off"), u"Off");
    EXPECT_EQ(functions.Format(Value::OfBoolean(true), u""), u"True");
    EXPECT_EQ(functions.Format(Value::OfBoolean(true), u">"), u"TRUE");
}

TEST(NumberFormat, DecimalsAndTexts_AreFormattedFromTheirOwnDigits)
{
    const RunTimeFunctions functions = At2024();
    const std::u16string_view digits = u"12345678901234567890.12345678901234567895";
    EXPECT_EQ(functions.Format(Value::OfDecimal(digits), u"#,##0.0000000000000000000"),
              u"12,345,678,901,234,567,890.1234567890123456790");
    EXPECT_EQ(functions.Format(Value::OfText(digits), u"0.0"), u"12345678901234567890.1");
    EXPECT_EQ(functions.Format(Value::OfText(u"1.005"), u"0.00"), u"1.01");
    EXPECT_EQ(functions.Format(Value::OfDecimal(u"0.045"), u"0.00"), u"0.05");
    EXPECT_EQ(functions.Format(Value::OfText(u"4111111111111111"), u"####-####-####-####"), u"4111-1111-1111-1111");
    EXPECT_EQ(functions.Format(Value::OfText(digits), u"General Number"), digits);
    EXPECT_EQ(functions.Format(Value::OfText(u"(1,234.5)"), u"0.00"), u"-1234.50");
    EXPECT_EQ(functions.Format(Value::OfText(u"-0"), u"0;(0);\"zero\""), u"zero");
    EXPECT_EQ(functions.Format(Value::OfText(u"&HFF"), u"0.0"), u"255.0");
    EXPECT_EQ(functions.Format(Value::OfText(u"0.5"), u"Percent"), u"50.00%");
    EXPECT_EQ(functions.Format(Value::OfDecimal(u"junk"), u"0.00"), u"junk");
    EXPECT_EQ(functions.Format(Value::OfInteger(std::numeric_limits<std::int64_t>::min()), u"#,##0"),
              u"-9,223,372,036,854,775,808");
    EXPECT_EQ(functions.Format(Value::OfUnsigned(std::numeric_limits<std::uint64_t>::max()), u"0"),
              u"18446744073709551615");
    EXPECT_EQ(functions.Format(Value::OfSingle(0.1F), u"0.0000000000"), u"0.1000000000");
    EXPECT_EQ(functions.Format(Value::OfDouble(1e20), u"0"), u"100000000000000000000");
}

TEST(NumberFormat, ExtremeFormatsAndNumbers_AreDone)
{
    const RunTimeFunctions functions = At2024();
    const std::u16string zeros(100'000, u'0');
    EXPECT_EQ(functions.Format(Value::OfInteger(1), zeros).size(), zeros.size());
    EXPECT_EQ(functions.Format(Value::OfInteger(1), u"0." + zeros).size(), zeros.size() + 2);
    EXPECT_EQ(functions.Format(Value::OfInteger(1), std::u16string(100'000, u'#')), u"1");
    EXPECT_EQ(functions.Format(Value::OfInteger(1), std::u16string(100'000, u';')), u"");
    EXPECT_EQ(functions.Format(Value::OfInteger(1), u"0" + std::u16string(100'000, u',')), u"0");
    EXPECT_EQ(functions.Format(Value::OfInteger(1), u"0" + std::u16string(1'000, u'%')).size(), 3'001U);
    EXPECT_EQ(functions.Format(Value::OfDecimal(std::u16string(100'000, u'9')), u"#,##0").size(), 133'333U);
    EXPECT_EQ(functions.Format(Value::OfDecimal(u"0." + std::u16string(100'000, u'9')), u"0.00"), u"1.00");
    EXPECT_EQ(functions.Format(Value::OfDecimal(u"1E-99999999999"), u"0.00"), u"0.00");
    EXPECT_EQ(functions.Format(Value::OfInteger(5), std::u16string_view(u"0\0x", 3)), std::u16string_view(u"5\0x", 3));
    EXPECT_EQ(functions.Format(Value::OfInteger(5), u"\\"), u"");
    EXPECT_EQ(functions.Format(Value::OfInteger(5), u"\""), u"");
}

RC_GTEST_PROP(NumberFormat, WhatItWrites_IsReadBack, (std::int32_t cents))
{
    const double number = cents / 100.0;
    for (const RunTimeFunctions& functions : {At2024(), At2024(Locale::German()), At2024(Locale::Japanese())}) {
        for (const std::u16string_view format :
             {u"0.00", u"#,##0.00", u"#,##0.00;(#,##0.00)", u"0.00;-0.00;0", u"Currency", u"Fixed", u"Standard",
              u"0.0000000000E+00", u"General Number"}) {
            const std::u16string text = functions.Format(Value::OfDouble(number), format);
            RC_ASSERT(functions.IsNumeric(text));
            RC_ASSERT(std::abs(functions.ToNumber(text) - number) < 1e-9 + std::abs(number) * 1e-10);
        }
    }
}

RC_GTEST_PROP(NumberFormat, AnyFormat_IsDone, (std::int64_t number))
{
    const auto format = *rc::gen::container<std::u16string>(
        rc::gen::elementOf(std::u16string(u"00##..,,%%E+-e;;\"\\ $()x@&<>!9?AaCdmyhs/:")));
    const RunTimeFunctions functions = At2024();
    for (const Value& value : {Value::OfInteger(number), Value::OfDouble(static_cast<double>(number) / 1024.0),
                               Value::OfText(u"12.5"), Value::OfText(u"abc"), Value::OfBoolean(true), Value::Null()}) {
        std::u16string out = u"kept";
        try {
            functions.FormatTo(out, value, format);
        } catch (const Failure& failure) {
            RC_ASSERT(failure.Number == 5);
        }
        RC_ASSERT(out.starts_with(u"kept"));
    }
}

} // namespace
} // namespace Tessellon
