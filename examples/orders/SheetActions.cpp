#include "orders/FindBar.h"
#include "orders/SheetWindow.h"
#include "qt/SheetWidget.h"

#include <QApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>

#include <algorithm>
#include <exception>

namespace Orders {

using namespace Tessellon;

template <class Action>
QAction* SheetWindow::AddCommand(QMenu& menu, const QString& text, const QKeySequence& keys, Action action)
{
    QAction* const command = menu.addAction(text);
    command->setShortcut(keys);
    connect(command, &QAction::triggered, this, action);
    return command;
}

/// None of the keys is one that an editor has a use for.
void SheetWindow::BuildMenus(const QString& menu)
{
    QMenu& rows = *menuBar()->addMenu(menu);
    AddCommand(rows, tr("&New behind this row"), QKeySequence(tr("Ctrl+N")),
               [this] { AddRow(sheet_->Rows() > 1 ? sheet_->Row() : 0); });
    AddCommand(rows, tr("New at the &end"), QKeySequence(tr("Ctrl+Shift+N")), [this] { AddRow(sheet_->Rows() - 1); });
    AddCommand(rows, tr("&Delete this row…"), QKeySequence(tr("Ctrl+-")), [this] { DeleteRow(); });
    rows.addSeparator();
    AddCommand(rows, tr("&Reload"), QKeySequence(tr("F5")), [this] { Reload(); });
    rows.addSeparator();
    AddCommand(rows, tr("&Quit"), QKeySequence(tr("Ctrl+Q")), [this] { close(); });

    QMenu& find = *menuBar()->addMenu(tr("&Find"));
    AddCommand(find, tr("&Find in this column…"), QKeySequence(tr("Ctrl+F")), [this] { OpenFindBar(); });
    AddCommand(find, tr("Find &next"), QKeySequence(tr("F3")), [this] { FindNext(); });
    connect(findBar_, &FindBar::FindNext, this, &SheetWindow::FindNext);
    connect(findBar_, &FindBar::TextEdited, this, [this] { found_.clear(); });
    connect(findBar_, &FindBar::Closed, this, &SheetWindow::CloseFindBar);

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
bool SheetWindow::LeaveCell()
{
    if (sheet_->isAncestorOf(QApplication::focusWidget()))
        setFocus();
    return !sheet_->isAncestorOf(QApplication::focusWidget());
}

/// Not every desktop brings the window back behind a box.
void SheetWindow::ComeToFront()
{
    if (!isActiveWindow())
        activateWindow();
}

/// Back into the sheet, with the editor of that cell up.
void SheetWindow::EnterCell(int row, int col)
{
    ComeToFront();
    bool hasScrolled = false;
    const auto listening = connect(sheet_, &SheetWidget::Scroll, this, [&] { hasScrolled = true; });
    const auto enter = [&] {
        // A move to the cell that is current already would enter nothing.
        const int there = std::min(row, sheet_->Rows() - 1);
        sheet_->Col(col > 1 ? 1 : 2);
        if (sheet_->Col() == col)
            sheet_->Row(there > 1 ? 1 : 2);
        sheet_->Row(there);
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
void SheetWindow::Tell(const QString& message)
{
    constexpr int milliseconds = 8'000;
    statusBar()->showMessage(message, milliseconds);
}

/// In the words of others, which are no markup.
void SheetWindow::TellFailure(const QString& title, const QString& words)
{
    QMessageBox box(QMessageBox::Critical, title, words, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    ComeToFront();
}

bool SheetWindow::Ask(const QString& title, const QString& question, const QString& details, const QString& yes)
{
    QMessageBox box(QMessageBox::Question, title, question, QMessageBox::Cancel, this);
    box.setInformativeText(details);
    const QPushButton* const yesButton = box.addButton(yes, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == yesButton;
}

void SheetWindow::AddRow(int behind)
{
    if (!LeaveCell())
        return;
    sheet_->Add(behind);
    edits_.Note();
    ShowPlace();
    sheet_->setFocus();
    Tell(tr("Row %L1 is new. It is kept in this window only.").arg(sheet_->Row()));
}

QString SheetWindow::NameOfRow(int row) const
{
    constexpr qsizetype most = 60;
    const QString name = sheet_->TextMatrix(row, FirstTypedCol()).simplified();
    return name.size() > most ? name.left(most) + u'…' : name;
}

void SheetWindow::DeleteRow()
{
    if (!LeaveCell())
        return;
    const int row = sheet_->Row();
    const int col = sheet_->Col();
    QString message = tr("There is no row to delete.");
    if (sheet_->Rows() > 1) {
        const QString name = NameOfRow(row);
        message.clear();
        if (Ask(tr("Delete a row"), tr("Delete row %L1?").arg(row), tr("%1. The database keeps it.").arg(name),
                tr("&Delete"))) {
            sheet_->Delete(row);
            edits_.Note();
            message = tr("Row %L1 is deleted: %2.").arg(row).arg(name);
        }
    }
    EnterCell(row, col);
    ShowPlace();
    Tell(message);
}

void SheetWindow::Reload()
{
    if (!LeaveCell())
        return;
    int row = sheet_->Row();
    const int col = sheet_->Col();
    QString message;
    if (!edits_.HasEdits() ||
        Ask(tr("Reload"), tr("Load the %1 again?").arg(rows_),
            tr("What was typed, added and deleted here since the last load is lost."), tr("&Reload"))) {
        const QString key = sheet_->TextMatrix(row, columns_.Key);
        try {
            Load(openAgain_());
            if (loadFailure_.isEmpty())
                message = tr("%L1 %2 were loaded.").arg(sheet_->Rows() - 1).arg(rows_);
            if (const int found = sheet_->SearchCol(columns_.Key, key); found > 0)
                row = found;
        } catch (const std::exception& failure) {
            TellFailure(tr("Reload"), QString::fromUtf8(failure.what()));
        }
    }
    EnterCell(row, col);
    ShowPlace();
    Tell(message);
}

void SheetWindow::OpenFindBar()
{
    if (!LeaveCell())
        return;
    // The sheet goes from find to find while the user types in the field.
    sheet_->setGrabsFocus(false);
    ShowPlace();
    findBar_->Open();
}

void SheetWindow::CloseFindBar()
{
    findBar_->hide();
    sheet_->setGrabsFocus(true);
    EnterCell(sheet_->Row(), sheet_->Col());
}

void SheetWindow::FindNext()
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

void SheetWindow::ChooseColors()
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

void SheetWindow::ExplainKeys()
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
                                               "lasts until the %1 are loaded again or the window is closed.")
                                                .arg(rows_)));
    EnterCell(sheet_->Row(), sheet_->Col());
}

} // namespace Orders
