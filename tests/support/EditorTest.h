#pragma once

#include "support/Keys.h"
#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace Tessellon {

/// A sheet in which the user is brought into a cell, and what is needed to see what an editor does there.
class EditorTest : public testing::Test {
protected:
    using Place = std::pair<std::int32_t, std::int32_t>;

    /// The user goes into a cell that holds the text; what was heard until then is forgotten.
    void GoTo(std::int32_t row, std::int32_t col, std::u16string_view text)
    {
        SetCell(row, col, text);
        Sheet.Hand.Click(row, col);
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
    }
    /// Behind the sheet's back.
    void SetCell(std::int32_t row, std::int32_t col, std::u16string_view text)
    {
        Sheet.Platform->MSFlexGrid1().TextMatrix(row, col, text);
    }
    std::u16string Cell(std::int32_t row, std::int32_t col)
    {
        return std::u16string(Sheet.Platform->MSFlexGrid1().TextMatrix(row, col));
    }
    Place Cursor() { return {Sheet->Row(), Sheet->Col()}; }

    /// Tells the sheet an event of an editor, with nothing of the platform's own behind it.
    EventArguments Tell(Child child, ChildEvent event, EventArguments arguments = {})
    {
        Probe.Raise(child, event, arguments);
        return arguments;
    }
    EventArguments TellKey(Child child, std::int16_t code, std::int16_t index = 0, std::int16_t shift = 0)
    {
        EventArguments arguments;
        arguments.Index = index;
        arguments.KeyCode = code;
        arguments.Shift = shift;
        return Tell(child, ChildEvent::KeyDown, arguments);
    }
    EventArguments TellOf(Child child, std::int16_t index, ChildEvent event)
    {
        EventArguments arguments;
        arguments.Index = index;
        return Tell(child, event, arguments);
    }

    /// The writes of cells since the last time, with the calls on the editors that begin with `editor`.
    Lines CallsOn(std::string_view editor) { return Only(Sheet.TakeCalls(), {editor, "MSFlexGrid1.TextMatrix"}); }
    Lines Writes() { return Only(Sheet.TakeCalls(), {"MSFlexGrid1.TextMatrix"}); }
    Lines LabelsHeard() { return Labels(Sheet.TakeEvents()); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

/// The first lines, so many.
inline Lines First(Lines lines, std::size_t count)
{
    if (lines.size() > count)
        lines.resize(count);
    return lines;
}

/// What stand-down is to the journal.
inline Lines StandDownOf(const std::string& editor)
{
    return {editor + ".Visible=False", editor + ".Enabled=False", editor + ".ZOrder(1)"};
}

} // namespace Tessellon
