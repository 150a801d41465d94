#include "orders/EventsPanel.h"

#include "orders/EventLog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>

namespace Orders {

namespace {

class WordFilter : public QSortFilterProxyModel {
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void Use(const QString& text)
    {
        words_ = text.split(u' ', Qt::SkipEmptyParts);
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        if (words_.isEmpty())
            return true;
        const QString line = sourceModel()->index(row, 0, parent).data().toString();
        return std::ranges::all_of(words_,
                                   [&](const QString& word) { return line.contains(word, Qt::CaseInsensitive); });
    }

private:
    QStringList words_;
};

} // namespace

EventsPanel::EventsPanel(EventLog& log, QWidget* parent)
    : QWidget(parent)
    , words_(new QLineEdit(this))
    , list_(new QListView(this))
{
    auto* const filter = new WordFilter(this);
    filter->setSourceModel(&log);

    words_->setPlaceholderText(tr("Filter events"));
    words_->setClearButtonEnabled(true);
    auto* const clear = new QPushButton(tr("Clear"), this);
    clear->setAutoDefault(false);

    list_->setModel(filter);
    list_->setUniformItemSizes(true);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* const top = new QHBoxLayout;
    top->addWidget(words_);
    top->addWidget(clear);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(top);
    all->addWidget(list_);

    FadeHint();
    connect(words_, &QLineEdit::textChanged, this, [this, filter](const QString& text) {
        filter->Use(text);
        list_->scrollToBottom();
    });
    connect(clear, &QPushButton::clicked, &log, &EventLog::Clear);
    connect(&log, &EventLog::Grown, this, &EventsPanel::FollowLatest);
    // Only the user's scrolling changes the value; new lines change the range.
    connect(list_->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int value) { isAtEnd_ = value >= list_->verticalScrollBar()->maximum(); });
}

/// Some dark desktops leave the hint in the colour of a light one.
void EventsPanel::FadeHint()
{
    QColor faint = palette().color(QPalette::Text);
    faint.setAlphaF(0.5F);
    QPalette colors;
    colors.setColor(QPalette::PlaceholderText, faint);
    words_->setPalette(colors);
}

void EventsPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        FadeHint();
    QWidget::changeEvent(event);
}

QSize EventsPanel::sizeHint() const
{
    return {300, 400};
}

void EventsPanel::FollowLatest()
{
    if (isAtEnd_)
        list_->scrollToBottom();
}

} // namespace Orders
