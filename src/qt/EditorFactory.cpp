#include "engine/controls/ChoiceControls.h"
#include "engine/controls/TextControls.h"
#include "qt/ButtonWidget.h"
#include "qt/CheckBoxWidget.h"
#include "qt/ComboBoxWidget.h"
#include "qt/DatePickerWidget.h"
#include "qt/EditorWidget.h"
#include "qt/ListBoxWidget.h"
#include "qt/MaskBoxWidget.h"
#include "qt/RichTextWidget.h"
#include "qt/TextBoxWidget.h"

namespace Tessellon {

EditorWidget* MakeEditorWidget(SheetFrame& frame, ControlCore& control)
{
    switch (control.Which()) {
    case Child::Text1: return new TextBoxWidget(frame, static_cast<TextBoxControl&>(control));
    case Child::Check1: return new CheckBoxWidget(frame, static_cast<CheckBoxControl&>(control));
    case Child::Combo1: return new ComboBoxWidget(frame, static_cast<ComboBoxControl&>(control));
    case Child::List1: return new ListBoxWidget(frame, static_cast<ListBoxControl&>(control));
    case Child::Command1: return new ButtonWidget(frame, static_cast<CommandButtonControl&>(control));
    case Child::DTPicker1: return new DatePickerWidget(frame, static_cast<PickerControl&>(control));
    case Child::MaskEdBox1: return new MaskBoxWidget(frame, static_cast<MaskEdBoxControl&>(control));
    case Child::RichTextBox1: return new RichTextWidget(frame, static_cast<RichTextBoxControl&>(control));
    default: return nullptr;
    }
}

} // namespace Tessellon
