#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace Tessellon {

/// An event of the sheet, to which a host adds handlers. By-reference arguments are references. Handlers run in the
/// order in which they were added; one that is added or removed while the event is told takes part from the next time
/// on.
template <class... Arguments>
class Event {
public:
    using Handler = std::function<void(Arguments...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    /// Adds a handler and returns its number, by which it can be taken back.
    std::size_t Add(Handler handler)
    {
        auto more = handlers_ ? std::make_shared<Handlers>(*handlers_) : std::make_shared<Handlers>();
        more->emplace_back(++last_, std::move(handler));
        handlers_ = std::move(more);
        return last_;
    }

    Event& operator+=(Handler handler)
    {
        Add(std::move(handler));
        return *this;
    }

    /// Takes a handler back; an unknown number is ignored.
    void Remove(std::size_t number)
    {
        if (!handlers_)
            return;
        auto fewer = std::make_shared<Handlers>(*handlers_);
        std::erase_if(*fewer, [&](const auto& entry) { return entry.first == number; });
        handlers_ = std::move(fewer);
    }

    /// Calls the handlers as they stand now, while `wanted` says so.
    template <class Wanted, class... Given>
    void Tell(const Wanted& wanted, Given&&... arguments) const
    {
        const std::shared_ptr<const Handlers> now = handlers_;
        if (!now)
            return;
        for (const auto& [number, handler] : *now) {
            if (!wanted())
                return;
            handler(arguments...);
        }
    }

private:
    using Handlers = std::vector<std::pair<std::size_t, Handler>>;

    std::shared_ptr<const Handlers> handlers_;
    std::size_t last_ = 0;
};

} // namespace Tessellon
