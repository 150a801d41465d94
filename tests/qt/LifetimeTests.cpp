#include "Form.h"

#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>

#include <new>
#include <utility>

namespace Tessellon {

namespace {

class Lifetime : public Form {
protected:
    void SetUp() override
    {
        Form::SetUp();
        Fill();
        Frames = &Frame();
    }

    /// Deletes the sheet in a signal of its own.
    template <class Signal>
    void DeleteIn(Signal signal)
    {
        QObject::connect(Sheet, signal, [this] { delete std::exchange(Sheet, nullptr); });
    }

    void ExpectGone()
    {
        EXPECT_EQ(Sheet, nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(Frames.isNull());
    }

    QPointer<SheetFrame> Frames;
};

} // namespace

TEST_F(Lifetime, SheetMayGoInKeyDown)
{
    DeleteIn(&SheetWidget::KeyDown);
    Key(Qt::Key_A);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInKeyPress)
{
    DeleteIn(&SheetWidget::KeyPress);
    QTest::keyClick(QApplication::focusWidget(), 'a');
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInEditorChange)
{
    DeleteIn(&SheetWidget::EditorChange);
    QTest::keyClick(QApplication::focusWidget(), 'a');
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInTheMiddleOfAnAdvance)
{
    DeleteIn(&SheetWidget::AdvanceToNextCell);
    Key(Qt::Key_Return);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInEnterCell)
{
    DeleteIn(&SheetWidget::EnterCell);
    Key(Qt::Key_Return);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInAPressOnTheGrid)
{
    DeleteIn(&SheetWidget::MouseDown);
    Click({2, 2});
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInValidate_ByAPressElsewhere)
{
    DeleteIn(&SheetWidget::EditorValidate);
    ClickThroughWindow(*Behind);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInExitFocus_ByTab)
{
    DeleteIn(&SheetWidget::ExitFocus);
    Key(Qt::Key_Tab);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInScroll_ByTheWheel)
{
    Sheet->Add(3, 200);
    DeleteIn(&SheetWidget::Scroll);
    QWheelEvent wheel(QPointF(50, 50), View().mapToGlobal(QPointF(50, 50)), {}, QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&View(), &wheel);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoInACallOfTheHosts)
{
    DeleteIn(&SheetWidget::EnterCell);
    Sheet->Row(2);
    ExpectGone();
}

TEST_F(Lifetime, SheetMayGoWhileItsMessageBoxIsUp)
{
    Sheet->ShowErrMessage(true);
    QObject::connect(Sheet, &SheetWidget::AdvanceToNextCell, [] { throw std::bad_alloc(); });
    bool wasUp = false;
    QTimer::singleShot(0, [&] {
        wasUp = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr;
        delete std::exchange(Sheet, nullptr);
        if (QWidget* const box = QApplication::activeModalWidget())
            box->close();
    });
    Key(Qt::Key_Return);
    EXPECT_TRUE(wasUp);
    ExpectGone();
}

TEST_F(Lifetime, MessageBox_IsNoLossOfFocus)
{
    Sheet->ShowErrMessage(true);
    Hear();
    QObject::connect(Sheet, &SheetWidget::AdvanceToNextCell, [] { throw std::bad_alloc(); });
    std::u16string during;
    QTimer::singleShot(0, [&] {
        during = FocusName();
        QApplication::activeModalWidget()->close();
    });
    Key(Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(during, FocusName());
    EXPECT_FALSE(Heard.contains(QStringLiteral("ExitFocus")));
}

} // namespace Tessellon
