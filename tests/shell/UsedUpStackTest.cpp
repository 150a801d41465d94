#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {

// The report of a used-up stack comes where it is used up: what the host calls from there has no stack left either.
TEST(UsedUpStack, GivesTheReadsOfTheHostTheirEmptyValues)
{
    SheetUnderTest sheet;
    sheet.Build({fcTextBox, fcTextBox}, 2);
    sheet->TextMatrix(1, 1, u"text");
    sheet->AllowAddNew(true);
    sheet->RaiseError(true);
    int reports = 0;
    sheet->ErrInfo += [&](std::int32_t number, auto&&...) {
        ++reports;
        EXPECT_EQ(number, 28);
        EXPECT_EQ(sheet->Row(), 0);
        EXPECT_EQ(sheet->Rows(), 0);
        EXPECT_EQ(sheet->Col(), 0);
        EXPECT_EQ(sheet->Cols(), 0);
        EXPECT_EQ(sheet->hWnd(), 0);
        EXPECT_EQ(sheet->TextMatrix(1, 1), u"");
        EXPECT_EQ(sheet->GetRowHeight(1), 0);
        EXPECT_EQ(sheet->ColumnHeader(1), u"");
        EXPECT_FALSE(sheet->AllowAddNew());
        EXPECT_FALSE(sheet->RaiseError());
        EXPECT_FALSE(sheet->ShowErrMessage());
    };
    sheet->ShowErrMessage(false);
    sheet->RowColChange += [&] { sheet->Row(sheet->Row() == 1 ? 2 : 1); };

    sheet->Row(2);

    EXPECT_EQ(reports, 1);
    EXPECT_EQ(sheet->TextMatrix(1, 1), u"text");
}

} // namespace Tessellon
