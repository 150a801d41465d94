#pragma once

#include "engine/controls/TextControls.h"
#include "qt/LineEditWidget.h"

namespace Tessellon {

/// The text box over a cell.
class TextBoxWidget : public LineEditWidget {
public:
    TextBoxWidget(SheetFrame& frame, TextBoxControl& control);

protected:
    [[nodiscard]] const TextState& Field() const override { return box_.State(); }
    void Edited(std::u16string_view text, std::int32_t caret) override { box_.EditedInWidget(text, caret); }
    void ShowLook() override;
    void DoublePressed(QMouseEvent& event) override;

private:
    TextBoxControl& box_;
};

} // namespace Tessellon
