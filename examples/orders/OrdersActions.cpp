#include "orders/Columns.h"
#include "orders/FindBar.h"
#include "orders/OrdersWindow.h"
#include "qt/SheetWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>
#include <exception>

namespace Orders {

using namespace Tessellon;

template <class Action>
QAction* OrdersWindow::AddCommand(QMenu& menu, const QString& text, const QKeySequence& keys, Action action)
{
    QAction* const command = menu.addAction(text);
    command->setShortcut(keys);
    connect(command, &QAction::triggered, this, action);
    return command;
}

/// None of the keys is one that an editor has a use for.
void OrdersWindow::BuildMenus()
{
    QMenu& orders = *menuBar()->addMenu(tr("&Orders"));
    AddCommand(orders, tr("&New behind this row"), QKeySequence(tr("Ctrl+N")),
               [this] { AddRow(sheet_->Rows() > 1 ? sheet_->Row() : 0); });
    AddCommand(orders, tr("New at the &end"), QKeySequence(tr("Ctrl+Shift+N")), [this] { AddRow(sheet_->Rows() - 1); });
    AddCommand(orders, tr("&Delete this row…"), QKeySequence(tr("Ctrl+-")), [this] { DeleteRow(); });
    orders.addSeparator();
    AddCommand(orders, tr("&Reload"), QKeySequence(tr("F5")), [this] { Reload(); });
    orders.addSeparator();
    AddCommand(orders, tr("&Quit"), QKeySequence(tr("Ctrl+Q")), [this] { close(); });

    QMenu& find = *menuBar()->addMenu(tr("&Find"));
    AddCommand(find, tr("&Find in this column…"), QKeySequence(tr("Ctrl+F")), [this] { OpenFindBar(); });
    AddCommand(find, tr("Find &next"), QKeySequence(tr("F3")), [this] { FindNext(); });
    connect(findBar_, &FindBar::FindNext, this, &OrdersWindow::FindNext);
    connect(findBar_, &FindBar::TextEdited, this, [this] { found_.clear(); });
    connect(findBar_, &FindBar::Closed, this, &OrdersWindow::CloseFindBar);

    QMenu& view = *menuBar()->addMenu(tr("&View"));
    AddCommand(view, tr("&Colours of the bands…"), QKeySequence(tr("Ctrl+Shift+B")), [this] { ChooseColors(); });
    QAction* const events =
        AddCommand(view, tr("&Events"), QKeySequence(tr("F9")), [this](bool shown) { events_->setVisible(shown); });
    events->setCheckable(true);
    events->setChecked(true);

    QMenu& help = *menuBar()->addMenu(tr("&Help"));
    AddCommand(help, tr("&Keys and storage"), QKeySequence(tr("F1")), [this] { ExplainKeys(); });
}

/// Takes the focus out of the sheet as a press elsewhere would: what is half typed in a date is taken, and the host's
/// EditorValidate may keep the user where he is.
bool OrdersWindow::LeaveCell()
{
    if (sheet_->isAncestorOf(QApplication::focusWidget()))
        setFocus();
    return !sheet_->isAncestorOf(QApplication::focusWidget());
}

/// Back into the sheet, with the editor of that cell up. Not every desktop brings the window back behind a box.
void OrdersWindow::EnterCell(int row, int col)
{
    if (!isActiveWindow())
        activateWindow();
    bool hasScrolled = false;
    const auto listening = connect(sheet_, &SheetWidget::Scroll, this, [&] { hasScrolled = true; });
    const auto enter = [&] {
        // A move to the cell that is current already would enter nothing; the first column has no editor of its own.
        sheet_->Col(NumberCol);
        sheet_->Row(std::min(row, sheet_->Rows() - 1));
        sheet_->Col(col);
    };
    enter();
    // Where the cell was out of view, the scrolling has taken its editor down again.
    if (hasScrolled)
        enter();
    disconnect(listening);
    sheet_->setFocus();
}

/// Until the user goes on, or some seconds.
void OrdersWindow::Tell(const QString& message)
{
    constexpr int milliseconds = 8'000;
    statusBar()->showMessage(message, milliseconds);
}

bool OrdersWindow::Ask(const QString& title, const QString& question, const QString& details, const QString& yes)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Cancel, this);
    box.setInformativeText(details);
    const QPushButton* const yesButton = box.addButton(yes, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == yesButton;
}

void OrdersWindow::AddRow(int behind)
{
    if (!LeaveCell())
        return;
    sheet_->Add(behind);
    edits_.Note();
    ShowPlace();
    sheet_->setFocus();
    Tell(tr("Row %L1 is new. It is kept in this window only.").arg(sheet_->Row()));
}

