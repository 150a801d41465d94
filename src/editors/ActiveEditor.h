#pragma once

#include "shell/TessellonSheet.h"

#include <memory>
#include <string_view>

namespace Tessellon {

// The class keys by which the placing and the load of an editor branch.
inline constexpr std::u16string_view textBoxKey = u"TEXTBOX";
inline constexpr std::u16string_view checkBoxKey = u"CHECKBOX";
inline constexpr std::u16string_view comboBoxKey = u"COMBOBOX";
inline constexpr std::u16string_view listBoxKey = u"LISTBOX";
inline constexpr std::u16string_view pickerKey = u"DTPICKER";
inline constexpr std::u16string_view maskedBoxKey = u"MASKEDBOX";
inline constexpr std::u16string_view richTextBoxKey = u"RICHTEXTBOX";
inline constexpr std::u16string_view commandButtonKey = u"COMMANDBUTTON";

/// The editor laid last, as the kind that the key names.
template <class Kind>
std::shared_ptr<Kind> TessellonSheet::ActiveAs(std::u16string_view key)
{
    return std::static_pointer_cast<Kind>(ActiveOf(key));
}

} // namespace Tessellon
