#pragma once

#include "engine/controls/TextControls.h"

#include <QLineEdit>

#include <memory>

namespace Tessellon {

class SheetFrame;

/// The text box over a cell: a real line edit with its own selection, clipboard, undo and input methods. Keys and
/// characters come to it through the engine, which tells them first.
class TextBoxWidget : public QLineEdit {
public:
    explicit TextBoxWidget(SheetFrame& frame);

    void Follow(Aspect aspect); ///< Shows what of the control has become another.
    /// Does what the key means to a line edit, and tells the control what came of it.
    bool TakeKey(std::int16_t keyCode, std::int16_t shift);
    bool TakeCharacter(char16_t character);
    /// The input method holds text that is not committed yet.
    [[nodiscard]] bool IsComposing() const { return !composed_.isEmpty(); }
    void CommitComposition(); ///< The user turns to something else: what he has composed so far is typed.

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    class Limit;

    void Look();
    void ShowText();
    void ShowCaret();
    void Report(); ///< The widget was edited by itself.
    void Tell();
    void TypeAll(const QString& text);
    [[nodiscard]] TextBoxControl& Control() const;
    bool Press(const QMouseEvent& event);

    SheetFrame& frame_;
    bool isFollowing_ = false; ///< Code changes the box: neither limited nor reported.
    bool isTaking_ = false; ///< A key or character changes it, and is reported when it is done.
    QString composed_;
    bool isPressLost_ = false;
    char16_t firstHalf_ = 0; ///< Of a pair of surrogates, until its second comes.
};

} // namespace Tessellon
