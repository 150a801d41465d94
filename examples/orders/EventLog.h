#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QTimer>

#include <deque>

namespace Orders {

/// The events that a host got, one a line, the latest last; only the latest thousand are kept. Lines are added at no
/// cost to speak of and reach the views a moment later, many at a time.
class EventLog : public QAbstractListModel {
    Q_OBJECT

public:
    static constexpr int MostLines = 1'000;

    explicit EventLog(QObject* parent = nullptr);

    void Add(const QString& event, const QString& details);
    /// As Add, but an event that comes again at once is told in the line that stands: for those that come in swarms.
    void AddOrCount(const QString& event, const QString& details);
    void Clear();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

signals:
    void Grown();

private:
    struct Line {
        QString Event;
        QString Details;
        int Times = 1;
    };

    void Show();

    std::deque<Line> lines_;
    std::deque<Line> coming_;
    bool isLastChanged_ = false;
    QTimer showing_;
};

} // namespace Orders
