#pragma once

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

namespace Tessellon::Odbc {

static_assert(sizeof(SQLWCHAR) == sizeof(char16_t), "the wide functions of ODBC are to take UTF-16");

/// ODBC's types for characters. It reads from some of these, too, but takes none that are constant.
inline SQLWCHAR* Wide(const char16_t* units)
{
    return reinterpret_cast<SQLWCHAR*>(const_cast<char16_t*>(units));
}
inline SQLCHAR* Narrow(const char* bytes)
{
    return reinterpret_cast<SQLCHAR*>(const_cast<char*>(bytes));
}

/// ODBC passes whole numbers in the place of pointers.
inline SQLPOINTER AsPointer(SQLULEN number)
{
    return reinterpret_cast<SQLPOINTER>(number);
}

} // namespace Tessellon::Odbc
