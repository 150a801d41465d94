#include "orders/SheetWindow.h"

#include "orders/EventsPanel.h"
#include "orders/FindBar.h"
#include "orders/LoadBar.h"
#include "orders/OneLineLabel.h"
#include "orders/Quiet.h"
#include "platform/Failure.h"
#include "qt/SheetWidget.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

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
bool IsEmpty(Recordset& records)
{
    try {
        return records.AtEnd();
    } catch (const Failure&) {
        return false;
    }
}

} // namespace

SheetWindow::SheetWindow(const QString& rows, const QString& menu, const Columns& columns)
    : rows_(rows)
    , sheet_(new SheetWidget)
    , log_(*sheet_, lines_)
    , edits_(*sheet_)
    , summary_(*sheet_, columns_, tr("No %1. Ctrl+N makes one.").arg(rows))
    , findBar_(new FindBar)
    , events_(new EventsPanel(lines_))
    , told_(new OneLineLabel)
    , bar_(new LoadBar)
    , place_(new QLabel)
{
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
    BuildMenus(menu);
    BuildStatusBar();
    connect(sheet_, &SheetWidget::UseAdvanceToNextCell, this, [](bool& use) { use = true; });
    Use(columns);
    lines_.Clear();
    sheet_->setFocus();
    resize(sizeHint());
}

void SheetWindow::BuildStatusBar()
{
    constexpr int leftMargin = 4;
    told_->setContentsMargins(leftMargin, 0, 0, 0);
    statusBar()->addWidget(told_, 1);
    statusBar()->addPermanentWidget(bar_);
    statusBar()->addPermanentWidget(place_);
    connect(sheet_, &SheetWidget::loadProgress, this, [this](int rows, int records) {
        bar_->Tell(rows, records);
        // No event lays the bar out while a load runs.
        statusBar()->layout()->activate();
    });
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

void SheetWindow::ShowPlace()
{
    const int rows = sheet_->Rows() - 1;
    place_->setText(rows < 1 ? QString() : tr("Row %L1 of %L2").arg(sheet_->Row()).arg(rows));
    findBar_->SetColumn(sheet_->ColumnHeader(sheet_->Col()));
}

/// Unless the user has chosen others, those of a list on this desktop, light or dark.
void SheetWindow::ColorBands()
{
    if (colors_) {
        sheet_->BackColor(0, ColorTypeOf(colors_->Even));
        sheet_->BackColor(1, ColorTypeOf(colors_->Odd));
        return;
    }
    sheet_->BackColor(0, WindowBackground);
    sheet_->BackColor(1, ColorTypeOf(DesktopColors().Odd));
}

BandColors SheetWindow::DesktopColors() const
{
    return {palette().color(QPalette::AlternateBase), palette().color(QPalette::Base)};
}

void SheetWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        ColorBands();
    QMainWindow::changeEvent(event);
}

void SheetWindow::Use(const Columns& columns)
{
    if (sheet_->Cols() > 1)
        sheet_->Clear();
    columns_ = columns;
    DeclareColumns(*sheet_, columns_);
    sheet_->AllowAddNew(true);
    ColorBands();
    told_->clear();
}

double SheetWindow::Load(const Source& source)
{
    // Behind a load that failed, or with none to come in their place, earlier rows would stay.
    if (source.Layout != columns_ || !loadFailure_.isEmpty() || (sheet_->Rows() > 1 && IsEmpty(*source.Records)))
        Use(source.Layout);
    openAgain_ = source.OpenAgain;
    loadFailure_.clear();
    edits_.Pause();
    log_.LoadBegins();
    const double seconds = Fill(source);
    log_.LoadEnds();
    bar_->hide();
    const int rows = sheet_->Rows() - 1;
    if (rows == 0)
        sheet_->Col(FirstTypedCol());
    setWindowTitle(tr("%1 %2, %3").arg(locale().toString(rows), rows_, source.Name).replace("[*]", "[*][*]") + "[*]");
    setWindowModified(false);
    edits_.Restart();
    summary_.CellsChanged();
    log_.Tell(QStringLiteral("loaded"), tr("%L1 rows in %L2 s").arg(rows).arg(seconds, 0, 'f', 3));
    if (!loadFailure_.isEmpty() && sheet_->ShowErrMessage())
        TellFailure(tr("Load"), loadFailure_ + u'\n' + tr("F5 tries again."));
    return seconds;
}

/// The walk that counts and the walk that reads may both fail, and a connection may have much to say: the first is what
/// is told.
double SheetWindow::Fill(const Source& source)
{
    const Quiet quiet(*sheet_);
    const auto listening =
        connect(sheet_, &SheetWidget::ErrInfo, this, [&](int /*number*/, const QString& description) {
            if (loadFailure_.isEmpty())
                loadFailure_ = tr("cannot read %1: %2").arg(source.Name, description.simplified());
        });
    QElapsedTimer timer;
    timer.start();
    sheet_->DataSource(source.Records, source.Connection);
    const double seconds = static_cast<double>(timer.nsecsElapsed()) / 1e9;
    disconnect(listening);
    return seconds;
}

int SheetWindow::FirstTypedCol() const
{
    const auto typed = std::ranges::find_if(columns_.List, [](const Column& column) { return column.Kind != fcNil; });
    return typed == columns_.List.end() ? 1 : static_cast<int>(typed - columns_.List.begin()) + 1;
}

QSize SheetWindow::sizeHint() const
{
    return {1200, 650};
}

} // namespace Orders
