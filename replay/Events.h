#pragma once

#include "Forms.h"
#include "shell/TessellonSheet.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tessellon::Replay {

/// A value that a host gives back in a by-reference argument. A date is its serial.
using GivenValue = std::variant<bool, std::int16_t, float, std::u16string, double>;

/// What the script's host does at one event.
struct EventAnswers {
    struct Deed {
        Action Run;
        bool IsRunning = false;
    };

    std::map<std::size_t, GivenValue> Values; ///< By the place of the argument.
    std::vector<std::unique_ptr<Deed>> Deeds;
    std::optional<std::int32_t> Throws;
};

/// One event as a script names it.
struct EventForm {
    struct Argument {
        std::u16string_view Name;
        GivenValue (*Read)(const Word&); ///< Null for an argument that goes by value.
    };

    std::u16string_view Name;
    std::vector<Argument> Arguments;
};

/// All events, in the order of their numbers. The place in it serves as the event's number below.
const std::vector<EventForm>& EventForms();
/// An unknown name throws ScriptError.
std::size_t EventNamed(const Word& word);

/// Hears all events of a sheet. `heard` gets the number of the event and its line, and says what the host answers; it
/// is asked before anything of the answer is done. `done` gets the event's number when the values were given back.
struct EventListener {
    std::function<const EventAnswers&(std::size_t event, std::u16string_view line)> Heard;
    std::function<void(std::size_t event)> Done;
};
void ListenToEvents(TessellonSheet& sheet, EventListener listener);

} // namespace Tessellon::Replay
