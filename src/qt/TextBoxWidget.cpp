#include "qt/TextBoxWidget.h"

#include "engine/controls/KeyCodes.h"
#include "engine/fields/UnitPairs.h"
#include "qt/Colors.h"
#include "qt/FocusEcho.h"
#include "qt/GridView.h"
#include "qt/KeyInput.h"
#include "qt/KeyTranslation.h"
#include "qt/MouseOver.h"
#include "qt/SheetFrame.h"
#include "qt/Texts.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QValidator>

#include <algorithm>
#include <limits>
#include <utility>

namespace Tessellon {

/// Holds what is typed, pasted, dropped or composed to the control's limit and to one line, and leaves what was there
/// already. A limit of the line edit itself would cut what code shows in it, too.
class TextBoxWidget::Limit : public QValidator {
public:
    explicit Limit(TextBoxWidget& box)
        : QValidator(&box)
        , box_(box)
    {
    }

    State validate(QString& text, int& caret) const override
    {
        if (!box_.isFollowing_)
            Trim(OwnText(box_.Control().State().Text()), text, caret);
        return Acceptable;
    }

private:
    /// What was inserted ends at the caret; what stands behind that is what stood there before.
    void Trim(const QString& before, QString& text, int& caret) const
    {
        const qsizetype kept = std::min<qsizetype>(caret, before.size() - (text.size() - caret));
        qsizetype begin = 0;
        while (begin < kept && before[begin] == text[begin])
            ++begin;
        QString inserted = text.mid(begin, caret - begin);
        const qsizetype units = inserted.size();
        inserted.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
        for (QChar& unit : inserted)
            unit = IsControlCharacter(unit.unicode()) ? QChar(u' ') : unit;
        const qsizetype most = box_.Control().State().MaxLength();
        if (most > 0)
            inserted.truncate(std::clamp<qsizetype>(most - (text.size() - units), 0, inserted.size()));
        if (inserted.size() < units && !inserted.isEmpty() && inserted.back().isHighSurrogate())
            inserted.chop(1);
        if (inserted == QStringView(text).mid(begin, units))
            return;
        text.replace(begin, units, inserted);
        caret = static_cast<int>(begin + inserted.size());
    }

