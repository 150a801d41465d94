#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <cstdint>
#include <vector>

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

struct Column;

/// Sum, minimum and maximum of the current column in words. They are worked out while the user pauses, one at a time,
/// so that he waits for one walk down the column at most; and the longer the walks take, the longer the pause that they
/// wait for: they never take more than a quarter of the time.
class ColumnSummary : public QObject {
    Q_OBJECT

public:
    explicit ColumnSummary(Tessellon::SheetWidget& sheet);

    void CursorMoved(); ///< Costs nothing in the same column.
    void CellsChanged();

signals:
    void Changed(const QString& text);

private:
    enum class Step : std::uint8_t { Blank, Sum, Least, Most };

    void Go();
    void Take(Step step, const Column& column);
    void Finish(const QString& text);
    [[nodiscard]] QString Worded(const QString& value, const Column& column) const;

    Tessellon::SheetWidget& sheet_;
    QTimer timer_;
    int col_ = 0;
    std::vector<Step> due_;
    QStringList found_;
    double cost_ = 0; ///< Milliseconds that the walks took, so far and the last time.
    double lastCost_ = 0;
};

} // namespace Orders
