#include "orders/EventsPanel.h"

#include "orders/EventLog.h"

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
    , list_(new QListView(this))
{
    auto* const filter = new WordFilter(this);
    filter->setSourceModel(&log);

    auto* const words = new QLineEdit(this);
    words->setPlaceholderText(tr("Filter events"));
    words->setClearButtonEnabled(true);
    auto* const clear = new QPushButton(tr("Clear"), this);
    clear->setAutoDefault(false);

    list_->setModel(filter);
    list_->setUniformItemSizes(true);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* const top = new QHBoxLayout;
    top->addWidget(words);
    top->addWidget(clear);
    auto* const all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(top);
    all->addWidget(list_);

    connect(words, &QLineEdit::textChanged, this, [this, filter](const QString& text) {
        filter->Use(text);
        list_->scrollToBottom();
    });
    connect(clear, &QPushButton::clicked, &log, &EventLog::Clear);
    connect(&log, &EventLog::Grown, this, &EventsPanel::FollowLatest);
    // Only the user's scrolling changes the value; new lines change the range.
    connect(list_->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int value) { isAtEnd_ = value >= list_->verticalScrollBar()->maximum(); });
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
