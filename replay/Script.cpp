#include "Script.h"

#include "MemberNames.h"
#include "Runner.h"
#include "ScriptRecordset.h"
#include "Utf8.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace Tessellon::Replay {

namespace {

class Reader {
public:
    Script Read(std::string_view text);

private:
    void ReadLine(std::string_view line);
    Action ReadCommand(Words words);

    Action ReadHostAction(Words words);
    Action ReadQuestion(Words words);
    Action ReadDataSource(Words words);
    static Action ReadOn(std::size_t event, Words words);
    Action ReadOn(Words words);
    static Action ReadOff(Words words);
    static Action ReadFail(Words words);
    bool ReadRecordsetLine(Words words);

    Script script_;
    // The recordset that is being written, and the last one that is complete.
    std::shared_ptr<ScriptRecordset> openRecordset_;
    std::shared_ptr<ScriptConnection> openConnection_;
    std::shared_ptr<ScriptRecordset> recordset_;
    std::shared_ptr<ScriptConnection> connection_;
};

Script Reader::Read(std::string_view text)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    int number = 0;
    int recordsetLine = 0;
    try {
        while (!text.empty()) {
            ++number;
            const std::size_t end = text.find('\n');
            std::string_view line = text.substr(0, end);
            text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
            if (line.ends_with('\r'))
                line.remove_suffix(1);
            const bool wasOpen = openRecordset_ != nullptr;
            ReadLine(line);
            if (openRecordset_ && !wasOpen)
                recordsetLine = number;
        }
        if (openRecordset_) {
            number = recordsetLine;
            throw ScriptError("a recordset without its end");
        }
    } catch (ScriptError& error) {
        error.Line = number;
        throw;
    }
    return std::move(script_);
}

void Reader::ReadLine(std::string_view line)
{
    const std::vector<Word> words = SplitWords(FromUtf8(line));
    if (!words.empty())
        script_.Commands.push_back({std::string(line), ReadCommand(words)});
}

Action Reader::ReadCommand(Words words)
{
    const Words arguments = words.subspan(1);
    if (ReadRecordsetLine(words))
        return [](Runner& /*runner*/) {};
    if (words[0].Is(u"on"))
        return ReadOn(arguments);
    if (words[0].Is(u"off"))
        return ReadOff(arguments);
    if (words[0].Is(u"fail"))
        return ReadFail(arguments);
    if (Action action = ReadForm(UserActions(), words))
        return action;
    return ReadHostAction(words);
}

/// What a host may do, also within an event: a call, a question, the end of the sheet.
Action Reader::ReadHostAction(Words words)
{
    if (words[0].IsBare() && words[0].Bare.starts_with(u'?'))
        return ReadQuestion(words);
    if (words[0].Is(u"DataSource"))
        return ReadDataSource(words.subspan(1));
    if (words[0].Is(u"end")) {
        CheckCount(u"end", words.size() - 1, 0, 0);
        return [](Runner& runner) { runner.End(); };
    }
    if (Action action = ReadForm(HostCalls(), words))
        return action;
    throw ScriptError(Shown(words[0]) + " is no command here");
}

Action Reader::ReadQuestion(Words words)
{
    std::vector<Word> question(words.begin(), words.end());
    question[0].Bare.erase(0, 1);
    if (question[0].Bare.empty())
        question.erase(question.begin());
    if (question.empty())
        throw ScriptError("nothing stands behind the question mark");
    Action action = ReadForm(Questions(), question);
    if (!action)
        throw ScriptError(Shown(question[0]) + " cannot be asked for");
    script_.AsksForJournal = script_.AsksForJournal || question[0].Is(u"journal");
    return action;
}

Action Reader::ReadDataSource(Words words)
{
    CheckCount(u"DataSource", words.size(), 0, 1);
    if (words.size() == 1 && words[0].Is(u"none")) {
        std::shared_ptr<ScriptConnection> connection = connection_ ? connection_ : std::make_shared<ScriptConnection>();
        return [connection](Runner& runner) { runner.Sheet().DataSource(nullptr, connection); };
    }
    const bool hasConnection = words.empty();
    if (!hasConnection && !words[0].Is(u"noconnection"))
        throw ScriptError(Shown(words[0]) + " is neither none nor noconnection");
    if (!recordset_)
        throw ScriptError("no recordset stands before this DataSource");
    return [recordset = recordset_, connection = hasConnection ? connection_ : nullptr](Runner& runner) {
        runner.Sheet().DataSource(recordset, connection);
    };
}

