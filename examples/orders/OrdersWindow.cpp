#include "orders/OrdersWindow.h"

#include "orders/OrderColumns.h"
#include "qt/SheetWidget.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTimer>

namespace Orders {

OrdersWindow::OrdersWindow()
    : SheetWindow(tr("orders"), tr("&Orders"), OrderColumns())
{
    setWindowTitle(tr("Orders"));
    connect(&Sheet(), &Tessellon::SheetWidget::ButtonClick, this, &OrdersWindow::CopySlip);
}

QString OrdersWindow::NameOfRow(int row) const
{
    return tr("%1, %2").arg(Sheet().TextMatrix(row, NumberCol), Sheet().TextMatrix(row, CustomerCol));
}

/// What the button of a row does. Enter on it is on the way through the row and goes on to the next.
void OrdersWindow::CopySlip()
{
    const int row = Sheet().Row();
    const auto cell = [&](int col) { return Sheet().TextMatrix(row, col); };
    QGuiApplication::clipboard()->setText(tr("Order %1 of %2\n%3, %4\n%5 %6\n")
                                              .arg(cell(NumberCol), cell(OrderedCol), cell(CustomerCol), cell(CityCol),
                                                   cell(AmountCol), cell(CurrencyCol)));
    // The move that follows would take a message down that is told now.
    QTimer::singleShot(0, this, [this, row] { Tell(tr("The slip of row %L1 is on the clipboard.").arg(row)); });
}

} // namespace Orders
