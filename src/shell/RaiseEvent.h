#pragma once

#include "failure/Frames.h"
#include "shell/TessellonSheet.h"

#include <string>
#include <utility>

namespace Tessellon {

/// Stands around a call of the host, or of something that lets the host run meanwhile.
class TessellonSheet::HostCode {
public:
    explicit HostCode(TessellonSheet& sheet)
        : sheet_(sheet)
    {
        sheet_.inHost_ = true;
    }
    ~HostCode() { sheet_.inHost_ = false; }
    HostCode(const HostCode&) = delete;
    HostCode& operator=(const HostCode&) = delete;

private:
    TessellonSheet& sheet_;
};

/// Tells the host an event. A failure of its handler leaves this call as one of the platform; a sheet that is ended
/// meanwhile leaves everything that it has on the stack.
template <class HostEvent, class... Arguments>
void TessellonSheet::RaiseEvent(const HostEvent& event, Arguments&&... arguments)
{
    LeaveIfEnded();
    if (ended_)
        return;
    try {
        const HostCode hostCode(*this);
        event.Tell([this] { return !ended_; }, std::forward<Arguments>(arguments)...);
    } catch (...) {
        if (!ended_)
            FailInHandler();
    }
    LeaveIfEnded();
}

} // namespace Tessellon
