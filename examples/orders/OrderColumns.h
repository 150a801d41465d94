#pragma once

#include "orders/Columns.h"

namespace Orders {

/// Numbers of columns in the sheet of orders.
inline constexpr int NumberCol = 1;
inline constexpr int CustomerCol = 2;
inline constexpr int CityCol = 3;
inline constexpr int OrderedCol = 4;
inline constexpr int AmountCol = 5;
inline constexpr int CurrencyCol = 6;

const Columns& OrderColumns();

} // namespace Orders
