#pragma once

#include <cstdint>

namespace Tessellon {

/// How the cells of a column are compared.
enum ManipulateType : std::int32_t { mtString = 1, mtNumeric = 2, mtDate = 3 };

} // namespace Tessellon
