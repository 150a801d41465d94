#pragma once

#include "orders/EventLog.h"

#include <QFile>

#include <array>
#include <filesystem>

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

/// Hears all events of a sheet and writes them down: into the log of a panel and, where one is wanted, into a file.
/// While a load runs, the events of its rows are only counted.
class HostLog {
public:
    /// Both must outlive this.
    HostLog(Tessellon::SheetWidget& sheet, EventLog& lines);

    /// A file that cannot be written is a std::runtime_error of one line.
    void WriteInto(const std::filesystem::path& path);
    void Tell(const QString& event, const QString& details = {});
    void LoadBegins();
    void LoadEnds();
    /// Puts all cells into the file, the hidden ones too: a line "cell ROW COL TEXT" each, with the text as a string of
    /// JSON in ASCII.
    void WriteCells();

private:
    enum Swarming { LeaveCell, EnterCell, RowColChange, SelChange, Scroll, SwarmingCount };

    void HearCells();
    void HearInput();
    void HearTheRest();
    void TellOrCount(Swarming event);
    void TellSwarm(const QString& event, const QString& details);
    void Write(const QString& event, const QString& details);
    QString Place();
    QString CellAndText();

    Tessellon::SheetWidget& sheet_;
    EventLog& lines_;
    QFile file_;
    bool isLoading_ = false;
    std::array<int, SwarmingCount> counts_{};
};

} // namespace Orders
