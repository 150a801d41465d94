#include "Output.h"
#include "Runner.h"
#include "Script.h"
#include "ScriptError.h"
#include "Stage.h"

#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace {

using namespace Tessellon::Replay;

constexpr int unreadable = 2;

constexpr const char* usage =
    "usage: tessellon-replay [FILE] [--platform headless|qt]\n"
    "Drives a sheet by a script, from standard input without FILE, and prints what is heard.\n";

struct Options {
    std::string File; ///< Empty for standard input.
    std::string Platform = "headless";
};

std::optional<Options> ReadOptions(const std::vector<std::string_view>& arguments)
{
    constexpr std::string_view platform = "--platform";
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == platform && i + 1 < arguments.size())
            options.Platform = arguments[++i];
        else if (argument.starts_with("--platform="))
            options.Platform = argument.substr(platform.size() + 1);
        else if (options.File.empty() && (argument == "-" || !argument.starts_with('-')) && !argument.empty())
            options.File = argument;
        else
            return std::nullopt;
    }
    if (options.Platform != "headless" && options.Platform != "qt")
        return std::nullopt;
    if (options.File == "-")
        options.File.clear();
    return options;
}

/// The whole text of a file; none if it cannot be read.
std::optional<std::string> TextOf(std::FILE* file)
{
    if (file == nullptr)
        return std::nullopt;
    std::string text;
    std::array<char, 65536> piece{};
    for (std::size_t size = piece.size(); size == piece.size();) {
        size = std::fread(piece.data(), 1, piece.size(), file);
        text.append(piece.data(), size);
    }
    return std::ferror(file) == 0 ? std::optional(std::move(text)) : std::nullopt;
}

std::optional<std::string> ReadFile(const std::string& name)
{
    if (name.empty())
        return TextOf(stdin);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "rb"), &std::fclose);
    return TextOf(file.get());
}

#ifdef TESSELLON_QT_STAGE
std::unique_ptr<Stage> MakeStage(const std::string& platform)
{
    return platform == "qt" ? MakeQtStage() : MakeHeadlessStage();
}

void HandOver(const std::string& /*platform*/, char** /*arguments*/)
{
}
#else
std::unique_ptr<Stage> MakeStage(const std::string& platform)
{
    return platform == "headless" ? MakeHeadlessStage() : nullptr;
}

/// The desktop platform is in a command of its own beside this one: to load it would cost a headless replay more than
/// its script does. Returns where there is none.
void HandOver(const std::string& platform, char** arguments)
{
    std::error_code unknown;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", unknown);
    if (platform == "qt" && !unknown)
        execv((self.parent_path() / "tessellon-replay-qt").c_str(), arguments);
}
#endif

int Replay(const Options& options)
{
    const std::string name = options.File.empty() ? "<stdin>" : options.File;
    Script script;
    try {
        const std::optional<std::string> text = ReadFile(options.File);
        if (!text)
            throw ScriptError("the file cannot be read");
        script = ReadScript(*text);
    } catch (const ScriptError& error) {
        std::fprintf(stderr, "%s:%d: %s\n", name.c_str(), error.Line, error.Wrong.c_str());
        return unreadable;
    }
    const std::unique_ptr<Stage> stage = MakeStage(options.Platform);
    if (!stage) {
        std::fprintf(stderr, "tessellon-replay: this build has no platform %s\n", options.Platform.c_str());
        return unreadable;
    }
    Output output(stdout);
    Runner(*stage, output).Run(script);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--help") {
        std::fputs(usage, stdout);
        return 0;
    }
    const std::optional<Options> options = ReadOptions(arguments);
    if (!options) {
        std::fputs(usage, stderr);
        return unreadable;
    }
    HandOver(options->Platform, argv);
    return Replay(*options);
}
