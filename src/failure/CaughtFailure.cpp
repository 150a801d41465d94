#include "failure/Frames.h"

#include <exception>
#include <new>
#include <stdexcept>
#include <typeinfo>

namespace Tessellon {

namespace {

constexpr std::int32_t invalidCall = 5;

/// The platform's number for the exception that is being caught, and is none of its own failures.
std::int32_t NumberOfCaught()
{
    constexpr std::int32_t overflow = 6;
    constexpr std::int32_t outOfMemory = 7;
    constexpr std::int32_t subscript = 9;
    constexpr std::int32_t typeMismatch = 13;
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return outOfMemory;
    } catch (const std::length_error&) {
        return outOfMemory;
    } catch (const std::out_of_range&) {
        return subscript;
    } catch (const std::bad_cast&) {
        return typeMismatch;
    } catch (const std::overflow_error&) {
        return overflow;
    } catch (...) {
        return invalidCall;
    }
}

} // namespace

/// Puts the failure that is being caught into the record. A raise with the number 0 is itself invalid.
void TessellonSheet::TakeCaughtFailure()
{
    std::int32_t number = invalidCall;
    try {
        throw;
    } catch (const Failure& failure) {
        if (failure.Number != 0) {
            ThreadFailureRecord().Take(failure);
            return;
        }
    } catch (...) {
        number = NumberOfCaught();
    }
    ThreadFailureRecord().Take(Failure(number, u"TessellonSheet", std::u16string(RunTime->FailureText(number))));
}

/// Turns what a host's handler threw into a failure of the handler, with the number that the platform has for it.
void TessellonSheet::FailInHandler()
{
    std::int32_t number = invalidCall;
    try {
        throw;
    } catch (Failure& failure) {
        if (failure.Number != 0) {
            failure.Source = u"Host";
            throw;
        }
    } catch (...) {
        number = NumberOfCaught();
    }
    Fail(number, u"Host");
}

} // namespace Tessellon
