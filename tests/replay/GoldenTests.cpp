// What the golden scripts cover: counted from the tables of the language and from the header of the sheet, so that a
// new member, event or command is missed here until a golden script has it.

#include "Events.h"
#include "Forms.h"
#include "Literals.h"
#include "Utf8.h"
#include "Words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {
namespace {

using Names = std::set<std::string>;

std::string TextOf(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

/// All golden files of this kind, ".txt" or ".out", one behind the other.
std::string Golden(std::string_view extension)
{
    std::string text;
    for (const auto& entry : std::filesystem::directory_iterator(TESSELLON_GOLDEN))
        if (entry.path().extension() == extension)
            text += TextOf(entry.path());
    return text;
}

std::vector<std::string> LinesOf(const std::string& text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

/// The lines of all scripts as words, those that an event runs behind their own; `on` lines stay whole as well.
const std::vector<std::vector<Word>>& Commands()
{
    static const std::vector<std::vector<Word>> commands = [] {
        std::vector<std::vector<Word>> all;
        for (const std::string& line : LinesOf(Golden(".txt"))) {
            std::vector<Word> words = SplitWords(FromUtf8(line));
            if (words.empty())
                continue;
            all.push_back(words);
            if (words[0].Is(u"on") && words[2].Is(u"do"))
                all.emplace_back(words.begin() + 3, words.end());
        }
        return all;
    }();
    return commands;
}

/// The name of a command, of two words where it has several forms; a question begins with "? ".
std::string NameOf(std::vector<Word> words)
{
    std::string before;
    if (words[0].Is(u"?")) {
        before = "? ";
        words.erase(words.begin());
    }
    const std::string first = ToUtf8(words[0].Bare);
    if (first == "on")
        return words[2].Is(u"do") || words[2].Is(u"throw") ? "on " + ToUtf8(words[2].Bare) : "on value";
    if (first == "fail")
        return ReadNumber(words[1]) ? "fail number" : "fail member";
    if (first == "DataSource" && words.size() > 1)
        return "DataSource " + ToUtf8(words[1].Bare);
    if (words.size() > 1 && words[1].IsBare())
        for (const Form& form : UserActions())
            if (ToUtf8(form.Name) == first + ' ' + ToUtf8(words[1].Bare))
                return ToUtf8(form.Name);
    return before + first;
}

Names UsedCommands()
{
    Names names;
    for (const std::vector<Word>& words : Commands())
        names.insert(NameOf(words));
    return names;
}

void Add(Names& names, const std::vector<Form>& forms, const std::string& before = {})
{
    for (const Form& form : forms)
        names.insert(before + ToUtf8(form.Name));
}

/// What is wanted and not there, one a line.
std::string Missing(const Names& wanted, const Names& used)
{
    std::string missing;
    for (const std::string& name : wanted)
        if (!used.contains(name))
            missing += name + '\n';
    return missing;
}

TEST(GoldenScripts, HaveMoreThanThreeHundredActionsOfUserAndHost)
{
    Names actions;
    Add(actions, HostCalls());
    Add(actions, UserActions());
    const auto count = std::count_if(Commands().begin(), Commands().end(),
                                     [&](const std::vector<Word>& words) { return actions.contains(NameOf(words)); });
    EXPECT_GE(count, 300);
}

TEST(GoldenScripts, UseEveryCommand)
{
    Names wanted{
        "on value",  "on do", "on throw", "off",   "fail member", "fail number",     "end",
        "recordset", "field", "record",   "error", "DataSource",  "DataSource none", "DataSource noconnection"};
    Add(wanted, HostCalls());
    Add(wanted, Questions(), "? ");
    Add(wanted, UserActions());
    EXPECT_EQ(Missing(wanted, UsedCommands()), "");
}

/// What the header declares for hosts, its events apart, and what the scripts read or call.
TEST(GoldenScripts, UseEveryPublicMember)
{
    std::string header = TextOf(TESSELLON_SHEET_HEADER);
    const std::size_t begin = header.find("// Cells and cursor.");
    const std::size_t end = header.find("// The 25 events");
    ASSERT_TRUE(begin != std::string::npos && end != std::string::npos) << "the header has other chapters";
    header = header.substr(begin, end - begin);
    Names wanted;
    const std::regex declared(R"(\n    [A-Za-z_:0-9]+ ([A-Za-z]+)\()");
    for (std::sregex_iterator found(header.begin(), header.end(), declared), none; found != none; ++found)
        wanted.insert((*found)[1]);
    ASSERT_GT(wanted.size(), 20U);
    Names used = UsedCommands();
    for (const std::string& name : UsedCommands())
        used.insert(name.starts_with("? ") ? name.substr(2) : name);
    EXPECT_EQ(Missing(wanted, used), "");
}

TEST(GoldenScripts, PressEveryKeyAndModifier)
{
    Names wanted{"Shift", "Ctrl", "Alt", "a character"};
    for (const std::u16string& key : KeyNames())
        wanted.insert(ToUtf8(key));
    Names used;
    for (const std::vector<Word>& words : Commands()) {
        if (!words[0].Is(u"press"))
            continue;
        const std::string key = ToUtf8(words[1].Bare);
        used.insert(key.size() == 1 ? "a character" : key);
        if (words.size() > 2)
            for (const char* const modifier : {"Shift", "Ctrl", "Alt"})
                if (words[2].Bare.find(FromUtf8(modifier)) != std::u16string::npos)
                    used.insert(modifier);
    }
    EXPECT_EQ(Missing(wanted, used), "");
}

TEST(GoldenScripts, DeclareEveryKindOfColumn)
{
    Names used;
    for (const std::vector<Word>& words : Commands())
        if (words[0].Is(u"CreateColumnDataType"))
            used.insert(std::to_string(ReadAs<FieldControlType>(words[3])));
    Names wanted;
    for (int kind = fcNil; kind <= fcCommandButton; ++kind)
        wanted.insert(std::to_string(kind));
    EXPECT_EQ(Missing(wanted, used), "");
}

TEST(GoldenScripts, AnswerEveryEventInEveryArgumentThatGoesByReference)
{
    Names wanted;
    for (const EventForm& form : EventForms())
        for (const EventForm::Argument& argument : form.Arguments)
            if (argument.Read != nullptr && form.Name != u"Compare")
                wanted.insert(ToUtf8(form.Name) + ' ' + ToUtf8(argument.Name));
    Names used;
    for (const std::vector<Word>& words : Commands())
        if (words[0].Is(u"on"))
            used.insert(ToUtf8(words[1].Bare + u' ' + words[2].Bare.substr(0, words[2].Bare.find(u'='))));
    EXPECT_EQ(Missing(wanted, used), "");
}

/// Nothing but a custom sort raises Compare, and the sheet offers none.
TEST(GoldenRecords, TellEveryEventAndBothEndsOfAFailure)
{
    Names wanted{"box", "exception"};
    for (const EventForm& form : EventForms())
        if (form.Name != u"Compare")
            wanted.insert(ToUtf8(form.Name));
    Names heard;
    for (const std::string& line : LinesOf(Golden(".out")))
        heard.insert(line.substr(0, line.find(' ')));
    EXPECT_EQ(Missing(wanted, heard), "");
}

} // namespace
} // namespace Tessellon::Replay
