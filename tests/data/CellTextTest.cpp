#include "data/LoadFixture.h"

#include <ostream>
#include <set>

namespace Tessellon {
namespace {

const std::set<std::int32_t> dates{7, 133, 134, 135};
const std::set<std::int32_t> numbers{2, 3, 4, 5, 6, 14, 16, 17, 18, 19, 20, 21, 131, 139};
const std::set<std::int32_t> texts{8, 128, 129, 130, 200, 201, 202, 203, 204, 205};

class CellText : public Load {
protected:
    /// The text that the value of a field of the type comes to in a column of the kind and setting.
    std::u16string Loaded(std::int32_t type, const Cell& cell, FieldControlType kind = fcTextBox,
                          std::u16string_view setting = u"", bool useMask = false)
    {
        Sheet->Cols(2);
        Sheet.Column(1, kind, setting, false, useMask);
        Sheet->BuildGridColumns();
        Sheet.Platform->MSFlexGrid1().Rows(1);
        Sheet->DataSource(Records({type}, {{cell}, {cell}}), Link);
        return Text(2, 1); // In the second row, which no editor has touched.
    }
};

TEST_F(CellText, OfEachFieldType_FollowsItsClass)
{
    for (std::int32_t type = 0; type <= 210; ++type) {
        const bool truth = type == 11;
        SCOPED_TRACE("type " + std::to_string(type));
        EXPECT_EQ(Loaded(type, OfInteger(5)), truth                                            ? u"True"
                                              : dates.contains(type)                           ? u"04/01/1900"
                                              : numbers.contains(type) || texts.contains(type) ? u"5"
                                                                                               : u"");
        EXPECT_EQ(Loaded(type, OfNull()), truth ? u"False" : numbers.contains(type) ? u"0" : u"");
    }
}

TEST_F(CellText, OfATruthField_IsTheWord)
{
    EXPECT_EQ(Loaded(adBoolean, OfBoolean(true)), u"True");
    EXPECT_EQ(Loaded(adBoolean, OfBoolean(false)), u"False");
    EXPECT_EQ(Loaded(adBoolean, OfInteger(0)), u"False");
    EXPECT_EQ(Loaded(adBoolean, OfInteger(-1)), u"True");
    EXPECT_EQ(Loaded(adBoolean, OfReal(Value::Kind::Double, 0.5)), u"True");
}

TEST_F(CellText, OfADate_GoesByTheSheetsFormatAndANullIsNothing)
{
    constexpr double date = 45366.75;
    EXPECT_EQ(Loaded(adDate, OfDate(date)), u"15/03/2024");
    Sheet->DateFormat(u"yyyy-MM-dd HH:nn");
    EXPECT_EQ(Loaded(adDate, OfDate(date)), u"2024-03-15 18:00");
    EXPECT_EQ(Loaded(adDate, OfNull()), u"");
}

TEST_F(CellText, OfANumber_IsItsGeneralText)
{
    EXPECT_EQ(Loaded(adInteger, OfInteger(-42)), u"-42");
    EXPECT_EQ(Loaded(adDouble, OfReal(Value::Kind::Double, 0.1)), u"0.1");
    EXPECT_EQ(Loaded(adDouble, OfReal(Value::Kind::Double, 1e15)), u"1E+15");
    EXPECT_EQ(Loaded(4, OfReal(Value::Kind::Single, static_cast<double>(0.1F))), u"0.1");
    EXPECT_EQ(Loaded(131, OfDecimal(u"12345678901234567890.125")), u"12345678901234567890.125");
    EXPECT_EQ(Loaded(20, OfInteger(9223372036854775807)), u"9223372036854775807");
}

TEST_F(CellText, OfANumberInAFormattedColumn_GoesByTheFormatAndANullAsZero)
{
    EXPECT_EQ(Loaded(adDouble, OfReal(Value::Kind::Double, 5), fcMaskedEditBox, u" 0.00 "), u"5.00");
    EXPECT_EQ(Loaded(adInteger, OfNull(), fcMaskedEditBox, u"0.00"), u"0.00");
    EXPECT_EQ(Loaded(131, OfDecimal(u"12345678901234567890.125"), fcMaskedEditBox, u"0.00"),
              u"12345678901234567890.13");
    EXPECT_EQ(Loaded(adInteger, OfInteger(5), fcMaskedEditBox, u"   "), u"5") << "blanks are no format";
    EXPECT_EQ(Loaded(adInteger, OfInteger(5), fcTextBox, u"0.00"), u"5") << "no masked column";
}

TEST_F(CellText, OfATruthFieldThatHoldsText_GoesByTheWordOrTheNumber)
{
    EXPECT_EQ(Loaded(adBoolean, OfText(u" true ")), u"True");
    EXPECT_EQ(Loaded(adBoolean, OfText(u"False")), u"False");
    EXPECT_EQ(Loaded(adBoolean, OfText(u"2")), u"True");
    EXPECT_EQ(Loaded(adBoolean, OfText(u"0")), u"False");
}

TEST_F(CellText, OfADateTextOrTruthField_KnowsNoFormatOfTheColumn)
{
    constexpr double date = 45366.75;
    EXPECT_EQ(Loaded(adDate, OfDate(date), fcMaskedEditBox, u"0.00"), u"15/03/2024");
    EXPECT_EQ(Loaded(adVarWChar, OfText(u"7"), fcMaskedEditBox, u"0.00"), u"7");
    EXPECT_EQ(Loaded(adVarWChar, OfNull(), fcMaskedEditBox, u"0.00"), u"");
    EXPECT_EQ(Loaded(adBoolean, OfBoolean(true), fcMaskedEditBox, u"0.00"), u"True");
}

TEST_F(CellText, OfAColumnWithAMask_IsThePlainTextOfTheValue)
{
    EXPECT_EQ(Loaded(adInteger, OfInteger(512), fcMaskedEditBox, u"##-##", true), u"512");
    EXPECT_EQ(Loaded(adInteger, OfNull(), fcMaskedEditBox, u"0.00", true), u"0");
    EXPECT_EQ(Loaded(adVarWChar, OfText(u" 1234 "), fcMaskedEditBox, u"##-##", true), u"1234");
}

TEST_F(CellText, OfATextField_IsTrimmed)
{
    EXPECT_EQ(Loaded(adVarWChar, OfText(u"  a b  ")), u"a b");
    EXPECT_EQ(Loaded(adVarWChar, OfText(u"\ta\u00a0")), u"\ta\u00a0") << "of blanks alone";
    EXPECT_EQ(Loaded(adVarWChar, OfNull()), u"");
}

TEST_F(CellText, OfATextOfBlanks_IsEmpty)
{
    EXPECT_EQ(Loaded(adVarWChar, OfText(u"   ")), u"");
}

/// Tells how often a value was asked for.
class AskedRecordset : public TestRecordset {
public:
    int Asked = 0;
    Value FieldValue(std::int32_t field) override
    {
        ++Asked;
        return TestRecordset::FieldValue(field);
    }
};

TEST_F(CellText, OfAFieldOfNoClass_StaysEmptyAndItsValueIsNotAskedFor)
{
    Columns({fcTextBox, fcTextBox});
    const auto records = std::make_shared<AskedRecordset>();
    records->Types = {adGUID, adVarWChar};
    records->Records = {{OfText(u"x"), OfText(u"a")}, {OfText(u"y"), OfText(u"b")}};
    const Lines calls = CallsOf(records);
    EXPECT_EQ(Text(2, 1), u"");
    EXPECT_EQ(records->Asked, 2);
    EXPECT_EQ(CountOf(calls, "MSFlexGrid1.TextMatrix(2,1)=\"\""), 0);
}

} // namespace
} // namespace Tessellon
