#include "Forms.h"
#include "Runner.h"

namespace Tessellon::Replay {

namespace {

constexpr std::int16_t ctrl = 2;
constexpr std::int16_t alt = 4;

/// The character that a key types with these modifiers: with Ctrl letters give 1 to 26 and Enter 10, with Alt none.
std::optional<char16_t> TypedWith(char16_t character, std::int16_t shift)
{
    if ((shift & alt) != 0)
        return std::nullopt;
    if ((shift & ctrl) == 0)
        return character;
    if (character == u'\r')
        return u'\n';
    if ((character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z'))
        return static_cast<char16_t>(character & 0x1F);
    return std::nullopt;
}

Stroke StrokeOf(std::int16_t code, char16_t character, std::int16_t shift)
{
    const std::optional<char16_t> typed = TypedWith(character, shift);
    return {.Code = code, .Shift = shift, .HasCharacter = typed.has_value(), .Character = typed.value_or(0)};
}

std::vector<Stroke> StrokesOf(const KeyLiteral& key, std::int16_t shift)
{
    if (key.Characters.empty())
        return {Stroke{.Code = key.Code, .Shift = shift}};
    std::vector<Stroke> strokes;
    for (const char16_t character : key.Characters)
        strokes.push_back(StrokeOf(key.Code, character, shift));
    return strokes;
}

std::vector<Stroke> StrokesOf(const std::u16string& text)
{
    std::vector<Stroke> strokes;
    for (const char16_t character : text) {
        switch (character) {
        case u'\n':
        case u'\r': strokes.push_back(StrokeOf(13, u'\r', 0)); break;
        case u'\t': strokes.push_back(StrokeOf(9, u'\t', 0)); break;
        default: strokes.push_back(StrokeOf(KeyCodeOf(character), character, 0));
        }
    }
    return strokes;
}

} // namespace

const std::vector<Form>& UserActions()
{
    using Long = std::int32_t;
    using R = Runner;
    static const std::vector<Form> forms{
        FormOf(u"click", [](R& r, Long row, Long col) { r.TheHand().Click(row, col); }),
        FormOf(u"dblclick", [](R& r, Long row, Long col) { r.TheHand().DoubleClick(row, col); }),
        FormOf(u"drag",
               [](R& r, Long row, Long col, Long toRow, Long toCol) { r.TheHand().Drag(row, col, toRow, toCol); }),
        FormOf(u"press", [](R& r, const KeyLiteral& key,
                            std::optional<ModifierLiteral> with) { r.Press(StrokesOf(key, with ? with->Shift : 0)); }),
        FormOf(u"type", [](R& r, const std::u16string& text) { r.Press(StrokesOf(text)); }),
        FormOf(u"caret", [](R& r, Long position) { r.TheHand().Caret(position); }),
        FormOf(u"select", [](R& r, Long item) { r.TheHand().Select(item); }),
        FormOf(u"toggle", [](R& r) { r.TheHand().Toggle(); }),
        FormOf(u"push", [](R& r) { r.TheHand().Push(); }),
        FormOf(u"pick", [](R& r, const DateLiteral& date) { r.TheHand().Pick(date.Serial, date.HasTime); }),
        FormOf(u"scroll", [](R& r, Long topRow, Long leftCol) { r.TheHand().Scroll(topRow, leftCol); }),
        FormOf(u"hover", [](R& r, float x, float y) { r.TheHand().Hover(x, y); }),
        FormOf(u"mouse down", [](R& r, float x, float y) { r.TheHand().MouseDown(x, y); }),
        FormOf(u"mouse up", [](R& r, float x, float y) { r.TheHand().MouseUp(x, y); }),
        FormOf(u"mouse move", [](R& r, float x, float y) { r.TheHand().MouseMove(x, y); }),
        FormOf(u"over down", [](R& r, float x, float y) { r.TheHand().Over(OverEvent::Down, x, y); }),
        FormOf(u"over up", [](R& r, float x, float y) { r.TheHand().Over(OverEvent::Up, x, y); }),
        FormOf(u"over move", [](R& r, float x, float y) { r.TheHand().Over(OverEvent::Move, x, y); }),
        FormOf(u"over click", [](R& r, float x, float y) { r.TheHand().Over(OverEvent::Click, x, y); }),
        FormOf(u"over dblclick", [](R& r, float x, float y) { r.TheHand().Over(OverEvent::DoubleClick, x, y); }),
        FormOf(u"clock", [](R& r, const DateLiteral& date) { r.Clock(date.Serial); }),
        FormOf(u"focus out", [](R& r) { r.TheHand().FocusOut(); }),
        FormOf(u"focus in", [](R& r) { r.TheHand().FocusIn(); }),
        FormOf(u"window out", [](R& r) { r.TheHand().WindowOut(); }),
        FormOf(u"window in", [](R& r) { r.TheHand().WindowIn(); }),
        FormOf(u"resize", [](R& r, float width, float height) { r.TheHand().Resize(width, height); }),
        FormOf(u"wait", [](R& r) { r.TheHand().Wait(); }),
    };
    return forms;
}

} // namespace Tessellon::Replay
