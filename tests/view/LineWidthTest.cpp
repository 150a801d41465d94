#include "engine/EnginePlatform.h"
#include "headless/HeadlessToolkit.h"
#include "support/SheetProbe.h"

#include <gtest/gtest.h>

namespace Tessellon {
namespace {

/// Where nothing is heard of a grid.
class Silence : public GridSurroundings {
public:
    void Raise(ChildEvent, EventArguments&) override {}
    bool TakeFocusByPress() override { return false; }
    void TakeFocusByCode() override {}
    void EnabledChanged() override {}
    std::int32_t DefaultRowHeight(const Font&) override { return 240; }
    std::int32_t DefaultColWidth(const Font&) override { return 960; }
    std::int32_t HorizontalScrollBarHeight() override { return 0; }
    std::int32_t VerticalScrollBarWidth() override { return 0; }
    void Bell() override {}
    void Copy(std::u16string_view) override {}
    void Invalidate(const GridRectangle&) override {}
    void PaintNow() override {}
    void ScrollBarsChanged() override {}
};

class WideLinedGrid : public GridEngine {
public:
    using GridEngine::GridEngine;
    std::int16_t GridLineWidth() override { return 3; }
};

/// A platform whose grid draws its lines three pixels wide.
class WideLinedPlatform : public EnginePlatform {
public:
    using EnginePlatform::EnginePlatform;
    Grid& MSFlexGrid1() override { return grid_; }

private:
    Silence silence_;
    WideLinedGrid grid_{silence_};
};

/// Two rows of 240 twips below a heading of 240, two columns of 840 and a marker column of 960.
class WideLines : public testing::Test {
protected:
    WideLines()
    {
        Grid& grid = Platform->MSFlexGrid1();
        grid.Move(0, 0, 9600, 4800);
        grid.Rows(3);
        grid.Cols(3);
        for (std::int32_t row = 0; row < 3; ++row)
            grid.RowHeight(row, 240);
        grid.ColWidth(0, 960);
        grid.ColWidth(1, 840);
        grid.ColWidth(2, 840);
        Members.RowCount = Members.ColCount = 3;
        Members.DefaultRowHeight = Members.InitialRowHeight = 240;
    }

    std::shared_ptr<EnginePlatform> Platform =
        std::make_shared<WideLinedPlatform>(std::make_shared<HeadlessToolkit>(), Locale::English());
    SheetPointer Sheet = TessellonSheet::Create(Platform);
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

} // namespace

TEST_F(WideLines, CountTwiceInARowThatIsInView)
{
    Members.DefaultRowHeight = 10;
    Probe.GetVisibleRows();
    EXPECT_EQ(Members.VisibleRows, 269); // (4800 - 240 - 240) / (2 * 3 + 10), less one.
}

TEST_F(WideLines, CountFourTimesAboveTheRowsAndOnceInEach)
{
    Members.ControlHeight = 240 + 4 * 3 + 2 * 240 + 2 * (240 + 3);
    EXPECT_TRUE(Probe.IsVerticalScroll(1, 2));
    Members.ControlHeight += 1;
    EXPECT_FALSE(Probe.IsVerticalScroll(1, 2));
}

TEST_F(WideLines, CountTwiceBesideTheColumnsOnceInEachAndOnceInTheMargin)
{
    Members.ControlWidth = 960 + 2 * 3 + 2 * (840 + 3) + 100 + 3;
    EXPECT_TRUE(Probe.IsHorizontalScroll(1, 2));
    Members.ControlWidth += 1;
    EXPECT_FALSE(Probe.IsHorizontalScroll(1, 2));
}

TEST_F(WideLines, CountInBothSumsOfTheWholeGrid)
{
    constexpr float height = (3 + 240) * 3 + 240 + 2 * 3;
    constexpr float width = 2 * 3 + (960 + 3) + 2 * (840 + 3);
    Members.ControlHeight = height;
    Members.ControlWidth = width;
    EXPECT_TRUE(Probe.IsBothScroll());
    Members.ControlHeight = height + 1;
    EXPECT_FALSE(Probe.IsBothScroll());
    Members.ControlHeight = height;
    Members.ControlWidth = width + 1;
    EXPECT_FALSE(Probe.IsBothScroll());
}

} // namespace Tessellon
