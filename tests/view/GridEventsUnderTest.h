#pragma once

#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

namespace Tessellon {

/// Three rows of two text columns with the editor up in the first cell; events of the grid are told by hand.
class GridEvents : public testing::Test {
protected:
    GridEvents()
    {
        Sheet.Build({fcTextBox, fcTextBox}, 3);
        Sheet.Calls->Notes(true);
        Forget();
    }
    void Forget()
    {
        Sheet.Heard.clear();
        static_cast<void>(Sheet.TakeCalls());
    }
    void Request(bool show, bool hide)
    {
        Members.ShowEditorRequest = show;
        Members.HideEditorRequest = hide;
    }
    void ExpectRequests(bool show, bool hide)
    {
        EXPECT_EQ(Members.ShowEditorRequest, show);
        EXPECT_EQ(Members.HideEditorRequest, hide);
    }
    void Tell(ChildEvent event) { Probe.Raise(Child::MSFlexGrid1, event); }
    void TellMouse(ChildEvent event, float x, float y)
    {
        EventArguments arguments;
        arguments.Button = 1;
        arguments.X = x;
        arguments.Y = y;
        Probe.Raise(Child::MSFlexGrid1, event, arguments);
    }
    bool IsUp() { return !Sheet.EditorsUp().empty(); }
    Grid& TheGrid() { return Sheet.Platform->MSFlexGrid1(); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

} // namespace Tessellon
