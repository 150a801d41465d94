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

    /// Fills the sheet. What fails is told in one box, unless the sheet is to show none. Gives the seconds that the
    /// statement took.
    double Load(const Source& source);
    /// Why the last load broke off, in one line; empty if it did not.
    [[nodiscard]] const QString& LoadFailure() const { return loadFailure_; }

    [[nodiscard]] Tessellon::SheetWidget& Sheet() const { return *sheet_; }
    [[nodiscard]] int FirstTypedCol() const; ///< The first with an editor; 1 if none has.
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
    double Fill(const Source& source);
    void ShowPlace();

    // What the menus do.
    bool LeaveCell();
    void ComeToFront();
    void EnterCell(int row, int col);
    void AddRow(int behind);
    void DeleteRow();
    void Reload();
    void OpenFindBar();
    void CloseFindBar();
    void FindNext();
    void ChooseColors();
    void ExplainKeys();
    void TellFailure(const QString& title, const QString& words);
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
    QString loadFailure_;
    std::optional<BandColors> colors_; ///< None while they are the desktop's.
    QString found_; ///< A search for the same again goes on from the current row.
};

} // namespace Orders
