#include "engine/controls/PickerControl.h"

#include "engine/Failures.h"
#include "engine/controls/KeyCodes.h"
#include "engine/runtime/PlatformRunTime.h"

#include <optional>
#include <utility>

namespace Tessellon {

namespace {

constexpr float designHeight = 315;

std::optional<DateKey> DateKeyOf(std::int16_t keyCode)
{
    switch (keyCode) {
    case KeyCode::Left: return DateKey::Left;
    case KeyCode::Right: return DateKey::Right;
    case KeyCode::Up: return DateKey::Up;
    case KeyCode::Down: return DateKey::Down;
    case KeyCode::Home: return DateKey::Home;
    case KeyCode::End: return DateKey::End;
    default: return std::nullopt;
    }
}

/// Where a key leads in the open calendar.
std::optional<CalendarMove> CalendarMoveOf(std::int16_t keyCode)
{
    switch (keyCode) {
    case KeyCode::Left: return CalendarMove::PreviousDay;
    case KeyCode::Right: return CalendarMove::NextDay;
    case KeyCode::Up: return CalendarMove::PreviousWeek;
    case KeyCode::Down: return CalendarMove::NextWeek;
    case KeyCode::PageUp: return CalendarMove::PreviousMonth;
    case KeyCode::PageDown: return CalendarMove::NextMonth;
    case KeyCode::Home: return CalendarMove::FirstOfMonth;
    case KeyCode::End: return CalendarMove::LastOfMonth;
    default: return std::nullopt;
    }
}

/// The keys that mean in a callback field what they mean elsewhere.
bool IsForPicker(std::int16_t keyCode, std::int16_t shift)
{
    switch (keyCode) {
    case KeyCode::Left:
    case KeyCode::Right:
    case KeyCode::Home:
    case KeyCode::End:
    case KeyCode::Enter:
    case KeyCode::Escape:
    case KeyCode::Tab:
    case KeyCode::F4: return true;
    default: return (shift & Modifier::Alt) != 0;
    }
}

} // namespace

PickerControl::PickerControl(ControlSurroundings& surroundings)
    : EditorControl(surroundings, Child::DTPicker1, u"DTPicker1", 0, designHeight)
    , fields_(surroundings.Functions().Functions().GetLocale())
{
}

/// The text is put together anew, asking the host for each of its fields; whoever writes value or format in there
/// puts it together himself.
void PickerControl::Assemble()
{
    fields_.Assemble([this](std::u16string_view run) {
        EventArguments arguments;
        arguments.CallbackField = run;
        Raise(ChildEvent::Format, arguments);
        return std::move(arguments.FormattedString);
    });
    Show(Aspect::Content);
}

void PickerControl::Value(double date)
{
    DropCalendar();
    switch (fields_.Value(date)) {
    case DateWrite::Same: break;
    case DateWrite::Changed:
        if (IsVisible())
            Assemble();
        break;
    case DateWrite::OutOfRange: Fail(5, ControlName());
    }
}

void PickerControl::CustomFormat(std::u16string_view format)
{
    if (fields_.CustomFormat(format) && IsVisible())
        Assemble();
}

/// What the user's doing led to: the bell, the new text, and behind it the change.
void PickerControl::Take(const DateResult& result)
{
    if (result.Bell)
        surroundings_.Bell();
    if (!result.Changed) {
        Show(Aspect::Content);
        return;
    }
    if (IsVisible())
        Assemble();
    ControlCore::Tell(ChildEvent::Change);
}

void PickerControl::TakePending(const Stroke* stroke)
{
    const bool isGathered = stroke != nullptr && stroke->HasCharacter && fields_.Gathers(stroke->Character);
    if (!fields_.Pending().empty() && !isGathered)
        Take(fields_.TakePending());
    // Without a key he turns to something else.
    if (stroke == nullptr)
        CloseCalendar();
}

void PickerControl::HandToCallback(std::int16_t keyCode, std::int16_t shift)
{
    EventArguments arguments;
    arguments.KeyCode = keyCode;
    arguments.Shift = shift;
    arguments.CallbackField = fields_.FieldRun(fields_.CurrentField());
    const double before = fields_.Value();
    arguments.CallbackDate = before;
    Raise(ChildEvent::CallbackKeyDown, arguments);
    DateResult result;
    if (arguments.CallbackDate != before)
        result = fields_.PickDate(arguments.CallbackDate);
    if (!result.Changed && IsVisible())
        Assemble();
    Take(result);
}

void PickerControl::KeyMeans(std::int16_t keyCode, std::int16_t shift, bool takenDown)
{
    if (takenDown)
        return;
    const bool alt = (shift & Modifier::Alt) != 0;
    if (keyCode == (alt ? KeyCode::Down : KeyCode::F4)) {
        surroundings_.KeyInWidget(*this, keyCode, shift);
        return;
    }
    if (calendarOpen_) {
        if (const auto move = CalendarMoveOf(keyCode); move && !alt)
            Take(fields_.Move(*move));
        return;
    }
    if (fields_.IsCallbackField() && !IsForPicker(keyCode, shift)) {
        HandToCallback(keyCode, shift);
        return;
    }
    if (const auto key = DateKeyOf(keyCode); key && !alt)
        Take(fields_.Press(*key));
}

void PickerControl::TakeUp(char16_t character, std::int16_t shift)
{
    if ((shift & Modifier::Alt) == 0 && !calendarOpen_ && !fields_.IsCallbackField())
        Take(fields_.Type(character));
}

void PickerControl::FocusArrived()
{
    fields_.TakeFocus();
    Show(Aspect::Content);
}

void PickerControl::DropCalendar()
{
    if (std::exchange(calendarOpen_, false))
        Show(Aspect::Calendar);
}

void PickerControl::BecameHidden()
{
    fields_.DropPending();
    DropCalendar();
}

void PickerControl::PressMeans()
{
    if (!calendarOpen_)
        ControlCore::Tell(ChildEvent::Click);
}

void PickerControl::OpenCalendar()
{
    if (calendarOpen_ || !CanHaveFocus())
        return;
    TakePending(nullptr);
    if (!CanHaveFocus())
        return;
    calendarOpen_ = true;
    ControlCore::Tell(ChildEvent::DropDown);
}

void PickerControl::Choose(double date, bool withTime)
{
    if (!calendarOpen_)
        return;
    Take(withTime ? fields_.PickDate(date) : fields_.PickDay(date));
    CloseCalendar();
}

void PickerControl::CloseCalendar()
{
    if (!calendarOpen_)
        return;
    DropCalendar();
    ControlCore::Tell(ChildEvent::CloseUp);
}

void PickerControl::MoveInCalendar(CalendarMove move)
{
    Take(fields_.Move(move));
}

void PickerControl::PickField(std::int32_t field)
{
    Take(fields_.CurrentField(field));
}

} // namespace Tessellon
