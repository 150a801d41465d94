#pragma once

#include <cstdint>
#include <string>

namespace Tessellon {

/// Kind of editor of a column.
enum FieldControlType : std::int32_t {
    fcNil = 0, ///< None: the cell cannot be edited.
    fcTextBox = 1,
    fcCheckBox = 2,
    fcComboBox = 3,
    fcListBox = 4,
    fcDatePicker = 5,
    fcMaskedEditBox = 6,
    fcRichTextBox = 7,
    fcCommandButton = 8,
};

/// Alignment of a column's cells.
enum FieldControlAlign : std::int32_t { fcLeft = 1, fcCenter = 2, fcRight = 3 };

/// How a column's width follows its text. Widths only ever grow.
enum FieldAutoAdjustType : std::int32_t {
    faNil = 0, ///< The width stays as set.
    faHeader = 1, ///< It grows to hold the heading.
    faContent = 2, ///< It grows to hold the text of each cell that is written or loaded.
};

/// The descriptor of one data column. Grid column c has the descriptor with index c-1.
struct ColDataType {
    std::u16string cdColName;
    std::int32_t cdObjectIndex = 0;
    FieldControlType cdControlType = fcNil;
    std::u16string cdControlSettingString; ///< Trimmed: items parted by "|", mask or format, or caption.
    std::int16_t cdControlIndex = 0; ///< Instance in the control array of its kind.
    bool cdHidden = false;
    FieldControlAlign cdAlign = FieldControlAlign{};
    std::int32_t cdMaxLength = 0;
    FieldAutoAdjustType cdAutoAdjust = faNil;
    bool cdUseMask = false; ///< Of a masked editor: the setting string is a mask, not a format.
};

} // namespace Tessellon
