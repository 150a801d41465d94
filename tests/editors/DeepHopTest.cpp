#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace Tessellon {

namespace {

constexpr std::int16_t keyEnter = 13;

/// A shown text column at either end of so many hidden ones, two rows, the first cell entered.
void BuildWithHidden(SheetUnderTest& sheet, std::int32_t hidden)
{
    sheet->Cols(hidden + 3);
    sheet.Column(1, fcTextBox);
    for (std::int32_t col = 2; col <= hidden + 1; ++col)
        sheet.Column(col, fcTextBox, u"", true);
    sheet.Column(hidden + 2, fcTextBox);
    sheet->BuildGridColumns();
    sheet->AllowAddNew(true);
    sheet->Add(0, 2);
    sheet.Hand.Click(1, 1);
    sheet.Heard.clear();
}

/// The distance between the deepest stack that a host's handler saw and the shallowest.
std::size_t StackSpan(const std::vector<std::uintptr_t>& places)
{
    const auto [lowest, highest] = std::minmax_element(places.begin(), places.end());
    return *highest - *lowest;
}

} // namespace

TEST(DeepHop, EnterOverFiveThousandHiddenColumns_ReachesTheShownOneBehindThem)
{
    constexpr std::int32_t hidden = 5000;
    SheetUnderTest sheet;
    BuildWithHidden(sheet, hidden);
    sheet->ShowErrMessage(false);

    sheet.Press(keyEnter);

    const std::vector<std::string> names = sheet.TakeEventNames();
    EXPECT_EQ(std::count(names.begin(), names.end(), "AdvanceToNextCell"), hidden + 1);
    EXPECT_EQ(std::count(names.begin(), names.end(), "ErrInfo"), 0);
    EXPECT_EQ(sheet->Row(), 1);
    EXPECT_EQ(sheet->Col(), hidden + 2);
    EXPECT_EQ(sheet.EditorsUp(), std::vector<std::string>{"Text1 \"\""});
    EXPECT_TRUE(sheet.Members().GridReady);
}

TEST(DeepHop, OneHop_CostsLessThanAKilobyteOfStack)
{
    constexpr std::int32_t hidden = 200;
    constexpr std::size_t kilobyte = 1024;
    SheetUnderTest sheet;
    BuildWithHidden(sheet, hidden);
    std::vector<std::uintptr_t> places;
    sheet->AdvanceToNextCell += [&](bool&) {
        const char here = 0;
        places.push_back(reinterpret_cast<std::uintptr_t>(&here));
    };

    sheet.Press(keyEnter);

    ASSERT_EQ(places.size(), static_cast<std::size_t>(hidden) + 1);
    const std::size_t each = StackSpan(places) / static_cast<std::size_t>(hidden);
    RecordProperty("BytesAHop", static_cast<int>(each));
    EXPECT_LT(each, kilobyte);
    EXPECT_GT(each, 0U);
}

} // namespace Tessellon
