#pragma once

#include "failure/FailureRecord.h"
#include "shell/TessellonSheet.h"

#include <exception>
#include <utility>

namespace Tessellon {

/// Thrown when a host has ended the sheet inside an event: everything that is on the stack of the sheet is left, and
/// no handler frame may take it for a failure.
struct SheetEnded {};

/// A whole number in decimal.
std::u16string DecimalText(std::int32_t number);

/// Armed: a failure in the body is reported under the procedure's label, and the procedure returns normally. What
/// stands behind the call runs in both outcomes.
template <class Body>
void TessellonSheet::Armed(const char16_t* procedure, Body&& body)
{
    ThreadFailureRecord().Clear();
    try {
        CheckStack();
        body();
    } catch (const std::exception&) {
        HandleFailure(procedure);
    }
}

/// Armed, with a result: the body assigns it, and a failure leaves what had been assigned so far.
template <class Result, class Body>
Result TessellonSheet::ArmedResult(const char16_t* procedure, Result result, Body&& body)
{
    Armed(procedure, [&] { body(result); });
    return result;
}

/// Ignore: a failure abandons its statement only, without a word, and the next one runs.
template <class... Statements>
void TessellonSheet::Ignoring(Statements&&... statements)
{
    ThreadFailureRecord().Clear();
    const auto ignore = [this](auto&& statement) {
        try {
            statement();
        } catch (const std::exception&) {
            TakeCaughtFailure();
        }
    };
    (ignore(std::forward<Statements>(statements)), ...);
}

} // namespace Tessellon
