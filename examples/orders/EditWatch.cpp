#include "orders/EditWatch.h"

#include "qt/SheetWidget.h"

namespace Orders {

using Tessellon::SheetWidget;

EditWatch::EditWatch(SheetWidget& sheet)
    : sheet_(sheet)
{
    connect(&sheet, &SheetWidget::EnterCell, this, &EditWatch::Remember);
    connect(&sheet, &SheetWidget::EditorChange, this, &EditWatch::Compare);
    connect(&sheet, &SheetWidget::AdvanceToNextCell, this, &EditWatch::Compare);
    connect(&sheet, &SheetWidget::LeaveCell, this, &EditWatch::Compare);
    connect(&sheet, &SheetWidget::ExitFocus, this, &EditWatch::Compare);
}

/// A cell that is entered again, as at the release of a press, is looked at first.
void EditWatch::Remember()
{
    if (isPaused_)
        return;
    Compare();
    row_ = sheet_.Row();
    col_ = sheet_.Col();
    text_ = sheet_.TextMatrix(row_, col_);
    emit Entered();
}

void EditWatch::Compare()
{
    if (isPaused_ || row_ < 1)
        return;
    const QString text = sheet_.TextMatrix(row_, col_);
    if (text == text_)
        return;
    text_ = text;
    Note();
}

void EditWatch::Note()
{
    hasEdits_ = true;
    emit Edited();
}

void EditWatch::Pause()
{
    isPaused_ = true;
}

void EditWatch::Restart()
{
    isPaused_ = false;
    hasEdits_ = false;
    row_ = 0;
    Remember();
}

} // namespace Orders