    TextBoxWidget& box_;
};

TextBoxWidget::TextBoxWidget(SheetFrame& frame)
    : QLineEdit(&frame.View())
    , frame_(frame)
{
    hide();
    setFocusPolicy(Qt::NoFocus);
    setFrame(false);
    setTextMargins(1, 0, 1, 0);
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new Limit(*this));
    setAutoFillBackground(true);
    connect(this, &QLineEdit::textEdited, this, [this] { Report(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { Report(); });
}

TextBoxControl& TextBoxWidget::Control() const
{
    return *frame_.Platform()->TheTextBox();
}

// ---- What the control shows -----------------------------------------------------------------------------------------

void TextBoxWidget::Follow(Aspect aspect)
{
    switch (aspect) {
    case Aspect::Visible:
        if (!Control().IsVisible()) {
            composed_.clear();
            frame_.Echo().BeforeHiding(*this);
            hide();
            break;
        }
        setGeometry(frame_.PixelsOf(Control().Place()));
        ShowText();
        show();
        break;
    case Aspect::Enabled:
        if (!Control().IsEnabled())
            frame_.Echo().BeforeHiding(*this);
        setEnabled(Control().IsEnabled());
        break;
    case Aspect::Order:
        if (Control().IsInFront())
            raise();
        break;
    case Aspect::Place:
        if (isVisible())
            setGeometry(frame_.PixelsOf(Control().Place()));
        break;
    case Aspect::Look: Look(); break;
    case Aspect::Content: ShowText(); break;
    case Aspect::Caret: ShowCaret(); break;
    case Aspect::Items:
    case Aspect::Calendar: break;
    }
}

void TextBoxWidget::Look()
{
    constexpr std::int16_t rightAligned = 1;
    constexpr std::int16_t centred = 2;
    const QFont font = QtFontOf(Control().GetFont());
    if (this->font() != font)
        setFont(font);
    QPalette colors = frame_.palette();
    const QColor background = ColorFrom(Control().Color(), colors);
    colors.setColor(QPalette::Base, background);
    colors.setColor(QPalette::Text, ReadableOn(background, colors.color(QPalette::Text)));
    if (palette() != colors)
        setPalette(colors);
    const std::int16_t alignment = Control().TextAlignment();
    setAlignment((alignment == rightAligned ? Qt::AlignRight
                  : alignment == centred    ? Qt::AlignHCenter
                                            : Qt::AlignLeft) |
                 Qt::AlignVCenter);
}

void TextBoxWidget::ShowText()
{
    const QScopedValueRollback following(isFollowing_, true);
    const QString text = OwnText(Control().State().Text());
    firstHalf_ = 0;
    if (this->text() != text)
        setText(text);
    setCursorPosition(Control().State().Caret());
}

void TextBoxWidget::ShowCaret()
{
    const QScopedValueRollback following(isFollowing_, true);
    deselect();
    setCursorPosition(Control().State().Caret());
}

void TextBoxWidget::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

// ---- Keys and characters --------------------------------------------------------------------------------------------

bool TextBoxWidget::event(QEvent* event)
{
    return frame_.TheKeyInput().Handle(*event) || QLineEdit::event(event);
}

/// Enter, Esc and Tab are the sheet's alone; a line edit would tell its own signals of them. A key without a code only
/// has its character.
bool TextBoxWidget::TakeKey(std::int16_t keyCode, std::int16_t shift)
{
    if (keyCode == 0 || keyCode == KeyCode::Enter || keyCode == KeyCode::Escape || keyCode == KeyCode::Tab)
        return true;
    {
        const QScopedValueRollback taking(isTaking_, true);
        QKeyEvent key(QEvent::KeyPress, QtKeyOf(keyCode), ModifiersOf(shift));
        QLineEdit::keyPressEvent(&key);
    }
    firstHalf_ = 0;
    Tell();
    return true;
}

bool TextBoxWidget::TakeCharacter(char16_t character)
{
    if (IsControlCharacter(character))
        return true;
    // The halves of a pair come one by one and go in together, or not at all.
    if (IsHighSurrogate(character)) {
        firstHalf_ = character;
        return true;
    }
    const char16_t first = std::exchange(firstHalf_, u'\0');
    {
        const QScopedValueRollback taking(isTaking_, true);
        insert(first != 0 && IsLowSurrogate(character) ? QString(QChar(first)) + QChar(character)
                                                       : QString(QChar(character)));
    }
    Tell();
    return true;
}

void TextBoxWidget::Tell()
{
    Control().EditedInWidget(UnitsOf(text()), cursorPosition());
}

void TextBoxWidget::Report()
{
    const TextState& state = Control().State();
    if (isFollowing_ || isTaking_ || (cursorPosition() == state.Caret() && UnitsOf(text()) == state.Text()))
        return;
    frame_.Do([this] { Tell(); });
}

// ---- Input methods --------------------------------------------------------------------------------------------------

/// What is committed is typed, character by character, so that the sheet hears of it as of any other.
void TextBoxWidget::inputMethodEvent(QInputMethodEvent* event)
{
    const QString committed = event->commitString();
    composed_ = event->preeditString();
    if (committed.isEmpty()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    const QString composedNext = std::exchange(composed_, {});
    QInputMethodEvent emptied;
    emptied.setCommitString({}, event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&emptied);
    TypeAll(committed);
    if (!composedNext.isEmpty() && Control().HasFocus()) {
        composed_ = composedNext;
        QInputMethodEvent rest(composedNext, event->attributes());
        QLineEdit::inputMethodEvent(&rest);
    }
    event->accept();
}

/// A commit that comes because code has taken the box down finds nobody to type to.
void TextBoxWidget::TypeAll(const QString& text)
{
    if (!Control().HasFocus() || !Control().CanHaveFocus())
        return;
    frame_.Do([&] {
        const std::shared_ptr<EnginePlatform> platform = frame_.Platform();
        for (const QChar unit : text)
            platform->TheKeys().Type(unit.unicode());
    });
}

void TextBoxWidget::CommitComposition()
{
    if (!IsComposing())
        return;
    QGuiApplication::inputMethod()->commit();
    if (!IsComposing())
        return;
    QInputMethodEvent taken;
    taken.setCommitString(composed_);
    inputMethodEvent(&taken);
}

// ---- Mouse ----------------------------------------------------------------------------------------------------------

bool TextBoxWidget::Press(const QMouseEvent& event)
{
    bool isTaken = false;
    if (frame_.Echo().BeforePress())
        frame_.Do([&] { isTaken = Control().PressMouse(MouseOver(event, frame_.TheMetrics())); });
    isPressLost_ = !isTaken;
    return isTaken;
}

void TextBoxWidget::mousePressEvent(QMouseEvent* event)
{
    if (Press(*event))
        QLineEdit::mousePressEvent(event);
}

void TextBoxWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (!Press(*event))
        return;
    QLineEdit::mouseDoubleClickEvent(event);
    frame_.Do([this] { Control().Tell(ChildEvent::DblClick); });
}

void TextBoxWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() != Qt::NoButton && isPressLost_)
        return;
    QLineEdit::mouseMoveEvent(event);
    frame_.Do([&] { Control().MoveMouse(MouseOver(*event, frame_.TheMetrics())); });
}

void TextBoxWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (std::exchange(isPressLost_, false))
        return;
    QLineEdit::mouseReleaseEvent(event);
    const bool isInside = rect().contains(event->position().toPoint());
    frame_.Do([&] { Control().ReleaseMouse(MouseOver(*event, frame_.TheMetrics()), isInside); });
}

void TextBoxWidget::wheelEvent(QWheelEvent* event)
{
    frame_.View().TurnWheel(*event);
}

} // namespace Tessellon
