#include "engine/grid/RecordingGrid.h"

namespace Tessellon::GridTests {

using CursorEvents = GridTest;

TEST_F(CursorEvents, MoveByCode_TellsEachEventOnceInOrder)
{
    Build(7, 3);
    Grid.Row(3);
    EXPECT_EQ(Told(), wholeMove);
    EXPECT_EQ(Cursor(), (Numbers{3, 1, 3, 1}));
    Grid.Row(3);
    EXPECT_EQ(Told(), Names{});
}

} // namespace Tessellon::GridTests
