#pragma once

#include "platform/Events.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Tessellon::Contract {

using Names = std::vector<std::string>;
using Reaction = std::function<void(EventArguments&)>;

/// Plays the sheet: notes each event and does in it what a test wants.
///
/// Events are noted as "Text1.LostFocus" and "Combo1(2).Click"; those of keys with code and shift or the character
/// ("Text1.KeyDown(13,0)"), of the mouse with the button, Format and CallbackKeyDown with the field.
class EventRecorder : public EventSink {
public:
    void Raise(Child child, ChildEvent event, EventArguments& arguments) override;

    /// Done the next time that the event comes, once; several one behind the other, each at its own time.
    void Once(const std::string& name, Reaction reaction) { once_[name].push_back(std::move(reaction)); }
    /// Done each time that the event comes.
    void Always(const std::string& name, Reaction reaction) { always_[name] = std::move(reaction); }
    /// Done at every event, ahead of what is done at it.
    void AtEach(std::function<void(const std::string& name)> watcher) { watcher_ = std::move(watcher); }

    Names Take() { return std::exchange(events_, {}); }
    [[nodiscard]] const Names& Events() const { return events_; }

private:
    Names events_;
    std::map<std::string, std::vector<Reaction>> once_; ///< By the name without what stands in parentheses behind it.
    std::map<std::string, Reaction> always_;
    std::function<void(const std::string& name)> watcher_;
};

/// The text for messages; what is not of ASCII as a question mark.
std::string Narrow(std::u16string_view text);

} // namespace Tessellon::Contract
