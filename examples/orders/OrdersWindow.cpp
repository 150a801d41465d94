#include "orders/OrdersWindow.h"

#include "orders/EventsPanel.h"
#include "qt/SheetWidget.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QHBoxLayout>
#include <QSplitter>

namespace Orders {

using namespace Tessellon;

namespace {

constexpr int twipsAPixel = 15;

struct Column {
    const char* Name;
    FieldControlType Kind;
    bool IsHidden;
    FieldControlAlign Alignment;
    int Length; ///< Of what may be typed; 0 for any.
    FieldAutoAdjustType Width;
    int FirstWidth; ///< In pixels at 96 dots an inch; 0 leaves the usual one.
};

/// In the order of the query's fields. Whoever would write back finds the record by the hidden key.
constexpr Column columns[] = {
    {"Number", fcNil, false, fcRight, 0, faHeader, 60},
    {"Customer", fcTextBox, false, fcLeft, 60, faContent, 0},
    {"City", fcTextBox, false, fcLeft, 40, faContent, 0},
    {"Ordered", fcNil, false, fcCenter, 0, faHeader, 92},
    {"Amount", fcTextBox, false, fcRight, 12, faHeader, 80},
    {"Currency", fcTextBox, false, fcCenter, 3, faHeader, 40},
    {"Paid", fcCheckBox, false, fcCenter, 0, faHeader, 48},
    {"Shipped", fcCheckBox, false, fcCenter, 0, faHeader, 48},
    {"Phone", fcTextBox, false, fcLeft, 24, faContent, 0},
    {"Notes", fcTextBox, false, fcLeft, 0, faNil, 420},
    {"Key", fcNil, true, fcRight, 0, faNil, 0},
};

} // namespace

OrdersWindow::OrdersWindow()
    : sheet_(new SheetWidget)
    , log_(*sheet_, lines_)
{
    setWindowTitle(tr("Orders"));
    auto* const splitter = new QSplitter(this);
    splitter->addWidget(sheet_);
    splitter->addWidget(new EventsPanel(lines_));
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setCollapsible(0, false);
    splitter->setSizes({880, 300});
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(splitter);
    DeclareColumns();
    ColorBands();
    lines_.Clear();
    sheet_->setFocus();
    resize(sizeHint());
}

void OrdersWindow::DeclareColumns()
{
    sheet_->DateFormat(QStringLiteral("yyyy-MM-dd"));
    sheet_->Cols(static_cast<int>(std::size(columns)) + 1);
    int col = 0;
    for (const Column& column : columns) {
        ++col;
        sheet_->CreateColumnDataType(col, QString::fromLatin1(column.Name), column.Kind, {}, column.IsHidden,
                                     column.Alignment, column.Length, column.Width, false);
        if (column.FirstWidth > 0)
            sheet_->ColWidth(col, static_cast<float>(column.FirstWidth * twipsAPixel));
    }
    constexpr int rowPixels = 21;
    constexpr int markerPixels = 22;
    sheet_->ColWidth(0, markerPixels * twipsAPixel);
    sheet_->RowHeight(rowPixels * twipsAPixel, true, true);
    sheet_->BuildGridColumns();
}

/// The colours of a list on this desktop, light or dark.
void OrdersWindow::ColorBands()
{
    const QColor color = palette().color(QPalette::AlternateBase);
    constexpr int greenShift = 8;
    constexpr int blueShift = 16;
    const int bits = color.red() | color.green() << greenShift | color.blue() << blueShift;
    sheet_->BackColor(0, WindowBackground);
    sheet_->BackColor(1, static_cast<ColorType>(bits));
}

void OrdersWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        ColorBands();
    QWidget::changeEvent(event);
}

double OrdersWindow::Load(const Source& source)
{
    loadFailure_.clear();
    const auto listening =
        connect(sheet_, &SheetWidget::ErrInfo, this, [this](int /*number*/, const QString& description) {
            if (loadFailure_.empty())
                loadFailure_ = description.toStdString();
        });
    log_.LoadBegins();
    QElapsedTimer timer;
    timer.start();
    sheet_->DataSource(source.Records, source.Connection);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    log_.LoadEnds();
    disconnect(listening);
    const int rows = sheet_->Rows() - 1;
    setWindowTitle(tr("%L1 orders, %2").arg(rows).arg(QString::fromStdU16String(source.Path.filename().u16string())));
    log_.Tell(QStringLiteral("loaded"), tr("%L1 rows in %L2 s").arg(rows).arg(seconds, 0, 'f', 3));
    return seconds;
}

QSize OrdersWindow::sizeHint() const
{
    return {1200, 650};
}

} // namespace Orders
