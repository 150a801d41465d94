#pragma once

#include "platform/Value.h"
#include "recordset/sqlite/DeclaredType.h"

#include <string_view>

namespace Tessellon::Sqlite {

/// The value of a text that a field holds; the text itself where the field's reading finds nothing in it.
Value ReadText(std::u16string_view text, Reading reading);

} // namespace Tessellon::Sqlite