void OrdersWindow::DeleteRow()
{
    if (!LeaveCell())
        return;
    const int row = sheet_->Row();
    const int col = sheet_->Col();
    QString message = tr("There is no row to delete.");
    if (sheet_->Rows() > 1) {
        const QString order =
            tr("%1, %2").arg(sheet_->TextMatrix(row, NumberCol), sheet_->TextMatrix(row, CustomerCol));
        message.clear();
        if (Ask(tr("Delete a row"), tr("Delete row %L1?").arg(row), tr("%1. The database keeps the order.").arg(order),
                tr("&Delete"))) {
            sheet_->Delete(row);
            edits_.Note();
            message = tr("Row %L1 is deleted: %2.").arg(row).arg(order);
        }
    }
    EnterCell(row, col);
    ShowPlace();
    Tell(message);
}

void OrdersWindow::Reload()
{
    if (!LeaveCell())
        return;
    int row = sheet_->Row();
    const int col = sheet_->Col();
    QString message;
    if (!edits_.HasEdits() ||
        Ask(tr("Reload"), tr("Load the orders again?"),
            tr("What was typed, added and deleted here since the last load is lost."), tr("&Reload"))) {
        const QString key = sheet_->TextMatrix(row, KeyCol());
        try {
            Load(OpenDatabase(path_));
            message = tr("%L1 orders were loaded.").arg(sheet_->Rows() - 1);
            if (const int found = sheet_->SearchCol(KeyCol(), key); found > 0)
                row = found;
        } catch (const std::exception& failure) {
            QMessageBox::critical(this, tr("Reload"), QString::fromUtf8(failure.what()));
        }
    }
    EnterCell(row, col);
    ShowPlace();
    Tell(message);
}

void OrdersWindow::OpenFindBar()
{
    if (!LeaveCell())
        return;
    // The sheet goes from find to find while the user types in the field.
    sheet_->setGrabsFocus(false);
    ShowPlace();
    findBar_->Open();
}

void OrdersWindow::CloseFindBar()
{
    findBar_->hide();
    sheet_->setGrabsFocus(true);
    EnterCell(sheet_->Row(), sheet_->Col());
}

void OrdersWindow::FindNext()
{
    const bool isInBar = findBar_->HasFocusInside();
    const QString text = findBar_->Text();
    if (text.isEmpty()) {
        if (!isInBar)
            OpenFindBar();
        Tell(tr("Type what is to be found."));
        return;
    }
    if (!LeaveCell())
        return;
    const int col = sheet_->Col();
    const int row = FindInColumn(*sheet_, col, text, text == found_ ? sheet_->Row() : 0);
    found_ = row > 0 ? text : QString();
    if (!isInBar)
        EnterCell(sheet_->Row(), col);
    ShowPlace();
    Tell(row > 0 ? tr("“%1” is in row %2.").arg(text, locale().toString(row))
                 : tr("“%1” is not in %2.").arg(text, sheet_->ColumnHeader(col)));
}

void OrdersWindow::ChooseColors()
{
    if (!LeaveCell())
        return;
    const BandColors desktop = DesktopColors();
    BandColorsBox box(colors_.value_or(desktop), desktop, this);
    if (box.exec() == QDialog::Accepted) {
        colors_.reset();
        if (box.Colors() != desktop)
            colors_ = box.Colors();
        ColorBands();
    }
    EnterCell(sheet_->Row(), sheet_->Col());
}

/// What the button of a row does. Enter on it is on the way through the row and goes on to the next.
void OrdersWindow::CopySlip()
{
    const int row = sheet_->Row();
    const auto cell = [&](int col) { return sheet_->TextMatrix(row, col); };
    QGuiApplication::clipboard()->setText(tr("Order %1 of %2\n%3, %4\n%5 %6\n")
                                              .arg(cell(NumberCol), cell(OrderedCol), cell(CustomerCol), cell(CityCol),
                                                   cell(AmountCol), cell(CurrencyCol)));
    // The move that follows would take a message down that is told now.
    QTimer::singleShot(0, this, [this, row] { Tell(tr("The slip of row %L1 is on the clipboard.").arg(row)); });
}

void OrdersWindow::ExplainKeys()
{
    QString rows;
    for (const QAction* const menu : menuBar()->actions()) {
        for (const QAction* const command : menu->menu()->actions()) {
            if (!command->shortcut().isEmpty())
                rows += QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>")
                            .arg(command->shortcut().toString(QKeySequence::NativeText).toHtmlEscaped(),
                                 command->text().remove(u'&').remove(u'…').toHtmlEscaped());
        }
    }
    rows +=
        QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(tr("Enter, arrows"), tr("the next cell")) +
        QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(tr("Esc"), tr("the cell as it was")) +
        QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(tr("F2"), tr("into the cell again"));
    if (!LeaveCell())
        return;
    QMessageBox::information(this, tr("Keys and storage"),
                             QStringLiteral("<table>%1</table><p>%2</p>")
                                 .arg(rows, tr("The database is only read. What is typed, added and deleted here "
                                               "lasts until the orders are loaded again or the window is closed.")));
    EnterCell(sheet_->Row(), sheet_->Col());
}

} // namespace Orders
