#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

class RecSize : public testing::Test {
protected:
    std::shared_ptr<TestRecordset> Records(std::size_t count)
    {
        constexpr std::int32_t adVarWChar = 202;
        auto records = std::make_shared<TestRecordset>();
        records->Types = {adVarWChar, adVarWChar};
        records->Records.resize(count);
        return records;
    }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
    std::int32_t Fields = 77;
    std::int32_t Count = 77;
};

TEST_F(RecSize, WithoutARecordset_IsNought)
{
    Probe.GetRecSize(Fields, Count);
    EXPECT_EQ(Fields, 0);
    EXPECT_EQ(Count, 0);
}

TEST_F(RecSize, CountsFieldsAndWalksTheRecordsFromTheFirst)
{
    const auto records = Records(3);
    Members.BoundRecordset = records;
    records->MoveNext();
    Probe.GetRecSize(Fields, Count);
    EXPECT_EQ(Fields, 2);
    EXPECT_EQ(Count, 3);
    EXPECT_EQ(records->FirstMoves, 1);
    EXPECT_EQ(records->NextMoves, 4);
    EXPECT_TRUE(records->AtEnd());
}

TEST_F(RecSize, OfAnEmptyRecordset_ReportsAndStaysNought)
{
    Members.BoundRecordset = Records(0);
    Probe.GetRecSize(Fields, Count);
    EXPECT_EQ(Fields, 0);
    EXPECT_EQ(Count, 0);
    EXPECT_EQ(Labels(Sheet.TakeEvents()), Lines{"GetRecSize"});
}

} // namespace
} // namespace Tessellon
