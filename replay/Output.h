#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace Tessellon::Replay {

/// Where the record goes, line by line, as UTF-8. It is handed to the file in large pieces, and at the end.
class Output {
public:
    /// Without a file everything stays here.
    explicit Output(std::FILE* file = nullptr)
        : file_(file)
    {
    }
    ~Output() { Flush(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    void Line(std::u16string_view text);
    void Echo(std::string_view command); ///< A line of the script, as it stands.
    void Flush();

    [[nodiscard]] const std::string& Kept() const { return text_; } ///< What was not handed on yet.

private:
    void EndLine();

    std::FILE* file_;
    std::string text_;
};

} // namespace Tessellon::Replay
