#include "recordset/common/FailureNumbers.h"

namespace Tessellon::Common {

namespace {

struct NumberedState {
    std::u16string_view Beginning;
    std::int32_t Number;
};

/// From the particular to the general. 53, 57 and 42P are PostgreSQL's own.
constexpr NumberedState States[] = {
    {u"HY001", OutOfMemory}, {u"53200", OutOfMemory},      {u"HYT", WaitedInVain}, {u"57014", WaitedInVain},
    {u"42S02", NoSuchTable}, {u"42P01", NoSuchTable},      {u"28", NotLetIn},      {u"42501", PermissionDenied},
    {u"42", WrongCommand},   {u"25006", PermissionDenied}, {u"37", WrongCommand},
};

} // namespace

std::int32_t NumberOfState(std::u16string_view state)
{
    for (const NumberedState& numbered : States)
        if (state.starts_with(numbered.Beginning))
            return numbered.Number;
    return Unspecified;
}

} // namespace Tessellon::Common
