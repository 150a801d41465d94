#include "orders/OrderColumns.h"

#include "orders/Invention.h"

namespace Orders {

using namespace Tessellon;

const Columns& OrderColumns()
{
    static const QString cities = QString::fromStdString(CityNames());
    static const Columns columns{
        {
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
        },
        QStringLiteral("yyyy-MM-dd"),
        12,
    };
    return columns;
}

} // namespace Orders
