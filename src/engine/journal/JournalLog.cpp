#include "engine/journal/JournalLog.h"

#include "engine/Failures.h"

#include <utility>

namespace Tessellon {

void JournalLog::Notes(bool noting)
{
    isNoting_ = noting;
    watchesCalls_ = noting || due_;
}

std::vector<std::u16string> JournalLog::TakeNotes()
{
    return std::exchange(notes_, {});
}

void JournalLog::FailAtCall(std::int32_t number, std::int32_t failure)
{
    Expect(Due{.Failure = failure, .CallsLeft = number, .Member = {}});
}

void JournalLog::FailAtMember(std::u16string member, std::int32_t failure)
{
    Expect(Due{.Failure = failure, .CallsLeft = 0, .Member = std::move(member)});
}

void JournalLog::Read(std::u16string_view name, std::u16string_view member)
{
    if (IsNamed(name, member))
        FailNow(name);
}

void JournalLog::Counted(std::u16string_view name, std::u16string_view member, Form form,
                         std::span<const std::u16string> values)
{
    if (isNoting_) {
        std::u16string& note = notes_.emplace_back(name).append(1, u'.').append(member);
        const std::span<const std::u16string> listed = form == Form::Write ? values.first(values.size() - 1) : values;
        if (form == Form::Call || !listed.empty()) {
            note += u'(';
            for (const std::u16string& value : listed)
                note.append(&value == listed.data() ? 0 : 1, u',').append(value);
            note += u')';
        }
        if (form == Form::Write)
            note.append(1, u'=').append(values.back());
    }
    if (IsNamed(name, member) || (due_ && due_->Member.empty() && --due_->CallsLeft == 0))
        FailNow(name);
}

void JournalLog::Expect(std::optional<Due> due)
{
    due_ = std::move(due);
    watchesReads_ = due_ && !due_->Member.empty();
    watchesCalls_ = isNoting_ || due_;
}

bool JournalLog::IsNamed(std::u16string_view name, std::u16string_view member) const
{
    if (!watchesReads_)
        return false;
    const std::u16string_view wanted = due_->Member;
    return wanted.size() == name.size() + 1 + member.size() && wanted.starts_with(name) &&
           wanted[name.size()] == u'.' && wanted.ends_with(member);
}

void JournalLog::FailNow(std::u16string_view name)
{
    const std::int32_t failure = due_->Failure;
    Expect(std::nullopt);
    Fail(failure, name);
}

} // namespace Tessellon
