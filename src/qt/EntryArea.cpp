#include "qt/EntryArea.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionViewItem>
#include <QWheelEvent>

#include <algorithm>

namespace Tessellon {

namespace {

/// The wheel does on the bar what it does on the entries.
class BarInArea : public QScrollBar {
public:
    explicit BarInArea(QAbstractScrollArea& area)
        : QScrollBar(Qt::Vertical, &area)
        , area_(area)
    {
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    void wheelEvent(QWheelEvent* event) override { QCoreApplication::sendEvent(area_.viewport(), event); }

private:
    QAbstractScrollArea& area_;
};

} // namespace

EntryArea::EntryArea(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setVerticalScrollBar(new BarInArea(*this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

int EntryArea::EntryHeight() const
{
    constexpr int roomAround = 2;
    return fontMetrics().height() + roomAround;
}

int EntryArea::WidestEntry() const
{
    int widest = 0;
    for (int index = 0; index < EntryCount(); ++index)
        widest = std::max(widest, fontMetrics().horizontalAdvance(EntryText(index)));
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return widest + 2 * margin;
}

int EntryArea::WholeEntries() const
{
    return std::max(1, viewport()->height() / EntryHeight());
}

/// A single entry fills an area that is hardly higher, or lower, than it.
int EntryArea::StepDown() const
{
    const int room = viewport()->height();
    return 2 * room < 3 * EntryHeight() ? std::max(room, 1) : EntryHeight();
}

int EntryArea::EntryAt(QPoint position) const
{
    if (!viewport()->rect().contains(position))
        return -1;
    const int index = verticalScrollBar()->value() + position.y() / StepDown();
    return index < EntryCount() ? index : -1;
}

QRect EntryArea::PlaceOf(int index) const
{
    return {0, (index - verticalScrollBar()->value()) * StepDown(), viewport()->width(), StepDown()};
}

void EntryArea::ShowEntry(int index)
{
    if (index < 0)
        return;
    QScrollBar& bar = *verticalScrollBar();
    bar.setValue(std::clamp(bar.value(), index - WholeEntries() + 1, index));
}

void EntryArea::EntriesChanged()
{
    FollowSize();
    viewport()->update();
}

void EntryArea::FollowSize()
{
    verticalScrollBar()->setRange(0, std::max(0, EntryCount() - WholeEntries()));
    verticalScrollBar()->setPageStep(WholeEntries());
}

void EntryArea::resizeEvent(QResizeEvent* /*event*/)
{
    FollowSize();
    ShowEntry(CurrentEntry());
}

void EntryArea::wheelEvent(QWheelEvent* event)
{
    constexpr int entriesANotch = 3;
    turned_ += event->angleDelta().y();
    const int notches = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ %= QWheelEvent::DefaultDeltasPerStep;
    verticalScrollBar()->setValue(verticalScrollBar()->value() - notches * entriesANotch);
    event->accept();
}

void EntryArea::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    viewport()->update();
}

void EntryArea::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    option.initFrom(this);
    option.font = font();
    option.fontMetrics = fontMetrics();
    option.features = QStyleOptionViewItem::HasDisplay;
    option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    option.showDecorationSelected = true;
    option.textElideMode = Qt::ElideRight;
    option.widget = this;
    const QStyle::State plain = option.state & QStyle::State_Enabled;
    const int height = StepDown();
    int top = 0;
    for (int index = verticalScrollBar()->value(); index < EntryCount() && top < viewport()->height(); ++index) {
        option.rect = QRect(0, top, viewport()->width(), height);
        option.text = EntryText(index);
        option.state = plain | QStyle::State_Active;
        option.state.setFlag(QStyle::State_Selected, IsEntrySelected(index));
        option.state.setFlag(QStyle::State_HasFocus, index == CurrentEntry());
        style()->drawControl(QStyle::CE_ItemViewItem, &option, &painter, this);
        top += height;
    }
}

} // namespace Tessellon
