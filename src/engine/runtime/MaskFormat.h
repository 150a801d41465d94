#pragma once

#include "engine/runtime/Locale.h"

#include <string>
#include <string_view>

namespace Tessellon {

/// Appends a text in a mask. Its units fill the places `# 9 ? A a C @ &` from the right end, or from the left where the
/// mask has a `!`; a place left over gives nothing, `@` a blank. What finds no place stands in front (with `!` behind).
/// `<` and `>` turn what follows to lower or upper case, the first of them also what stands in front of it; all else
/// are literals, `. , : /` those of the locale. A mask without places leaves the text, but gives its literals for
/// blanks and for an empty text.
void AppendMasked(std::u16string& out, std::u16string_view text, std::u16string_view mask, const Locale& locale);

bool IsBlank(std::u16string_view text); ///< Blanks (U+0020) and nothing else, at least one.

} // namespace Tessellon
