#include "orders/Columns.h"

#include "orders/Invention.h"
#include "qt/SheetWidget.h"

namespace Orders {

using namespace Tessellon;

namespace {

constexpr int twipsAPixel = 15;

/// A setting of its own has only the column of cities, whose choices are put together.
constexpr const char* cities = nullptr;

constexpr Column columns[] = {
    {"Number", fcNil, "", false, fcRight, 0, faHeader, 60, Totals::Numbers, 0},
    {"Customer", fcTextBox, "", false, fcLeft, 60, faContent, 0, Totals::Texts, 0},
    {"City", fcComboBox, cities, false, fcLeft, 40, faContent, 0, Totals::Texts, 0},
    {"Ordered", fcDatePicker, "", false, fcCenter, 0, faHeader, 104, Totals::Dates, 0},
    {"Amount", fcTextBox, "", false, fcRight, 12, faHeader, 80, Totals::Numbers, 2},
    {"Currency", fcMaskedEditBox, ">???", false, fcCenter, 3, faHeader, 40, Totals::Texts, 0},
    {"Paid", fcCheckBox, "", false, fcCenter, 0, faHeader, 48, Totals::None, 0},
    {"State", fcListBox, "Open|Packed|Shipped|Returned", false, fcLeft, 0, faHeader, 84, Totals::Texts, 0},
    {"Phone", fcTextBox, "", false, fcLeft, 24, faContent, 0, Totals::Texts, 0},
    {"Notes", fcRichTextBox, "", false, fcLeft, 0, faNil, 420, Totals::None, 0},
    {"Slip", fcCommandButton, "Copy", false, fcCenter, 0, faHeader, 64, Totals::None, 0},
    {"Key", fcNil, "", true, fcRight, 0, faNil, 0, Totals::None, 0},
};

} // namespace

std::span<const Column> Columns()
{
    return columns;
}

int KeyCol()
{
    return static_cast<int>(std::size(columns));
}

void DeclareColumns(SheetWidget& sheet)
{
    sheet.DateFormat(QStringLiteral("yyyy-MM-dd"));
    sheet.Cols(static_cast<int>(std::size(columns)) + 1);
    int col = 0;
    for (const Column& column : columns) {
        ++col;
        const QString setting =
            column.Setting != cities ? QString::fromUtf8(column.Setting) : QString::fromStdString(CityNames());
        const bool isMask = column.Kind == fcMaskedEditBox;
        sheet.CreateColumnDataType(col, QString::fromLatin1(column.Name), column.Kind, setting, column.IsHidden,
                                   column.Alignment, column.Length, column.Width, isMask);
        if (column.FirstWidth > 0)
            sheet.ColWidth(col, static_cast<float>(column.FirstWidth * twipsAPixel));
    }
    constexpr int rowPixels = 21;
    constexpr int markerPixels = 22;
    sheet.ColWidth(0, markerPixels * twipsAPixel);
    sheet.RowHeight(rowPixels * twipsAPixel, true, true);
    sheet.BuildGridColumns();
}

} // namespace Orders
