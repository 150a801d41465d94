#pragma once

#include <QPointF>
#include <QTransform>

#include <cmath>

namespace Tessellon {

/// The device's pixels under a widget whose own are scaled: a logical position goes to the nearest edge between two of
/// them. The widget itself need not begin on one.
class DevicePixels {
public:
    /// `origin` is where the widget begins, in device pixels.
    DevicePixels(qreal scale, QPointF origin)
        : scale_(scale)
        , origin_(origin)
    {
    }
    static DevicePixels Of(const QTransform& transform) { return {transform.m11(), {transform.dx(), transform.dy()}}; }

    [[nodiscard]] qreal Scale() const { return scale_; }
    [[nodiscard]] qreal Across(qreal x) const { return Snapped(x, origin_.x()); }
    [[nodiscard]] qreal Down(qreal y) const { return Snapped(y, origin_.y()); }
    // The widget's own corner, with the pixel that it shares with what lies ahead of it.
    [[nodiscard]] qreal Left() const { return (std::floor(origin_.x()) - origin_.x()) / scale_; }
    [[nodiscard]] qreal Top() const { return (std::floor(origin_.y()) - origin_.y()) / scale_; }

private:
    [[nodiscard]] qreal Snapped(qreal position, qreal origin) const
    {
        return (std::round(position * scale_ + origin) - origin) / scale_;
    }

    qreal scale_;
    QPointF origin_;
};

} // namespace Tessellon
