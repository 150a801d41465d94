#include "orders/OneLineLabel.h"

#include <QPainter>

namespace Orders {

QSize OneLineLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void OneLineLabel::paintEvent(QPaintEvent* /*event*/)
{
    const QRect room = contentsRect();
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    setToolTip(shown == text() ? QString() : text());
    QPainter(this).drawText(room, Qt::AlignVCenter | Qt::AlignLeft, shown);
}

} // namespace Orders
