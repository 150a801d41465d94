#include "qt/LineEditWidget.h"

#include "engine/controls/KeyCodes.h"
#include "engine/fields/PastedText.h"
#include "engine/fields/UnitPairs.h"
#include "qt/KeyTranslation.h"
#include "qt/Texts.h"

#include <QInputMethodEvent>
#include <QScopedValueRollback>
#include <QValidator>

#include <algorithm>
#include <limits>
#include <utility>

namespace Tessellon {

/// Holds what is typed, pasted, dropped or composed to the control's limit and to one line, and leaves what was there
/// already. A limit of the line edit itself would cut what code shows in it, too.
class LineEditWidget::Limit : public QValidator {
public:
    explicit Limit(LineEditWidget& box)
        : QValidator(&box)
        , box_(box)
    {
    }

    State validate(QString& text, int& caret) const override
    {
        // What can be done again was just undone: what the box held before comes back, whatever it is.
        if (box_.isFollowing_ || box_.isRedoAvailable())
            return Acceptable;
        const Insertion insertion = InsertionInto(OwnText(box_.Field().Text()), text, caret);
        const QString fitting = Fitting(insertion, text);
        if (fitting == QStringView(text).mid(insertion.Begin, insertion.Units))
            return Acceptable;
        // A text that is changed here costs the line edit all that it could undo; one that is refused costs nothing.
        box_.instead_ = fitting;
        if (!box_.isTaking_)
            QMetaObject::invokeMethod(
                &box_, [&box = box_] { box.InsertInstead(); }, Qt::QueuedConnection);
        return Invalid;
    }

private:
    struct Insertion {
        qsizetype Begin;
        qsizetype Units;
    };

    /// What was inserted ends at the caret; what stands behind that is what stood there before.
    static Insertion InsertionInto(const QString& before, const QString& text, int caret)
    {
        const qsizetype kept = std::min<qsizetype>(caret, before.size() - (text.size() - caret));
        qsizetype begin = 0;
        while (begin < kept && before[begin] == text[begin])
            ++begin;
        return {begin, caret - begin};
    }

    [[nodiscard]] QString Fitting(const Insertion& insertion, const QString& text) const
    {
        const auto held = static_cast<std::size_t>(text.size() - insertion.Units);
        const auto inserted =
            UnitsOf(text).substr(static_cast<std::size_t>(insertion.Begin), static_cast<std::size_t>(insertion.Units));
        return OwnText(PastedText(inserted, Lines::One, RoomUnder(box_.Field().MaxLength(), held)));
    }

    LineEditWidget& box_;
};

LineEditWidget::LineEditWidget(SheetFrame& frame, ControlCore& control)
    : EditorOn(frame, control, {QPalette::Base, QPalette::Text})
    , composition_(frame, control)
{
    setFrame(false);
    setTextMargins(1, 0, 1, 0);
    setMaxLength(std::numeric_limits<int>::max());
    setValidator(new Limit(*this));
    connect(this, &QLineEdit::textEdited, this, [this] { Report(); });
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] { Report(); });
    connect(this, &QLineEdit::selectionChanged, this, [this] { Report(); });
}

// ---- What the control shows -----------------------------------------------------------------------------------------

void LineEditWidget::ShowContent()
{
    const QScopedValueRollback following(isFollowing_, true);
    const QString text = OwnText(Field().Text());
    gathered_.Drop();
    instead_.reset();
    if (this->text() != text)
        setText(text);
    setCursorPosition(Field().Caret());
}

void LineEditWidget::ShowCaret()
{
    const QScopedValueRollback following(isFollowing_, true);
    deselect();
    setCursorPosition(Field().Caret());
}

// ---- Keys and characters --------------------------------------------------------------------------------------------

/// Enter, Esc and Tab are the sheet's alone; a line edit would tell its own signals of them. A key without a code only
/// has its character.
bool LineEditWidget::TakeKey(std::int16_t keyCode, std::int16_t shift)
{
    if (keyCode == 0 || keyCode == KeyCode::Enter || keyCode == KeyCode::Escape || keyCode == KeyCode::Tab)
        return true;
    {
        const QScopedValueRollback taking(isTaking_, true);
        QKeyEvent key(QEvent::KeyPress, QtKeyOf(keyCode), ModifiersOf(shift));
        QLineEdit::keyPressEvent(&key);
        InsertInstead();
    }
    gathered_.Drop();
    Tell();
    return true;
}

bool LineEditWidget::TakeCharacter(char16_t character)
{
    if (IsControlCharacter(character))
        return true;
    const std::u16string units = gathered_.Take(character);
    if (units.empty())
        return true;
    {
        const QScopedValueRollback taking(isTaking_, true);
        insert(OwnText(units));
        InsertInstead();
    }
    Tell();
    return true;
}

void LineEditWidget::InsertInstead()
{
    if (const auto fitting = std::exchange(instead_, std::nullopt))
        insert(*fitting);
}

/// With a selection the caret of the control is where that begins, at whichever end the widget has its own.
int LineEditWidget::SelStart() const
{
    return hasSelectedText() ? selectionStart() : cursorPosition();
}

void LineEditWidget::Tell()
{
    Edited(UnitsOf(text()), SelStart());
}

void LineEditWidget::Report()
{
    const TextState& state = Field();
    if (isFollowing_ || isTaking_ || (SelStart() == state.Caret() && UnitsOf(text()) == state.Text()))
        return;
    frame_.Do([this] { Tell(); });
}

// ---- Input methods --------------------------------------------------------------------------------------------------

void LineEditWidget::inputMethodEvent(QInputMethodEvent* event)
{
    composition_.Take(*event, [this](QInputMethodEvent& shown) { QLineEdit::inputMethodEvent(&shown); });
}

void LineEditWidget::CommitComposition()
{
    composition_.Commit([this](QInputMethodEvent& shown) { QLineEdit::inputMethodEvent(&shown); });
}

} // namespace Tessellon
