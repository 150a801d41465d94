#pragma once

#include <QPaintEvent>
#include <QRegion>
#include <QWidget>

namespace Tessellon {

/// Notes what is painted of a widget.
class PaintedArea : public QObject {
public:
    explicit PaintedArea(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            const QRegion& region = static_cast<QPaintEvent*>(event)->region();
            Pixels += PixelsOf(region);
            Painted += region;
        }
        return false;
    }

    static int PixelsOf(const QRegion& region)
    {
        int sum = 0;
        for (const QRect& part : region)
            sum += part.width() * part.height();
        return sum;
    }

    int Pixels = 0; ///< Each as often as it was painted.
    QRegion Painted;
};

} // namespace Tessellon
