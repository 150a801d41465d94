#include "peers/QtTable.h"

#include "orders/BareLoop.h"
#include "screen/Jumps.h"
#include "support/Records.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>

namespace Bench {

namespace {

constexpr int advances = 90;

void TellMemory(const char* name)
{
    Tell(name, static_cast<double>(Orders::PeakMemory().value_or(0)));
}

void Advance(QTableView& view)
{
    const QAbstractItemModel& model = *view.model();
    const int row = model.rowCount() / 2;
    view.setFocus();
    view.setCurrentIndex(model.index(row, 0));
    view.edit(view.currentIndex());
    Paint();
    Demand(qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr, "an editor is open");
    const std::vector<double> seconds = PaintedSeconds(advances, [](int) { Press(Qt::Key_Return); });
    Demand(view.currentIndex() == model.index(row + advances / fieldCount, 0), "each Enter goes on by a cell");
    Demand(qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr, "an editor is open");
    Tell("advance", Median(seconds));
}

} // namespace

void Lay(QTableView& view)
{
    view.verticalHeader()->setMinimumSectionSize(rowPixels);
    view.verticalHeader()->setDefaultSectionSize(rowPixels);
    view.horizontalHeader()->setDefaultSectionSize(columnPixels);
}

void Begin(QTableView& view)
{
    Lay(view);
    ShowInFront(view);
    TellMemory("before");
}

void Finish(QTableView& view)
{
    TellMemory("peak");
    const QAbstractItemModel& model = *view.model();
    Tell("rows", model.rowCount());
    Checksum checksum;
    for (int row = 0; row < model.rowCount(); ++row)
        for (const int field : plainFields)
            checksum.Add(model.index(row, field).data().toString().toStdU16String());
    Tell("checksum", checksum.Value());
    MeasureJumps(*view.verticalScrollBar(), *view.viewport());
    Advance(view);
}

} // namespace Bench
