#pragma once

#include "engine/fields/TextState.h"
#include "qt/Composition.h"
#include "qt/EditorWidget.h"
#include "qt/GatheredUnits.h"

#include <QLineEdit>

#include <optional>
#include <string_view>

namespace Tessellon {

/// A line of text over a cell: a real line edit with its own selection, clipboard, undo and input methods. Keys and
/// characters come to it through the engine, which tells them first.
class LineEditWidget : public EditorOn<QLineEdit, ControlCore> {
public:
    bool TakeKey(std::int16_t keyCode, std::int16_t shift) override;
    bool TakeCharacter(char16_t character) override;
    [[nodiscard]] bool IsComposing() const override { return composition_.IsUnderWay(); }
    void CommitComposition() override;

protected:
    LineEditWidget(SheetFrame& frame, ControlCore& control);

    [[nodiscard]] virtual const TextState& Field() const = 0;
    virtual void Edited(std::u16string_view text, std::int32_t caret) = 0; ///< The control is told.

    void ShowContent() override;
    void ShowCaret() override;
    void AboutToGo() override
    {
        composition_.Drop();
        instead_.reset();
    }
    void Pressed(QMouseEvent& event) override { QLineEdit::mousePressEvent(&event); }
    void DoublePressed(QMouseEvent& event) override { QLineEdit::mouseDoubleClickEvent(&event); }
    void Moved(QMouseEvent& event) override { QLineEdit::mouseMoveEvent(&event); }
    void Released(QMouseEvent& event) override { QLineEdit::mouseReleaseEvent(&event); }
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    class Limit;

    [[nodiscard]] int SelStart() const;
    void Report(); ///< The widget was edited by itself.
    void Tell();
    void InsertInstead(); ///< What has room and fits in one line, where all of it was refused.

    Composition composition_;
    bool isFollowing_ = false; ///< Code changes the box: neither limited nor reported.
    bool isTaking_ = false; ///< A key or character changes it, and is reported when it is done.
    std::optional<QString> instead_;
    GatheredUnits gathered_;
};

} // namespace Tessellon
