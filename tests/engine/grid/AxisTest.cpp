#include "engine/grid/Axis.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <numeric>
#include <vector>

namespace Tessellon::GridTests {

namespace {

/// The same, each size for itself.
struct PlainAxis {
    std::vector<std::int32_t> Own;
    std::int32_t Default = 240;
    std::int32_t Minimum = 0;

    [[nodiscard]] std::int32_t Size(std::size_t index) const
    {
        return std::max(Own[index] == Axis::defaultOwn ? Default : Own[index], Minimum);
    }

    [[nodiscard]] std::int64_t Position(std::size_t index) const
    {
        std::int64_t position = 0;
        for (std::size_t at = 0; at < index; ++at)
            position += Size(at);
        return position;
    }

    [[nodiscard]] std::size_t At(std::int64_t position) const
    {
        for (std::size_t at = 0; at < Own.size(); ++at)
            if (position < Position(at + 1))
                return at;
        return Own.size();
    }

    [[nodiscard]] std::size_t FirstFrom(std::int64_t position) const
    {
        std::size_t at = 0;
        while (at < Own.size() && Position(at) < position)
            ++at;
        return at;
    }
};

void ExpectSame(const Axis& axis, const PlainAxis& plain)
{
    const auto count = static_cast<std::int32_t>(plain.Own.size());
    RC_ASSERT(axis.Count() == count);
    for (std::int32_t index = 0; index < count; ++index) {
        const auto at = static_cast<std::size_t>(index);
        RC_ASSERT(axis.Size(index) == plain.Size(at));
        RC_ASSERT(axis.Own(index) == plain.Own[at]);
        RC_ASSERT(axis.Position(index) == plain.Position(at));
    }
    const std::int64_t extent = plain.Position(plain.Own.size());
    RC_ASSERT(axis.Extent() == extent);
    for (std::int64_t position : {std::int64_t{-5}, std::int64_t{0}, extent / 3, extent / 2, extent - 1, extent,
                                  extent + 9, axis.Position(count / 2), axis.Position(count / 3)}) {
        RC_ASSERT(axis.At(position) == static_cast<std::int32_t>(plain.At(position)));
        RC_ASSERT(axis.FirstFrom(position) == static_cast<std::int32_t>(plain.FirstFrom(position)));
    }
}

} // namespace

TEST(AxisOfSizes, UnderRandomChanges_AgreesWithEachSizeForItself)
{
    EXPECT_TRUE(rc::check([] {
        Axis axis(5, 240);
        PlainAxis plain{std::vector<std::int32_t>(5, Axis::defaultOwn)};
        const auto steps = *rc::gen::inRange(1, 400);
        for (int step = 0; step < steps; ++step) {
            const auto count = static_cast<int>(plain.Own.size());
            const int place = *rc::gen::inRange(0, count);
            switch (*rc::gen::inRange(0, 12)) {
            case 0: {
                const int wanted = *rc::gen::inRange(1, 300);
                axis.SetCount(wanted);
                plain.Own.resize(static_cast<std::size_t>(wanted), Axis::defaultOwn);
                break;
            }
            case 1:
            case 2:
                axis.Insert(place + 1);
                plain.Own.insert(plain.Own.begin() + place + 1, Axis::defaultOwn);
                break;
            case 3:
                if (count > 1) {
                    axis.Remove(place);
                    plain.Own.erase(plain.Own.begin() + place);
                }
                break;
            case 4:
                plain.Default = *rc::gen::inRange(0, 400);
                axis.SetDefaultSize(plain.Default);
                break;
            case 5:
                plain.Minimum = *rc::gen::inRange(0, 300);
                axis.SetMinimumSize(plain.Minimum);
                break;
            default: {
                const std::int32_t size = *rc::gen::element(-1, 0, 240, 300, 17, 18, 19);
                axis.SetOwn(place, size);
                plain.Own[static_cast<std::size_t>(place)] = size;
            }
            }
        }
        ExpectSame(axis, plain);
    }));
}

TEST(AxisOfSizes, ManyMixedSizes_AreFoundAcrossBlocks)
{
    Axis axis(5000, 240);
    PlainAxis plain{std::vector<std::int32_t>(5000, Axis::defaultOwn)};
    for (std::int32_t index = 0; index < 5000; ++index) {
        const std::int32_t place = (index * 1237) % 5000;
        axis.SetOwn(place, place % 7 * 100);
        plain.Own[static_cast<std::size_t>(place)] = place % 7 * 100;
    }
    std::int64_t position = 0;
    for (std::int32_t index = 0; index < 5000; ++index) {
        ASSERT_EQ(axis.Position(index), position);
        ASSERT_EQ(axis.At(position), axis.NextShown(index));
        position += plain.Size(static_cast<std::size_t>(index));
    }
    EXPECT_EQ(axis.Extent(), position);
}

TEST(AxisOfSizes, CutByWholeBlocks_ForgetsWhereTheyBegan)
{
    constexpr std::int32_t count = 600;
    Axis axis(count, 240);
    for (std::int32_t index = 0; index < count; index += 2)
        axis.SetOwn(index, 300);
    EXPECT_EQ(axis.Extent(), 300 * 540);
    for (std::int32_t left = count; left > 1; --left) {
        axis.SetCount(left);
        ASSERT_EQ(axis.Extent(), left / 2 * 540 + left % 2 * 300);
        ASSERT_EQ(axis.At(axis.Extent() - 1), left - 1);
    }
}

TEST(AxisOfSizes, NegativePosition_IsTheFirst_ThoughItBeHidden)
{
    Axis axis(3, 240);
    axis.SetOwn(0, 0);
    EXPECT_EQ(axis.At(-1), 0);
    EXPECT_EQ(axis.At(0), 1);
}

TEST(AxisOfSizes, EmptiedOfWholeBlocks_ForgetsWhereTheyBegan)
{
    Axis axis(600, 240);
    for (std::int32_t index = 0; index < 600; index += 2)
        axis.SetOwn(index, 300);
    EXPECT_EQ(axis.Extent(), 300 * 540);
    while (axis.Count() > 2) {
        axis.Remove(axis.Count() - 1);
        axis.Remove(axis.Count() - 1);
        ASSERT_EQ(axis.Extent(), axis.Count() / 2 * 540);
        ASSERT_EQ(axis.At(axis.Extent() - 1), axis.Count() - 1);
    }
}

TEST(AxisOfSizes, RowsOfOneOwnHeightInARow_AreOneRun)
{
    Axis axis(1'000'001, 240);
    for (std::int32_t index = 1; index <= 1'000'000; ++index)
        axis.SetOwn(index, 300);
    EXPECT_EQ(axis.RunCount(), 2U);
    EXPECT_EQ(axis.Extent(), 240 + 300'000'000);
}

TEST(AxisOfSizes, PositionsBeyondThirtyTwoBits_AreWhole)
{
    Axis axis(2'000'000'000, 1000);
    EXPECT_EQ(axis.Extent(), 2'000'000'000'000);
    EXPECT_EQ(axis.At(1'999'999'999'999), 1'999'999'999);
}

TEST(AxisOfSizes, NextAndPreviousShown_PassOverSizeZero)
{
    Axis axis(6, 100);
    for (const std::int32_t index : {0, 2, 3, 5})
        axis.SetOwn(index, 0);
    EXPECT_EQ(axis.NextShown(0), 1);
    EXPECT_EQ(axis.NextShown(2), 4);
    EXPECT_EQ(axis.NextShown(5), 6);
    EXPECT_EQ(axis.NextShown(9), 6);
    EXPECT_EQ(axis.PreviousShown(5), 4);
    EXPECT_EQ(axis.PreviousShown(3), 1);
    EXPECT_EQ(axis.PreviousShown(0), -1);
    EXPECT_EQ(axis.PreviousShown(-1), -1);
}

} // namespace Tessellon::GridTests