Action Reader::ReadOn(Words words)
{
    if (words.size() < 2)
        throw ScriptError("on takes an event and what comes of it");
    const std::size_t event = EventNamed(words[0]);
    if (!words[1].Is(u"do"))
        return ReadOn(event, words.subspan(1));
    if (words.size() < 3)
        throw ScriptError("no command stands behind do");
    return [event, deed = ReadHostAction(words.subspan(2))](Runner& runner) {
        runner.AnswersTo(event).Deeds.push_back(std::make_unique<EventAnswers::Deed>(EventAnswers::Deed{.Run = deed}));
    };
}

/// What the handler throws, or gives back in an argument.
Action Reader::ReadOn(std::size_t event, Words words)
{
    if (words[0].Is(u"throw")) {
        CheckCount(u"throw", words.size() - 1, 1, 1);
        return [event, number = ReadAs<std::int32_t>(words[1])](Runner& runner) {
            runner.AnswersTo(event).Throws = number;
        };
    }
    const std::size_t sign = words[0].Bare.find(u'=');
    if (sign == std::u16string::npos || words.size() > 1)
        throw ScriptError("an event is answered by one ARGUMENT=VALUE, by do and a command, or by throw and a number");
    const std::u16string_view name = std::u16string_view(words[0].Bare).substr(0, sign);
    const Word value{.Bare = words[0].Bare.substr(sign + 1), .Text = words[0].Text};
    const auto& arguments = EventForms()[event].Arguments;
    for (std::size_t place = 0; place < arguments.size(); ++place) {
        if (arguments[place].Name != name || arguments[place].Read == nullptr)
            continue;
        return [event, place, given = arguments[place].Read(value)](Runner& runner) {
            runner.AnswersTo(event).Values.insert_or_assign(place, given);
        };
    }
    throw ScriptError(ToUtf8(name) + " is no argument that the event takes back");
}

Action Reader::ReadOff(Words words)
{
    CheckCount(u"off", words.size(), 1, 1);
    return [event = EventNamed(words[0])](Runner& runner) { runner.AnswersTo(event) = EventAnswers(); };
}

Action Reader::ReadFail(Words words)
{
    CheckCount(u"fail", words.size(), 2, 2);
    const auto failure = ReadAs<std::int32_t>(words[1]);
    if (!ReadNumber(words[0])) {
        return [member = ReadMemberName(words[0]), failure](Runner& runner) {
            runner.TheJournal().FailAtMember(member, failure);
        };
    }
    const auto call = ReadAs<std::int32_t>(words[0]);
    if (call < 1)
        throw ScriptError("calls count from 1");
    return [call, failure](Runner& runner) { runner.TheJournal().FailAtCall(call, failure); };
}

/// The lines from `recordset` to `recordset end`. They are complete when they are read: nothing is left to be run.
bool Reader::ReadRecordsetLine(Words words)
{
    const Words arguments = words.subspan(1);
    if (words[0].Is(u"recordset")) {
        const bool isEnd = arguments.size() == 1 && arguments[0].Is(u"end");
        if (isEnd != (openRecordset_ != nullptr))
            throw ScriptError(isEnd ? "no recordset is to be ended" : "a recordset within a recordset");
        CheckCount(u"recordset", isEnd ? 0 : arguments.size(), 0, 0);
        if (isEnd) {
            recordset_ = std::exchange(openRecordset_, nullptr);
            connection_ = std::exchange(openConnection_, nullptr);
        } else {
            openRecordset_ = std::make_shared<ScriptRecordset>();
            openConnection_ = std::make_shared<ScriptConnection>();
        }
        return true;
    }
    const bool isField = words[0].Is(u"field");
    const bool isError = words[0].Is(u"error");
    if (!isField && !isError && !words[0].Is(u"record"))
        return false;
    if (!openRecordset_)
        throw ScriptError(Shown(words[0]) + " outside a recordset");
    if (isField) {
        CheckCount(u"field", arguments.size(), 2, 2);
        openRecordset_->AddField(ReadAs<std::int32_t>(arguments[1]));
    } else if (isError) {
        CheckCount(u"error", arguments.size(), 5, 5);
        openConnection_->Add({.Number = ReadAs<std::int32_t>(arguments[0]),
                              .Description = ReadAs<std::u16string>(arguments[1]),
                              .Source = ReadAs<std::u16string>(arguments[2]),
                              .NativeError = ReadAs<std::int32_t>(arguments[3]),
                              .SQLState = ReadAs<std::u16string>(arguments[4]),
                              .HelpFile = {},
                              .HelpContext = 0});
    } else {
        openRecordset_->AddRecord(arguments);
    }
    return true;
}

} // namespace

Script ReadScript(std::string_view text)
{
    return Reader().Read(text);
}

} // namespace Tessellon::Replay
