#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// What a journal notes and what it makes fail. All the watched objects of one journal share it.
class JournalLog {
public:
    /// How a call reads in the journal.
    enum class Form : std::uint8_t {
        Write, ///< Name.Member(first,second)=last
        Call, ///< Name.Member(first,second,last)
    };

    // These two are all that a call costs while nothing is asked for.
    [[nodiscard]] bool WatchesReads() const { return watchesReads_; }
    [[nodiscard]] bool WatchesCalls() const { return watchesCalls_; }
    [[nodiscard]] bool IsNoting() const { return isNoting_; }

    void Notes(bool noting);
    [[nodiscard]] std::vector<std::u16string> TakeNotes();

    /// The counted call with this number from here on fails, 1 being the next. It replaces what was to fail.
    void FailAtCall(std::int32_t number, std::int32_t failure);
    /// The next use of "Control.Member" fails. It replaces what was to fail.
    void FailAtMember(std::u16string member, std::int32_t failure);

    /// A member is read: fails if it is to.
    void Read(std::u16string_view name, std::u16string_view member);
    /// A call that counts is made: it is noted, then fails if it is to.
    void Counted(std::u16string_view name, std::u16string_view member, Form form,
                 std::span<const std::u16string> values);

private:
    struct Due {
        std::int32_t Failure = 0;
        std::int32_t CallsLeft = 0; ///< Of a failure by count.
        std::u16string Member; ///< Of a failure by name; empty for one by count.
    };

    void Expect(std::optional<Due> due);
    [[nodiscard]] bool IsNamed(std::u16string_view name, std::u16string_view member) const;
    [[noreturn]] void FailNow(std::u16string_view name);

    bool watchesReads_ = false;
    bool watchesCalls_ = false;
    bool isNoting_ = false;
    std::optional<Due> due_;
    std::vector<std::u16string> notes_;
};

} // namespace Tessellon
