#include "orders/OrdersWindow.h"

#include "orders/Columns.h"
#include "orders/EventsPanel.h"
#include "orders/FindBar.h"
#include "orders/OneLineLabel.h"
#include "platform/Failure.h"
#include "qt/SheetWidget.h"
#include "recordset/sqlite/SqliteConnection.h"
#include "recordset/sqlite/SqliteRecordset.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

namespace Orders {

using namespace Tessellon;

namespace {

ColorType ColorTypeOf(const QColor& color)
{
    constexpr int greenShift = 8;
    constexpr int blueShift = 16;
    return static_cast<ColorType>(color.red() | color.green() << greenShift | color.blue() << blueShift);
}

/// A query that gives no record leaves the sheet as it is; a failure is left to the load, which tells it.
bool IsEmpty(SqliteRecordset& records)
{
    try {
        return records.AtEnd();
    } catch (const Failure&) {
        return false;
    }
}

} // namespace

OrdersWindow::OrdersWindow()
    : sheet_(new SheetWidget)
    , log_(*sheet_, lines_)
    , edits_(*sheet_)
    , summary_(*sheet_)
    , findBar_(new FindBar)
    , events_(new EventsPanel(lines_))
    , told_(new OneLineLabel)
    , place_(new QLabel)
{
    setWindowTitle(tr("Orders"));
    auto* const splitter = new QSplitter;
    splitter->addWidget(sheet_);
    splitter->addWidget(events_);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    splitter->setCollapsible(0, false);
    splitter->setSizes({880, 300});
    constexpr int leastWidth = 400;
    sheet_->setMinimumWidth(leastWidth);
    auto* const middle = new QWidget;
    auto* const column = new QVBoxLayout(middle);
    column->addWidget(splitter, 1);
    column->addWidget(findBar_);
    findBar_->hide();
    setCentralWidget(middle);
    BuildMenus();
    BuildStatusBar();
    connect(sheet_, &SheetWidget::ButtonClick, this, &OrdersWindow::CopySlip);
    connect(sheet_, &SheetWidget::UseAdvanceToNextCell, this, [](bool& use) { use = true; });
    DeclareColumns(*sheet_);
    sheet_->AllowAddNew(true);
    ColorBands();
    lines_.Clear();
    sheet_->setFocus();
    resize(sizeHint());
}

void OrdersWindow::BuildStatusBar()
{
    constexpr int leftMargin = 4;
    told_->setContentsMargins(leftMargin, 0, 0, 0);
    statusBar()->addWidget(told_, 1);
    statusBar()->addPermanentWidget(place_);
    connect(&summary_, &ColumnSummary::Changed, told_, &QLabel::setText);
    connect(&edits_, &EditWatch::Entered, this, [this] {
        statusBar()->clearMessage();
        ShowPlace();
        summary_.CursorMoved();
    });
    connect(&edits_, &EditWatch::Edited, this, [this] {
        setWindowModified(true);
        summary_.CellsChanged();
    });
}

void OrdersWindow::ShowPlace()
{
    const int rows = sheet_->Rows() - 1;
    place_->setText(rows < 1 ? QString() : tr("Row %L1 of %L2").arg(sheet_->Row()).arg(rows));
    findBar_->SetColumn(sheet_->ColumnHeader(sheet_->Col()));
}

/// Unless the user has chosen others, those of a list on this desktop, light or dark.
void OrdersWindow::ColorBands()
{
    if (colors_) {
        sheet_->BackColor(0, ColorTypeOf(colors_->Even));
        sheet_->BackColor(1, ColorTypeOf(colors_->Odd));
        return;
    }
    sheet_->BackColor(0, WindowBackground);
    sheet_->BackColor(1, ColorTypeOf(DesktopColors().Odd));
}

BandColors OrdersWindow::DesktopColors() const
{
    return {palette().color(QPalette::AlternateBase), palette().color(QPalette::Base)};
}

void OrdersWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        ColorBands();
    QMainWindow::changeEvent(event);
}

double OrdersWindow::Load(const Source& source)
{
    // Behind a load that failed, or with none to come in their place, earlier rows would stay.
    if (sheet_->Rows() > 1 && (!loadFailure_.empty() || IsEmpty(*source.Records))) {
        sheet_->Clear();
        DeclareColumns(*sheet_);
        ColorBands();
    }
    path_ = source.Path;
    loadFailure_.clear();
    const auto listening =
        connect(sheet_, &SheetWidget::ErrInfo, this, [this](int /*number*/, const QString& description) {
            if (loadFailure_.empty())
                loadFailure_ = description.toStdString();
        });
    edits_.Pause();
    log_.LoadBegins();
    QElapsedTimer timer;
    timer.start();
    sheet_->DataSource(source.Records, source.Connection);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    log_.LoadEnds();
    disconnect(listening);
    const int rows = sheet_->Rows() - 1;
    if (rows == 0)
        sheet_->Col(CustomerCol);
    setWindowTitle(tr("%L1 orders, %2[*]").arg(rows).arg(QString::fromStdU16String(path_.filename().u16string())));
    setWindowModified(false);
    edits_.Restart();
    summary_.CellsChanged();
    log_.Tell(QStringLiteral("loaded"), tr("%L1 rows in %L2 s").arg(rows).arg(seconds, 0, 'f', 3));
    return seconds;
}

QSize OrdersWindow::sizeHint() const
{
    return {1200, 650};
}

} // namespace Orders
