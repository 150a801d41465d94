#pragma once

#include "platform/Failure.h"

#include <cstdint>
#include <string>

namespace Tessellon {

/// The thread's record of the latest failure. Every change of a procedure's failure mode empties it, so nothing may
/// count on its surviving a call.
struct FailureRecord {
    std::int32_t Number = 0;
    std::u16string Source;
    std::u16string Description;
    std::u16string HelpFile;
    std::int32_t HelpContext = 0;

    void Take(const Failure& failure);
    void Clear()
    {
        if (filled_)
            Empty();
    }

private:
    void Empty();

    bool filled_ = false;
};

/// What all sheets of a thread share. Every new sheet sets the flags to False and True again.
struct APIGlobal {
    bool RaiseErrorFlag = false;
    bool ShowErrMessageFlag = true;

    static APIGlobal& OfThread();
};

FailureRecord& ThreadFailureRecord();

} // namespace Tessellon
