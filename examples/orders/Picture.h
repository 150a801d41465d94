#pragma once

#include <QImage>

namespace Orders {

class OrdersWindow;

/// Plays a user who is in the middle of changing a customer's name, and draws the window as it then is.
QImage PictureOfAnEdit(OrdersWindow& window);

} // namespace Orders
