#include "RandomScript.h"

#include "Events.h"
#include "Forms.h"
#include "MemberNames.h"
#include "RandomValues.h"
#include "Utf8.h"

#include <algorithm>
#include <map>
#include <stdexcept>
#include <string_view>
#include <utility>
#include <vector>

namespace Tessellon::Replay {

namespace {

constexpr std::uint32_t firstUsersSeed = 1000000;

struct Signature {
    std::string_view Arguments; ///< By the letters of RandomValue.
    std::vector<std::string_view> Commands;
};

/// The arguments of the commands that the tables name; a question takes the first of them.
const std::vector<Signature> signatures{
    {"r", {"Row", "Delete", "GetRowHeight"}},
    {"c", {"Col", "Summation", "ColumnHeader"}},
    {"rct", {"TextMatrix"}},
    {"hbb", {"RowHeight"}},
    {"b", {"AllowAddNew", "RaiseError", "ShowErrMessage", "Enabled"}},
    {"f", {"DateFormat"}},
    {"N", {"Cols"}},
    {"ch", {"ColWidth"}},
    {"ctkgbaljb", {"CreateColumnDataType"}},
    {"io", {"BackColor"}},
    {"ct", {"SearchCol"}},
    {"rn", {"Add"}},
    {"cm", {"Minimum", "Maximum"}},
    {"wz", {"Font"}},
    {"rc", {"click", "dblclick", "scroll"}},
    {"rcrc", {"drag"}},
    {"KM", {"press"}},
    {"t", {"type"}},
    {"p", {"caret", "select"}},
    {"d", {"pick", "clock"}},
    {"xy",
     {"hover", "mouse down", "mouse up", "mouse move", "over down", "over up", "over move", "over click",
      "over dblclick", "resize"}},
};

/// What a user who goes to a column of the kind then does there.
const std::map<std::string_view, std::string_view> kindOf{
    {"toggle", "fcCheckBox"},       {"push", "fcCommandButton"},     {"pick", "fcDatePicker"},
    {"select", "fcListBox"},        {"over click", "fcDatePicker"},  {"over dblclick", "fcTextBox"},
    {"over up", "fcCommandButton"}, {"over move", "fcCommandButton"}};

const std::vector<std::string> failureNumbers{"5", "7", "9", "380", "30009", "0", "1000"};

/// A command of the language, its forms told apart where they are commands of their own.
struct DrawnCommand {
    enum class Sort { Call, Question, User, Own };
    std::string Name;
    Sort Of = Sort::Own;
    std::size_t Least = 0;
    std::size_t Most = 0;
};

std::vector<DrawnCommand> AllCommands()
{
    std::vector<DrawnCommand> commands;
    const auto take = [&](const std::vector<Form>& forms, DrawnCommand::Sort sort, const char* before) {
        for (const Form& form : forms)
            commands.push_back({before + ToUtf8(form.Name), sort, form.Least, form.Most});
    };
    take(HostCalls(), DrawnCommand::Sort::Call, "");
    take(Questions(), DrawnCommand::Sort::Question, "? ");
    take(UserActions(), DrawnCommand::Sort::User, "");
    for (const char* const own : {"on value", "on do", "on throw", "off", "fail member", "fail number", "recordset",
                                  "DataSource", "DataSource none", "DataSource noconnection", "end"})
        commands.push_back({.Name = own});
    return commands;
}

class Writer {
public:
    explicit Writer(std::uint32_t seed)
        : dice_(seed)
        , isUsers_(seed >= firstUsersSeed)
    {
    }

    void Write(RandomScript& script);

private:
    void Say(const std::string& line) { text_ += line + '\n'; }
    void Build();
    void Draw(const DrawnCommand& command, bool mayEnd);
    void DrawOwn(const std::string& name, bool mayEnd);
    void DrawPresses();
    void GoWhereItServes(const std::string& name);
    std::string WithArguments(const DrawnCommand& command);
    std::string Deed();
    void Answer(const std::string& event, const std::string& answer);
    void EndAnswers();
    std::string EventName() { return ToUtf8(dice_.OneOf(EventForms()).Name); }
    void AnswerWithValue();
    void Recordset();
    std::string FieldValue(std::size_t type);

