#pragma once

#include "failure/Frames.h"
#include "shell/TessellonSheet.h"

#include <string>
#include <utility>

namespace Tessellon {

/// Tells the host an event. A failure of its handler leaves this call as one of the platform; a sheet that is ended
/// meanwhile leaves everything that it has on the stack.
template <class HostEvent, class... Arguments>
void TessellonSheet::RaiseEvent(const HostEvent& event, Arguments&&... arguments)
{
    if (ended_)
        return;
    try {
        event.Tell([this] { return !ended_; }, std::forward<Arguments>(arguments)...);
    } catch (...) {
        if (!ended_)
            FailInHandler();
    }
    LeaveIfEnded();
}

} // namespace Tessellon
