#pragma once

#include "orders/EventLog.h"
#include "orders/HostLog.h"
#include "orders/Source.h"

#include <QWidget>

#include <string>

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

/// The sheet of orders, and beside it what its host hears.
class OrdersWindow : public QWidget {
    Q_OBJECT

public:
    OrdersWindow();

    /// Fills the sheet. What fails is told by the sheet itself, in a message box or by ErrInfo. Gives the seconds that
    /// the statement took.
    double Load(const Source& source);
    /// What ErrInfo said of the last load; empty if nothing.
    [[nodiscard]] const std::string& LoadFailure() const { return loadFailure_; }

    [[nodiscard]] Tessellon::SheetWidget& Sheet() const { return *sheet_; }
    [[nodiscard]] HostLog& Log() { return log_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void DeclareColumns();
    void ColorBands();

    EventLog lines_;
    Tessellon::SheetWidget* sheet_;
    HostLog log_;
    std::string loadFailure_;
};

} // namespace Orders
