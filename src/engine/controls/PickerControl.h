#pragma once

#include "engine/controls/EditorControl.h"
#include "engine/fields/DateFields.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

/// The date picker: its fields, its calendar's state and what they tell.
class PickerControl : public EditorControl<DTPicker> {
public:
    explicit PickerControl(ControlSurroundings& surroundings);

    std::u16string_view ClassName() override { return u"DTPICKER"; }
    double Value() override { return fields_.Value(); }
    void Value(double date) override;
    void Format(std::int16_t format) override { format_ = format; }
    void CustomFormat(std::u16string_view format) override;
    void DataFormat(std::u16string_view format) override { dataFormat_ = format; }
    void CalendarBackColor(std::int32_t color) override { SetColor(color); }

    [[nodiscard]] const DateFields& Fields() const { return fields_; }
    [[nodiscard]] std::u16string ShownText() const override { return std::u16string(fields_.DisplayText()); }
    [[nodiscard]] bool IsCalendarOpen() const { return calendarOpen_; }

    // What the user does.
    void OpenCalendar();
    /// Chooses in the open calendar and closes it. Without a time the time of day stays.
    void Choose(double date, bool withTime);
    void CloseCalendar(); ///< Without a choice.
    void MoveInCalendar(CalendarMove move);
    void PickField(std::int32_t field); ///< A press on a field.

    void TakePending(const Stroke* stroke) override;
    void KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown) override;
    void TakeUp(char16_t character, std::int16_t shift) override;
    void FocusArrived() override;

protected:
    void BecameVisible() override { Assemble(); }
    void BecameHidden() override;
    void BecameDisabled() override { DropCalendar(); }
    void PressMeans() override;

private:
    void Assemble();
    void Take(const DateResult& result);
    void HandToCallback(std::int16_t keyCode, std::int16_t shift);
    void DropCalendar();

    DateFields fields_;
    std::int16_t format_ = 0;
    std::u16string dataFormat_;
    bool calendarOpen_ = false;
};

} // namespace Tessellon
