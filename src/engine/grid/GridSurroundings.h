#pragma once

#include "engine/grid/GridTypes.h"
#include "platform/Events.h"
#include "platform/Font.h"

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// What the grid asks of its surroundings: the sheet that listens, the focus, the metrics of the font, the screen.
/// The grid calls none of these while it is in an inconsistent state; all of them may call back into it, but for the
/// metrics, the room of the scroll bars, Invalidate and ScrollBarsChanged, which may only read it.
class GridSurroundings {
public:
    virtual ~GridSurroundings() = default;

    /// Tells the sheet one event of the grid, at once. A failure that leaves the handler leaves this call and goes
    /// through the grid to whoever began it.
    virtual void Raise(ChildEvent event, EventArguments& arguments) = 0;

    /// The user's press asks for the focus: Validate of the editor that has it, its loss, the grid's GotFocus. False
    /// when the press is lost: Validate was cancelled, or the grid was disabled on the way. True at once when the grid
    /// has the focus already.
    virtual bool TakeFocusByPress() = 0;

    /// SetFocus by code.
    virtual void TakeFocusByCode() = 0;

    /// Enabled has become another; it reads the new value already.
    virtual void EnabledChanged() = 0;

    virtual std::int32_t DefaultRowHeight(const Font& font) = 0; ///< Twips; 240 where there is no screen.
    virtual std::int32_t DefaultColWidth(const Font& font) = 0; ///< Twips; 960 where there is no screen.

    // What the scroll bars that are shown take of the view, in twips; 0 while hidden. Answered from what is kept, not
    // by asking the grid for its scroll ranges, which depend on it.
    virtual std::int32_t HorizontalScrollBarHeight() = 0;
    virtual std::int32_t VerticalScrollBarWidth() = 0;

    virtual void Bell() = 0;
    virtual void Copy(std::u16string_view text) = 0; ///< Puts a text on the clipboard.

    /// A part of the view shows something else now. Never called for what is out of view, nor while Redraw is False:
    /// what changes then is told when it becomes True.
    virtual void Invalidate(const GridRectangle& part) = 0;

    /// Paints at once what was invalidated. Called by Refresh and by Redraw True, and only when there is something.
    virtual void PaintNow() = 0;

    /// The scroll ranges, or TopRow or LeftCol, may have changed. Called often (a load of a million rows calls it a
    /// million times): note it, and look at the ranges when there is time to paint.
    virtual void ScrollBarsChanged() = 0;
};

} // namespace Tessellon
