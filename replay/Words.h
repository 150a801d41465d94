#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tessellon::Replay {

/// One word of a line: bare (`Row`), a text (`"a b"`), or a bare beginning that ends in `=` with a text behind it.
struct Word {
    std::u16string Bare;
    std::optional<std::u16string> Text; ///< Without its quotes, its escapes resolved.

    [[nodiscard]] bool IsBare() const { return !Text; }
    [[nodiscard]] bool IsText() const { return Text && Bare.empty(); }
    [[nodiscard]] bool Is(std::u16string_view bare) const { return !Text && Bare == bare; }
};

using Words = std::span<const Word>;

/// Splits a line at blanks and tabs; a `#` at the start of a word ends it. A quote that stands alone is a bare word,
/// for the key of that name. A text that cannot be read throws ScriptError.
std::vector<Word> SplitWords(std::u16string_view line);

/// The word as the script has it, for a report: bare, or as a quoted text; in UTF-8.
std::string Shown(const Word& word);

} // namespace Tessellon::Replay
