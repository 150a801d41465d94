// Plays random scripts, or the scripts of files, on every platform of this build, and compares all that they print and
// all that they ask of the platform.

#include "Events.h"
#include "Output.h"
#include "RandomScript.h"
#include "Runner.h"
#include "Script.h"
#include "ScriptError.h"
#include "Stage.h"
#include "Utf8.h"

#ifdef TESSELLON_QT_STAGE
#include <QApplication>
#endif

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace Tessellon::Replay;

constexpr const char* usage =
    "usage: replay_random FOLDER FIRST COUNT   scripts of so many seeds; each is kept as FOLDER/SEED.txt\n"
    "       replay_random FILE...              the scripts of these files\n"
    "Exit status 1 where two platforms differ, or where random scripts left something of the language out.\n";

#ifdef TESSELLON_QT_STAGE
constexpr const char* otherName = "qt";
std::unique_ptr<Stage> MakeOtherStage()
{
    return MakeQtStage();
}
#else
// A build with one platform plays there twice: the record is the same at any time.
constexpr const char* otherName = "again";
std::unique_ptr<Stage> MakeOtherStage()
{
    return MakeHeadlessStage();
}
#endif

/// The record of a script, with the calls that it made behind it.
std::string Played(const std::string& text, std::unique_ptr<Stage> stage)
{
    Script script = ReadScript(text);
    script.AsksForJournal = true;
    Output output;
    Runner runner(*stage, output);
    runner.Run(script);
    for (const std::u16string& note : runner.TheJournal().TakeNotes())
        output.Line(note);
    return output.Kept();
}

/// Takes a line from the front of a text; none at its end.
std::optional<std::string_view> TakeLine(std::string_view& text)
{
    if (text.empty())
        return std::nullopt;
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

/// Prints the first line in which two records differ, behind the command that it belongs to.
void PrintDifference(const std::string& name, std::string_view headless, std::string_view played)
{
    std::string_view command = "(before the first command)";
    for (int number = 1;; ++number) {
        const std::optional<std::string_view> line = TakeLine(headless);
        const std::optional<std::string_view> other = TakeLine(played);
        if (line == other && line) {
            command = line->starts_with("> ") ? *line : command;
            continue;
        }
        const auto shown = [](const std::optional<std::string_view>& text) {
            return text ? std::string(*text) : "(nothing more)";
        };
        std::printf("%s: the platforms differ in line %d, behind %s\n", name.c_str(), number,
                    std::string(command).c_str());
        std::printf("  headless: %s\n  %s: %s\n", shown(line).c_str(), otherName, shown(other).c_str());
        return;
    }
}

/// Plays a script on both platforms and returns its record; none where they differ.
std::optional<std::string> Compare(const std::string& name, const std::string& text)
{
    std::string headless = Played(text, MakeHeadlessStage());
    if (const std::string other = Played(text, MakeOtherStage()); other != headless) {
        PrintDifference(name, headless, other);
        return std::nullopt;
    }
    return headless;
}

/// The names of the events in a record.
std::set<std::string> EventsIn(std::string_view record)
{
    std::set<std::string> events;
    while (const std::optional<std::string_view> line = TakeLine(record))
        for (const EventForm& form : EventForms())
            if (const std::string_view word = line->substr(0, line->find(' ')); ToUtf8(form.Name) == word)
                events.insert(std::string(word));
    return events;
}

bool ReportMissing(const char* what, const std::set<std::string>& all, const std::set<std::string>& seen)
{
    bool isComplete = true;
    for (const std::string& name : all) {
        if (seen.contains(name))
            continue;
        std::printf("never seen: %s %s\n", what, name.empty() ? "(none)" : name.c_str());
        isComplete = false;
    }
    return isComplete;
}

bool PlaySeeds(const std::string& folder, std::uint32_t first, std::uint32_t count)
{
    constexpr int mostReports = 10;
    std::filesystem::create_directories(folder);
    int differences = 0;
    UsedWords used;
    std::set<std::string> events;
    for (std::uint32_t seed = first; seed != first + count; ++seed) {
        const RandomScript script(seed);
        const std::string name = folder + '/' + std::to_string(seed) + ".txt";
        // It is kept before it is played, so that one that never ends or breaks the program is found.
        std::ofstream(name, std::ios::binary) << script.Text;
        used.Add(script.Used);
        const std::optional<std::string> record =
            Compare("seed " + std::to_string(seed) + " (" + name + ')', script.Text);
        differences += record ? 0 : 1;
        if (record)
            events.merge(EventsIn(*record));
        if (differences == mostReports)
            break;
    }
    const UsedWords all = AllWords();
    std::set<std::string> allEvents;
    for (const EventForm& form : EventForms())
        allEvents.insert(ToUtf8(form.Name));
    allEvents.erase("Compare"); // Only a custom sort of the grid raises it, and nothing sorts.
    bool isComplete = ReportMissing("command", all.Commands, used.Commands);
    isComplete = ReportMissing("key", all.Keys, used.Keys) && isComplete;
    isComplete = ReportMissing("modifiers", all.Modifiers, used.Modifiers) && isComplete;
    isComplete = ReportMissing("event", allEvents, events) && isComplete;
    return isComplete && differences == 0;
}

bool PlayFile(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    if (!file) {
        std::printf("%s cannot be read\n", name.c_str());
        return false;
    }
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return Compare(name, text).has_value();
}

std::optional<std::uint32_t> Number(const std::string& text)
{
    char* end = nullptr;
    const unsigned long number = std::strtoul(text.c_str(), &end, 10);
    return text.empty() || *end != '\0' ? std::nullopt : std::optional(static_cast<std::uint32_t>(number));
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
#ifdef TESSELLON_QT_STAGE
    constexpr const char* platform = "QT_QPA_PLATFORM";
    if (qEnvironmentVariableIsEmpty(platform))
        qputenv(platform, "offscreen");
    const QApplication application(argc, argv); // One for all stages.
#endif
    try {
        if (arguments.empty()) {
            std::fputs(usage, stderr);
            return 2;
        }
        bool isWell = true;
        if (arguments.size() == 3 && Number(arguments[1]) && Number(arguments[2]))
            isWell = PlaySeeds(arguments[0], *Number(arguments[1]), *Number(arguments[2]));
        else
            for (const std::string& name : arguments)
                isWell = PlayFile(name) && isWell;
        return isWell ? 0 : 1;
    } catch (const ScriptError& error) {
        std::fprintf(stderr, "line %d: %s\n", error.Line, error.Wrong.c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 2;
}
