#include "orders/EventLog.h"

#include <algorithm>
#include <utility>

namespace Orders {

EventLog::EventLog(QObject* parent)
    : QAbstractListModel(parent)
{
    constexpr int oneFrame = 30;
    showing_.setSingleShot(true);
    showing_.setInterval(oneFrame);
    connect(&showing_, &QTimer::timeout, this, &EventLog::Show);
}

void EventLog::Add(const QString& event, const QString& details)
{
    coming_.push_back({event, details});
    if (coming_.size() > MostLines)
        coming_.pop_front();
    if (!showing_.isActive())
        showing_.start();
}

void EventLog::AddOrCount(const QString& event, const QString& details)
{
    std::deque<Line>& last = coming_.empty() ? lines_ : coming_;
    if (last.empty() || last.back().Event != event) {
        Add(event, details);
        return;
    }
    last.back().Details = details;
    ++last.back().Times;
    isLastChanged_ = isLastChanged_ || coming_.empty();
    if (!showing_.isActive())
        showing_.start();
}

void EventLog::Clear()
{
    beginResetModel();
    lines_.clear();
    coming_.clear();
    endResetModel();
}

void EventLog::Show()
{
    if (std::exchange(isLastChanged_, false) && !lines_.empty()) {
        const QModelIndex last = index(static_cast<int>(lines_.size()) - 1);
        emit dataChanged(last, last);
    }
    const int shown = static_cast<int>(lines_.size());
    const int added = static_cast<int>(coming_.size());
    if (added == 0)
        return;
    const int dropped = std::max(shown + added - MostLines, 0);
    if (dropped > 0) {
        beginRemoveRows({}, 0, dropped - 1);
        lines_.erase(lines_.begin(), lines_.begin() + dropped);
        endRemoveRows();
    }
    const int first = shown - dropped;
    beginInsertRows({}, first, first + added - 1);
    lines_.insert(lines_.end(), std::make_move_iterator(coming_.begin()), std::make_move_iterator(coming_.end()));
    coming_.clear();
    endInsertRows();
    emit Grown();
}

int EventLog::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

QVariant EventLog::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const Line& line = lines_[static_cast<std::size_t>(index.row())];
    QString text = line.Event;
    if (!line.Details.isEmpty())
        text += u' ' + line.Details;
    if (line.Times > 1)
        text += QStringLiteral(" (%1 times)").arg(line.Times);
    return text;
}

} // namespace Orders
