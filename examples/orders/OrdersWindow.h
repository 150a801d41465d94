#pragma once

#include "orders/BandColors.h"
#include "orders/ColumnSummary.h"
#include "orders/EditWatch.h"
#include "orders/EventLog.h"
#include "orders/HostLog.h"
#include "orders/Source.h"

#include <QKeySequence>
#include <QMainWindow>

#include <optional>
#include <string>

class QLabel;
class QMenu;

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

class FindBar;

/// The sheet of orders, with what a clerk does to them in the menus, what is to be told of the current column below,
/// and beside it what its host hears.
class OrdersWindow : public QMainWindow {
    Q_OBJECT

public:
    OrdersWindow();

    /// Fills the sheet. What fails is told by the sheet itself, in a message box or by ErrInfo. Gives the seconds that
    /// the statement took.
    double Load(const Source& source);
    /// What ErrInfo said of the last load; empty if nothing.
    [[nodiscard]] const std::string& LoadFailure() const { return loadFailure_; }

    [[nodiscard]] Tessellon::SheetWidget& Sheet() const { return *sheet_; }
    [[nodiscard]] HostLog& Log() { return log_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void BuildMenus();
    void BuildStatusBar();
    template <class Action>
    QAction* AddCommand(QMenu& menu, const QString& text, const QKeySequence& keys, Action action);
    void ColorBands();
    [[nodiscard]] BandColors DesktopColors() const;
    void ShowPlace();

    // What the menus do.
    bool LeaveCell();
    void EnterCell(int row, int col);
    void AddRow(int behind);
    void DeleteRow();
    void Reload();
    void OpenFindBar();
    void CloseFindBar();
    void FindNext();
    void ChooseColors();
    void CopySlip();
    void ExplainKeys();
    bool Ask(const QString& title, const QString& question, const QString& details, const QString& yes);
    void Tell(const QString& message);

    EventLog lines_;
    Tessellon::SheetWidget* sheet_;
    HostLog log_;
    EditWatch edits_;
    ColumnSummary summary_;
    FindBar* findBar_;
    QWidget* events_;
    QLabel* told_;
    QLabel* place_;
    std::filesystem::path path_;
    std::string loadFailure_;
    std::optional<BandColors> colors_; ///< None while they are the desktop's.
    QString found_; ///< A search for the same again goes on from the current row.
};

} // namespace Orders
