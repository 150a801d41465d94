#pragma once

#include "engine/controls/MaskControl.h"
#include "qt/Composition.h"
#include "qt/EditorWidget.h"

#include <QLineEdit>

#include <functional>
#include <vector>

namespace Tessellon {

/// The masked box over a cell. A line edit shows what the box holds, and has the caret and the selection; what changes
/// the text goes to the control, whose mask says what comes of it.
class MaskBoxWidget : public EditorOn<QLineEdit, MaskEdBoxControl> {
public:
    MaskBoxWidget(SheetFrame& frame, MaskEdBoxControl& control);

    bool TakeKey(std::int16_t keyCode, std::int16_t shift) override;
    bool TakeCharacter(char16_t character) override;
    [[nodiscard]] bool IsComposing() const override { return composition_.IsUnderWay(); }
    void CommitComposition() override;

protected:
    void ShowContent() override;
    void ShowCaret() override;
    void AboutToGo() override { composition_.Drop(); }
    void Pressed(QMouseEvent& event) override;
    void DoublePressed(QMouseEvent& event) override { QLineEdit::mouseDoubleClickEvent(&event); }
    void Moved(QMouseEvent& event) override { QLineEdit::mouseMoveEvent(&event); }
    void Released(QMouseEvent& event) override;

    void paintEvent(QPaintEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    using Edit = std::function<void(MaskState&)>;
    using Steps = std::vector<MaskState::Kept>;
    enum class Step : std::uint8_t { New, SameAsLast };

    [[nodiscard]] MaskState& State() const { return TheControl().Editing(); }
    void Sync(); ///< Shows text and caret of the state.
    void FollowCaret(); ///< The user has moved it in the line edit.
    bool Change(const Edit& edit, Step step = Step::New); ///< Can be undone. False: the text stayed the same.
    void Erase(MaskState& state) const; ///< What is selected.
    bool EraseBy(const QKeyEvent& key); ///< False: the key erases nothing.
    bool DoCommand(const QKeyEvent& key); ///< False: the key is no command of the clipboard's or of undoing.
    void Cut();
    void Paste(const QString& text);
    void PasteFromClipboard();
    void DeleteSelection();
    void Undo() { Swap(undo_, redo_); }
    void Redo() { Swap(redo_, undo_); }
    void Swap(Steps& from, Steps& to);
    void ForgetSteps();
    void ShowComposed(QInputMethodEvent& event);
    void Run(const std::function<void()>& command); ///< One of the user's that comes without a key of its own.
    void TellRelease();

    Composition composition_;
    bool isFollowing_ = false; ///< The line edit is brought in line with the state.
    bool isTyping_ = false; ///< Characters typed one behind the other are undone as one.
    Steps undo_;
    Steps redo_;
};

} // namespace Tessellon
