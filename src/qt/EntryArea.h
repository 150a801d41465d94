#pragma once

#include <QAbstractScrollArea>
#include <QString>

namespace Tessellon {

/// Entries one below the other, as many as there is room for, with a scroll bar where there are more. It shows what
/// whoever derives from it says, and changes nothing by itself but what is scrolled to.
class EntryArea : public QAbstractScrollArea {
public:
    explicit EntryArea(QWidget* parent);

    [[nodiscard]] virtual int EntryCount() const = 0;
    [[nodiscard]] virtual QString EntryText(int index) const = 0;
    [[nodiscard]] virtual bool IsEntrySelected(int index) const = 0;
    [[nodiscard]] virtual int CurrentEntry() const = 0; ///< Where the keys are; -1 for nowhere.

    [[nodiscard]] int EntryAt(QPoint position) const; ///< In the viewport; -1 for none.
    [[nodiscard]] QRect PlaceOf(int index) const; ///< In the viewport, or above or below it.
    void ShowEntry(int index); ///< Scrolls as little as brings it into view.
    void EntriesChanged(); ///< Their number, their texts or the font.
    [[nodiscard]] int EntryHeight() const;
    [[nodiscard]] int WidestEntry() const; ///< With the room that the style leaves around it.

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override; ///< Scrolls, and never what lies under the area.
    void scrollContentsBy(int dx, int dy) override;

private:
    void FollowSize();
    [[nodiscard]] int WholeEntries() const;
    [[nodiscard]] int StepDown() const; ///< From one entry to the next.

    int turned_ = 0; ///< Of the wheel, what is no whole notch yet, in eighths of a degree.
};

} // namespace Tessellon
