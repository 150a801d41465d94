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
        , alive_(sheet.self_)
    {
        if (sheet_.depth_++ == 0) {
            const char here = 0;
            sheet_.stackTop_ = reinterpret_cast<std::uintptr_t>(&here);
        }
    }
    ~Entry() { --sheet_.depth_; }
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;

    /// Runs a host call; on a sheet that has ended, or ends meanwhile, the call gives its default result.
    template <class Body>
    auto Run(Body&& body) -> decltype(body())
    {
        using Result = decltype(body());
        if (!sheet_.ended_) {
            try {
                return std::forward<Body>(body)();
            } catch (const SheetEnded&) {
                if (sheet_.depth_ > 1)
                    throw;
            }
        }
        return Result();
    }

private:
    TessellonSheet& sheet_;
    const std::shared_ptr<TessellonSheet> alive_;
};

} // namespace Tessellon
