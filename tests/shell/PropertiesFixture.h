#pragma once

#include "support/Lines.h"
#include "support/SheetProbe.h"
#include "support/SheetUnderTest.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

namespace Tessellon {

/// Three text columns and three rows, the first cell entered.
class Properties : public testing::Test {
protected:
    Properties() { Sheet.Build({fcTextBox, fcTextBox, fcTextBox}, 3); }

    template <class Call>
    Lines CallsOf(const Call& call)
    {
        Sheet.Calls->Notes(true);
        static_cast<void>(Sheet.TakeCalls());
        call();
        return Sheet.TakeCalls();
    }
    /// The second column again, with a heading and another way of following its text.
    void Declare(std::u16string_view heading, bool hidden, FieldAutoAdjustType adjust)
    {
        Sheet->CreateColumnDataType(2, heading, fcTextBox, u"", hidden, fcLeft, 40, adjust, false);
    }
    GridEngine& Grid() { return Sheet.Platform->TheGrid(); }

    SheetUnderTest Sheet;
    SheetProbe Probe{*Sheet};
    SheetMembers& Members = Probe.Members();
};

} // namespace Tessellon
