#pragma once

#include "failure/Frames.h"
#include "shell/TessellonSheet.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace Tessellon {

/// The guard that every way into the sheet passes, host call or child event: it keeps the state alive until the
/// outermost call returns, and knows whether the sheet has ended.
class TessellonSheet::Entry {
public:
    explicit Entry(TessellonSheet& sheet)
        : sheet_(sheet)
        , calledByHost_(std::exchange(sheet.inHost_, false))
    {
        if (sheet_.depth_++ == 0) {
            const char here = 0;
            sheet_.stackTop_ = reinterpret_cast<std::uintptr_t>(&here);
        }
    }
    ~Entry()
    {
        sheet_.inHost_ = calledByHost_;
        if (--sheet_.depth_ > 0)
            return;
        sheet_.stack_ = Stack::Enough;
        if (sheet_.ended_)
            const std::unique_ptr<TessellonSheet> last = std::move(sheet_.self_);
    }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

    /// Runs a host call; on a sheet that has ended, or ends meanwhile, the call gives its default result. The end goes
    /// on to the sheet's own frames below, but never through the code of a host or of an event loop.
    template <class Body>
    auto Run(Body&& body) -> decltype(body())
    {
        using Result = decltype(body());
        if (!sheet_.ended_) {
            try {
                return std::forward<Body>(body)();
            } catch (const SheetEnded&) {
                if (!calledByHost_)
                    throw;
            }
        }
        return Result();
    }

private:
    TessellonSheet& sheet_;
    const bool calledByHost_;
};

} // namespace Tessellon
