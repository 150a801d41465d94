#include "engine/input/Keys.h"

namespace Tessellon {

namespace {

/// What Enter, Esc, Tab and Backspace do belongs to the key: their characters are told and insert nothing.
bool BelongsToKey(char16_t character)
{
    return character == 13 || character == 27 || character == 9 || character == 8;
}

} // namespace

InputControl* Keys::Listener() const
{
    InputControl* const holder = focus_.Holder();
    return holder == nullptr || holder->IsDeaf() ? nullptr : holder;
}

bool Keys::Down(const Stroke& stroke)
{
    if (focus_.Holder() != nullptr)
        focus_.Holder()->TakePending(&stroke);
    InputControl* const told = Listener();
    if (told == nullptr)
        return true;
    const std::shared_ptr<const void> alive = told->Alive();
    const unsigned before = told->TimesTakenDown();
    EventArguments arguments;
    arguments.KeyCode = stroke.Code;
    arguments.Shift = stroke.Shift;
    told->Raise(ChildEvent::KeyDown, arguments);
    // A key without a code has the code 0 from the start: nobody can have eaten it.
    if (arguments.KeyCode == 0 && stroke.Code != 0)
        return false;
    if (told->IsDeaf())
        return false;
    told->KeyMeans(arguments.KeyCode, arguments.Shift, told->TimesTakenDown() != before);
    if (stroke.HasCharacter)
        Character(stroke.Character, stroke.Shift);
    return true;
}

void Keys::Character(char16_t character, std::int16_t shift)
{
    InputControl* const told = Listener();
    if (told == nullptr)
        return;
    EventArguments arguments;
    arguments.KeyAscii = static_cast<std::int16_t>(character);
    told->Raise(ChildEvent::KeyPress, arguments);
    const auto taken = static_cast<char16_t>(arguments.KeyAscii);
    if (taken != 0 && !BelongsToKey(taken) && focus_.Holder() == told)
        told->TakeUp(taken, shift);
}

void Keys::Up(const Stroke& stroke)
{
    InputControl* const told = Listener();
    if (told == nullptr)
        return;
    EventArguments arguments;
    arguments.KeyCode = stroke.Code;
    arguments.Shift = stroke.Shift;
    told->Raise(ChildEvent::KeyUp, arguments);
}

void Keys::Type(char16_t character)
{
    Character(character, 0);
}

} // namespace Tessellon
