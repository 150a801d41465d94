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
struct Columns;

/// Sum, minimum and maximum of the current column in words. They are worked out while the user pauses, one at a time,
/// so that he waits for one walk down the column at most; and the longer the walks take, the longer the pause that they
/// wait for: they never take more than a quarter of the time.
class ColumnSummary : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this. `ofNoRows` is what is told of a sheet without rows.
    ColumnSummary(Tessellon::SheetWidget& sheet, const Columns& columns, const QString& ofNoRows);

    void CursorMoved(); ///< Costs nothing in the same column.
    void CellsChanged();

signals:
    void Changed(const QString& text);

private:
    enum class Step : std::uint8_t { Blank, Sum, Least, Most };

    void Go();
    void Take(Step step, const Column& column);
    void Finish(const QString& text);
    [[nodiscard]] QString NameOf(int col) const;
    [[nodiscard]] QString Worded(const QString& value, const Column& column) const;
    [[nodiscard]] QString Worded(double number, const Column& column) const;

    Tessellon::SheetWidget& sheet_;
    const Columns& columns_;
    const QString ofNoRows_;
    QTimer timer_;
    int col_ = 0;
    std::vector<Step> due_;
    QStringList found_;
    double cost_ = 0; ///< Milliseconds that the walks took, so far and the last time.
    double lastCost_ = 0;
};

} // namespace Orders
