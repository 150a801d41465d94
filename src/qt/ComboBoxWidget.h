#pragma once

#include "engine/controls/ChoiceControls.h"
#include "qt/LineEditWidget.h"

class QStyleOptionComboBox;

namespace Tessellon {

class ComboList;

/// The combo box over a cell: a line of text, and at its end the button of the running style that opens the list.
class ComboBoxWidget : public LineEditWidget {
public:
    ComboBoxWidget(SheetFrame& frame, ComboBoxControl& control);

    bool TakeKey(std::int16_t keyCode, std::int16_t shift) override;
    [[nodiscard]] ComboList& List() const { return *list_; }
    [[nodiscard]] QRect Button() const; ///< Where a press opens the list.

protected:
    [[nodiscard]] const TextState& Field() const override { return combo_.State().Field(); }
    void Edited(std::u16string_view text, std::int32_t caret) override { combo_.EditedInWidget(text, caret); }

    void ShowLook() override;
    void ShowContent() override;
    void ShowItems() override;
    void AboutToGo() override;
    void Pressed(QMouseEvent& event) override;
    void DoublePressed(QMouseEvent& event) override;
    void Moved(QMouseEvent& event) override;
    void Released(QMouseEvent& event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QStyleOptionComboBox Option() const;
    [[nodiscard]] bool IsOnButton(const QMouseEvent& event) const;
    void LeaveRoomForButton();
    void OpenList();
    void PressButton(const QMouseEvent& event);

    ComboBoxControl& combo_;
    ComboList* list_;
    bool isFieldPressed_ = false; ///< The mouse went down in the text.
};

} // namespace Tessellon