    Dice dice_;
    bool isUsers_;
    std::string text_;
    std::vector<std::string> answered_; ///< Events to which the host's answer still stands.
    UsedWords used_;
    std::vector<std::string> kinds_; ///< Of the columns, from 1.
    bool hasRecordset_ = false;
};

void Writer::Write(RandomScript& script)
{
    static const std::vector<DrawnCommand> commands = AllCommands();
    static const std::vector<DrawnCommand> users = [] {
        std::vector<DrawnCommand> some = commands;
        std::erase_if(some, [](const DrawnCommand& command) { return command.Of != DrawnCommand::Sort::User; });
        return some;
    }();
    constexpr std::size_t fewest = 30;
    if (dice_.OneIn(3))
        Say("ShowErrMessage False");
    Build();
    const std::size_t count = fewest + dice_.Below(2 * fewest);
    for (std::size_t i = 0; i < count; ++i) {
        const bool isUsers = isUsers_ && !dice_.OneIn(4);
        Draw(dice_.OneOf(isUsers ? users : commands), i >= count - count / 4);
        EndAnswers();
    }
    Say("? members");
    Say("? editors");
    Say("? grid");
    Say("? cells");
    script.Text = std::move(text_);
    script.Used = std::move(used_);
}

/// A sheet with a column of most kinds and a few rows with texts.
void Writer::Build()
{
    kinds_.clear();
    const std::size_t columns = 2 + dice_.Below(8);
    Say("Cols " + std::to_string(columns + 1));
    const std::size_t first = dice_.Below(AllKinds().size());
    for (std::size_t i = 0; i < columns; ++i) {
        kinds_.push_back(AllKinds()[(first + i) % AllKinds().size()]);
        const std::string& kind = kinds_.back();
        Say("CreateColumnDataType " + std::to_string(i + 1) + " \"" + kind.substr(2) + "\" " + kind + ' ' +
            RandomSetting(kind, dice_) + (dice_.OneIn(10) ? " True " : " False ") + RandomValue('a', dice_) + ' ' +
            RandomValue('l', dice_) + ' ' + RandomValue('j', dice_) + ' ' + RandomValue('b', dice_));
    }
    if (dice_.OneIn(2))
        Say("DateFormat " + RandomValue('f', dice_));
    Say("BuildGridColumns");
    if (dice_.OneIn(8))
        return;
    Say("AllowAddNew True");
    Say(dice_.OneIn(5) ? "Add 0 40" : "Add 0 " + std::to_string(1 + dice_.Below(5)));
    for (std::size_t i = dice_.Below(4); i > 0; --i)
        Say("TextMatrix 1 " + std::to_string(1 + dice_.Below(columns)) + ' ' + RandomValue('t', dice_));
}

void Writer::Draw(const DrawnCommand& command, bool mayEnd)
{
    if (command.Name == "press") {
        DrawPresses();
    } else if (command.Of == DrawnCommand::Sort::Own) {
        DrawOwn(command.Name, mayEnd);
        return;
    } else {
        GoWhereItServes(command.Name);
        Say(WithArguments(command));
    }
    used_.Commands.insert(command.Name);
    if ((command.Name == "Clear" || command.Name == "Cols") && !dice_.OneIn(4))
        Build();
}

std::string Writer::WithArguments(const DrawnCommand& command)
{
    if (command.Most == 0)
        return command.Name;
    const std::string_view name = std::string_view(command.Name).substr(command.Name.starts_with("? ") ? 2 : 0);
    const auto known = std::find_if(signatures.begin(), signatures.end(), [&](const Signature& signature) {
        return std::find(signature.Commands.begin(), signature.Commands.end(), name) != signature.Commands.end();
    });
    if (known == signatures.end() || known->Arguments.size() < command.Most)
        throw std::logic_error("the arguments of " + command.Name + " are not known");
    std::string line = command.Name;
    const std::size_t count = command.Least + dice_.Below(command.Most - command.Least + 1);
    for (const char letter : known->Arguments.substr(0, count))
        line += ' ' + RandomValue(letter, dice_);
    return line;
}

void Writer::DrawPresses()
{
    static const std::vector<std::string> keys = AllKeys();
    static const std::vector<std::string> modifiers = AllModifiers();
    if (!dice_.OneIn(3) && !kinds_.empty())
        Say("click " + RandomValue('r', dice_) + ' ' + std::to_string(1 + dice_.Below(kinds_.size())));
    for (std::size_t count = 1 + dice_.Below(12); count > 0; --count) {
        const std::string& key = dice_.OneOf(keys);
        const std::string& modifier = dice_.OneIn(2) ? modifiers.front() : dice_.OneOf(modifiers);
        Say("press " + key + (modifier.empty() ? "" : ' ' + modifier));
        used_.Keys.insert(key);
        used_.Modifiers.insert(modifier);
    }
}

/// Half of what is done in an editor is done where that editor is.
void Writer::GoWhereItServes(const std::string& name)
{
    const auto serves = kindOf.find(name);
    if (serves == kindOf.end() || dice_.OneIn(2))
        return;
    const auto kind = std::find(kinds_.begin(), kinds_.end(), serves->second);
    if (kind != kinds_.end())
        Say("click " + std::to_string(1 + dice_.Below(3)) + ' ' + std::to_string(kind - kinds_.begin() + 1));
}

/// What a host does in an event: not so much that scripts grow without end.
std::string Writer::Deed()
{
    static const std::vector<DrawnCommand> deeds = [] {
        std::vector<DrawnCommand> some = AllCommands();
        std::erase_if(some, [](const DrawnCommand& command) {
            return command.Of == DrawnCommand::Sort::User ||
                   (command.Of == DrawnCommand::Sort::Own && command.Name != "DataSource none" &&
                    command.Name != "end");
        });
        return some;
    }();
    return WithArguments(dice_.OneOf(deeds));
}

void Writer::DrawOwn(const std::string& name, bool mayEnd)
{
    if (name == "end") {
        if (!mayEnd)
            return;
        Say("end");
    } else if (name == "on value") {
        AnswerWithValue();
    } else if (name == "on do") {
        Answer(EventName(), "do " + Deed());
    } else if (name == "on throw") {
        Answer(EventName(), "throw " + dice_.OneOf(failureNumbers));
    } else if (name == "off") {
        Say("off " + EventName());
    } else if (name == "fail member") {
        static const std::vector<std::u16string> members = MemberNames();
        Say("fail " + ToUtf8(dice_.OneOf(members)) + ' ' + dice_.OneOf(failureNumbers));
    } else if (name == "fail number") {
        Say("fail " + std::to_string(1 + dice_.Below(40)) + ' ' + dice_.OneOf(failureNumbers));
    } else if (name == "recordset") {
        Recordset();
    } else {
        if (!hasRecordset_)
            Recordset();
        Say(name);
    }
    used_.Commands.insert(name);
}

void Writer::AnswerWithValue()
{
    std::vector<std::pair<std::string, std::string>> answers;
    for (const EventForm& form : EventForms())
        for (const EventForm::Argument& argument : form.Arguments)
            if (argument.Read != nullptr)
                answers.emplace_back(ToUtf8(form.Name), ToUtf8(argument.Name));
    const auto& [event, argument] = dice_.OneOf(answers);
    std::string value;
    if (argument == "Cancel" || argument == "Use")
        value = RandomValue('b', dice_);
    else if (argument == "CallbackField" || argument == "FormattedString")
        value = RandomValue('t', dice_);
    else if (argument == "CallbackDate")
        value = RandomValue('d', dice_);
    else
        value = dice_.OneOf(std::vector<std::string>{"0", "0", "13", "27", "40", "65", "97", "-1", "1"});
    Answer(event, argument + '=' + value);
}

void Writer::Answer(const std::string& event, const std::string& answer)
{
    Say("on " + event + ' ' + answer);
    answered_.push_back(event);
}

/// An answer stands for some commands: a host that fails or goes on for ever leaves little to be seen.
void Writer::EndAnswers()
{
    std::erase_if(answered_, [this](const std::string& event) {
        const bool isOver = dice_.OneIn(6);
        if (isOver)
            Say("off " + event);
        return isOver;
    });
}

void Writer::Recordset()
{
    static const std::vector<std::string> types{"202", "11", "3", "5", "131", "135", "72"};
    Say("recordset");
    std::vector<std::size_t> fields;
    for (std::size_t count = dice_.Below(8); count > 0; --count) {
        fields.push_back(dice_.Below(types.size()));
        Say("field F" + std::to_string(count) + ' ' + types[fields.back()]);
    }
    for (std::size_t count = dice_.Below(5); count > 0; --count) {
        std::string record = "record";
        for (const std::size_t field : fields)
            record += ' ' + (dice_.OneIn(5) ? "Null" : FieldValue(field));
        Say(record);
    }
    if (dice_.OneIn(3))
        Say(R"(error 5 "refused" "provider" 17 "HY000")");
    Say("recordset end");
    hasRecordset_ = true;
    for (const char* const word : {"recordset", "field", "record", "error"})
        used_.Commands.insert(word);
}

std::string Writer::FieldValue(std::size_t type)
{
    static const std::vector<std::string> numbers{"0", "1", "-7", "42", "100000"};
    switch (type) {
    case 1: return RandomValue('b', dice_);
    case 2: return dice_.OneOf(numbers);
    case 3: return dice_.OneOf(numbers) + "e-3";
    case 4: return dice_.OneOf(numbers) + ".25";
    case 5: return RandomValue('d', dice_);
    default: return RandomValue('t', dice_);
    }
}

} // namespace

void UsedWords::Add(const UsedWords& other)
{
    Commands.insert(other.Commands.begin(), other.Commands.end());
    Keys.insert(other.Keys.begin(), other.Keys.end());
    Modifiers.insert(other.Modifiers.begin(), other.Modifiers.end());
}

RandomScript::RandomScript(std::uint32_t seed)
{
    Writer(seed).Write(*this);
}

UsedWords AllWords()
{
    UsedWords all;
    for (const DrawnCommand& command : AllCommands())
        all.Commands.insert(command.Name);
    for (const char* const word : {"field", "record", "error"})
        all.Commands.insert(word);
    for (const std::string& key : AllKeys())
        all.Keys.insert(key);
    for (const std::string& modifier : AllModifiers())
        all.Modifiers.insert(modifier);
    return all;
}

} // namespace Tessellon::Replay
