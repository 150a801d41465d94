#pragma once

#include "engine/fields/MaskPattern.h"
#include "engine/fields/TextState.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon {

class RunTimeFunctions;

/// What became of a text that code wrote.
enum class MaskWrite : std::uint8_t {
    Same, ///< It reads as before.
    Changed,
    DoesNotFit, ///< The box keeps what it had: failure 380 of the control.
};

/// What became of a typed character.
enum class MaskTyping : std::uint8_t {
    Refused, ///< It does not fit; the caret stays. The bell.
    Passed, ///< It is the literal at the caret, which has passed it; the text is as before.
    Taken, ///< It stands in its place, and the caret behind it.
};

/// The state of a masked box: a text under a mask, or, without one, a plain text that a format shows.
/// Positions and carets count UTF-16 units. Views that are handed out stay valid until the next call.
class MaskState {
public:
    static constexpr char16_t PromptChar = u'_';

    /// The functions, which have to outlive the box, give the locale of the separators and format a text without mask.
    explicit MaskState(const RunTimeFunctions& functions);

    [[nodiscard]] std::u16string_view Mask() const { return mask_; }
    /// Puts the text's characters into the new mask's places from the left: a blank passes over a place that takes
    /// none; what does not fit, and what is left over, is dropped. An empty mask leaves what Text reads. The caret
    /// goes to 0. False for a mask that cannot be read, and nothing is done (failure 380 of the control).
    [[nodiscard]] bool Mask(std::u16string_view mask);

    [[nodiscard]] bool PromptInclude() const { return promptInclude_; }
    /// Whether Text carries prompts and literals. The caret stays.
    void PromptInclude(bool include) { promptInclude_ = include; }

    /// Under a mask with PromptInclude: every position, prompts in places not filled; without: what fills the places.
    [[nodiscard]] std::u16string_view Text() const;
    /// Literals in the text are passed over, and with PromptInclude a prompt leaves its place empty; so may a blank.
    /// If the text becomes another, the caret goes to 0.
    [[nodiscard]] MaskWrite Text(std::u16string_view text);
    /// What the box shows in front of its user: under a mask every position with prompts, else the text.
    [[nodiscard]] std::u16string_view ShownText() const;
    /// What the box shows without the focus: blanks for prompts; without a mask the text in the format.
    [[nodiscard]] std::u16string_view FormattedText() const;

    [[nodiscard]] std::u16string_view Format() const { return format_; }
    void Format(std::u16string_view format) { format_ = std::u16string(format); }

    [[nodiscard]] std::int32_t MaxLength() const { return plain_.MaxLength(); }
    /// Limits typing without a mask; 0 or below is no limit.
    void MaxLength(std::int32_t length) { plain_.MaxLength(length); }

    [[nodiscard]] std::int32_t Caret() const;
    /// Above the length of ShownText: that length. Below 0: false, and nothing is done (failure 380 of the control).
    [[nodiscard]] bool Caret(std::int32_t position);

    // What the user does.

    /// A character as UTF-16 unit. It replaces the place at the caret and shifts nothing.
    MaskTyping Type(char16_t unit);
    /// Empties the place before the caret, back over literals. Returns whether the text became another.
    bool Backspace();
    /// Empties the place at the caret; a literal stays. Returns whether the text became another.
    bool Delete();
    void Left();
    void Right();
    void Home();
    void End();

    // What he does in a widget with a selection, a clipboard and an undo of its own.

    /// Empties the places from `first` up to `last`; without a mask it takes the units out. The caret goes to `first`.
    void Erase(std::size_t first, std::size_t last);
    /// A whole text at the caret, as if typed. Returns whether all of it was taken.
    bool Insert(std::u16string_view text);
    /// Text and caret, to be put back under the same mask.
    class Kept;
    [[nodiscard]] Kept Keep() const;
    void PutBack(const Kept& kept);

private:
    /// What stands in each position of the mask: literals, characters, prompts where nothing is filled in.
    struct Held {
        std::u16string Shown;
        std::vector<bool> Filled;

        void Fill(std::size_t place, char16_t character)
        {
            Shown[place] = character;
            Filled[place] = true;
        }
        void Empty(std::size_t place)
        {
            Shown[place] = PromptChar;
            Filled[place] = false;
        }
    };
    enum class Literals : std::uint8_t { Passed, NotPassed };

    [[nodiscard]] bool IsMasked() const { return !mask_.empty(); }
    [[nodiscard]] std::u16string BareText() const;
    [[nodiscard]] Held NothingHeld() const;
    /// A text that was there before the mask: what does not fit is dropped.
    [[nodiscard]] Held HeldOf(std::u16string_view text) const;
    /// A text written under the mask: nothing if it does not fit.
    [[nodiscard]] std::optional<Held> Read(std::u16string_view text, Literals literals) const;
    /// The place that makes up a pair of units with this one.
    [[nodiscard]] std::optional<std::size_t> OtherHalf(std::size_t place) const;
    void Put(std::size_t place, char16_t character);
    bool Empty(std::size_t place);
    void MoveTo(std::size_t caret);

    const RunTimeFunctions& functions_;
    std::u16string mask_;
    std::u16string format_;
    bool promptInclude_ = true;

    TextState plain_; ///< The text while there is no mask; the limit at all times.

    MaskPattern pattern_;
    Held held_;
    std::size_t caret_ = 0;
    bool firstHalfRefused_ = false;

    mutable std::u16string text_;
    mutable std::u16string formatted_;
};

class MaskState::Kept {
    friend class MaskState;
    Held held_;
    std::u16string plain_;
    std::size_t caret_ = 0;
};

} // namespace Tessellon
