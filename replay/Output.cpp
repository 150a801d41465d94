#include "Output.h"

#include "Utf8.h"

namespace Tessellon::Replay {

void Output::Line(std::u16string_view text)
{
    AppendUtf8(text_, text);
    EndLine();
}

void Output::Echo(std::string_view command)
{
    text_ += "> ";
    text_ += command;
    EndLine();
}

void Output::EndLine()
{
    constexpr std::size_t piece = 65536;
    text_ += '\n';
    if (file_ != nullptr && text_.size() >= piece)
        Flush();
}

void Output::Flush()
{
    if (file_ == nullptr)
        return;
    std::fwrite(text_.data(), 1, text_.size(), file_);
    std::fflush(file_);
    text_.clear();
}

} // namespace Tessellon::Replay
