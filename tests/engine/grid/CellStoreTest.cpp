#include "engine/grid/CellStore.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Tessellon::GridTests {

namespace {

struct PlainCell {
    std::u16string Text;
    std::optional<std::int32_t> Color;
    Picture Shown = Picture::None;
    std::int16_t Alignment = 0;
};

/// The same, each cell for itself.
using PlainCells = std::vector<std::vector<PlainCell>>;

std::u16string SomeText()
{
    const auto length = static_cast<std::size_t>(*rc::gen::weightedElement<int>(
        {{3, 0}, {4, 1}, {10, 7}, {6, 30}, {2, 300}, {1, 32766}, {1, 32767}, {1, 40000}}));
    const auto first = static_cast<char16_t>(*rc::gen::element(u'a', u'\u00FF', u'\u0100', char16_t{0xD83D}));
    std::u16string text(length, u'x');
    if (!text.empty())
        text[length / 2] = first;
    return text;
}

void ExpectSame(CellStore& store, const PlainCells& plain)
{
    RC_ASSERT(store.Rows() == static_cast<std::int32_t>(plain.size()));
    for (std::int32_t row = 0; row < store.Rows(); ++row)
        for (std::int32_t col = 0; col < store.Cols(); ++col) {
            const PlainCell& cell = plain[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
            RC_ASSERT(std::u16string(store.Text(row, col)) == cell.Text);
            RC_ASSERT(store.Color(row, col) == cell.Color);
            RC_ASSERT(store.PictureOf(row, col) == cell.Shown);
            RC_ASSERT(store.PictureAlignment(row, col) == cell.Alignment);
        }
}

} // namespace

TEST(CellStorage, UnderRandomChanges_AgreesWithEachCellForItself)
{
    EXPECT_TRUE(rc::check([] {
        CellStore store(2, 3);
        PlainCells plain(2, std::vector<PlainCell>(3));
        const int steps = *rc::gen::inRange(1, 150);
        for (int step = 0; step < steps; ++step) {
            const auto rows = static_cast<int>(plain.size());
            const auto cols = static_cast<int>(plain[0].size());
            const int row = *rc::gen::inRange(0, rows);
            const int col = *rc::gen::inRange(0, cols);
            PlainCell& cell = plain[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
            switch (*rc::gen::inRange(0, 16)) {
            case 0: {
                const int wanted = *rc::gen::element(1, 2, 10, 1500, 3000);
                store.SetRows(wanted);
                plain.resize(static_cast<std::size_t>(wanted), std::vector<PlainCell>(plain[0].size()));
                break;
            }
            case 1: {
                const int wanted = *rc::gen::element(1, 2, 3, 5, 9);
                store.SetCols(wanted);
                for (std::vector<PlainCell>& line : plain) {
                    line.resize(static_cast<std::size_t>(wanted));
                }
                break;
            }
            case 2:
            case 3:
                store.InsertRow(row + 1);
                plain.insert(plain.begin() + row + 1, std::vector<PlainCell>(plain[0].size()));
                break;
            case 4:
            case 5:
                if (rows > 1) {
                    store.RemoveRow(row);
                    plain.erase(plain.begin() + row);
                }
                break;
            case 6:
            case 7: {
                const int last = *rc::gen::inRange(col, cols);
                const std::int32_t color = *rc::gen::inRange(0, 400);
                store.SetColor(row, col, last, color);
                for (int at = col; at <= last; ++at)
                    plain[static_cast<std::size_t>(row)][static_cast<std::size_t>(at)].Color = color;
                break;
            }
            case 8:
                cell.Shown = *rc::gen::element(Picture::None, Picture::Arrow);
                store.SetPicture(row, col, cell.Shown);
                break;
            case 9:
                cell.Alignment = *rc::gen::element<std::int16_t>(0, 4);
                store.SetPictureAlignment(row, col, cell.Alignment);
                break;
            default: {
                const std::u16string text = SomeText();
                RC_ASSERT(store.SetText(row, col, text) == (text != cell.Text));
                cell.Text = text;
            }
            }
        }
        ExpectSame(store, plain);
    }));
}

TEST(CellStorage, ManyRowsInsertedAndRemovedInTheMiddle_KeepTheirTexts)
{
    CellStore store(1, 4);
    std::vector<std::u16string> plain{u""};
    const auto text = [](int number) {
        const std::string digits = std::to_string(number);
        return std::u16string(digits.begin(), digits.end());
    };
    for (int number = 0; number < 6000; ++number) {
        const int row = number * 7919 % (store.Rows() + 1);
        store.InsertRow(row);
        store.SetText(row, 2, text(number));
        plain.insert(plain.begin() + row, text(number));
    }
    for (int number = 0; number < 5500; ++number) {
        const int row = number * 104729 % store.Rows();
        store.RemoveRow(row);
        plain.erase(plain.begin() + row);
    }
    ASSERT_EQ(store.Rows(), static_cast<std::int32_t>(plain.size()));
    for (std::int32_t row = 0; row < store.Rows(); ++row)
        ASSERT_EQ(store.Text(row, 2), plain[static_cast<std::size_t>(row)]);
    EXPECT_LE(store.ChunkCount(), 12U);
}

TEST(CellStorage, BlankRows_CostNothingEach)
{
    CellStore store(2'000'000'000, 10);
    EXPECT_EQ(store.ChunkCount(), 1U);
    store.SetText(1'000'000'000, 3, u"x");
    EXPECT_EQ(store.Text(1'000'000'000, 3), u"x");
    EXPECT_EQ(store.ChunkCount(), 3U);
    EXPECT_LE(store.Bytes(), 50'000U);
}

TEST(CellStorage, TextThatIsOverwrittenForEver_DoesNotGrow)
{
    CellStore store(10, 3);
    for (int time = 0; time < 20'000; ++time)
        for (std::int32_t col = 0; col < 3; ++col)
            store.SetText(time % 10, col, std::u16string(static_cast<std::size_t>(time * 31 % 97), u'y'));
    EXPECT_LE(store.Bytes(), 60'000U);
}

TEST(CellStorage, MoreColoursThanBandsHaveNumbers_AreAllKept)
{
    CellStore store(1000, 4);
    for (int pass = 0; pass < 2; ++pass) {
        for (std::int32_t row = 0; row < 1000; ++row)
            store.SetColor(row, 1, 3, pass * 5000 + row);
        for (std::int32_t row = 0; row < 1000; ++row) {
            ASSERT_EQ(store.Color(row, 1), pass * 5000 + row);
            ASSERT_EQ(store.Color(row, 0), std::nullopt);
        }
    }
}

TEST(CellStorage, BandColoursChangedOverAndOver_StayBands)
{
    CellStore store(100, 4);
    for (int time = 0; time < 1000; ++time)
        for (std::int32_t row = 0; row < 100; ++row)
            store.SetColor(row, 1, 3, time * 2 + row % 2);
    EXPECT_EQ(store.Color(5, 2), 1999);
    EXPECT_LE(store.Bytes(), 20'000U);
}

TEST(CellStorage, OneByteAndTwoByteTexts_ReadBackUnitForUnit)
{
    CellStore store(2, 3);
    const std::u16string wide{u'\u20AC', u'\0', u'x', char16_t{0xD83D}, char16_t{0xDE00}};
    const std::u16string narrow{u'\u00FF', u'\0', u'\u0080'};
    store.SetText(0, 0, wide);
    store.SetText(0, 1, narrow);
    EXPECT_EQ(store.Text(0, 0), wide);
    EXPECT_EQ(store.Text(0, 1), narrow);
    store.SetText(0, 0, narrow);
    store.SetText(0, 1, wide);
    EXPECT_EQ(store.Text(0, 0), narrow);
    EXPECT_EQ(store.Text(0, 1), wide);
}

TEST(CellStorage, WriteOfTheSame_SaysThatNothingChanged)
{
    CellStore store(2, 3);
    EXPECT_TRUE(store.SetText(1, 1, u"a"));
    EXPECT_FALSE(store.SetText(1, 1, u"a"));
    EXPECT_TRUE(store.SetColor(1, 1, 2, 5));
    EXPECT_FALSE(store.SetColor(1, 1, 2, 5));
    EXPECT_FALSE(store.SetColor(1, 2, 2, 5));
    EXPECT_TRUE(store.SetPicture(1, 0, Picture::Arrow));
    EXPECT_FALSE(store.SetPicture(1, 0, Picture::Arrow));
    EXPECT_FALSE(store.SetPictureAlignment(1, 1, 0));
}

} // namespace Tessellon::GridTests
