#pragma once

#include "engine/controls/TextControls.h"
#include "qt/Composition.h"
#include "qt/EditorWidget.h"
#include "qt/GatheredUnits.h"

#include <QPlainTextEdit>

namespace Tessellon {

/// The rich text box over a cell: a real text edit of several lines with its own selection, clipboard and undo. Its
/// document has one separator where the control's text has a carriage return with a line feed, or one of the two.
class RichTextWidget : public EditorOn<QPlainTextEdit, RichTextBoxControl> {
public:
    RichTextWidget(SheetFrame& frame, RichTextBoxControl& control);

    bool TakeKey(std::int16_t keyCode, std::int16_t shift) override;
    bool TakeCharacter(char16_t character) override;
    [[nodiscard]] bool IsComposing() const override { return composition_.IsUnderWay(); }
    void CommitComposition() override;

protected:
    void ShowContent() override;
    void ShowCaret() override;
    void AboutToGo() override { composition_.Drop(); }
    void Pressed(QMouseEvent& event) override { QPlainTextEdit::mousePressEvent(&event); }
    void DoublePressed(QMouseEvent& event) override { QPlainTextEdit::mouseDoubleClickEvent(&event); }
    void Moved(QMouseEvent& event) override { QPlainTextEdit::mouseMoveEvent(&event); }
    void Released(QMouseEvent& event) override { QPlainTextEdit::mouseReleaseEvent(&event); }

    void paintEvent(QPaintEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    [[nodiscard]] std::u16string EditedText() const; ///< The control's text with what became another in the document.
    [[nodiscard]] std::size_t Room() const; ///< In units, for what replaces the selection.
    void PutIn(std::u16string_view units);
    void MoveCaret();
    void CoverLineCutOff();
    void Report(); ///< The widget was edited by itself.
    void Tell();

    Composition composition_;
    bool isFollowing_ = false; ///< Code changes the box, which is not reported.
    bool isTaking_ = false; ///< A key or character changes it, and is reported when it is done.
    GatheredUnits gathered_;
};

} // namespace Tessellon
