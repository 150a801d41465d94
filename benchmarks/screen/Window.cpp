#include "screen/Window.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QPaintEvent>

#include <stdexcept>

namespace Bench {

void Paint()
{
    QGuiApplication::sync();
}

void ShowInFront(QWidget& widget, int width, int height)
{
    widget.resize(width, height);
    widget.show();
    widget.activateWindow();
    const QDeadlineTimer deadline(10'000);
    while (!widget.isActiveWindow() && !deadline.hasExpired())
        Paint();
    Demand(widget.isActiveWindow(), "the window came to the front");
    Paint();
}

void Press(int key, const QString& text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        Demand(QApplication::focusWidget() != nullptr, "somebody has the focus");
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
    }
}

void Demand(bool isSo, const char* what)
{
    if (!isSo)
        throw std::runtime_error(std::string("it does not hold that ") + what);
}

bool PaintCount::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Paint) {
        ++Events;
        for (const QRect& part : static_cast<QPaintEvent*>(event)->region())
            Pixels += double{1} * part.width() * part.height();
    }
    return false;
}

} // namespace Bench
