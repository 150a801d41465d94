#include "Events.h"

#include "engine/journal/ValueText.h"

#include <initializer_list>
#include <utility>

namespace Tessellon::Replay {

namespace {

using Names = std::initializer_list<std::u16string_view>;

/// Shows every event of the sheet to a visitor: its name, its member, the names of its arguments.
template <class Visitor>
void VisitEvents(Visitor&& visit)
{
    using Sheet = TessellonSheet;
    visit(u"Compare", &Sheet::Compare, Names{u"Row1", u"Row2", u"Cmp"});
    visit(u"AdvanceToNextCell", &Sheet::AdvanceToNextCell, Names{u"Cancel"});
    visit(u"ExitFocus", &Sheet::ExitFocus, Names{u"Cancel"});
    visit(u"MouseDown", &Sheet::MouseDown, Names{u"Button", u"Shift", u"x", u"y"});
    visit(u"MouseMove", &Sheet::MouseMove, Names{u"Button", u"Shift", u"x", u"y"});
    visit(u"MouseUp", &Sheet::MouseUp, Names{u"Button", u"Shift", u"x", u"y"});
    visit(u"Click", &Sheet::Click, Names{});
    visit(u"DblClick", &Sheet::DblClick, Names{});
    visit(u"KeyUp", &Sheet::KeyUp, Names{u"KeyCode", u"Shift"});
    visit(u"KeyDown", &Sheet::KeyDown, Names{u"KeyCode", u"Shift"});
    visit(u"KeyPress", &Sheet::KeyPress, Names{u"KeyAscii"});
    visit(u"RowColChange", &Sheet::RowColChange, Names{});
    visit(u"Scroll", &Sheet::Scroll, Names{});
    visit(u"SelChange", &Sheet::SelChange, Names{});
    visit(u"LeaveCell", &Sheet::LeaveCell, Names{});
    visit(u"EnterCell", &Sheet::EnterCell, Names{});
    visit(u"EditorValidate", &Sheet::EditorValidate, Names{u"Cancel"});
    visit(u"EditorChange", &Sheet::EditorChange, Names{});
    visit(u"DateBoxCloseUp", &Sheet::DateBoxCloseUp, Names{});
    visit(u"DateBoxDropDown", &Sheet::DateBoxDropDown, Names{});
    visit(u"Format", &Sheet::Format, Names{u"CallbackField", u"FormattedString"});
    visit(u"DatePickerCallbackKeyDown", &Sheet::DatePickerCallbackKeyDown,
          Names{u"KeyCode", u"Shift", u"CallbackField", u"CallbackDate"});
    visit(u"ButtonClick", &Sheet::ButtonClick, Names{u"ButtonIndex"});
    visit(u"UseAdvanceToNextCell", &Sheet::UseAdvanceToNextCell, Names{u"Use"});
    visit(u"ErrInfo", &Sheet::ErrInfo, Names{u"ErrNum", u"ErrSource", u"ErrDesc", u"ErrHelpFile", u"ErrHelpContext"});
}

template <class Argument>
inline constexpr bool isByReference =
    std::is_lvalue_reference_v<Argument> && !std::is_const_v<std::remove_reference_t<Argument>>;

template <class Value>
GivenValue ReadGiven(const Word& word)
{
    // The one number of 64 bits that an event carries is a date.
    if constexpr (std::is_same_v<Value, double>)
        return ReadAs<DateLiteral>(word).Serial;
    else
        return ReadAs<Value>(word);
}

template <class Argument>
EventForm::Argument ArgumentForm(std::u16string_view name)
{
    if constexpr (isByReference<Argument>)
        return {name, &ReadGiven<std::remove_cvref_t<Argument>>};
    else
        return {name, nullptr};
}

struct FormCollector {
    std::vector<EventForm>& Forms;

    template <class... Arguments>
    void operator()(std::u16string_view name, Event<Arguments...> TessellonSheet::* /*event*/, Names names) const
    {
        EventForm form{.Name = name, .Arguments = {}};
        [[maybe_unused]] const auto* next = names.begin();
        (form.Arguments.push_back(ArgumentForm<Arguments>(*next++)), ...);
        Forms.push_back(std::move(form));
    }
};

template <class Value>
void AppendArgument(std::u16string& line, std::u16string_view name, const Value& value)
{
    line.append(1, u' ').append(name).append(1, u'=');
    if constexpr (std::is_same_v<Value, double>)
        AppendValue(line, DateValue{value});
    else
        AppendValue(line, value);
}

template <class Argument>
void GiveBack([[maybe_unused]] const EventAnswers& answers, [[maybe_unused]] std::size_t place,
              [[maybe_unused]] std::remove_reference_t<Argument>& argument)
{
    if constexpr (isByReference<Argument>) {
        if (const auto given = answers.Values.find(place); given != answers.Values.end())
            argument = std::get<std::remove_cvref_t<Argument>>(given->second);
    }
}

/// Hears one event.
template <class... Arguments>
class Handler {
public:
    Handler(std::shared_ptr<const EventListener> listener, std::size_t number)
        : listener_(std::move(listener))
        , number_(number)
    {
    }

    void operator()(Arguments... arguments) const { Hear(std::index_sequence_for<Arguments...>{}, arguments...); }

private:
    template <std::size_t... Places>
    void Hear(std::index_sequence<Places...> /*places*/, std::remove_reference_t<Arguments>&... arguments) const
    {
        const EventForm& form = EventForms()[number_];
        std::u16string line(form.Name);
        (AppendArgument(line, form.Arguments[Places].Name, arguments), ...);
        const EventAnswers& answers = listener_->Heard(number_, line);
        (GiveBack<Arguments>(answers, Places, arguments), ...);
        listener_->Done(number_);
    }

    std::shared_ptr<const EventListener> listener_;
    std::size_t number_;
};

struct Attacher {
    TessellonSheet& Sheet;
    std::shared_ptr<const EventListener> Listener;
    std::size_t Number = 0;

    template <class... Arguments>
    void operator()(std::u16string_view /*name*/, Event<Arguments...> TessellonSheet::*event, Names /*names*/)
    {
        Sheet.*event += Handler<Arguments...>(Listener, Number++);
    }
};

} // namespace

const std::vector<EventForm>& EventForms()
{
    static const std::vector<EventForm> all = [] {
        std::vector<EventForm> forms;
        VisitEvents(FormCollector{forms});
        return forms;
    }();
    return all;
}

std::size_t EventNamed(const Word& word)
{
    const std::vector<EventForm>& forms = EventForms();
    for (std::size_t number = 0; number < forms.size(); ++number)
        if (word.Is(forms[number].Name))
            return number;
    throw ScriptError(Shown(word) + " is no event");
}

void ListenToEvents(TessellonSheet& sheet, EventListener listener)
{
    VisitEvents(Attacher{sheet, std::make_shared<const EventListener>(std::move(listener))});
}

} // namespace Tessellon::Replay
