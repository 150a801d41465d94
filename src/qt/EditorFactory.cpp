#include "engine/controls/ChoiceControls.h"
#include "engine/controls/TextControls.h"
#include "qt/CheckBoxWidget.h"
#include "qt/EditorWidget.h"
#include "qt/TextBoxWidget.h"

namespace Tessellon {

EditorWidget* MakeEditorWidget(SheetFrame& frame, ControlCore& control)
{
    switch (control.Which()) {
    case Child::Text1: return new TextBoxWidget(frame, static_cast<TextBoxControl&>(control));
    case Child::Check1: return new CheckBoxWidget(frame, static_cast<CheckBoxControl&>(control));
    default: return nullptr;
    }
}

} // namespace Tessellon
