#pragma once

#include <exception>
#include <string>
#include <utility>

namespace Tessellon::Replay {

/// A script cannot be read: what is wrong, in UTF-8, and in which line, from 1 (0 while that is not known yet).
class ScriptError : public std::exception {
public:
    explicit ScriptError(std::string wrong, int line = 0)
        : Wrong(std::move(wrong))
        , Line(line)
    {
    }

    [[nodiscard]] const char* what() const noexcept override { return Wrong.c_str(); }

    std::string Wrong;
    int Line;
};

} // namespace Tessellon::Replay
