#include "qt/RichTextWidget.h"

#include "engine/controls/KeyCodes.h"
#include "engine/fields/PastedText.h"
#include "engine/fields/UnitPairs.h"
#include "qt/KeyTranslation.h"
#include "qt/Texts.h"

#include <QInputMethodEvent>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextBlock>

#include <algorithm>
#include <utility>

namespace Tessellon {

namespace {

/// A pair in the text that is one separator in the document.
bool IsBreakPair(std::u16string_view text, std::size_t unit)
{
    return unit + 1 < text.size() && text[unit] == u'\r' && text[unit + 1] == u'\n';
}

/// The text as the document holds it.
QString DocumentForm(std::u16string_view text)
{
    QString form;
    form.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t unit = 0; unit < text.size(); ++unit) {
        const char16_t character = text[unit];
        // The last two are the document's own signs for its parts.
        const bool isBreak =
            character == u'\r' || character == u'\n' || character == u'\uFDD0' || character == u'\uFDD1';
        unit += IsBreakPair(text, unit) ? 1 : 0;
        form += isBreak ? QChar(QChar::ParagraphSeparator) : QChar(character);
    }
    return form;
}

std::size_t UnitAt(std::u16string_view text, qsizetype position)
{
    std::size_t unit = 0;
    for (; position > 0 && unit < text.size(); --position)
        unit += IsBreakPair(text, unit) ? 2 : 1;
    return unit;
}

qsizetype PositionAt(std::u16string_view text, std::size_t unit)
{
    qsizetype position = 0;
    for (std::size_t at = 0; at < unit && at < text.size(); at += IsBreakPair(text, at) ? 2 : 1)
        ++position;
    return position;
}

std::u16string UnitsOfPart(QStringView part)
{
    std::u16string units;
    for (const QChar character : part) {
        if (character == QChar::ParagraphSeparator)
            units += u"\r\n";
        else
            units += character.unicode();
    }
    return units;
}

/// The time in which words are kept whole grows with the square of the longest one, at each key.
constexpr std::size_t longestWholeWord = 4000;

std::size_t LongestWord(std::u16string_view text)
{
    std::size_t longest = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find_first_of(u" \t\r\n", begin), text.size());
        longest = std::max(longest, end - begin);
        begin = end + 1;
    }
    return longest;
}

} // namespace

RichTextWidget::RichTextWidget(SheetFrame& frame, RichTextBoxControl& control)
    : EditorOn(frame, control, {QPalette::Base, QPalette::Text})
    , composition_(frame, control)
{
    constexpr qreal roomAround = 1;
    // Its font fills the row with a line or two: a bar would take more room than it serves.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDocumentMargin(roomAround);
    viewport()->setMouseTracking(true);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Report(); });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { Report(); });
    connect(this, &QPlainTextEdit::selectionChanged, this, [this] { Report(); });
}

// ---- What the control shows -----------------------------------------------------------------------------------------

void RichTextWidget::ShowContent()
{
    const QScopedValueRollback following(isFollowing_, true);
    gathered_.Drop();
    const std::u16string_view text = TheControl().State().Text();
    const bool cutsWords = LongestWord(text) > longestWholeWord;
    if (cutsWords)
        setWordWrapMode(QTextOption::WrapAnywhere);
    if (document()->toRawText() != DocumentForm(text))
        setPlainText(OwnText(text));
    if (!cutsWords)
        setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    MoveCaret();
}

void RichTextWidget::ShowCaret()
{
    const QScopedValueRollback following(isFollowing_, true);
    MoveCaret();
}

void RichTextWidget::MoveCaret()
{
    const TextState& state = TheControl().State();
    QTextCursor caret = textCursor();
    caret.setPosition(static_cast<int>(PositionAt(state.Text(), static_cast<std::size_t>(state.Caret()))));
    setTextCursor(caret);
}

void RichTextWidget::paintEvent(QPaintEvent* event)
{
    EditorOn::paintEvent(event);
    CoverLineCutOff();
}

/// A line of which only the head would be seen is not shown, unless it is all there is.
void RichTextWidget::CoverLineCutOff()
{
    const qreal bottom = viewport()->height();
    bool isFirst = true;
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
        for (int number = 0; number < block.layout()->lineCount(); ++number) {
            const QRectF line = block.layout()->lineAt(number).rect().translated(0, top);
            if (line.bottom() > bottom && !isFirst && line.top() < bottom)
                QPainter(viewport())
                    .fillRect(QRectF(0, line.top(), viewport()->width(), bottom - line.top()),
                              palette().brush(QPalette::Base));
            if (line.bottom() > bottom)
                return;
            isFirst = isFirst && line.top() < 0;
        }
    }
}

