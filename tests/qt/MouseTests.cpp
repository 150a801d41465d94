#include "Form.h"

#include <QScrollBar>
#include <QWheelEvent>

namespace Tessellon {

namespace {

class Mouse : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill(*Sheet, 200);
        QTest::qWait(10);
        Click({1, 1});
    }

    static void Turn(QWidget& over, int eighths, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        const QPointF at(5, 5);
        QWheelEvent wheel(at, over.mapToGlobal(at), {}, QPoint(0, eighths), Qt::NoButton, modifiers, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&over, &wheel);
    }

    [[nodiscard]] GridEngine& Grid() const { return Frame().Platform()->TheGrid(); }
};

} // namespace

TEST_F(Mouse, PressOnACell_EntersIt)
{
    Hear();
    Click({3, 2});
    EXPECT_EQ(Sheet->Row(), 3);
    EXPECT_EQ(Sheet->Col(), 2);
    EXPECT_EQ(QApplication::focusWidget(), &Box());
    EXPECT_EQ(Heard.first(), QStringLiteral("EditorValidate"));
}

TEST_F(Mouse, Drag_SelectsFromCellToCell)
{
    QTest::mousePress(&View(), Qt::LeftButton, {}, MiddleOf({2, 1}));
    QMouseEvent move(QEvent::MouseMove, MiddleOf({4, 2}), View().mapToGlobal(MiddleOf({4, 2})), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&View(), &move);
    Hear();
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, MiddleOf({4, 2}));
    EXPECT_EQ(Grid().Selection().FirstRow(), 2);
    EXPECT_EQ(Grid().Selection().LastRow(), 4);
    EXPECT_EQ(Grid().Selection().LastCol(), 2);
    EXPECT_EQ(Heard.first(), QStringLiteral("SelChange"));
}

TEST_F(Mouse, DragHeldBelowTheView_GoesOnScrolling)
{
    QTest::mousePress(&View(), Qt::LeftButton, {}, MiddleOf({2, 1}));
    const QPointF below(20 + MiddleOf({2, 1}).x(), View().height() + 20);
    QMouseEvent move(QEvent::MouseMove, below, View().mapToGlobal(below), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&View(), &move);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Grid().TopRow() > 3; }, 2000));
    EXPECT_GT(Grid().Selection().LastRow(), 10);
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, below.toPoint());
    const int rested = Grid().TopRow();
    QTest::qWait(150);
    EXPECT_EQ(Grid().TopRow(), rested);
}

TEST_F(Mouse, EdgeOfAHeading_ShowsThePointer_AndPullsTheWidth)
{
    const QRect heading = View().PixelsAround(Grid().RectangleOf({0, 1}));
    const QPoint edge(heading.right(), heading.center().y());
    QTest::mouseMove(&View(), edge);
    QMouseEvent hover(QEvent::MouseMove, edge, View().mapToGlobal(edge), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&View(), &hover);
    EXPECT_EQ(View().cursor().shape(), Qt::SplitHCursor);
    const int before = Grid().ColWidth(1);
    QTest::mousePress(&View(), Qt::LeftButton, {}, edge);
    const QPoint pulled = edge + QPoint(20, 0);
    QMouseEvent move(QEvent::MouseMove, pulled, View().mapToGlobal(pulled), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&View(), &move);
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, pulled);
    EXPECT_EQ(Grid().ColWidth(1), before + 20 * 15);
}

TEST_F(Mouse, Wheel_ScrollsThreeRows_AlsoOverAnEditor_WhoseValueItLeaves)
{
    Turn(View(), -120);
    EXPECT_EQ(Grid().TopRow(), 4);
    Click({5, 1});
    Type(QStringLiteral("12"));
    ASSERT_TRUE(Box().isVisible());
    Turn(Box(), -120);
    EXPECT_EQ(Grid().TopRow(), 7);
    EXPECT_EQ(Sheet->TextMatrix(5, 1), QStringLiteral("12"));
}

TEST_F(Mouse, PartsOfANotch_AddUp)
{
    Turn(View(), -60);
    EXPECT_EQ(Grid().TopRow(), 1);
    Turn(View(), -60);
    EXPECT_EQ(Grid().TopRow(), 4);
}

TEST_F(Mouse, ScrollBar_FollowsTheGrid_AndMovesIt)
{
    QScrollBar& bar = Frame().Bars().Vertical();
    ASSERT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(bar.minimum(), 1);
    bar.setValue(50);
    EXPECT_EQ(Grid().TopRow(), 50);
    Turn(View(), 120);
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), 47);
    EXPECT_EQ(View().width(), Frame().width() - bar.width());
}

TEST_F(Mouse, ScrollBars_AreThereOnlyWhereThereIsSomethingToScrollTo)
{
    EXPECT_FALSE(Frame().Bars().Horizontal().isVisible());
    Sheet->ColWidth(2, 30'000);
    QCoreApplication::processEvents();
    EXPECT_TRUE(Frame().Bars().Horizontal().isVisible());
    Sheet->ColWidth(2, 600);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Frame().Bars().Horizontal().isVisible());
}

TEST_F(Mouse, ScrollBarOfAMillionRows_ReachesTheLast)
{
    Grid().Redraw(false);
    Grid().Rows(1'000'001);
    Grid().Redraw(true);
    QCoreApplication::processEvents();
    QScrollBar& bar = Frame().Bars().Vertical();
    bar.setValue(bar.maximum());
    EXPECT_EQ(Grid().VisibleRows().Last, 1'000'000);
}

TEST_F(Mouse, PressInTheBox_IsNoPressOnTheGrid)
{
    Hear();
    QTest::mouseClick(&Box(), Qt::LeftButton, {}, Box().rect().center());
    EXPECT_FALSE(Heard.contains(QStringLiteral("MouseDown")));
    EXPECT_EQ(FocusName(), u"Text1");
}

TEST_F(Mouse, PressOnTheCheckBox_TurnsIt_WhenReleasedInside)
{
    Click({2, 3});
    ASSERT_EQ(FocusName(), u"Check1");
    QWidget& check = Frame().WidgetOf(Frame().Platform()->TheCheckBox().get());
    QTest::mouseClick(&check, Qt::LeftButton, {}, check.rect().center());
    EXPECT_EQ(Sheet->TextMatrix(2, 3), QStringLiteral("True"));
    QTest::mousePress(&check, Qt::LeftButton, {}, check.rect().center());
    QTest::mouseRelease(&check, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(Sheet->TextMatrix(2, 3), QStringLiteral("True"));
}

} // namespace Tessellon
