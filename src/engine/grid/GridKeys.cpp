#include "engine/grid/GridEngine.h"

#include <algorithm>

namespace Tessellon {

namespace {

constexpr std::int16_t shiftKey = 1;
constexpr std::int16_t ctrlKey = 2;

enum Key : std::int16_t {
    PageUp = 33,
    PageDown = 34,
    End = 35,
    Home = 36,
    Left = 37,
    Up = 38,
    Right = 39,
    Down = 40,
    LetterC = 67,
};

constexpr std::u16string_view quotedSigns = u"\t\"\r\n";

void AppendCell(std::u16string& copy, std::u16string_view text)
{
    if (text.find_first_of(quotedSigns) == std::u16string_view::npos) {
        copy += text;
        return;
    }
    copy += u'"';
    for (const char16_t unit : text) {
        copy += unit;
        if (unit == u'"')
            copy += unit;
    }
    copy += u'"';
}

} // namespace

std::optional<GridCell> GridEngine::KeyTarget(std::int16_t keyCode, bool ctrl, GridCell from) const
{
    const std::int32_t lastRow = rows_.Count() - 1;
    const std::int32_t lastCol = cols_.PreviousShown(cols_.Count() - 1);
    const std::int32_t page = RowSight().Page();
    GridCell target = from;
    switch (keyCode) {
    case Left: target.Col = cols_.PreviousShown(from.Col - 1); break;
    case Right: target.Col = cols_.NextShown(from.Col + 1); break;
    case Up: target.Row = from.Row - 1; break;
    case Down: target.Row = from.Row + 1; break;
    case PageUp: target.Row = from.Row - page; break;
    case PageDown:
        target.Row = static_cast<std::int32_t>(std::min<std::int64_t>(std::int64_t{from.Row} + page, lastRow));
        break;
    case Home: target = {ctrl ? fixedRows : from.Row, FirstShownCol()}; break;
    case End: target = {ctrl ? lastRow : from.Row, lastCol}; break;
    default: return std::nullopt;
    }
    if (target.Col >= cols_.Count() || (keyCode == Left && target.Col < fixedCols))
        target.Col = from.Col;
    if (target.Col < fixedCols)
        target.Col = FirstShownCol();
    target.Row = std::clamp(target.Row, fixedRows, lastRow);
    return target;
}

void GridEngine::PressKey(std::int16_t keyCode, std::int16_t shift)
{
    if (!isEnabled_)
        return;
    const bool isExtending = (shift & shiftKey) != 0;
    const bool ctrl = (shift & ctrlKey) != 0;
    if (keyCode == LetterC && ctrl && !isExtending) {
        CopySelection();
        return;
    }
    if (!HasShownData())
        return;
    const std::optional<GridCell> target =
        KeyTarget(keyCode, ctrl, isExtending ? selection_.Corner : selection_.Current);
    if (!target)
        return;
    BringIntoView(*target);
    if (!IsThere(*target))
        return;
    if (isExtending) {
        selection_.Corner = *target;
        ShowCursor();
        TellSelection();
    } else {
        MoveTo({*target, *target});
    }
}

void GridEngine::TypeCharacter(std::int16_t keyAscii)
{
    const auto unit = static_cast<std::uint16_t>(keyAscii);
    const bool isControl = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
    const bool isSecondOfPair = unit >= 0xDC00 && unit < 0xE000;
    if (isEnabled_ && !isControl && !isSecondOfPair)
        surroundings_.Bell();
}

void GridEngine::CopySelection()
{
    std::u16string copy;
    for (std::int32_t row = selection_.FirstRow(); row <= selection_.LastRow(); ++row) {
        bool isFirst = true;
        for (std::int32_t col = selection_.FirstCol(); col <= selection_.LastCol(); ++col) {
            if (cols_.Size(col) == 0)
                continue;
            if (!isFirst)
                copy += u'\t';
            AppendCell(copy, cells_.Text(row, col));
            isFirst = false;
        }
        copy += u"\r\n";
    }
    surroundings_.Copy(copy);
}

} // namespace Tessellon
