#pragma once

namespace Tessellon {

/// Stands between the recordset and the driver manager: counts calls, and makes the driver seem another.
struct DriverCalls {
    long Fetches = 0;
    long Asked = 0; ///< Values that were asked for one by one.

    bool GivesNoBlocks = false; ///< Values can be asked for in a block of one record only.
    bool GivesEachOnce = false; ///< Values that are bound cannot be asked for again.
    bool CountsIn32Bits = false; ///< Lengths are written as numbers of 32 bits.
    bool TellsNoLengths = false; ///< Lengths of what is cut, or asked for by itself, are not told.
    long FailsAtFetch = 0; ///< That fetch fails without a reason. 0: none.
};

/// The calls of this test; a new test begins with none.
DriverCalls& Calls();

} // namespace Tessellon
