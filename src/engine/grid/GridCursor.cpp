#include "engine/Failures.h"
#include "engine/grid/GridEngine.h"

namespace Tessellon {

void GridEngine::Raise(ChildEvent event)
{
    EventArguments arguments;
    surroundings_.Raise(event, arguments);
}

void GridEngine::Row(std::int32_t row)
{
    NeedRow(row);
    WriteCurrent({row, selection_.Current.Col}, row == toldCell_.Row);
}

void GridEngine::Col(std::int32_t col)
{
    NeedCol(col);
    WriteCurrent({selection_.Current.Row, col}, col == toldCell_.Col);
}

void GridEngine::RowSel(std::int32_t row)
{
    NeedRow(row);
    WriteCorner({row, selection_.Corner.Col});
}

void GridEngine::ColSel(std::int32_t col)
{
    NeedCol(col);
    WriteCorner({selection_.Corner.Row, col});
}

void GridEngine::WriteCurrent(GridCell target, bool namesToldCell)
{
    if (IsDrawing()) {
        selection_ = {target, target};
        return;
    }
    // Code that drew elsewhere puts Row and Col back one after the other. Whichever comes first already brings the
    // cursor home; on its own it would make a cell that nobody goes to, half old and half new, and tell it.
    if (namesToldCell && selection_.Current != toldCell_)
        target = toldCell_;
    MoveTo({target, target});
}

void GridEngine::WriteCorner(GridCell corner)
{
    selection_.Corner = corner;
    if (IsDrawing())
        return;
    ShowCursor();
    if (selection_.Current == toldCell_)
        TellSelection();
}

void GridEngine::MoveTo(GridSelection target, Telling telling)
{
    const bool isMove = telling == Telling::Always || target.Current != toldCell_;
    const bool isOtherSelection = target != toldSelection_;
    if (isMove)
        Raise(ChildEvent::LeaveCell);
    target = Pulled(target);
    selection_ = target;
    toldCell_ = target.Current;
    toldSelection_ = target;
    ShowCursor();
    if (isMove) {
        Raise(ChildEvent::EnterCell);
        Raise(ChildEvent::RowColChange);
    }
    if (isOtherSelection)
        Raise(ChildEvent::SelChange);
}

void GridEngine::TellSelection()
{
    if (selection_ == toldSelection_)
        return;
    toldSelection_ = selection_;
    Raise(ChildEvent::SelChange);
}

} // namespace Tessellon
