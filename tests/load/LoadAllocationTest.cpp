#include "load/AllocationCount.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <array>

namespace Tessellon {
namespace {

constexpr std::int32_t columns = 10;

/// Records made up as they are asked for, without taking memory: ten fields of mixed types.
class MadeUpRecords : public Recordset {
public:
    explicit MadeUpRecords(std::int32_t count)
        : count_(count)
    {
    }
    bool AtEnd() override { return at_ >= count_; }
    void MoveFirst() override { at_ = 0; }
    void MoveNext() override { ++at_; }
    std::int32_t FieldCount() override { return columns; }
    std::int32_t FieldType(std::int32_t field) override
    {
        static constexpr std::array<std::int32_t, columns> types{3, 202, 7, 5, 11, 131, 4, 20, 200, 135};
        return types.at(static_cast<std::size_t>(field));
    }
    Value FieldValue(std::int32_t field) override
    {
        static constexpr std::u16string_view text = u"  Some text of a record that is longer than a short string  ";
        switch (field) {
        case 0: return Value::OfInteger(at_);
        case 1: return Value::OfText(text.substr(0, 20 + static_cast<std::size_t>(at_ % 40)));
        case 2: return Value::OfDate(36526 + at_ % 9000);
        case 3: return Value::OfDouble(at_ / 7.0);
        case 4: return Value::OfBoolean(at_ % 2 != 0);
        case 5: return Value::OfDecimal(u"1234567890123.4567");
        case 6: return Value::OfSingle(static_cast<float>(at_) / 3);
        case 7: return Value::OfInteger(std::int64_t{at_} * 1000000007);
        case 8: return at_ % 5 == 0 ? Value::Null() : Value::OfText(u"\u0416\u0443\u043a");
        default: return Value::OfDate(36526 + at_ / 1440.0);
        }
    }

private:
    std::int32_t count_;
    std::int32_t at_ = 0;
};

/// How often a load of so many records asks for memory.
long AllocationsOfALoad(std::int32_t records, std::u16string_view format)
{
    const auto platform = std::make_shared<EnginePlatform>(std::make_shared<HeadlessToolkit>(), Locale::English());
    const SheetPointer sheet = TessellonSheet::Create(platform);
    TestBag bag;
    sheet->UserControl_ReadProperties(bag);
    platform->Resize(9600, 4800);
    sheet->Cols(columns + 1);
    for (std::int32_t col = 1; col <= columns; ++col)
        sheet->CreateColumnDataType(col, u"C", col == 4 && !format.empty() ? fcMaskedEditBox : fcTextBox,
                                    col == 4 ? format : u"", false, fcLeft, 40, col == 2 ? faContent : faNil, false);
    sheet->BuildGridColumns();
    const auto recordset = std::make_shared<MadeUpRecords>(records);
    const auto connection = std::make_shared<TestConnection>();
    const long before = AllocationCount();
    sheet->DataSource(recordset, connection);
    const long taken = AllocationCount() - before;
    EXPECT_EQ(sheet->Rows(), records + 1);
    EXPECT_EQ(sheet->TextMatrix(records, 1), Utf16(std::to_string(records - 1)));
    return taken;
}

TEST(LoadOfTenThousandRows, TakesAtMostTwoAllocationsForAHundredCells)
{
    constexpr std::int32_t records = 10000;
    for (const std::u16string_view format : {u"", u"#,##0.00"}) {
        const long taken = AllocationsOfALoad(records, format);
        EXPECT_GT(taken, 0);
        EXPECT_LE(static_cast<double>(taken), 0.02 * records * columns) << taken << " allocations";
        RecordProperty("allocations", static_cast<int>(taken));
    }
}

} // namespace
} // namespace Tessellon
