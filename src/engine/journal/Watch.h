#pragma once

#include "engine/journal/JournalLog.h"
#include "engine/journal/ValueText.h"

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace Tessellon {

/// One object of a platform, watched: each member is a line that names itself and the member of the interface to which
/// it is forwarded. Arguments become text only while the journal is noting.
template <class Interface>
class Watch : public Interface {
public:
    Watch(std::u16string name, std::shared_ptr<Interface> under, std::shared_ptr<JournalLog> log)
        : name_(std::move(name))
        , under_(std::move(under))
        , log_(std::move(log))
    {
    }

    [[nodiscard]] const std::shared_ptr<Interface>& Under() const { return under_; }

protected:
    using Long = std::int32_t;
    using Int = std::int16_t;
    using TextView = std::u16string_view;

    template <class Result, class Owner, class... Arguments>
    Result Read(TextView member, Result (Owner::*getter)(Arguments...), std::type_identity_t<Arguments>... arguments)
    {
        if (log_->WatchesReads()) [[unlikely]]
            log_->Read(name_, member);
        return (under_.get()->*getter)(arguments...);
    }

    template <class Owner, class... Arguments>
    void Write(TextView member, void (Owner::*setter)(Arguments...), std::type_identity_t<Arguments>... arguments)
    {
        Counted(member, JournalLog::Form::Write, arguments...);
        (under_.get()->*setter)(arguments...);
    }

    template <class Owner, class... Arguments>
    void Call(TextView member, void (Owner::*method)(Arguments...), std::type_identity_t<Arguments>... arguments)
    {
        Counted(member, JournalLog::Form::Call, arguments...);
        (under_.get()->*method)(arguments...);
    }

    template <class... Values>
    void Counted(TextView member, JournalLog::Form form, const Values&... values)
    {
        if (!log_->WatchesCalls()) [[likely]]
            return;
        std::array<std::u16string, sizeof...(Values)> texts;
        if (log_->IsNoting())
            texts = {ValueText(values)...};
        log_->Counted(name_, member, form, texts);
    }

    const std::u16string name_;
    const std::shared_ptr<Interface> under_;
    const std::shared_ptr<JournalLog> log_;
};

} // namespace Tessellon
