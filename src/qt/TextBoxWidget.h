#pragma once

#include "engine/controls/TextControls.h"
#include "qt/EditorWidget.h"

#include <QLineEdit>

namespace Tessellon {

/// The text box over a cell: a real line edit with its own selection, clipboard, undo and input methods. Keys and
/// characters come to it through the engine, which tells them first.
class TextBoxWidget : public EditorOn<QLineEdit, TextBoxControl> {
public:
    TextBoxWidget(SheetFrame& frame, TextBoxControl& control);

    bool TakeKey(std::int16_t keyCode, std::int16_t shift) override;
    bool TakeCharacter(char16_t character) override;
    [[nodiscard]] bool IsComposing() const override { return !composed_.isEmpty(); }
    void CommitComposition() override;

protected:
    void ShowLook() override;
    void ShowContent() override;
    void ShowCaret() override;
    void AboutToGo() override { composed_.clear(); }
    void Pressed(QMouseEvent& event) override { QLineEdit::mousePressEvent(&event); }
    void DoublePressed(QMouseEvent& event) override;
    void Moved(QMouseEvent& event) override { QLineEdit::mouseMoveEvent(&event); }
    void Released(QMouseEvent& event) override { QLineEdit::mouseReleaseEvent(&event); }
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    class Limit;

    [[nodiscard]] int SelStart() const;
    void Report(); ///< The widget was edited by itself.
    void Tell();
    void TypeAll(const QString& text);

    bool isFollowing_ = false; ///< Code changes the box: neither limited nor reported.
    bool isTaking_ = false; ///< A key or character changes it, and is reported when it is done.
    QString composed_;
    char16_t firstHalf_ = 0; ///< Of a pair of surrogates, until its second comes.
};

} // namespace Tessellon
