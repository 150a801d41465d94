#include "orders/Picture.h"

#include "orders/OrdersWindow.h"
#include "qt/SheetWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QThread>

namespace Orders {

namespace {

constexpr int editedRow = 4;
constexpr int customerCol = 2;

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
void Settle(const OrdersWindow& window)
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

QImage PictureOfAnEdit(OrdersWindow& window)
{
    // A caret that blinks would be in one picture and not in the next.
    QApplication::setCursorFlashTime(0);
    window.activateWindow();
    Settle(window);
    Tessellon::SheetWidget& sheet = window.Sheet();
    sheet.setFocus();
    sheet.Row(editedRow);
    sheet.Col(customerCol);
    Press(Qt::Key_F2);
    Press(Qt::Key_End);
    Type(QStringLiteral(" & Daughters"));
    Settle(window);
    return window.grab().toImage();
}

} // namespace Orders
