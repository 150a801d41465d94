#include "orders/ColumnSummary.h"

#include "orders/Columns.h"
#include "orders/Quiet.h"
#include "qt/SheetWidget.h"

#include <QElapsedTimer>
#include <QLocale>

#include <algorithm>

namespace Orders {

using namespace Tessellon;

namespace {

constexpr double shortestPause = 100;
constexpr double longestPause = 10'000;
constexpr double pauseToCost = 3;

/// Dates with the year first and the day last stand in the order of their texts, which compare ten times as quickly.
ManipulateType ComparedAs(const Column& column)
{
    return column.Total == Totals::Numbers ? mtNumeric : mtString;
}

QString Quoted(const QString& text)
{
    constexpr qsizetype most = 30;
    const QString line = text.simplified();
    return u'“' + (line.size() > most ? line.left(most) + u'…' : line) + u'”';
}

} // namespace

ColumnSummary::ColumnSummary(SheetWidget& sheet, const Columns& columns, const QString& ofNoRows)
    : sheet_(sheet)
    , columns_(columns)
    , ofNoRows_(ofNoRows)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ColumnSummary::Go);
}

void ColumnSummary::CursorMoved()
{
    if (sheet_.Col() == col_)
        return;
    CellsChanged();
    emit Changed(NameOf(col_) + QStringLiteral(": …"));
}

void ColumnSummary::CellsChanged()
{
    col_ = sheet_.Col();
    due_.clear();
    found_.clear();
    cost_ = 0;
    timer_.start(static_cast<int>(std::clamp(lastCost_ * pauseToCost, shortestPause, longestPause)));
}

void ColumnSummary::Go()
{
    const Column* const column = columns_.At(col_);
    if (sheet_.Rows() < 2 || column == nullptr)
        return Finish(ofNoRows_);
    if (column->Total == Totals::None)
        return Finish(tr("%1: nothing to add up").arg(NameOf(col_)));
    if (due_.empty()) {
        due_ = {Step::Blank, Step::Least, Step::Most};
        if (column->Total == Totals::Numbers)
            due_.insert(due_.begin() + 1, Step::Sum);
        else
            found_ += column->Total == Totals::Dates ? tr("dates") : tr("text");
    }
    const Step step = due_.front();
    due_.erase(due_.begin());
    QElapsedTimer clock;
    clock.start();
    {
        // A sum past all numbers is said in the status line; nobody asked for a box.
        const Quiet quiet(sheet_);
        Take(step, *column);
    }
    cost_ += static_cast<double>(clock.nsecsElapsed()) / 1e6;
    if (!due_.empty()) {
        timer_.start(0);
        return;
    }
    lastCost_ = cost_;
    emit Changed(NameOf(col_) + QStringLiteral(": ") + found_.join(QStringLiteral(", ")));
}

void ColumnSummary::Finish(const QString& text)
{
    due_.clear();
    emit Changed(text);
}

void ColumnSummary::Take(Step step, const Column& column)
{
    bool success = false;
    switch (step) {
    case Step::Blank:
        // Nothing has a sum and a minimum too, as the sheet sees it.
        if (sheet_.Maximum(col_, mtString, success).isEmpty()) {
            due_.clear();
            found_ = {tr("empty")};
        }
        break;
    case Step::Sum: {
        const double sum = sheet_.Summation(col_, success);
        found_ += success ? tr("sum %1").arg(Worded(sum, column)) : tr("sum past all numbers");
        break;
    }
    case Step::Least:
        found_ += tr("minimum %1").arg(Worded(sheet_.Minimum(col_, ComparedAs(column), success), column));
        break;
    case Step::Most:
        found_ += tr("maximum %1").arg(Worded(sheet_.Maximum(col_, ComparedAs(column), success), column));
        break;
    }
}

QString ColumnSummary::NameOf(int col) const
{
    const Column* const column = columns_.At(col);
    return column != nullptr ? column->Name : QString();
}

QString ColumnSummary::Worded(const QString& value, const Column& column) const
{
    if (column.Total == Totals::Texts)
        return Quoted(value);
    bool isNumber = false;
    const double number = sheet_.locale().toDouble(value, &isNumber);
    return column.Decimals > 0 && isNumber ? Worded(number, column) : value;
}

QString ColumnSummary::Worded(double number, const Column& column) const
{
    return column.Decimals == AnyDecimals ? sheet_.locale().toString(number, 'g', QLocale::FloatingPointShortest)
                                          : sheet_.locale().toString(number, 'f', column.Decimals);
}

} // namespace Orders
