#include "Forms.h"

#include "Utf8.h"

namespace Tessellon::Replay {

namespace {

/// How many of the words are the form's name; 0 where they are not.
std::size_t WordsOfName(std::u16string_view name, Words words)
{
    if (words[0].Is(name))
        return 1;
    const bool isPair = words.size() > 1 && words[0].IsBare() && words[1].IsBare();
    return isPair && words[0].Bare + u' ' + words[1].Bare == name ? 2 : 0;
}

} // namespace

Action ReadForm(const std::vector<Form>& forms, Words words)
{
    const Form* found = nullptr;
    std::size_t named = 0;
    for (const Form& form : forms) {
        if (const std::size_t count = WordsOfName(form.Name, words); count > named) {
            found = &form;
            named = count;
        }
    }
    if (found == nullptr)
        return nullptr;
    const Words arguments = words.subspan(named);
    CheckCount(found->Name, arguments.size(), found->Least, found->Most);
    return found->Read(arguments);
}

void CheckCount(std::u16string_view name, std::size_t count, std::size_t least, std::size_t most)
{
    if (count >= least && count <= most)
        return;
    std::string wanted = std::to_string(least);
    if (most != least)
        wanted += " to " + std::to_string(most);
    throw ScriptError(ToUtf8(name) + " takes " + wanted + (most == 1 ? " argument, not " : " arguments, not ") +
                      std::to_string(count));
}

} // namespace Tessellon::Replay
