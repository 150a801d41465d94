#pragma once

#include "platform/Failure.h"
#include "platform/Recordset.h"

#include <gtest/gtest.h>

namespace Tessellon {

/// Walks to the end from where the recordset stands, and gives the count.
inline int CountOnwards(Recordset& records)
{
    int count = 0;
    for (; !records.AtEnd(); records.MoveNext())
        ++count;
    return count;
}

/// What a call fails with.
template <typename Call>
Failure FailureOf(Call call)
{
    try {
        call();
    } catch (const Failure& failure) {
        return failure;
    }
    ADD_FAILURE() << "Nothing failed";
    return Failure(0, u"", u"");
}

} // namespace Tessellon
