#include "qt/MaskBoxWidget.h"

#include "engine/controls/KeyCodes.h"
#include "engine/fields/UnitPairs.h"
#include "qt/KeyTranslation.h"
#include "qt/Texts.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>

#include <limits>
#include <utility>

namespace Tessellon {

namespace {

constexpr int marginAcross = 1;

} // namespace

MaskBoxWidget::MaskBoxWidget(SheetFrame& frame, MaskEdBoxControl& control)
    : EditorOn(frame, control, {QPalette::Base, QPalette::Text})
    , composition_(frame, control)
{
    setFrame(false);
    setTextMargins(marginAcross, 0, marginAcross, 0);
    setMaxLength(std::numeric_limits<int>::max());
    setAcceptDrops(false);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { FollowCaret(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { FollowCaret(); });
}

// ---- What the control shows -----------------------------------------------------------------------------------------

/// Code has written it: what the user did before is not to be had back.
void MaskBoxWidget::ShowContent()
{
    ForgetSteps();
    Sync();
}

void MaskBoxWidget::ShowCaret()
{
    isTyping_ = false;
    Sync();
}

void MaskBoxWidget::Sync()
{
    const QScopedValueRollback following(isFollowing_, true);
    const QString shown = OwnText(State().ShownText());
    if (text() != shown)
        setText(shown);
    deselect();
    setCursorPosition(State().Caret());
}

/// With a selection the caret of the control is where that begins, at whichever end the widget has its own.
void MaskBoxWidget::FollowCaret()
{
    if (isFollowing_ || composition_.IsUnderWay())
        return;
    isTyping_ = false;
    static_cast<void>(State().Caret(hasSelectedText() ? selectionStart() : cursorPosition()));
}

void MaskBoxWidget::focusInEvent(QFocusEvent* event)
{
    const QScopedValueRollback following(isFollowing_, true);
    QLineEdit::focusInEvent(event);
    update();
}

void MaskBoxWidget::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    update();
}

/// Without the focus the box shows its text as the cell will, not as it is filled in.
void MaskBoxWidget::paintEvent(QPaintEvent* event)
{
    if (hasFocus()) {
        EditorOn::paintEvent(event);
        return;
    }
    {
        constexpr int roomAhead = 3; // as a line edit has it
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Base));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(rect().adjusted(roomAhead, 0, -roomAhead, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         OwnText(State().FormattedText()));
    }
    PaintEdge(*this);
}

// ---- Changes --------------------------------------------------------------------------------------------------------

bool MaskBoxWidget::Change(const Edit& edit, Step step)
{
    constexpr std::size_t mostSteps = 100;
    const std::u16string before(State().ShownText());
    MaskState::Kept kept = State().Keep();
    edit(State());
    const bool isAnother = State().ShownText() != before;
    if (isAnother) {
        if (step == Step::New)
            undo_.push_back(std::move(kept));
        if (undo_.size() > mostSteps)
            undo_.erase(undo_.begin());
        redo_.clear();
    }
    isTyping_ = false;
    Sync();
    return isAnother;
}

void MaskBoxWidget::Erase(MaskState& state) const
{
    if (hasSelectedText())
        state.Erase(static_cast<std::size_t>(selectionStart()), static_cast<std::size_t>(selectionEnd()));
}

void MaskBoxWidget::DeleteSelection()
{
    Change([this](MaskState& state) { Erase(state); });
}

void MaskBoxWidget::Cut()
{
    copy();
    DeleteSelection();
}

void MaskBoxWidget::Paste(const QString& text)
{
    if (text.isEmpty())
        return;
    bool isAllTaken = true;
    Change([&](MaskState& state) {
        Erase(state);
        isAllTaken = state.Insert(UnitsOf(text));
    });
    if (!isAllTaken)
        frame_.Ring();
}

void MaskBoxWidget::PasteFromClipboard()
{
    Paste(QGuiApplication::clipboard()->text());
}

void MaskBoxWidget::Swap(Steps& from, Steps& to)
{
    if (from.empty())
        return;
    to.push_back(State().Keep());
    State().PutBack(from.back());
    from.pop_back();
    isTyping_ = false;
    Sync();
}

void MaskBoxWidget::ForgetSteps()
{
    isTyping_ = false;
    undo_.clear();
    redo_.clear();
}

// ---- Keys and characters --------------------------------------------------------------------------------------------

bool MaskBoxWidget::EraseBy(const QKeyEvent& key)
{
    const bool isBack = key.key() == Qt::Key_Backspace;
    if (!isBack && key.key() != Qt::Key_Delete)
        return false;
    if (!hasSelectedText() && key.modifiers().testFlag(Qt::ControlModifier)) {
        const QScopedValueRollback following(isFollowing_, true);
        if (isBack)
            cursorWordBackward(true);
        else
            cursorWordForward(true);
    }
    if (hasSelectedText())
        DeleteSelection();
    else if (isBack)
        Change([](MaskState& state) { state.Backspace(); });
    else
        Change([](MaskState& state) { state.Delete(); });
    return true;
}

