#include "orders/Picture.h"

#include "orders/SheetWindow.h"
#include "qt/SheetWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QThread>

#include <algorithm>

namespace Orders {

namespace {

void Press(int key, const QString& text = {})
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        // Whoever has the focus may change with each key.
        QWidget* const focus = QApplication::focusWidget();
        if (focus == nullptr)
            return;
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(focus, &event);
    }
}

void Type(const QString& text)
{
    for (const QChar character : text)
        Press(character.toUpper().unicode(), QString(character));
}

/// Until the window is in front, the panel has shown what came and the column is summed up.
void Settle(const SheetWindow& window)
{
    constexpr int enough = 300;
    constexpr int most = 5'000;
    constexpr int step = 10;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < enough || (!window.isActiveWindow() && timer.elapsed() < most)) {
        QThread::msleep(step);
        QApplication::processEvents();
    }
}

} // namespace

QImage PictureOfAnEdit(SheetWindow& window, const QString& typed)
{
    constexpr int editedRow = 4;
    // A caret that blinks would be in one picture and not in the next.
    QApplication::setCursorFlashTime(0);
    window.activateWindow();
    Settle(window);
    Tessellon::SheetWidget& sheet = window.Sheet();
    sheet.setFocus();
    sheet.Row(std::min(editedRow, sheet.Rows() - 1));
    sheet.Col(window.FirstTypedCol());
    Press(Qt::Key_F2);
    Press(Qt::Key_End);
    Type(typed);
    Settle(window);
    return window.grab().toImage();
}

} // namespace Orders
