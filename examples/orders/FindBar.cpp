#include "orders/FindBar.h"

#include "qt/SheetWidget.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Orders {

namespace {

int RowThatContains(Tessellon::SheetWidget& sheet, int col, const QString& text, int from, int behind)
{
    for (int row = from; row < behind; ++row) {
        if (sheet.TextMatrix(row, col).contains(text, Qt::CaseInsensitive))
            return row;
    }
    return 0;
}

} // namespace

int FindInColumn(Tessellon::SheetWidget& sheet, int col, const QString& text, int after)
{
    if (text.isEmpty())
        return 0;
    if (after == 0) {
        if (const int row = sheet.SearchCol(col, text); row > 0)
            return row;
    }
    int row = RowThatContains(sheet, col, text, after + 1, sheet.Rows());
    if (row == 0)
        row = RowThatContains(sheet, col, text, 1, after + 1);
    if (row > 0)
        sheet.Row(row);
    return row;
}

FindBar::FindBar(QWidget* parent)
    : QWidget(parent)
    , label_(new QLabel(this))
    , field_(new QLineEdit(this))
{
    label_->setBuddy(field_);
    field_->setClearButtonEnabled(true);
    auto* const next = new QPushButton(tr("Find &next"), this);
    auto* const close = new QPushButton(tr("&Close"), this);
    // Enter on a button is that button's.
    next->setAutoDefault(true);
    close->setAutoDefault(true);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const widget : {static_cast<QWidget*>(label_), static_cast<QWidget*>(field_),
                                  static_cast<QWidget*>(next), static_cast<QWidget*>(close)})
        layout->addWidget(widget);
    connect(field_, &QLineEdit::textEdited, this, &FindBar::TextEdited);
    connect(next, &QPushButton::clicked, this, &FindBar::FindNext);
    connect(close, &QPushButton::clicked, this, &FindBar::Closed);
}

void FindBar::Open()
{
    show();
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void FindBar::SetColumn(const QString& name)
{
    label_->setText(tr("Find in %1:").arg(name));
}

QString FindBar::Text() const
{
    return field_->text().trimmed();
}

bool FindBar::HasFocusInside() const
{
    return isAncestorOf(window()->focusWidget());
}

/// What the field and the buttons leave over.
void FindBar::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: emit FindNext(); break;
    case Qt::Key_Escape: emit Closed(); break;
    default: QWidget::keyPressEvent(event);
    }
}

} // namespace Orders
