#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Tessellon {

/// Text and caret of a text box, a rich text box or a combo's field. It has no selection: that is the real widget's.
/// Carets count UTF-16 units from 0 to the text's length. A pair of surrogates, and a carriage return with its line
/// feed, are passed and removed as one.
class TextState {
public:
    /// Valid until the text changes.
    [[nodiscard]] std::u16string_view Text() const { return text_; }
    /// Code writes the text, whatever the limit. True if it became another: then the caret stands at 0.
    bool Text(std::u16string_view text);

    [[nodiscard]] std::int32_t Caret() const { return static_cast<std::int32_t>(caret_); }
    /// Above the length: the length. Below 0: false, and nothing is done (failure 380 of the control).
    [[nodiscard]] bool Caret(std::int32_t position);

    [[nodiscard]] std::int32_t MaxLength() const { return maxLength_; }
    /// Limits typing only; 0 or below is no limit.
    void MaxLength(std::int32_t length) { maxLength_ = length; }

    [[nodiscard]] bool Multiline() const { return multiline_; }
    /// Whether LineBreak does anything.
    void Multiline(bool multiline) { multiline_ = multiline; }

    // What the user does. Each returns whether the text became another.

    /// A character at the caret, as UTF-16 unit. Not taken: control characters; what is over the limit; a pair of
    /// surrogates, both halves of it, where there is room for one unit only.
    bool Type(char16_t unit);
    /// Carriage return and line feed at the caret, if the text has lines and the limit has room for both.
    bool LineBreak();
    bool Backspace();
    bool Delete();
    /// What a real widget that edits by itself holds now.
    bool TakeFrom(std::u16string_view text, std::int32_t caret);

    void Left();
    void Right();
    void Home();
    void End();

private:
    [[nodiscard]] bool HasRoom(std::size_t units) const;
    bool Insert(std::u16string_view units);
    bool Remove(std::size_t from, std::size_t to);

    std::u16string text_;
    std::size_t caret_ = 0;
    std::int32_t maxLength_ = 0;
    bool multiline_ = false;
    bool firstHalfRefused_ = false;
};

} // namespace Tessellon