// ---- Keys and characters --------------------------------------------------------------------------------------------

/// Esc and Tab are the sheet's alone. A key without a code only has its character.
bool RichTextWidget::TakeKey(std::int16_t keyCode, std::int16_t shift)
{
    if (keyCode == 0 || keyCode == KeyCode::Escape || keyCode == KeyCode::Tab)
        return true;
    {
        const QScopedValueRollback taking(isTaking_, true);
        gathered_.Drop();
        if (keyCode == KeyCode::Enter) {
            PutIn(u"\r\n");
        } else {
            QKeyEvent key(QEvent::KeyPress, QtKeyOf(keyCode), ModifiersOf(shift));
            QPlainTextEdit::keyPressEvent(&key);
        }
    }
    Tell();
    return true;
}

bool RichTextWidget::TakeCharacter(char16_t character)
{
    if (IsControlCharacter(character))
        return true;
    const std::u16string units = gathered_.Take(character);
    if (units.empty())
        return true;
    {
        const QScopedValueRollback taking(isTaking_, true);
        PutIn(units);
    }
    Tell();
    return true;
}

std::size_t RichTextWidget::Room() const
{
    const std::u16string_view text = TheControl().State().Text();
    const QTextCursor caret = textCursor();
    const std::size_t selected = UnitAt(text, caret.selectionEnd()) - UnitAt(text, caret.selectionStart());
    return RoomUnder(TheControl().State().MaxLength(), text.size() - selected);
}

/// All of it, or nothing where the limit has no room.
void RichTextWidget::PutIn(std::u16string_view units)
{
    if (units.size() > Room())
        return;
    if (LongestWord(TheControl().State().Text()) + LongestWord(units) > longestWholeWord)
        setWordWrapMode(QTextOption::WrapAnywhere);
    insertPlainText(OwnText(units));
    ensureCursorVisible();
}

/// Only what the user changed is taken over: the breaks elsewhere stay what they are in the cell.
std::u16string RichTextWidget::EditedText() const
{
    const std::u16string_view before = TheControl().State().Text();
    const QString old = DocumentForm(before);
    const QString now = document()->toRawText();
    const auto [oldUnit, nowUnit] = std::mismatch(old.begin(), old.end(), now.begin(), now.end());
    const qsizetype ahead = oldUnit - old.begin();
    if (ahead == old.size() && ahead == now.size())
        return std::u16string(before);
    const qsizetype most = std::min(old.size(), now.size()) - ahead;
    qsizetype behind = 0;
    while (behind < most && old[old.size() - 1 - behind] == now[now.size() - 1 - behind])
        ++behind;
    std::u16string edited(before.substr(0, UnitAt(before, ahead)));
    edited += UnitsOfPart(QStringView(now).mid(ahead, now.size() - ahead - behind));
    edited += before.substr(UnitAt(before, old.size() - behind));
    return edited;
}

/// With a selection the caret of the control is where that begins, at whichever end the widget has its own.
void RichTextWidget::Tell()
{
    const std::u16string edited = EditedText();
    TheControl().EditedInWidget(edited, static_cast<std::int32_t>(UnitAt(edited, textCursor().selectionStart())));
}

void RichTextWidget::Report()
{
    if (!isFollowing_ && !isTaking_)
        frame_.Do([this] { Tell(); });
}

// ---- Clipboard and input methods ------------------------------------------------------------------------------------

QMimeData* RichTextWidget::createMimeDataFromSelection() const
{
    const QTextCursor caret = textCursor();
    QString selected =
        document()->toRawText().mid(caret.selectionStart(), caret.selectionEnd() - caret.selectionStart());
    auto* const copied = new QMimeData;
    copied->setText(selected.replace(QChar(QChar::ParagraphSeparator), QChar(QChar::LineFeed)));
    return copied;
}

bool RichTextWidget::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText();
}

void RichTextWidget::insertFromMimeData(const QMimeData* source)
{
    const QString text = source->text();
    PutIn(PastedText(UnitsOf(text), Lines::Many, Room()));
}

void RichTextWidget::inputMethodEvent(QInputMethodEvent* event)
{
    composition_.Take(*event, [this](QInputMethodEvent& shown) { QPlainTextEdit::inputMethodEvent(&shown); });
}

void RichTextWidget::CommitComposition()
{
    composition_.Commit([this](QInputMethodEvent& shown) { QPlainTextEdit::inputMethodEvent(&shown); });
}

} // namespace Tessellon
