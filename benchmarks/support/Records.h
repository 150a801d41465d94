#pragma once

#include "columns/ColDataType.h"

#include <string>

namespace Bench {

inline constexpr const char* query =
    "SELECT id, customer, quantity, weight, ordered, paid, amount, city, note, changed FROM records ORDER BY id";
inline constexpr int fieldCount = 10;
/// Fields that every side shows letter for letter as they are stored.
inline constexpr int plainFields[] = {0, 1, 2, 7, 8};

struct Column {
    const char16_t* Name;
    Tessellon::FieldControlType Kind;
    const char16_t* Setting;
    Tessellon::FieldControlAlign Alignment;
};

inline constexpr Column columns[fieldCount] = {
    {u"Number", Tessellon::fcNil, u"", Tessellon::fcRight},
    {u"Customer", Tessellon::fcTextBox, u"", Tessellon::fcLeft},
    {u"Quantity", Tessellon::fcTextBox, u"", Tessellon::fcRight},
    {u"Weight", Tessellon::fcTextBox, u"", Tessellon::fcRight},
    {u"Ordered", Tessellon::fcDatePicker, u"", Tessellon::fcCenter},
    {u"Paid", Tessellon::fcCheckBox, u"", Tessellon::fcCenter},
    {u"Amount", Tessellon::fcTextBox, u"", Tessellon::fcRight},
    {u"City", Tessellon::fcComboBox, u"Dublin|Genève|Hamburg|Madrid|Wien", Tessellon::fcLeft},
    {u"Note", Tessellon::fcRichTextBox, u"", Tessellon::fcLeft},
    {u"Changed", Tessellon::fcTextBox, u"", Tessellon::fcCenter},
};

} // namespace Bench
