#include "qt/KeyInput.h"

#include "engine/controls/KeyCodes.h"
#include "qt/FocusEcho.h"
#include "qt/KeyTranslation.h"
#include "qt/SheetFrame.h"

#include <string_view>

namespace Tessellon {

namespace {

constexpr std::int16_t insertKey = 45;
constexpr std::int16_t f2Key = KeyCode::F1 + 1;

bool IsMove(std::int16_t code)
{
    return code >= KeyCode::PageUp && code <= KeyCode::Down;
}

bool Has(const Stroke& stroke, std::int16_t modifier)
{
    return (stroke.Shift & modifier) != 0;
}

} // namespace

bool KeyInput::Handle(QEvent& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride: {
        auto& key = static_cast<QKeyEvent&>(event);
        key.setAccepted(IsUsed(StrokeOf(key)));
        return true;
    }
    case QEvent::KeyPress: Down(static_cast<QKeyEvent&>(event)); return true;
    case QEvent::KeyRelease: {
        auto& key = static_cast<QKeyEvent&>(event);
        key.setAccepted(IsHeard());
        if (!key.isAutoRepeat())
            frame_.Do([&] { frame_.Platform()->TheKeys().Up(StrokeOf(key)); });
        return true;
    }
    default: return false;
    }
}

void KeyInput::Down(QKeyEvent& event)
{
    event.accept();
    // The input method has a use for it; without one of its own such a key would end the cell in the middle of a word.
    if (frame_.IsComposing())
        return;
    const Stroke stroke = StrokeOf(event);
    const std::shared_ptr<EnginePlatform> platform = frame_.Platform();
    const bool wasEditing = platform->FocusedEditor() != nullptr;
    bool isEaten = false;
    frame_.Do([&] {
        isEaten = !platform->TheKeys().Down(stroke);
        const QString text = event.text();
        for (qsizetype at = 1; stroke.HasCharacter && !isEaten && at < text.size(); ++at)
            platform->TheKeys().Type(text[at].unicode());
    });
    if (stroke.Code == KeyCode::Tab) {
        if (!isEaten && !Has(stroke, Modifier::Ctrl) && frame_.TheConduct() == Conduct::Desktop)
            frame_.Echo().Tab(event.key() != Qt::Key_Backtab && !Has(stroke, Modifier::Shift));
        return;
    }
    // What the grid alone has no use for, or does not hear, may be the window's: its default button, its Esc.
    if (!wasEditing && !isEaten && !IsUsed(stroke))
        event.ignore();
}

bool KeyInput::IsUsedByEditor(const Stroke& stroke) const
{
    const bool ctrl = Has(stroke, Modifier::Ctrl);
    const bool alt = Has(stroke, Modifier::Alt);
    if (stroke.HasCharacter && stroke.Character >= u' ')
        return true;
    const Child kind = frame_.Platform()->FocusedEditor()->Which();
    if (alt) {
        const bool opens = kind == Child::Combo1 || kind == Child::DTPicker1;
        return opens && !ctrl && (stroke.Code == KeyCode::Down || stroke.Code == KeyCode::Up);
    }
    if (IsMove(stroke.Code))
        return true;
    switch (stroke.Code) {
    case KeyCode::Enter:
    case KeyCode::Escape:
    case KeyCode::Backspace:
    case KeyCode::Delete:
    case insertKey: return true;
    case f2Key:
    case KeyCode::F4:
    case KeyCode::Space: return !ctrl;
    default: break;
    }
    constexpr std::u16string_view editing = u"ACVXYZ";
    const bool holdsText =
        kind == Child::Text1 || kind == Child::Combo1 || kind == Child::MaskEdBox1 || kind == Child::RichTextBox1;
    return ctrl && holdsText && editing.find(static_cast<char16_t>(stroke.Code)) != editing.npos;
}

bool KeyInput::IsHeard() const
{
    const InputControl* const holder = frame_.Platform()->TheFocus().Holder();
    return holder != nullptr && !holder->IsDeaf();
}

bool KeyInput::IsUsed(const Stroke& stroke) const
{
    const std::shared_ptr<EnginePlatform> platform = frame_.Platform();
    if (!IsHeard())
        return false;
    if (platform->FocusedEditor() != nullptr)
        return frame_.IsComposing() || IsUsedByEditor(stroke);
    if (Has(stroke, Modifier::Alt))
        return false;
    if (Has(stroke, Modifier::Ctrl))
        return IsMove(stroke.Code) || stroke.Code == 'C';
    return IsMove(stroke.Code) || stroke.Code == f2Key;
}

} // namespace Tessellon
