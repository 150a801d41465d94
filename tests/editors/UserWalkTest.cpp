#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <array>

namespace Tessellon {
namespace {

/// What a walk does at one step, and three numbers that say where and how.
struct Doing {
    int What;
    int One;
    int Other;
    int Third;
};

void showValue(const Doing& doing, std::ostream& out)
{
    out << doing.What << '(' << doing.One << ',' << doing.Other << ',' << doing.Third << ')';
}

rc::Gen<Doing> AnyDoing()
{
    return rc::gen::construct<Doing>(rc::gen::inRange(0, 19), rc::gen::inRange(0, 40), rc::gen::inRange(0, 12),
                                     rc::gen::inRange(0, 8));
}

struct ColumnPlan {
    FieldControlType Kind;
    bool Hidden;
    bool UsesMask;
};

void showValue(const ColumnPlan& column, std::ostream& out)
{
    out << column.Kind << (column.Hidden ? " hidden" : "") << (column.UsesMask ? " mask" : "");
}

rc::Gen<ColumnPlan> AnyColumn()
{
    return rc::gen::construct<ColumnPlan>(
        rc::gen::map(rc::gen::inRange(0, 9), [](int kind) { return static_cast<FieldControlType>(kind); }),
        rc::gen::map(rc::gen::inRange(0, 5), [](int one) { return one == 0; }), rc::gen::arbitrary<bool>());
}

class Walk {
public:
    explicit Walk(const std::vector<ColumnPlan>& columns)
    {
        Sheet->Cols(static_cast<std::int32_t>(columns.size()) + 1);
        std::int32_t col = 0;
        for (const ColumnPlan& column : columns)
            Sheet.Column(++col, column.Kind, SettingOf(column), column.Hidden, column.UsesMask);
        Sheet->BuildGridColumns();
        Sheet->AllowAddNew(true);
        Sheet->Add(0, 5);
    }

    void Do(const Doing& doing)
    {
        static constexpr std::array<std::int16_t, 14> keys{13, 27, 37, 38, 39, 40, 33, 34, 35, 36, 8, 46, 32, 113};
        const auto row = static_cast<std::int32_t>(doing.One) % (Sheet->Rows() + 1);
        const auto col = static_cast<std::int32_t>(doing.Other) % (Sheet->Cols() + 1);
        const auto x = static_cast<float>(doing.One * 240);
        const auto y = static_cast<float>(doing.Other * 100);
        if (doing.Third > 2) {
            // Who has gone elsewhere is soon back: most of the walk is work in the sheet.
            Sheet.Hand.WindowIn();
            Sheet.Hand.FocusIn();
        }
        switch (doing.What) {
        case 0:
        case 1: Sheet.Hand.Click(row, col); break;
        case 2:
        case 3:
        case 4:
        case 5: Sheet.Press(keys.at(static_cast<std::size_t>(doing.One) % keys.size())); break;
        case 6: Sheet.Type(u"a1 /x"); break;
        case 7: Sheet.Hand.Scroll(row, col); break;
        case 8: Sheet.Hand.Hover(x, y); break;
        case 9: Sheet.Hand.MouseDown(x, y); break;
        case 10: Sheet.Hand.MouseUp(x, y); break;
        case 11: Sheet.Hand.Drag(row, col, doing.Third, doing.Other); break;
        case 12: Sheet.Hand.Push(); break;
        case 13: doing.Third % 2 == 0 ? Sheet.Hand.Toggle() : Sheet.Hand.Select(doing.Third); break;
        case 14: Sheet.Hand.Pick(45000 + doing.One, false); break;
        case 15: doing.Third % 2 == 0 ? Sheet.Hand.FocusOut() : Sheet.Hand.WindowOut(); break;
        case 16: doing.Third % 2 == 0 ? Sheet.Hand.FocusIn() : Sheet.Hand.WindowIn(); break;
        case 17: CallOfTheHost(doing, row, col); break;
        default: Sheet.Hand.DoubleClick(row, col); break;
        }
    }

    /// What holds whenever the sheet is at rest.
    void Check() const
    {
        RC_ASSERT(Sheet.EditorsUp().size() <= 1U);
        Grid& grid = Sheet.Platform->MSFlexGrid1();
        RC_ASSERT(Only(Sheet.Heard, {"exception", "box", "ErrInfo"}) == Lines());
        // The deletion of the one data row leaves its number standing.
        if (grid.Rows() > 1)
            RC_ASSERT(Sheet.Members().CurrentRow == grid.Row());
        RC_ASSERT(Sheet.Members().CurrentCol == grid.Col());
        RC_ASSERT(Sheet.Members().RowCount == grid.Rows());
        RC_ASSERT(Sheet.Members().ColCount == grid.Cols());
        RC_ASSERT(Sheet.Members().GridReady);
        RC_ASSERT(!Sheet.Members().AddingRows);
    }

private:
    static std::u16string_view SettingOf(const ColumnPlan& column)
    {
        switch (column.Kind) {
        case fcComboBox:
        case fcListBox: return u"One|Two|Three";
        case fcMaskedEditBox: return column.UsesMask ? u"##/##" : u"0.00";
        default: return u"Go";
        }
    }
    void CallOfTheHost(const Doing& doing, std::int32_t row, std::int32_t col)
    {
        switch (doing.Third) {
        case 0: Sheet->Add(row, 1 + doing.Other % 3); break;
        case 1: Sheet->Delete(row); break;
        case 2: Sheet->Row(row); break;
        case 3: Sheet->Col(col); break;
        case 4: Sheet->TextMatrix(row, col, u" two "); break;
        case 5:
            // Without rows it goes back to the row whose number was left standing, and fails at the host.
            if (Sheet->Rows() > 1)
                Sheet->BackColor(static_cast<std::int16_t>(doing.Other % 2), Yellow);
            break;
        case 6: Sheet->SearchCol(col, u"two"); break;
        default: Sheet->RowHeight(static_cast<float>(150 + 15 * doing.Other), false, false); break;
        }
    }

    SheetUnderTest Sheet;
};

// Whatever a user does on whatever columns: one editor at most, mirrors that agree with the grid, nothing reported.
RC_GTEST_PROP(UserOnAnySheet, LeavesAtMostOneEditorUpAndMirrorsThatAgree, ())
{
    auto columns = *rc::gen::resize(6, rc::gen::container<std::vector<ColumnPlan>>(AnyColumn()));
    // A sheet without any column to edit cannot go to a new row: that is told as a failure.
    const auto editable = *rc::gen::map(rc::gen::inRange(1, 9), [](int kind) {
        return ColumnPlan{static_cast<FieldControlType>(kind), false, false};
    });
    columns.insert(columns.begin() + *rc::gen::inRange<std::ptrdiff_t>(0, std::ssize(columns) + 1), editable);
    const auto doings = *rc::gen::container<std::vector<Doing>>(AnyDoing());
    Walk walk(columns);
    walk.Check();
    for (const Doing& doing : doings) {
        walk.Do(doing);
        walk.Check();
    }
}

} // namespace
} // namespace Tessellon
