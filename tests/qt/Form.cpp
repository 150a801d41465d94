#include "Form.h"

#include <QVBoxLayout>
#include <QWindow>

namespace Tessellon {

void Form::SetUp()
{
    Window = std::make_unique<QWidget>();
    Before = new QLineEdit(Window.get());
    Sheet = new SheetWidget(Window.get());
    Behind = new QPushButton(QStringLiteral("New row"), Window.get());
    auto* const layout = new QVBoxLayout(Window.get());
    layout->addWidget(Before);
    layout->addWidget(Sheet, 1);
    layout->addWidget(Behind);
    Sheet->ShowErrMessage(false);
    Window->resize(700, 400);
    Before->setFocus();
    Window->show();
    Window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
}

void Form::TearDown()
{
    Window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

void Form::Fill(SheetWidget& sheet, int rows)
{
    sheet.Cols(4);
    sheet.CreateColumnDataType(1, QStringLiteral("Name"), fcTextBox, {}, false, fcLeft, 5, faNil, false);
    sheet.CreateColumnDataType(2, QStringLiteral("Town"), fcTextBox, {}, false, fcLeft, 0, faNil, false);
    sheet.CreateColumnDataType(3, QStringLiteral("Paid"), fcCheckBox, {}, false, fcCenter, 0, faNil, false);
    sheet.BuildGridColumns();
    sheet.AllowAddNew(true);
    sheet.Add(0, rows);
    QCoreApplication::processEvents();
}

void Form::Hear()
{
    const auto note = [this](const char* name) { return [this, name] { Heard += QString::fromLatin1(name); }; };
    QObject::connect(Sheet, &SheetWidget::EnterCell, note("EnterCell"));
    QObject::connect(Sheet, &SheetWidget::LeaveCell, note("LeaveCell"));
    QObject::connect(Sheet, &SheetWidget::EditorValidate, note("EditorValidate"));
    QObject::connect(Sheet, &SheetWidget::EditorChange, note("EditorChange"));
    QObject::connect(Sheet, &SheetWidget::ExitFocus, note("ExitFocus"));
    QObject::connect(Sheet, &SheetWidget::KeyDown, note("KeyDown"));
    QObject::connect(Sheet, &SheetWidget::KeyPress, note("KeyPress"));
    QObject::connect(Sheet, &SheetWidget::KeyUp, note("KeyUp"));
    QObject::connect(Sheet, &SheetWidget::MouseDown, note("MouseDown"));
    QObject::connect(Sheet, &SheetWidget::Click, note("Click"));
    QObject::connect(Sheet, &SheetWidget::SelChange, note("SelChange"));
    QObject::connect(Sheet, &SheetWidget::Scroll, note("Scroll"));
}

QRect Form::PlaceOf(GridCell cell) const
{
    return View().PixelsAround(Frame().Platform()->TheGrid().RectangleOf(cell));
}

void Form::Click(GridCell cell) const
{
    QTest::mouseClick(&View(), Qt::LeftButton, {}, MiddleOf(cell));
}

void Form::ClickThroughWindow(QWidget& target)
{
    QTest::mouseClick(target.window()->windowHandle(), Qt::LeftButton, {},
                      target.mapTo(target.window(), target.rect().center()));
    QCoreApplication::processEvents();
}

void Form::Key(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Form::Type(const QString& text)
{
    for (const QChar unit : text) {
        QKeyEvent down(QEvent::KeyPress, unit.toUpper().unicode(), Qt::NoModifier, QString(unit));
        QCoreApplication::sendEvent(QApplication::focusWidget(), &down);
        QKeyEvent up(QEvent::KeyRelease, unit.toUpper().unicode(), Qt::NoModifier, QString(unit));
        QCoreApplication::sendEvent(QApplication::focusWidget(), &up);
    }
}

} // namespace Tessellon
