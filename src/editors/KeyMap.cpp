#include "editors/KeyMap.h"

#include "editors/KeyCodes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <span>

namespace Tessellon {

namespace {

using enum KeyAction;

constexpr std::int16_t anyOther = 0;

constexpr std::array editors = {fcTextBox,       fcCheckBox,   fcComboBox,    fcListBox,
                                fcMaskedEditBox, fcDatePicker, fcRichTextBox, fcCommandButton};

struct Row {
    std::int16_t KeyCode;
    std::array<KeyAction, editors.size()> Does;
};

using Keys = std::span<const std::int16_t>;
constexpr Keys none;
constexpr std::int16_t enter[] = {keyEnter};
constexpr std::int16_t andArrows[] = {keyEnter, keyLeft, keyUp, keyRight, keyDown};
constexpr std::int16_t andSpace[] = {keyEnter, keySpace};

// clang-format off
constexpr Row rows[] = {
//               Text1        Check1     Combo1         List1        MaskEdBox1   DTPicker1    RichTextBox1 Command1
    {keyEscape, {Restore,     Restore,   Restore,       Restore,     Restore,     RestoreDate, Restore,     Restore}},
    {keyEnter,  {Next,        WriteNext, Next,          WriteIfLast, WriteIfHad,  WriteNext,   BreakOrNext, Click}},
    {keySpace,  {Nothing,     Nothing,   WriteText,     Nothing,     Nothing,     Nothing,     Nothing,     Click}},
    {keyLeft,   {PreviousAt0, Previous,  PreviousOn2nd, Previous,    PreviousAt0, Nothing,     PreviousAt0, Nothing}},
    {keyRight,  {NextAtEnd,   Next,      NextOn2nd,     Next,        NextAtEnd,   Nothing,     NextAtEnd,   Nothing}},
    {keyUp,     {Above,       Above,     WriteText,     WriteChosen, Above,       Nothing,     Above,       Nothing}},
    {keyDown,   {Below,       Below,     WriteText,     WriteChosen, Below,       Nothing,     Below,       Nothing}},
    {anyOther,  {Nothing,     Nothing,   WriteText,     Nothing,     Nothing,     Nothing,     Nothing,     Nothing}},
};
constexpr std::array isTold = {
                 true,        false,     false,         false,       false,       true,        false,       false};
constexpr std::array<Keys, editors.size()> eaten = {
                 none,        none,      none,          none,        enter,       none,        andArrows,   andSpace};
// clang-format on

constexpr std::size_t PlaceOf(FieldControlType editor)
{
    return static_cast<std::size_t>(std::find(editors.begin(), editors.end(), editor) - editors.begin());
}

} // namespace

KeyAction ActionOf(FieldControlType editor, std::int16_t keyCode)
{
    const auto row = std::find_if(std::begin(rows), std::end(rows) - 1,
                                  [&](const Row& candidate) { return candidate.KeyCode == keyCode; });
    return row->Does.at(PlaceOf(editor));
}

std::optional<Way> WayOf(KeyAction action)
{
    switch (action) {
    case Next:
    case NextAtEnd:
    case NextOn2nd:
    case WriteNext:
    case WriteIfHad:
    case WriteIfLast:
    case BreakOrNext: return nextCell;
    case Previous:
    case PreviousAt0:
    case PreviousOn2nd: return previousCell;
    case Above: return cellAbove;
    case Below: return cellBelow;
    default: return std::nullopt;
    }
}

bool IsKeyTold(FieldControlType editor)
{
    return isTold.at(PlaceOf(editor));
}

bool IsKeyEaten(FieldControlType editor, std::int16_t keyCode)
{
    const Keys keys = eaten.at(PlaceOf(editor));
    return std::find(keys.begin(), keys.end(), keyCode) != keys.end();
}

} // namespace Tessellon
