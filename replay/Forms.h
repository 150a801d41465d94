#pragma once

#include "Literals.h"
#include "ScriptError.h"
#include "Words.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace Tessellon::Replay {

class Runner;

/// What a command does when its turn comes.
using Action = std::function<void(Runner&)>;

/// A command of the language: its name, and how its arguments become an action. Both are checked while the script is
/// read.
struct Form {
    std::u16string_view Name; ///< Of two words with a blank between, where the second is no argument.
    std::size_t Least; ///< Number of arguments.
    std::size_t Most;
    std::function<Action(Words)> Read;
};

namespace Detail {

template <class Value>
struct Argument {
    static constexpr bool isOptional = false;
    static Value From(Words words, std::size_t index) { return ReadAs<Value>(words[index]); }
};

template <class Value>
struct Argument<std::optional<Value>> {
    static constexpr bool isOptional = true;
    static std::optional<Value> From(Words words, std::size_t index)
    {
        return index < words.size() ? std::optional(ReadAs<Value>(words[index])) : std::nullopt;
    }
};

template <class Function, class... Values, std::size_t... Indexes>
Form MakeForm(std::u16string_view name, Function function, void (Function::* /*call*/)(Runner&, Values...) const,
              std::index_sequence<Indexes...> /*indexes*/)
{
    const auto read = [function]([[maybe_unused]] Words words) -> Action {
        std::tuple values{Argument<std::remove_cvref_t<Values>>::From(words, Indexes)...};
        return
            [function, values = std::move(values)](Runner& runner) { function(runner, std::get<Indexes>(values)...); };
    };
    constexpr std::size_t optional = (0U + ... + (Argument<std::remove_cvref_t<Values>>::isOptional ? 1U : 0U));
    return {name, sizeof...(Values) - optional, sizeof...(Values), read};
}

template <class Function, class... Values>
Form MakeForm(std::u16string_view name, Function function, void (Function::*call)(Runner&, Values...) const)
{
    return MakeForm(name, function, call, std::index_sequence_for<Values...>{});
}

} // namespace Detail

/// A command as a function: its arguments are those of the function behind the runner, read as their types say.
/// Those that may be left out are std::optional and come last.
template <class Function>
Form FormOf(std::u16string_view name, Function function)
{
    return Detail::MakeForm(name, function, &Function::operator());
}

/// A command without arguments.
inline Form FormOf(std::u16string_view name, void (*function)(Runner&))
{
    return FormOf(name, [function](Runner& runner) { function(runner); });
}

/// Finds the form that the first words name and reads it; null if none does. A wrong count of arguments or an argument
/// that cannot be read throws ScriptError.
Action ReadForm(const std::vector<Form>& forms, Words words);
/// An argument count out of its bounds throws ScriptError.
void CheckCount(std::u16string_view name, std::size_t count, std::size_t least, std::size_t most);

const std::vector<Form>& HostCalls(); ///< Public members that are called or written.
const std::vector<Form>& Questions(); ///< What stands behind a question mark.
const std::vector<Form>& UserActions();

} // namespace Tessellon::Replay
