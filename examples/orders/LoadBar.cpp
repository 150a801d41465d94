#include "orders/LoadBar.h"

#include <QLocale>

namespace Orders {

LoadBar::LoadBar(QWidget* parent)
    : QProgressBar(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Loading"));
    hide();
}

void LoadBar::Tell(int rows, int records)
{
    setRange(0, records);
    setValue(rows);
    setFormat(rows == 0 ? tr("%L1 rows counted").arg(records) : tr("%L1 of %L2 rows").arg(rows).arg(records));
    show();
}

/// Wide enough for two numbers of seven figures.
QSize LoadBar::sizeHint() const
{
    constexpr int margins = 24;
    const QString longest = tr("%L1 of %L2 rows").arg(9'999'999).arg(9'999'999);
    return {fontMetrics().horizontalAdvance(longest) + margins, fontMetrics().height() + 2};
}

} // namespace Orders
