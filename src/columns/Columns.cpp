#include "shell/Entry.h"

#include <utility>

namespace Tessellon {

ColDataType& TessellonSheet::Column(std::int32_t index)
{
    if (index < 0 || static_cast<std::size_t>(index) >= ColumnData.size())
        Fail(9);
    return ColumnData[static_cast<std::size_t>(index)];
}

ColDataType& TessellonSheet::CurrentColumn()
{
    return Column(CurrentCol - 1);
}

void TessellonSheet::CreateColumnDataType(std::int32_t col, std::u16string_view colName, FieldControlType controlType,
                                          std::u16string_view controlSettingString, bool hide,
                                          FieldControlAlign alignment, std::int32_t fieldLength,
                                          FieldAutoAdjustType autoAdjust, bool useMask)
{
    Entry(*this).Run([&] {
        Armed(u"CreateColumnDataTypeProperty", [&] {
            if (col > ColumnBound || col <= 0)
                return;
            ColDataType& column = Column(col - 1);
            const std::u16string_view setting = Trim(controlSettingString);
            const auto settingLength = static_cast<std::int32_t>(setting.size());
            column.cdColName = colName;
            column.cdControlType = controlType;
            column.cdControlSettingString = setting;
            column.cdHidden = hide;
            column.cdAlign = alignment;
            column.cdMaxLength =
                controlType == fcMaskedEditBox && settingLength > fieldLength ? settingLength : fieldLength;
            column.cdAutoAdjust = autoAdjust;
            column.cdUseMask = useMask;
        });
    });
}

std::u16string TessellonSheet::ColumnHeader(std::int32_t col)
{
    return Entry(*this).Run([&] {
        return ArmedResult(u"ColumnHeaderProperty", std::u16string(), [&](std::u16string& result) {
            if (col > 0 && col < ColCount)
                result = Trim(Column(col - 1).cdColName);
        });
    });
}

void TessellonSheet::InitializeArray()
{
    Armed(u"InitializeArray", [&] {
        ColumnData.assign(static_cast<std::size_t>(ColumnBound) + 1, {});
        Column(0).cdAlign = fcLeft;
        Column(0).cdObjectIndex = 1;
    });
}

void TessellonSheet::Cols(std::int32_t count)
{
    Entry(*this).Run([&] {
        Armed(u"ColsProperty", [&] {
            if (count <= 0)
                return;
            const std::int32_t oldBound = ColumnBound;
            ColumnBound = count - 1;
            MSFlexGrid1->Cols(count);
            ColCount = count;
            if (oldBound != ColumnBound)
                ReConstructArray(oldBound, ColumnBound);
            RefreshGridColor(1, 1);
        });
    });
}

/// Columns made from nothing come blank, those added to others with their defaults.
void TessellonSheet::ReConstructArray(std::int32_t OldCount, std::int32_t NewCount)
{
    Armed(u"ReConstructArray", [&] {
        if (OldCount <= 0) {
            if (NewCount > 1)
                ColumnData.assign(static_cast<std::size_t>(NewCount), {});
            return;
        }
        if (static_cast<std::size_t>(OldCount) > ColumnData.size())
            Fail(9);
        if (NewCount <= 0)
            return;
        ColumnData.resize(static_cast<std::size_t>(NewCount));
        for (std::int32_t i = OldCount; i < NewCount; ++i) {
            ColDataType& column = Column(i);
            column = {};
            column.cdAlign = fcLeft;
            column.cdObjectIndex = i + 1;
        }
    });
}

/// The width grows to the text in capital letters and a margin, in the component's own font. True if it did.
bool TessellonSheet::FitWidth(std::int32_t col, std::u16string_view text)
{
    constexpr float margin = 210;
    const float wanted = UserControl->TextWidth(RunTime->UpperCase(text)) + margin;
    if (!(wanted > static_cast<float>(MSFlexGrid1->ColWidth(col))))
        return false;
    MSFlexGrid1->ColWidth(col, ToLong(wanted));
    MSFlexGrid1->Redraw(true);
    MSFlexGrid1->Refresh();
    return true;
}

} // namespace Tessellon
