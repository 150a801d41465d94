#pragma once

#include "orders/BandColors.h"
#include "orders/ColumnSummary.h"
#include "orders/Columns.h"
#include "orders/EditWatch.h"
#include "orders/EventLog.h"
#include "orders/HostLog.h"
#include "orders/Source.h"

#include <QKeySequence>
#include <QMainWindow>

#include <functional>
#include <optional>
#include <string>

class QLabel;
class QMenu;

namespace Tessellon {
class SheetWidget;
} // namespace Tessellon

namespace Orders {

class FindBar;
class LoadBar;

/// A sheet of rows from somewhere, with what a clerk does to them in the menus, what is to be told of the current
/// column below, and beside it what its host hears.
class SheetWindow : public QMainWindow {
    Q_OBJECT

public:
    /// What the rows are called, as "orders", and the title of their menu, as "&Orders".
    SheetWindow(const QString& rows, const QString& menu, const Columns& columns);

    /// Fills the sheet. What fails is told by the sheet itself, in a message box or by ErrInfo. Gives the seconds that
    /// the statement took.
    double Load(const Source& source);
    /// What ErrInfo said of the last load; empty if nothing, and where a message box has said it.
    [[nodiscard]] const std::string& LoadFailure() const { return loadFailure_; }

    [[nodiscard]] Tessellon::SheetWidget& Sheet() const { return *sheet_; }
    [[nodiscard]] HostLog& Log() { return log_; }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void Tell(const QString& message);
    [[nodiscard]] virtual QString NameOfRow(int row) const; ///< By which a clerk knows it.

private:
    void BuildMenus(const QString& menu);
    void BuildStatusBar();
    template <class Action>
    QAction* AddCommand(QMenu& menu, const QString& text, const QKeySequence& keys, Action action);
    void Use(const Columns& columns); ///< Empties the sheet.
    void ColorBands();
    [[nodiscard]] BandColors DesktopColors() const;
    void ShowPlace();
    [[nodiscard]] int FirstTypedCol() const; ///< The first with an editor; 1 if none has.

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
    void ExplainKeys();
    bool Ask(const QString& title, const QString& question, const QString& details, const QString& yes);

    const QString rows_;
    Columns columns_;
    EventLog lines_;
    Tessellon::SheetWidget* sheet_;
    HostLog log_;
    EditWatch edits_;
    ColumnSummary summary_;
    FindBar* findBar_;
    QWidget* events_;
    QLabel* told_;
    LoadBar* bar_;
    QLabel* place_;
    std::function<Source()> openAgain_;
    bool hasLoadFailed_ = false;
    std::string loadFailure_;
    std::optional<BandColors> colors_; ///< None while they are the desktop's.
    QString found_; ///< A search for the same again goes on from the current row.
};

} // namespace Orders
