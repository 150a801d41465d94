#pragma once

#include "orders/SheetWindow.h"

namespace Orders {

/// The window of the orders, each of which has a button that copies its slip.
class OrdersWindow : public SheetWindow {
    Q_OBJECT

public:
    OrdersWindow();

protected:
    [[nodiscard]] QString NameOfRow(int row) const override;

private:
    void CopySlip();
};

} // namespace Orders