bool MaskBoxWidget::DoCommand(const QKeyEvent& key)
{
    if (key.matches(QKeySequence::Undo))
        Run([this] { Undo(); });
    else if (key.matches(QKeySequence::Redo))
        Run([this] { Redo(); });
    else if (key.matches(QKeySequence::Cut))
        Run([this] { Cut(); });
    else if (key.matches(QKeySequence::Paste))
        Run([this] { PasteFromClipboard(); });
    else
        return false;
    return true;
}

/// Enter, Esc and Tab are the sheet's alone. What is left moves the caret, selects or copies: that is the line edit's.
bool MaskBoxWidget::TakeKey(std::int16_t keyCode, std::int16_t shift)
{
    QKeyEvent key(QEvent::KeyPress, QtKeyOf(keyCode), ModifiersOf(shift));
    if (DoCommand(key) || EraseBy(key))
        return true;
    const bool moves = keyCode >= KeyCode::End && keyCode <= KeyCode::Down;
    if (moves || key.matches(QKeySequence::SelectAll) || key.matches(QKeySequence::Copy))
        QLineEdit::keyPressEvent(&key);
    return true;
}

bool MaskBoxWidget::TakeCharacter(char16_t character)
{
    if (IsControlCharacter(character))
        return true;
    const MaskState::Kept before = State().Keep();
    const int first = selectionStart();
    const int length = selectionLength();
    const bool goesOn = isTyping_ && length == 0;
    bool isRefused = false;
    const auto type = [&](MaskState& state) {
        Erase(state);
        isRefused = state.Type(character) == MaskTyping::Refused;
        if (isRefused && length > 0)
            state.PutBack(before);
    };
    const bool isAnother = Change(type, goesOn ? Step::SameAsLast : Step::New);
    isTyping_ = !isRefused && (goesOn || isAnother);
    if (!isRefused)
        return true;
    frame_.Ring();
    if (length > 0) {
        const QScopedValueRollback following(isFollowing_, true);
        setSelection(first, length);
    }
    return true;
}

void MaskBoxWidget::Run(const std::function<void()>& command)
{
    const std::u16string before(State().ShownText());
    command();
    if (State().ShownText() != before)
        TellRelease();
}

/// The sheet reads a masked box when a key is let go. What comes without one, or by a key that it takes for a move, is
/// followed by the release of none.
void MaskBoxWidget::TellRelease()
{
    if (TheControl().HasFocus())
        frame_.Do([this] { frame_.Platform()->TheKeys().Up({}); });
}

// ---- Mouse, menu and input methods ----------------------------------------------------------------------------------

void MaskBoxWidget::Pressed(QMouseEvent& event)
{
    // The right button leaves the selection to the menu.
    if (event.button() == Qt::LeftButton)
        QLineEdit::mousePressEvent(&event);
}

void MaskBoxWidget::Released(QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton)
        QLineEdit::mouseReleaseEvent(&event);
    if (event.button() != Qt::MiddleButton || !QGuiApplication::clipboard()->supportsSelection())
        return;
    setCursorPosition(cursorPositionAt(event.position().toPoint()));
    Run([this] { Paste(QGuiApplication::clipboard()->text(QClipboard::Selection)); });
}

void MaskBoxWidget::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (!TheControl().HasFocus())
        return;
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char* text, bool isEnabled, const std::function<void()>& command) {
        QAction* const action = menu->addAction(QLineEdit::tr(text));
        action->setEnabled(isEnabled);
        connect(action, &QAction::triggered, this, [this, command] { Run(command); });
    };
    add("&Undo", !undo_.empty(), [this] { Undo(); });
    add("&Redo", !redo_.empty(), [this] { Redo(); });
    menu->addSeparator();
    add("Cu&t", hasSelectedText(), [this] { Cut(); });
    add("&Copy", hasSelectedText(), [this] { copy(); });
    add("&Paste", !QGuiApplication::clipboard()->text().isEmpty(), [this] { PasteFromClipboard(); });
    add("Delete", hasSelectedText(), [this] { DeleteSelection(); });
    menu->addSeparator();
    add("Select All", !text().isEmpty(), [this] { selectAll(); });
    menu->popup(event->globalPos());
}

void MaskBoxWidget::ShowComposed(QInputMethodEvent& event)
{
    const QScopedValueRollback following(isFollowing_, true);
    QLineEdit::inputMethodEvent(&event);
}

void MaskBoxWidget::inputMethodEvent(QInputMethodEvent* event)
{
    const bool commits = !event->commitString().isEmpty();
    if (!event->preeditString().isEmpty() && hasSelectedText())
        Run([this] { DeleteSelection(); });
    composition_.Take(*event, [this](QInputMethodEvent& shown) { ShowComposed(shown); });
    if (commits)
        TellRelease();
}

void MaskBoxWidget::CommitComposition()
{
    const bool isUnderWay = composition_.IsUnderWay();
    composition_.Commit([this](QInputMethodEvent& shown) { ShowComposed(shown); });
    if (isUnderWay)
        TellRelease();
}

} // namespace Tessellon
