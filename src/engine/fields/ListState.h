#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

/// What a key does to a list. Up and Left are one, Down and Right are one.
enum class ListKey : std::uint8_t { Up, Down, Home, End };

/// Entries and selection of a list box. Indices count from 0. `shift` is 1 Shift, 2 Ctrl, 4 Alt, added up.
class ListState {
public:
    static constexpr std::int32_t None = -1;

    [[nodiscard]] std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
    [[nodiscard]] bool Has(std::int32_t index) const { return index >= 0 && index < Count(); }
    /// Empty past the last. Valid until the entries change.
    [[nodiscard]] std::u16string_view Entry(std::int32_t index) const;
    /// False past the last.
    [[nodiscard]] bool Selected(std::int32_t index) const;
    [[nodiscard]] std::int32_t FirstSelected() const; ///< None without a selection.
    /// The entry from which the keys start: chosen, reached or set last. For a real list to draw its focus on.
    [[nodiscard]] std::int32_t Reached() const { return reached_; }

    // What code does. It is never told as a click.

    void AddItem(std::u16string_view entry);
    void Clear();
    /// False for an index that is not there, and nothing is done (failure 381 of the control).
    [[nodiscard]] bool Selected(std::int32_t index, bool selected);
    /// Selects the first entry that equals the text, and it alone; where none does, none is selected.
    void Text(std::u16string_view text);

    // What the user does. Each returns whether the selection became another.

    bool Press(ListKey key, std::int16_t shift);
    /// Whether Press would return true; nothing is done.
    [[nodiscard]] bool WouldChange(ListKey key, std::int16_t shift) const;
    /// A letter, in any case: the next entry that begins with it, and round. Other characters do nothing.
    bool Type(char16_t letter, std::int16_t shift = 0);
    /// The entry is chosen with the mouse: it alone; with Ctrl it is turned over; with Shift all from the anchor to it.
    bool Choose(std::int32_t index, std::int16_t shift = 0);

private:
    /// The entries from First to Last are selected and no others, and Reached is reached.
    struct Range {
        std::int32_t First;
        std::int32_t Last;
        std::int32_t Reached;
        std::int32_t Anchor;
    };

    [[nodiscard]] std::optional<Range> Target(ListKey key, std::int16_t shift) const;
    [[nodiscard]] static Range Alone(std::int32_t index);
    [[nodiscard]] Range FromAnchor(std::int32_t index) const;
    [[nodiscard]] bool IsSelection(const Range& range) const;
    bool Take(const Range& range);
    void TurnOver(std::int32_t index);
    void ForgetWithoutSelection();

    std::vector<std::u16string> entries_;
    std::vector<bool> selected_;
    std::int32_t selectedCount_ = 0;
    std::int32_t reached_ = None;
    std::int32_t anchor_ = None;
};

} // namespace Tessellon
