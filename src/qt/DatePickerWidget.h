#pragma once

#include "engine/controls/PickerControl.h"
#include "qt/CalendarDropDown.h"
#include "qt/Composition.h"
#include "qt/EditorWidget.h"

#include <QTextLayout>

namespace Tessellon {

/// The date picker over a cell: the fields of its control, of which the current one is marked, and a button that opens
/// the calendar. It edits nothing by itself.
class DatePickerWidget : public EditorOn<QWidget, PickerControl> {
public:
    DatePickerWidget(SheetFrame& frame, PickerControl& control);

    bool TakeKey(std::int16_t keyCode, std::int16_t shift) override; ///< The keys that open and close the calendar.
    [[nodiscard]] bool IsComposing() const override { return composition_.IsUnderWay(); }
    void CommitComposition() override;

    [[nodiscard]] QRect ButtonPlace() const;
    [[nodiscard]] QRect FieldPlace(std::int32_t field) const; ///< On the widget; where it is scrolled to.
    /// The open calendar; null while it is closed.
    [[nodiscard]] CalendarDropDown* OpenCalendar() const;

protected:
    void ShowLook() override { update(); }
    void ShowContent() override;
    void ShowCalendar() override;
    void AboutToGo() override;
    void Pressed(QMouseEvent& event) override;
    void DoublePressed(QMouseEvent& event) override;

    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

private:
    /// The text with the digits that wait, laid out in one line, and the current field in it.
    struct Shown {
        QTextLayout Layout;
        int FieldStart = 0;
        int FieldLength = 0;
    };

    void LayOut(Shown& shown) const;
    [[nodiscard]] QRect TextPlace() const;
    /// Where the line begins: further left than its room where the current field would not be in view.
    [[nodiscard]] qreal LineBegin(const Shown& shown) const;
    [[nodiscard]] std::int32_t FieldUnder(qreal x) const;
    void ToggleCalendar();
    void PaintButton(QPainter& painter);
    void PaintText(QPainter& painter);

    CalendarDropDown* calendar_ = nullptr; ///< Made when it is first opened.
    Composition composition_;
};

} // namespace Tessellon
